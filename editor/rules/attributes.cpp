#include "editor/rules/attributes.h"

#include "editor/NodeImages.h"
#include "editor/rules/applicability.h"

namespace kestedit {

namespace {

// Members of the four attribute groups.
constexpr std::size_t excluded = 0;
constexpr std::size_t atDestination = 1;
constexpr std::size_t atSource = 2;

/// Member of optAttrSetSource and optAttrSetDest that sets attributes; member 0 keeps them as they are.
constexpr std::size_t setThem = 1;

bool hasSourceAttributes(const FormModel& form) {
    return form.action() != Action::remove;
}

/// An archive is no copy of the files, so compressing leaves nothing to set attributes of.
bool hasDestAttributes(const FormModel& form) {
    return form.action() != Action::remove && form.action() != Action::compress;
}

bool setsSourceAttributes(const FormModel& form) {
    return hasSourceAttributes(form) && form.optAttrSetSource[setThem].isSet();
}

bool setsDestAttributes(const FormModel& form) {
    return hasDestAttributes(form) && form.optAttrSetDest[setThem].isSet();
}

bool excludesAttributes(const FormModel& form) {
    return form.chkAttrArchive[excluded].isSet() || form.chkAttrReadOnly[excluded].isSet() ||
           form.chkAttrSystem[excluded].isSet() || form.chkAttrHidden[excluded].isSet() || form.chkAttrNormal.isSet() ||
           form.chkAttrComp.isSet();
}

void applyBoxes(FormModel& form, std::size_t place, bool applies) {
    SetAllApply(form, applies, form.chkAttrArchive[place], form.chkAttrReadOnly[place], form.chkAttrSystem[place],
                form.chkAttrHidden[place]);
}

}  // namespace

void ApplySourceAttributes(FormModel& form) {
    SetAllApply(form, hasSourceAttributes(form), form.lblSourceAttrib, form.optAttrSetSource);
    applyBoxes(form, atSource, setsSourceAttributes(form));
    MarkAttributesPage(form);
}

void ApplyDestAttributes(FormModel& form) {
    SetAllApply(form, hasDestAttributes(form), form.lblDestAttrib, form.optAttrSetDest);
    applyBoxes(form, atDestination, setsDestAttributes(form));
    MarkAttributesPage(form);
}

void MarkAttributesPage(FormModel& form) {
    SetNodeImage(form, Page::attributes, ChoiceMark(ChangesAttributes(form)));
}

bool ChangesAttributes(const FormModel& form) {
    // Setting none of the four is a change, too: the file loses those it has.
    return excludesAttributes(form) || setsSourceAttributes(form) || setsDestAttributes(form);
}

}  // namespace kestedit
