// Compares this project's INI operations with the libraries that a C++ programmer would otherwise take, and with a bare
// program: the same files, the same keys, one run. Prints a table in Markdown.
//   peers_bench [DISK-FOLDER]      (default: the current folder)
//
// Each figure comes from a process of its own, so that the heap of one case slows no other; the processes of one row
// run in turn, three rounds of them, and the median of the rounds counts.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "bench/Folder.h"
#include "bench/peers/Peer.h"

namespace {

namespace fs = std::filesystem;
using namespace bench;
using kestedit::bench::Folder;
using Clock = std::chrono::steady_clock;

enum class Place { memory, disk };
enum class Measure { microseconds, megabytes };

/// One row of the table.
struct Work {
    std::string_view title;
    int keys;     ///< in the file; 100 to a section where there are many
    int touched;  ///< read or set
    bool writes;
    Place place;
    Measure measure;
    std::string_view goal;
};

// clang-format off
constexpr Work works[] = {
    {"A: open a 12 KB language file, read its 230 keys by name",        230,       230, false, Place::memory, Measure::microseconds, "below 40 us"},
    {"B: open a 4 KB job, read its 125 keys by name",                   125,       125, false, Place::memory, Measure::microseconds, "below 25 us"},
    {"C0: open the job, set 125 keys, save; memory file system",        125,       125, true,  Place::memory, Measure::microseconds, "below 65 us"},
    {"C2: the same on disk, synced",                                    125,       125, true,  Place::disk,   Measure::microseconds, "below 1.2 x bare"},
    {"C10: open the job, set 1 key, save; memory file system",          125,       1,   true,  Place::memory, Measure::microseconds, "below 40 us"},
    {"open a file of 1e6 keys, read 100",                               1'000'000, 100, false, Place::memory, Measure::microseconds, "below 30 ms"},
    {"open a file of 1e6 keys, set 1, save",                            1'000'000, 1,   true,  Place::memory, Measure::microseconds, "below 96 ms"},
    {"peak memory of the process that reads 100 of 1e6 keys",           1'000'000, 100, false, Place::memory, Measure::megabytes,    "below 50 MB"},
};
// clang-format on

constexpr int keysOfSection = 100;

bool isLarge(const Work& work) {
    return work.keys > 1000;
}

std::string numbered(std::string_view prefix, int number) {
    std::string text(prefix);
    text += std::to_string(number);
    return text;
}

Name nameOf(const Work& work, int number) {
    if (isLarge(work)) return {numbered("Section", number / keysOfSection), numbered("key", number % keysOfSection)};
    return work.keys == 230 ? Name{"frmEdit", numbered("t", number)} : Name{"Job", numbered("ZipKeyName", number)};
}

fs::path fileOf(const fs::path& folder, int number) {
    return folder / numbered("file", number).append(".ini");
}

/// The touched keys, evenly spread.
std::vector<Name> touchedNames(const Work& work) {
    std::vector<Name> names;
    for (int i = 0; i < work.touched; ++i) {
        const int middle = work.touched == work.keys ? 0 : work.keys / work.touched / 2;
        names.push_back(nameOf(work, i * (work.keys / work.touched) + middle));
    }
    return names;
}

void writeFile(const Work& work, const fs::path& file) {
    std::ofstream stream(file, std::ios::binary);
    std::string section;
    for (int i = 0; i < work.keys; ++i) {
        const Name name = nameOf(work, i);
        if (name.section != section) stream << '[' << (section = name.section) << "]\n";
        std::string line = name.key;
        line += isLarge(work) ? numbered("=value ", i)
                              : std::string(work.keys == 230 ? "=Text of the editor - and with a few words more"
                                                             : "=value of this key");
        if (isLarge(work)) line.resize(22, '.');
        stream << line << '\n';
    }
}

/// Median of the single times of one peer, in microseconds.
double medianTime(const Work& work, const Peer& peer, const std::vector<fs::path>& files) {
    const std::vector<Name> names = touchedNames(work);
    const auto limit = Clock::now() + std::chrono::milliseconds{isLarge(work) ? 3000 : 400};
    std::vector<double> times;
    for (std::size_t i = 0; Clock::now() < limit || times.size() < 5; ++i) {
        const fs::path& file = files[i % files.size()];
        const std::string value = i % 2 == 0 ? "another value" : "a value once more";
        const auto start = Clock::now();
        if (work.writes) {
            peer.change(file, names, value, work.place == Place::disk);
        } else if (peer.read(file, names) == 0) {
            throw std::runtime_error("nothing was read");
        }
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    }
    std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
    return times[times.size() / 2];
}

/// What one process finds out. Runs in a child, whose files nobody else has touched.
double measure(const Work& work, const Peer& peer, const fs::path& folder) {
    std::vector<fs::path> files;
    // One library remembers the files that the process has parsed.
    for (int i = 0; i < (isLarge(work) ? 1 : 16); ++i)
        files.push_back(fileOf(folder, i));
    if (work.measure == Measure::microseconds) return medianTime(work, peer, files);
    if (peer.read(files.front(), touchedNames(work)) == 0) throw std::runtime_error("nothing was read");
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

double measureInChild(const Work& work, const Peer& peer, const fs::path& folder) {
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) throw std::runtime_error("no pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        double result = -1;
        try {
            result = measure(work, peer, folder);
        } catch (const std::exception& failure) {
            std::cerr << peer.name << ": " << failure.what() << '\n';
        }
        const bool told = ::write(pipe[1], &result, sizeof result) == sizeof result;
        ::_exit(told ? 0 : 1);
    }
    ::close(pipe[1]);
    double result = -1;
    if (::read(pipe[0], &result, sizeof result) != sizeof result) result = -1;
    ::close(pipe[0]);
    ::waitpid(child, nullptr, 0);
    return result;
}

/// The files anew, since a save of some peers changes more than the keys.
void writeFiles(const Work& work, const fs::path& folder) {
    for (int i = 0; i < (isLarge(work) ? 1 : 16); ++i)
        writeFile(work, fileOf(folder, i));
}

/// One figure for each peer; negative where it cannot do the work.
std::vector<double> figures(const Work& work, const fs::path& folder) {
    const auto all = peers();
    std::vector<std::array<double, 3>> rounds(all.size());
    for (std::size_t round = 0; round < 3; ++round) {
        for (std::size_t i = 0; i < all.size(); ++i) {
            const bool able = !work.writes || all[i]->change != nullptr;
            if (able) writeFiles(work, folder);
            rounds[i][round] = able ? measureInChild(work, *all[i], folder) : -1;
        }
    }
    std::vector<double> medians;
    for (auto& three : rounds) {
        std::ranges::sort(three);
        medians.push_back(three[1]);
    }
    return medians;
}

std::string text(const Work& work, double figure) {
    if (figure < 0) return "-";
    std::array<char, 32> buffer{};
    const bool megabytes = work.measure == Measure::megabytes;
    const bool milliseconds = !megabytes && figure >= 1000;
    const double shown = milliseconds ? figure / 1000 : figure;
    const char* const unit = megabytes ? "MB" : milliseconds ? "ms" : "us";
    std::snprintf(buffer.data(), buffer.size(), "%.3g %s", shown, unit);
    return buffer.data();
}

void printRow(const Work& work, const std::vector<double>& found) {
    double best = -1;
    for (std::size_t i = 2; i < found.size(); ++i) {
        if (found[i] >= 0 && (best < 0 || found[i] < best)) best = found[i];
    }
    std::cout << "| " << work.title;
    for (const double figure : found)
        std::cout << " | " << text(work, figure);
    std::array<char, 64> ratios{};
    std::snprintf(ratios.data(), ratios.size(), "%.2f", found[1] / found[0]);
    std::cout << " | " << ratios.data();
    std::snprintf(ratios.data(), ratios.size(), "%.2f", found[1] / best);
    std::cout << " | " << (best < 0 ? "-" : ratios.data()) << " | " << work.goal << " |" << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
    const Folder memory(fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path());
    const Folder disk(argc > 1 ? argv[1] : ".");
    std::cout << "| work";
    for (const Peer* peer : peers())
        std::cout << " | " << peer->name;
    std::cout << " | to bare | to best peer | goal |\n|---";
    for (std::size_t i = 0; i < peers().size() + 3; ++i)
        std::cout << "|---";
    std::cout << "|" << std::endl;
    for (const Work& work : works)
        printRow(work, figures(work, (work.place == Place::disk ? disk : memory).path()));
    return 0;
}
