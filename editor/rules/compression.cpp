#include "editor/rules/compression.h"

#include "editor/NodeImages.h"
#include "editor/rules/action.h"
#include "i18n/Catalogue.h"

namespace kestedit {

namespace {

constexpr int firstLevel = 1;
constexpr std::size_t levelCount = 4;

void setArchiveFolders(FormModel& form, bool all) {
    if (form.DisableInsteadOfHide) {
        form.chkZipIntStruct.Visible = true;
        if (!all) form.chkZipExtStruct.Visible = true;
        form.chkZipIntStruct.Enabled = !all;
        form.chkZipExtStruct.Enabled = all;
    } else {
        form.chkZipExtStruct.Visible = all;
    }
}

// The mark while files are copied or moved: folder structure first, then the choice for existing files.
std::string_view copyMark(const FormModel& form) {
    if (!form.chkSubFolder.isSet()) return image::none;
    if (form.chkFStruct.isSet()) return image::applies;
    return form.optExist[Existing::keep].State == 0 ? image::applies : image::none;
}

std::string_view extractMark(const FormModel& form) {
    if (form.chkFStruct.isSet()) return image::applies;
    return form.optUnZip[UnZipExisting::keep].State == 0 ? image::applies : image::none;
}

std::string_view compressMark(const FormModel& form) {
    return form.optExist[Existing::keep].State == 0 ? image::applies : image::none;
}

}  // namespace

void ApplyZipAll(FormModel& form) {
    if (form.chkSubFolder.isSet()) {
        setArchiveFolders(form, form.chkZipAll.isSet());
    } else {
        (form.DisableInsteadOfHide ? form.chkZipExtStruct.Enabled : form.chkZipExtStruct.Visible) = false;
    }
}

void ApplyZipDelComp(FormModel& form) {
    if (!form.chkZipDelComp.isSet()) form.chkZipDelComp.State = 0;
    ShowZipDelComp(form);
}

void ShowZipDelComp(FormModel& form) {
    const bool deleting = form.chkZipDelComp.isSet();
    for (EditorControl* companion : {&form.chkZipDelCompBin, &form.chkZipDelCompBinFolder}) {
        if (form.DisableInsteadOfHide) companion->Enabled = deleting;
        companion->Visible = deleting || form.DisableInsteadOfHide;
    }
}

void ApplyZipDelDeComp(FormModel& form) {
    if (!form.chkZipDelDeComp.isSet()) form.chkZipDelDeCompBin.State = 0;
    ShowZipDelDeComp(form);
}

void ShowZipDelDeComp(FormModel& form) {
    const bool deleting = form.chkZipDelDeComp.isSet();
    if (form.DisableInsteadOfHide) form.chkZipDelDeCompBin.Enabled = deleting;
    form.chkZipDelDeCompBin.Visible = deleting || form.DisableInsteadOfHide;
}

void FillCompressionLevels(FormModel& form) {
    form.dxZipGrade.Items.clear();
    for (std::size_t level = 0; level < levelCount; ++level)
        form.dxZipGrade.Items.push_back(form.TextCatalogue[catalogue::firstLevel + level]);
    const int position = form.CompressionLevel - firstLevel;
    if (position >= 0 && position < static_cast<int>(levelCount)) form.dxZipGrade.pick(position);
}

void PickCompressionLevel(FormModel& form) {
    if (const auto position = form.dxZipGrade.itemIndex()) form.CompressionLevel = firstLevel + *position;
}

void ApplyFolderStructure(FormModel& form) {
    switch (selectedAction(form)) {
        case Action::copy:
        case Action::move:
            return SetNodeImage(form, Page::existing, copyMark(form));
        case Action::extract:
            return SetNodeImage(form, Page::existing, extractMark(form));
        case Action::remove:
        case Action::compress:
        case Action::synchronise:
            return;
    }
}

void ApplyUnZipExisting(FormModel& form, int index) {
    if (index == form.HandledUnZipItem) return;
    form.HandledUnZipItem = index;
    // Compressing asks for the group of existing files here, not for the one of extracting: the page shows that group.
    // Test: CompressionRules.ExistingFilesMarkOfCompressAndExtract.
    if (selectedAction(form) == Action::compress) SetNodeImage(form, Page::existing, compressMark(form));
    if (selectedAction(form) == Action::extract) {
        SetNodeImage(form, Page::existing,
                     form.optUnZip[UnZipExisting::keep].State == 0 ? image::applies : image::none);
    }
}

std::string_view DestinationMark(const FormModel& form) {
    if (!form.optAction.selected()) return image::none;
    switch (selectedAction(form)) {
        case Action::copy:
        case Action::move:
            return copyMark(form);
        case Action::remove:
            return image::doesNotApply;
        case Action::compress:
            return compressMark(form);
        case Action::extract:
            return extractMark(form);
        case Action::synchronise:
            break;
    }
    return image::none;
}

void MarkDestinationPage(FormModel& form) {
    SetNodeImage(form, Page::existing, DestinationMark(form));
}

}  // namespace kestedit
