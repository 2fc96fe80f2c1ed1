// One kind of save, tried under every fault.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "tests/faults/SavingProgram.h"

namespace kestedit::test {

/// One kind of save. The jobs "a" and "b" stand there before.
struct Scenario {
    std::string_view title;
    std::string_view edited;  ///< the job that is opened; empty: a new one
    std::string_view lines;   ///< what the user does before the click on Save
    std::string_view target;  ///< the file that the save writes
    long clock;
};

/// What the faults came to, by the titles of the columns.
using Counts = std::map<std::string_view, int>;

/// "old kept": the save failed, said so, and all was as before; "new stands": it took place in spite of the fault; "old
/// moved": the end came between the two steps of a rename, and the old job stands under its new name.
inline constexpr std::string_view columns[] = {"calls",         "faults",        "old kept", "new stands",
                                               "killed at old", "killed at new", "old moved"};

inline constexpr const char* saveLine = "click cmdSave\n";

/// What turned out wrong so far; each was a line on the standard error.
inline int findings = 0;
void report(const std::string& where, const std::string& what);

/// Every call of the save fails, or is the last one that the program sees. `full`: with every error, and the calls that
/// answer a failure fail in their turn.
Counts tryEveryFault(SavingProgram& program, const Scenario& scenario, bool full);

/// Another process replaces the edited job ahead of each call of the save. Returns the number of the calls.
int replaceMeanwhile(SavingProgram& program, const Scenario& scenario);

}  // namespace kestedit::test
