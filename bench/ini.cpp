// What reading and writing INI files costs: a language file by single reads, a job by one edit, and files of a thousand
// to a million keys. Each file lies in a folder of its own; KESTEDIT_BENCH_DIR chooses where (a memory file system
// tells most, a disk adds its own noise).
#include <benchmark/benchmark.h>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <vector>

#include "bench/Folder.h"
#include "platform/IniStore.h"

namespace {

namespace fs = std::filesystem;
using kestedit::IniStore;
using kestedit::StagedFile;
using kestedit::bench::Folder;
using kestedit::bench::letAge;

fs::path fileOf(const std::string& name, const std::string& bytes) {
    static const Folder folder;
    fs::path path = folder.path() / name;
    std::ofstream(path, std::ios::binary) << bytes;
    letAge();
    return path;
}

std::vector<std::string> names(const std::string& prefix, int count) {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        names.push_back(prefix + std::to_string(i));
    return names;
}

/// 230 texts, 12 KB.
const fs::path& languageFile() {
    static const fs::path path = [] {
        std::string bytes = "; language file\r\n[frmEdit]\r\n";
        for (const std::string& name : names("t", 230))
            bytes.append(name).append("=Text of the editor, and with a few words more\r\n");
        return fileOf("language.lng", bytes);
    }();
    return path;
}

/// 125 keys, 4 KB.
const fs::path& jobFile() {
    static const fs::path path = [] {
        std::string bytes = "[Info]\r\nProgVersion=1.00.00\r\n[Job]\r\n";
        for (const std::string& name : names("ZipKeyName", 125))
            bytes.append(name).append("=value of this key\r\n");
        return fileOf("job.job", bytes);
    }();
    return path;
}

/// Lines of 23 bytes, 100 to a section. Written line by line, because peak memory is measured.
fs::path largeFile(std::int64_t keys) {
    fs::path path = fileOf("large" + std::to_string(keys) + ".ini", "");
    std::ofstream stream(path, std::ios::binary);
    for (std::int64_t i = 0; i < keys; ++i) {
        if (i % 100 == 0) stream << "[Section" << i / 100 << "]\n";
        std::string line = "key" + std::to_string(i % 100) + "=value " + std::to_string(i);
        line.resize(22, '.');
        stream << line << '\n';
    }
    stream.close();
    letAge();
    return path;
}

void addPeakMemory(benchmark::State& state) {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["peakMB"] = static_cast<double>(usage.ru_maxrss) / 1024;
}

void languageBySingleReads(benchmark::State& state) {
    const auto keys = names("t", 230);
    const fs::path& file = languageFile();
    IniStore store;
    for (auto _ : state) {
        for (const std::string& key : keys)
            benchmark::DoNotOptimize(store.read(file, "frmEdit", key, "default", 256));
    }
}
BENCHMARK(languageBySingleReads)->Unit(benchmark::kMicrosecond);

void languageOpenedAndReadByName(benchmark::State& state) {
    const auto keys = names("t", 230);
    const fs::path& file = languageFile();
    for (auto _ : state) {
        IniStore store;
        const auto snapshot = store.open(file);
        for (const std::string& key : keys)
            benchmark::DoNotOptimize(snapshot.value("frmEdit", key));
    }
}
BENCHMARK(languageOpenedAndReadByName)->Unit(benchmark::kMicrosecond);

void jobOpenedAndReadByName(benchmark::State& state) {
    const auto keys = names("ZipKeyName", 125);
    const fs::path& file = jobFile();
    for (auto _ : state) {
        IniStore store;
        const auto snapshot = store.open(file);
        for (const std::string& key : keys)
            benchmark::DoNotOptimize(snapshot.value("Job", key));
    }
}
BENCHMARK(jobOpenedAndReadByName)->Unit(benchmark::kMicrosecond);

void jobLoadedChangedAndSaved(benchmark::State& state) {
    const auto keys = names("ZipKeyName", static_cast<int>(state.range(0)));
    const fs::path& file = jobFile();
    for (auto _ : state) {
        IniStore store;
        auto edit = store.edit(file, false);
        for (const std::string& key : keys)
            edit.set("Job", key, "another value");
        edit.stage(StagedFile::Permissions::keep).commit();
    }
}
BENCHMARK(jobLoadedChangedAndSaved)->Arg(1)->Arg(125)->Unit(benchmark::kMicrosecond);

void openLargeAndRead100(benchmark::State& state) {
    const fs::path file = largeFile(state.range(0));
    const auto sections = names("Section", static_cast<int>(state.range(0) / 100));
    for (auto _ : state) {
        IniStore store;
        const auto snapshot = store.open(file);
        for (std::size_t i = 0; i < 100; ++i) {
            benchmark::DoNotOptimize(snapshot.value(sections[i * sections.size() / 100], "key50"));
        }
    }
    addPeakMemory(state);
}
BENCHMARK(openLargeAndRead100)->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMicrosecond);

void singleReadOfLarge(benchmark::State& state) {
    const fs::path file = largeFile(state.range(0));
    const std::string section = "Section" + std::to_string(state.range(0) / 200);
    IniStore store;
    for (auto _ : state)
        benchmark::DoNotOptimize(store.read(file, section, "key50", "", 256));
}
BENCHMARK(singleReadOfLarge)->RangeMultiplier(10)->Range(1000, 1000000);

void singleWriteOfLarge(benchmark::State& state) {
    const fs::path file = largeFile(state.range(0));
    const std::string section = "Section" + std::to_string(state.range(0) / 200);
    int count = 0;
    for (auto _ : state) {
        IniStore store;
        if (store.write(file, section, "key50", std::to_string(++count))) state.SkipWithError("write failed");
    }
    addPeakMemory(state);
}
BENCHMARK(singleWriteOfLarge)->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
