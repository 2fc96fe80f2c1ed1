#include "editor/rules/compression.h"

#include "editor/NodeImages.h"
#include "editor/rules/applicability.h"
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

std::string_view CompressionMark(const FormModel& form) {
    const auto action = form.optAction.selected();
    const bool applies = action == static_cast<int>(Action::compress) || action == static_cast<int>(Action::extract);
    return applies ? image::applies : image::doesNotApply;
}

void MarkCompressionPage(FormModel& form) {
    if (form.optAction.selected()) SetNodeImage(form, Page::compression, CompressionMark(form));
}

void ShowCompressionFrames(FormModel& form) {
    const Action action = form.action();
    form.fraZip.Visible = action == Action::compress;
    form.fraUnZip.Visible = action == Action::extract;
    form.lblNoOptionMsg[0].Visible = !form.fraZip.Visible && !form.fraUnZip.Visible;
    if (form.lblNoOptionMsg[0].Visible) form.lblNoOptionMsg[0].Caption = NoOptionText(form);
    ApplyZipAll(form);
    ShowZipDelComp(form);
    ShowZipDelDeComp(form);
}

}  // namespace kestedit
