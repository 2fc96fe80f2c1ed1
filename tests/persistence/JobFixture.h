// A folder to save jobs in, and the way of a form into a job file and back.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "persistence/JobFormat.h"
#include "persistence/JobStore.h"
#include "persistence/modGetValues.h"
#include "persistence/modIniHandler.h"
#include "persistence/modSaveValues.h"
#include "tests/persistence/FilledForm.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit {

using test::bytesOf;

inline constexpr LocalTime now{Date{std::chrono::year{2026}, std::chrono::November, std::chrono::day{21}},
                               std::chrono::hours{14} + std::chrono::minutes{5}};

struct JobTest : testing::Test {
    void put(std::string_view bytes) const { static_cast<void>(temporary.file("a.job", bytes)); }

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

    test::TemporaryFolder temporary;
    std::filesystem::path folder = temporary.path();
    std::filesystem::path file = folder / "a.job";
    IniStore ini;
    ComponentValues values;
    modIniHandler handler{ini, values};
    JobStore jobs{ini};
    DateFormat dates{"dd.MM.yyyy"};
};

}  // namespace kestedit
