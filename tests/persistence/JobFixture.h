// A form filled with a job, and a folder to save it in.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>
#include <string>
#include <string_view>
#include <vector>

#include "persistence/JobFormat.h"
#include "persistence/JobStore.h"
#include "persistence/modGetValues.h"
#include "persistence/modIniHandler.h"
#include "persistence/modSaveValues.h"

namespace kestedit {

inline constexpr LocalTime now{Date{std::chrono::year{2026}, std::chrono::November, std::chrono::day{21}},
                               std::chrono::hours{14} + std::chrono::minutes{5}};

inline Date dateOf(int year, unsigned month, unsigned day) {
    return Date{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
}

inline std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
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

/// Switches that no key of the job file loads.
inline bool isStored(const EditorControl& control) {
    return control.Base != "chkEditPaths" && control.Base != "chkZipDelDeCompBin";
}

/// What a job file has to bring back, a line for each control.
inline std::string contentOf(const FormModel& form) {
    std::string content = "level " + std::to_string(form.CompressionLevel) + "\n";
    for (const EditorControl* control : form.controls()) {
        if (!isStored(*control)) continue;
        content += control->Name() + " " + std::to_string(control->State) + " " +
                   std::to_string(control->EditValue.index()) + " " + control->text() + " " +
                   std::to_string(control->number());
        if (const auto held = control->date()) {
            content += " " + std::to_string(std::chrono::sys_days{*held}.time_since_epoch().count());
        }
        if (const auto held = control->time()) content += " " + timeText(*held);
        content += "\n";
    }
    return content;
}

class JobTest : public testing::Test {
  protected:
    JobTest() {
        std::string pattern = (std::filesystem::temp_directory_path() / "kestedit-job-XXXXXX").string();
        if (!::mkdtemp(pattern.data())) throw std::runtime_error("mkdtemp " + pattern);
        folder = pattern;
        file = folder / "a.job";
    }
    ~JobTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    void put(std::string_view bytes) const { std::ofstream(file, std::ios::binary) << bytes; }

    void save(FormModel& form, JobStore::Write mode = JobStore::Write::update) {
        jobs.write(file, SaveValues(form, dates, now), mode);
    }

    /// As the editor loads a job: the action first, the comment by a read of its own.
    void load(FormModel& form) {
        const auto job = jobs.read(file);
        ASSERT_TRUE(job);
        GetAction(form, *job);
        GetValues(form, *job, handler.ReadIniFileValue(jobSection, "Comment", "", file, textSize), dates, now.date);
    }

    /// The stored text of a key after a save; "(none)" without the key.
    std::string saved(FormModel& form, std::string_view key) {
        save(form, JobStore::Write::create);
        return jobs.read(file)->field(key).value_or("(none)");
    }

    std::filesystem::path folder;
    std::filesystem::path file;
    IniStore ini;
    ComponentValues values;
    modIniHandler handler{ini, values};
    JobStore jobs{ini};
    DateFormat dates{"dd.MM.yyyy"};
};

}  // namespace kestedit
