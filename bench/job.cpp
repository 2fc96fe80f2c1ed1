// What loading and saving a full job costs, beside the floor: the same bytes written, synced and renamed by bare calls.
// KESTEDIT_BENCH_DIR chooses the folder (a memory file system tells most, a disk adds its own noise).
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unistd.h>

#include "bench/Folder.h"
#include "i18n/LoadLanguage.h"
#include "persistence/JobStore.h"
#include "persistence/modGetValues.h"
#include "persistence/modIniHandler.h"
#include "persistence/modSaveValues.h"

namespace {

namespace fs = std::filesystem;
using namespace kestedit;

const DateFormat dates{"dd.MM.yyyy"};
const LocalTime now{Date{std::chrono::year{2026}, std::chrono::November, std::chrono::day{21}}, std::chrono::hours{14}};

/// A folder with one full job.
class JobFolder {
  public:
    JobFolder() {
        fs::copy_file(KESTEDIT_FULL_JOB, job());
        bench::letAge();
    }
    [[nodiscard]] fs::path job() const { return folder_.path() / "full.job"; }

  private:
    bench::Folder folder_;
};

void loadInto(FormModel& form, const JobStore& jobs, const fs::path& file) {
    const JobRecord job = jobs.read(file);
    GetAction(form, job);
    GetValues(form, job, job.field("Comment").value_or(""), dates, now.date);
}

/// A form with the texts of a language, and with the values of a job.
struct FilledForm : FormModel {
    explicit FilledForm(const fs::path& job) {
        IniStore ini;
        ComponentValues values;
        values.Language = KESTEDIT_LANG_DIR "/german.lng";
        LoadLanguage(*this, modIniHandler{ini, values});
        loadInto(*this, JobStore{ini}, job);
    }
};

// From the disk to the controls, by a store that has never seen the file.
void loadJob(benchmark::State& state) {
    const JobFolder folder;
    const fs::path file = folder.job();
    FilledForm form(file);
    for (auto _ : state) {
        IniStore ini;
        loadInto(form, JobStore{ini}, file);
    }
}
BENCHMARK(loadJob);

// The same while the file does not change.
void loadJobAgain(benchmark::State& state) {
    const JobFolder folder;
    const fs::path file = folder.job();
    FilledForm form(file);
    IniStore ini;
    const JobStore jobs{ini};
    for (auto _ : state)
        loadInto(form, jobs, file);
}
BENCHMARK(loadJobAgain);

// The form's part of a save.
void collectLines(benchmark::State& state) {
    FilledForm form(KESTEDIT_FULL_JOB);
    for (auto _ : state)
        benchmark::DoNotOptimize(SaveValues(form, dates, now));
}
BENCHMARK(collectLines);

// From the controls to the disk, over the job that is there.
void saveJob(benchmark::State& state) {
    const JobFolder folder;
    const fs::path file = folder.job();
    FilledForm form(file);
    IniStore ini;
    const JobStore jobs{ini};
    const OpenedJob opened{file, jobs.read(file), {}};
    for (auto _ : state)
        jobs.change(opened).save(SaveValues(form, dates, now));
}
BENCHMARK(saveJob)->UseRealTime();

// Durable replacement takes these calls at least, and a sync of the folder when `withFolder`, as a save of the editor
// does.
void replaceBytes(benchmark::State& state, bool withFolder) {
    const JobFolder folder;
    const fs::path file = folder.job();
    const fs::path temporary = file.string() + ".tmp";
    std::ifstream in(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    for (auto _ : state) {
        const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        const bool written = fd >= 0 && ::write(fd, bytes.data(), bytes.size()) == std::ssize(bytes) &&
                             ::fsync(fd) == 0 && ::close(fd) == 0 && std::rename(temporary.c_str(), file.c_str()) == 0;
        if (!written) throw std::runtime_error("cannot replace " + file.string());
        if (!withFolder) continue;
        const int parent = ::open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (parent < 0 || ::fsync(parent) != 0 || ::close(parent) != 0)
            throw std::runtime_error("cannot sync the folder");
    }
}
BENCHMARK_CAPTURE(replaceBytes, floor, false)->UseRealTime();
BENCHMARK_CAPTURE(replaceBytes, floorWithFolderSync, true)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
