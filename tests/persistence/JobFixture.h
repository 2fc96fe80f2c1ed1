// A folder to save jobs in, and what a job file has to bring back.
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
#include "tests/persistence/FilledForm.h"

namespace kestedit {

inline constexpr LocalTime now{Date{std::chrono::year{2026}, std::chrono::November, std::chrono::day{21}},
                               std::chrono::hours{14} + std::chrono::minutes{5}};

inline std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

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
