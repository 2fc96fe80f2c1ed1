#include "editor/rules/pageMarks.h"

#include "editor/NodeImages.h"
#include "editor/Views.h"
#include "editor/rules/action.h"
#include "editor/rules/attributes.h"
#include "editor/rules/compression.h"
#include "editor/rules/conditions.h"
#include "editor/rules/dateAge.h"
#include "editor/rules/existing.h"
#include "editor/rules/schedule.h"
#include "editor/rules/selection.h"

namespace kestedit {

namespace {

std::string_view modeMark(const FormModel& form) {
    return form.optAction.selected() ? ActionImage(form.SelectedAction, form.chkPreview.isSet()) : image::none;
}

std::string_view compressionMark(const FormModel& form) {
    return form.optAction.selected() ? CompressionMark(form) : image::none;
}

}  // namespace

std::string_view PageMark(const FormModel& form, Page page) {
    if (!isMarked(form, page)) return image::none;
    switch (page) {
        case Page::mode:
            return modeMark(form);
        case Page::path:
            return PathMark(form);
        case Page::monitoring:
            return ChoiceMark(ChangesSchedule(form));
        case Page::execute:
            return InactiveMark(form);
        case Page::folders:
            return ChoiceMark(NarrowsFolders(form));
        case Page::files:
            return ChoiceMark(NarrowsFiles(form));
        case Page::extensions:
            return ChoiceMark(NarrowsExtensions(form));
        case Page::filesize:
            return ChoiceMark(NarrowsSize(form));
        case Page::date:
            return ChoiceMark(NarrowsDate(form));
        case Page::attributes:
            return ChoiceMark(ChangesAttributes(form));
        case Page::compression:
            return compressionMark(form);
        case Page::existing:
            return DestinationMark(form);
        case Page::comment:
        case Page::reduced:
            break;
    }
    return image::none;
}

}  // namespace kestedit
