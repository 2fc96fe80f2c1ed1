// A form that holds a whole job.
#pragma once

#include <chrono>
#include <string>

#include "editor/FormModel.h"

namespace kestedit {

inline Date dateOf(int year, unsigned month, unsigned day) {
    return Date{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
}

/// A form whose lists and catalogue hold texts, as after the language file has been read.
struct FilledForm : FormModel {
    FilledForm() {
        for (std::size_t i = 0; i < TextCatalogue.size(); ++i)
            TextCatalogue[i] = "text " + std::to_string(i);
        for (EditorControl* list : {&dxIntWeekDay, &dxMonWatch, &dxPickExistSelecter}) {
            for (std::size_t i = 0; i < list->Items.size(); ++i)
                list->Items[i] = "entry " + std::to_string(i);
        }
        dxPickRenamer.Items = {TextCatalogue[10], TextCatalogue[11], TextCatalogue[12]};
        dxZipGrade.Items = {TextCatalogue[6], TextCatalogue[7], TextCatalogue[8], TextCatalogue[9]};
        dxZipGrade.EditValue = TextCatalogue[8];
    }

    /// Gives every control that a job stores a value that differs from its design-time value.
    void fill() {
        for (EditorControl* control : controls()) {
            if (control->Kind == ControlKind::check) control->State = 1;
            if (control->Kind == ControlKind::text || control->Kind == ControlKind::path)
                control->EditValue = "the " + control->Name();
            if (control->Kind == ControlKind::option) control->State = control->Member == 1 ? 1 : 0;
        }
        for (EditorControl* grey : {&chkAttrHidden[1], &chkAttrReadOnly[2], &chkAttrSystem[0], &chkZipDelDeComp,
                                    &chkDestKeepZStruct, &chkNoHiddenFolder, &chkMonSubFolder, &chkFStruct}) {
            grey->State = 2;
        }
        optExist.select(4);
        optUnZip.select(2);
        optIntTime.select(3);
        dxComment.EditValue = "first\r\nsecond";
        dxZipPwd.EditValue = "\"quoted\"";
        dxDestZipPwd.EditValue = " blanks ";
        dxFreeSpace.EditValue = std::int64_t{2500};
        dxExecMaxSec.EditValue = std::int64_t{90};
        dxSize.EditValue = std::int64_t{1024};
        dxMonDelay.EditValue = std::int64_t{7};
        dxIntMonthDay.EditValue = std::int64_t{28};
        setDuration(dxDays, dxHours, dxMinutes, 3, 4, 5);
        setDuration(dxAge, dxAgeHours, dxAgeMinutes, 2, 3, 4);
        dxDateFrom.EditValue = dateOf(2026, 1, 2);
        dxDateTo.EditValue = dateOf(2026, 2, 3);
        dxFileDate.EditValue = dateOf(2026, 3, 4);
        dxDate.EditValue = dateOf(2027, 4, 5);
        dxDateTime.EditValue = TimeOfDay{6 * 3600 + 7 * 60 + 8};
        dxPickRenamer.EditValue = dxPickRenamer.Items[1];
        dxZipGrade.EditValue = dxZipGrade.Items[3];
        CompressionLevel = 4;
        dxPickExistSelecter.EditValue = dxPickExistSelecter.Items[7];
        dxMonWatch.EditValue = dxMonWatch.Items[4];
        dxIntWeekDay.EditValue = dxIntWeekDay.Items[6];
        Navigation.Nodes = {{"Job", ""}, {"Action", "4"}};
        PageNodeIndex = {{0, 0}, {1, 1}};
    }

    static void setDuration(EditorControl& days, EditorControl& hours, EditorControl& minutes, std::int64_t d,
                            std::int64_t h, std::int64_t m) {
        days.EditValue = d;
        hours.EditValue = h;
        minutes.EditValue = m;
    }
};

}  // namespace kestedit
