// Saves real jobs by the real program while the system fails: every system call of a save fails in turn with every
// error, and the program is killed on either side of it. Whatever happens, each job must be whole, the old one or the
// new one, and the next save must work. Prints what was tried; any finding is a line on the standard error and exit
// code 1.
//   kestedit_faults [--full]     --full: more errors, a second fault behind each first one, 10,000 saves under a reader
#include <algorithm>
#include <atomic>
#include <iomanip>
#include <iostream>
#include <set>
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
    {"the same file",           "a.job",    "type dxDest /new\n",                            "a.job",    settled},
    {"a file changed just now", "a.job",    "type dxDest /new\n",                            "a.job",    unsettled},
    {"a new job",               "",         "type dxName c\ntype dxDest /new\n",             "c.job",    settled},
    {"a new job over another",  "",         "type dxName b\ntype dxDest /new\nanswer yes\n", "b.job",    settled},
    {"over another job",        "a.job",    "type dxName b\ntype dxDest /new\nanswer yes\n", "b.job",    settled},
    {"a rename",                "a.job",    "type dxName c\ntype dxDest /new\n",             "c.job",    settled},
    {"through a link",          "link.job", "type dxDest /new\n",                            "link.job", settled},
};
// clang-format on

void printRow(std::string_view title, Counts counts) {
    std::cout << "| " << std::left << std::setw(23) << title << std::right;
    for (const std::string_view column : columns)
        std::cout << " | " << std::setw(static_cast<int>(column.size())) << counts[column];
    std::cout << " |" << std::endl;
}

void saveUnderFaults(SavingProgram& program, bool full) {
    std::cout << "| save                   ";
    for (const std::string_view column : columns)
        std::cout << " | " << column;
    std::cout << " |\n|---|---|---|---|---|---|---|---|\n";
    Counts all;
    for (const Scenario& scenario : scenarios) {
        const Counts counts = Trial(program, scenario).tryEveryFault(full);
        printRow(scenario.title, counts);
        for (const auto& [column, count] : counts)
            all[column] += count;
    }
    printRow("all", all);
}

void saveWhileReplaced(SavingProgram& program) {
    const int trusting = Trial(program, scenarios[0]).replaceMeanwhile();
    const int careful = Trial(program, scenarios[1]).replaceMeanwhile();
    if (careful <= trusting) report(std::string(scenarios[1].title), "is not read again");
    std::cout << "\nThe job replaced by another process at " << trusting + careful << " moments of a save: whole every "
              << "time, and updated when it\ncame before the save.\n";
}

void saveUnderReader(SavingProgram& program, int saves) {
    program.restore();  // to the jobs of the last trial
    const auto job = program.jobs() / "a.job";
    const Call calls[] = {{"a.job", std::string("type dxDest /even\n") + saveLine},
                          {"a.job", std::string("type dxDest /a/much/longer/odd/path\n") + saveLine}};
    std::set<std::string> versions;
    for (const Call& call : calls) {
        (void)program.run(call);
        versions.insert(bytesOf(job));
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
        failed += program.run(calls[i % 2]).code == 0 ? 0 : 1;
    done = true;
    reader.join();
    const bool whole = versions.size() == 2 && std::ranges::all_of(versions, &std::string::empty, faultOf);
    if (broken > 0 || failed > 0 || !whole)
        report("reader", std::to_string(broken) + " broken jobs, " + std::to_string(failed) + " failed saves");
    std::cout << '\n'
              << saves << " saves under a reader in a loop: " << reads << " reads, " << broken << " broken jobs.\n";
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
    SavingProgram program;
    saveUnderFaults(program, full);
    saveWhileReplaced(program);
    saveUnderReader(program, full ? 10000 : 300);
    std::cout << '\n' << findings << " findings\n";
    return findings == 0 ? 0 : 1;
}
