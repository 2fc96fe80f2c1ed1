// Saves real jobs by the real program while the system fails: every system call of a save fails in turn with every
// error, and the program is killed on either side of it. Whatever happens, each job must be whole, the old one or the
// new one, and the next save must work. Prints what was tried; any finding is a line on the standard error and exit
// code 1.
//   kestedit_faults [--full]     --full: more errors, a second fault behind each first one, 10,000 saves under a reader
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <set>
#include <string_view>
#include <thread>
#include <unistd.h>

#include "tests/faults/Trial.h"

namespace {

using namespace kestedit::test;

/// A file that was changed an hour ago, and one that will be: the program must not trust its memory of the latter.
constexpr long settled = 3600;
constexpr long unsettled = -3600;

// clang-format off
constexpr Scenario scenarios[] = {
    {"the same file",           "a.job",      "type dxDest /new\n",                                "a.job", "b", settled},
    {"a file changed just now", "a.job",      "type dxDest /new\n",                                "a.job", "",  unsettled},
    {"a new job",               "",           "type dxName c\ntype dxDest /new\n",                 "c.job", "b", settled},
    {"a new job over another",  "",           "type dxName b\ntype dxDest /new\nanswer yes\n",     "b.job", "b", settled},
    {"over another job",        "a.job",      "type dxName b\ntype dxDest /new\nanswer yes\n",     "b.job", "b", settled},
    {"a rename",                "a.job",      "type dxName c\ntype dxDest /new\n",                 "c.job", "b", settled},
    {"through a link",          "link.job",   "type dxDest /new\n",                                "link.job", "", settled},
};
// clang-format on

void printRow(std::string_view title, const Counts& counts) {
    std::printf("| %-23s | %5d | %6d | %8d | %10d | %13d | %13d | %9d |\n", std::string(title).c_str(), counts.calls,
                counts.faults, counts.oldKept, counts.newStands, counts.killedOld, counts.killedNew, counts.oldMoved);
    std::fflush(stdout);
}

void saveUnderFaults(const SavingProgram& program, bool full) {
    std::puts(
        "| save                    | calls | faults | old kept | new stands | killed at old | killed at new | old "
        "moved |\n"
        "|---|---|---|---|---|---|---|---|");
    Counts all;
    for (const Scenario& scenario : scenarios) {
        const Counts counts = Trial(program, scenario).run(full);
        printRow(scenario.title, counts);
        all += counts;
    }
    printRow("all", all);
}

void saveWhileReplaced(const SavingProgram& program) {
    int moments = 0;
    for (const std::size_t scenario : {0U, 1U})
        moments += Trial(program, scenarios[scenario]).replaceMeanwhile();
    std::printf(
        "\nThe job replaced by another process at %d moments of a save: whole every time, and updated when it\n"
        "came before the save.\n",
        moments);
}

void saveUnderReader(const SavingProgram& program, int saves) {
    program.restore({});
    (void)program.run({"new", "type dxName a\ntype dxDest /x\n" + std::string(saveLine)});
    const auto job = program.jobs() / "a.job";
    std::set<std::string> versions;
    const std::string scripts[] = {"type dxDest /even\n" + std::string(saveLine),
                                   "type dxDest /a/much/longer/odd/path\n" + std::string(saveLine)};
    for (const std::string& script : scripts) {
        (void)program.run({"a.job", script});
        versions.insert(bytesOf(job));
        (void)wholeJob(bytesOf(job));
    }
    std::atomic<bool> done{false};
    long reads = 0;
    long broken = 0;
    std::thread reader([&] {
        for (; !done; ++reads)
            broken += versions.contains(bytesOf(job)) ? 0 : 1;
    });
    int failed = 0;
    for (int i = 0; i < saves; ++i)
        failed += program.run({"a.job", scripts[i % 2]}).code == 0 ? 0 : 1;
    done = true;
    reader.join();
    if (broken > 0 || failed > 0 || versions.size() != 2)
        report("reader", std::to_string(broken) + " broken jobs, " + std::to_string(failed) + " failed saves");
    std::printf("\n%d saves under a reader in a loop: %ld reads, %ld broken jobs.\n", saves, reads, broken);
}

}  // namespace

int main(int argc, char** argv) {
    const bool full = argc == 2 && std::string_view(argv[1]) == "--full";
    if (argc > 1 && !full) {
        std::cerr << "usage: kestedit_faults [--full]\n";
        return 2;
    }
    // Each save waits for its disk, which takes most of the time and proves nothing here.
    if (::access("/dev/shm", W_OK) == 0) ::setenv("TMPDIR", "/dev/shm", 0);
    const SavingProgram program;
    saveUnderFaults(program, full);
    saveWhileReplaced(program);
    saveUnderReader(program, full ? 10000 : 300);
    std::printf("\n%d findings\n", findings);
    return findings == 0 ? 0 : 1;
}
