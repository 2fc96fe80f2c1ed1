// One kind of save, tried under every fault.
#pragma once

#include <string>
#include <string_view>

#include "tests/faults/SavingProgram.h"

namespace kestedit::test {

/// One kind of save.
struct Scenario {
    std::string_view title;
    std::string_view edited;  ///< the job that is opened; empty: a new one
    std::string_view lines;   ///< what the user does before the click on Save
    std::string_view target;  ///< the file that the save writes
    std::string_view others;  ///< jobs that exist besides the edited one, by the first letter
    long clock;
};

struct Counts {
    int calls = 0;
    int faults = 0;
    int oldKept = 0;    ///< the save failed, said so, and all was as before
    int newStands = 0;  ///< the save took place in spite of the fault
    int killedOld = 0;
    int killedNew = 0;
    int oldMoved = 0;  ///< ended between the two steps of a rename: the old job stands under its new name

    Counts& operator+=(const Counts& other);
};

inline constexpr std::string_view saveLine = "click cmdSave\n";

/// What turned out wrong so far; each was a line on the standard error.
inline int findings = 0;
void report(std::string_view where, const std::string& what);

class Trial {
  public:
    /// Both must outlive the trial.
    Trial(const SavingProgram& program, const Scenario& scenario);

    /// Every call of the save fails, or is the last one that the program sees. `full`: with every error, and the calls
    /// that answer a failure fail in their turn.
    Counts run(bool full);

    /// Another process puts another job in the place of the edited one, ahead of each call of the save. Returns the
    /// number of the calls.
    int replaceMeanwhile() const;

  private:
    [[nodiscard]] Files filesBefore() const;
    [[nodiscard]] Call callOf(const std::string& faults, bool save) const;
    Outcome attempt(const std::string& faults, bool save = true) const;
    void fail(std::size_t number, std::string_view action);
    void failTwice(std::size_t number);
    Outcome tryFaults(const std::string& faults, std::string_view second = {});
    void count(bool killed, const Files& now);
    void checkWhole(const std::string& faults, const std::string& bytes) const;
    void checkFiles(const std::string& faults, const Files& now) const;
    [[nodiscard]] bool isMovedJob(const std::string& name, const std::string& bytes) const;
    void saveAgain(const std::string& faults, const Files& now, std::size_t litter) const;
    [[nodiscard]] std::string where(const std::string& faults) const;

    const SavingProgram& program_;
    const Scenario& scenario_;
    Files before_;
    Files after_;
    std::vector<std::string> calls_;  // of a run without a fault, from the start of the program
    std::size_t firstCall_ = 0;       // of the save, by number
    Counts counts_;
};

}  // namespace kestedit::test
