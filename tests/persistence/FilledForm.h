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

    /// Gives every control that a job stores a value that differs from its design-time value, and numbers, dates and
    /// texts that differ from each other.
    void fill() {
        using enum ControlKind;
        int checks = 0;
        int numbers = 3;
        for (EditorControl* control : controls()) {
            const ControlKind kind = control->Kind;
            if (kind == check) control->State = ++checks % 4 == 0 ? 2 : 1;
            if (kind == option) control->State = control == group(control->Base).back() ? 1 : 0;
            if (kind == text || kind == path) control->EditValue = "the " + control->Name();
            if (kind == number || kind == spin) control->EditValue = std::int64_t{++numbers};
            if (kind == date) control->EditValue = addDays(dateOf(2026, 1, 1), ++numbers);
            if (kind == pick) control->EditValue = control->Items.back();
        }
        optAction.select(1);
        dxComment.EditValue = "first\r\nsecond";
        dxZipPwd.EditValue = "\"quoted\"";
        dxDestZipPwd.EditValue = " blanks ";
        dxFreeSpace.EditValue = std::int64_t{2500};
        dxDateTime.EditValue = TimeOfDay{6 * 3600 + 7 * 60 + 8};
        CompressionLevel = 4;
        Navigation.Nodes = {{"Job", ""}, {"Action", "4"}};
        PageNodeIndex = {{0, 0}, {1, 1}};
    }
};

}  // namespace kestedit
