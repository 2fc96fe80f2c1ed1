// One kind of save, tried under every fault.
#pragma once

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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
inline void report(const std::string& where, const std::string& what) {
    std::cerr << "faults: " << where << ": " << what << '\n';
    ++findings;
}

/// One kind of save in the folder of one program.
class Trial {
  public:
    Trial(SavingProgram& program, const Scenario& scenario) : program_(program), scenario_(scenario) {
        createJobs();
        firstCall_ = program_.run(callOf("", "")).calls.size() + 1;
        const Outcome clean = program_.run(callOf(""));
        calls_ = clean.calls;
        after_ = program_.files();
        moved_ = before_;
        if (before_.contains(edited_) && !after_.contains(edited_)) {
            moved_[target_] = before_.at(edited_);
            moved_.erase(edited_);
        }
        counts_["calls"] = static_cast<int>(calls_.size() - firstCall_ + 1);
        if (clean.code != 0) complain("no fault", "fails: " + clean.err);
        if (after_ == before_) complain("no fault", "saves nothing");
        // A call by a function that the faults do not know would never fail, and so all this prove nothing.
        for (const std::string_view name : needed) {
            if (std::ranges::count(calls_, name) == 0) complain("no fault", "no call to " + std::string(name));
        }
    }

    /// Every call of the save fails, or is the last one that the program sees. `full`: with every error, and the calls
    /// that answer a failure fail in their turn.
    Counts tryEveryFault(bool full) {
        for (std::size_t number = firstCall_; number <= calls_.size(); ++number) {
            for (std::size_t i = 0; i < std::size(errors); ++i)
                if (full || i == number % std::size(errors)) fail(number, errors[i]);
            fail(number, "EINTR");
            if (isOneOf(calls_[number - 1], transfers)) fail(number, "short");
            for (const char* const kill : {":kill-before", ":kill-after"})
                (void)tryFaults(std::to_string(number) + kill);
            if (full) failTwice(number);
        }
        return counts_;
    }

    /// Another process replaces the edited job ahead of each call of the save. Returns the number of the calls.
    int replaceMeanwhile() {
        for (std::size_t number = firstCall_; number <= calls_.size(); ++number)
            replace(number);
        return counts_.at("calls");
    }

  private:
    /// A short run tries one of them on each call, in turn.
    static constexpr std::string_view errors[] = {"ENOSPC", "EIO", "EACCES", "EROFS", "EDQUOT", "EMFILE", "ENOMEM"};
    static constexpr std::string_view transfers[] = {"read", "write"};
    /// A call that a signal interrupts is made again, so its failure must be none of the save's.
    static constexpr std::string_view interruptible[] = {"open", "read", "write", "fsync", "close", "rename", "unlink"};
    /// A save that goes on when one of these has failed, up to its last rename, has lost data.
    static constexpr std::string_view indispensable[] = {"write", "fsync", "rename"};
    /// Faults that have none of these to hit do not reach the save.
    static constexpr std::string_view needed[] = {"scandir", "lstat", "open", "write", "fsync", "close", "rename"};

    static bool isOneOf(std::string_view word, std::span<const std::string_view> words) {
        return std::ranges::find(words, word) != words.end();
    }

    static std::size_t takeTemporaries(Files& files) {
        return std::erase_if(files,
                             [](const auto& file) { return file.first.find(".kestedit-") != std::string::npos; });
    }

    void createJobs() {
        std::filesystem::remove_all(program_.jobs());
        std::filesystem::create_directories(program_.jobs() / "elsewhere");
        for (const std::string name : {"a", "b"}) {
            const std::string lines = "type dxName " + name + "\ntype dxSource /from/" + name + "\ntype dxDest /old\n";
            (void)program_.run({"new", lines + saveLine});
        }
        if (edited_ == "link.job") {
            std::filesystem::rename(program_.jobs() / "a.job", program_.jobs() / "elsewhere/a.job");
            std::filesystem::create_symlink("elsewhere/a.job", program_.jobs() / edited_);
        }
        program_.keep();
        before_ = program_.files();
    }

    [[nodiscard]] Call callOf(const std::string& faults, const char* end = saveLine) const {
        return {edited_.empty() ? "new" : edited_, std::string(scenario_.lines) + end, faults, scenario_.clock};
    }

    void complain(const std::string& faults, const std::string& what) const {
        report(std::string(scenario_.title) + ", " + faults, what);
    }

    void requireWhole(const std::string& faults, const Files& files) const {
        for (const auto& [name, bytes] : files) {
            const std::string fault = bytes.starts_with("-> ") ? "" : faultOf(bytes);
            if (!fault.empty()) complain(faults, name + ": " + fault);
        }
    }

    void fail(std::size_t number, std::string_view action) {
        const std::string_view call = calls_[number - 1];
        const std::string fault = std::to_string(number) + ':' + std::string(action);
        const Outcome outcome = tryFaults(fault);
        const bool interrupted = action == "short" || (action == "EINTR" && isOneOf(call, interruptible));
        if (interrupted && outcome.code != 0) complain(fault, "an interruption fails the save: " + outcome.err);
        const bool renameFollows = std::ranges::count(std::span(calls_).subspan(number - 1), "rename") > 0;
        const bool closesNewFile = call == "close" && number > 1 && calls_[number - 2] == "fsync";
        const bool losesData = closesNewFile || isOneOf(call, indispensable);
        if (!interrupted && renameFollows && losesData && outcome.code == 0) complain(fault, "the failure is lost");
    }

    /// The calls that answer the first fault fail as well.
    void failTwice(std::size_t number) {
        const std::string first = std::to_string(number) + ":EIO";
        program_.restore();
        const Outcome outcome = program_.run(callOf(first));
        for (std::size_t second = number + 1; second <= outcome.calls.size(); ++second) {
            const std::string at = first + ' ' + std::to_string(second) + ':';
            for (const char* const action : {"EIO", "EACCES", "EINTR", "kill-before", "kill-after"})
                (void)tryFaults(at + action, outcome.calls[second - 1]);
        }
    }

    /// `second` is the call that fails behind the first, if one does.
    Outcome tryFaults(const std::string& faults, std::string_view second = {}) {
        program_.restore();
        Outcome outcome = program_.run(callOf(faults));
        Files now = program_.files();
        const std::size_t litter = takeTemporaries(now);
        const bool killed = outcome.code < 0;
        ++counts_["faults"];
        requireWhole(faults, now);
        if (now == after_) {
            ++counts_[killed ? "killed at new" : "new stands"];
        } else if (now == before_) {
            ++counts_[killed ? "killed at old" : "old kept"];
        } else if (now == moved_) {
            ++counts_["old moved"];
        } else {
            complain(faults, "leaves other jobs than the old ones or the new ones");
        }
        const bool mayLeaveLitter = killed || second == "unlink";
        if (litter > (mayLeaveLitter ? 1U : 0U)) complain(faults, "a temporary file stays");
        if (outcome.code == 0 && now != after_) complain(faults, "says that it saved, and did not");
        if (outcome.code > 0 && now != before_ && second.empty()) complain(faults, "fails, but not as before");
        if (outcome.code > 0 && !outcome.err.starts_with("kestedit: ")) complain(faults, "fails without a word");
        saveAgain(faults, now);
        return outcome;
    }

    void saveAgain(const std::string& faults, const Files& now) const {
        const std::string& job = now.contains(target_) ? target_ : edited_;
        const bool again = job.empty();  // a new job that was not saved
        const Outcome outcome =
            program_.run(again ? callOf("") : Call{job, std::string("type dxDest /later\n") + saveLine});
        Files saved = program_.files();
        if (outcome.code != 0) complain(faults, "the next save fails: " + outcome.err);
        if (takeTemporaries(saved) > 0) complain(faults, "a temporary file outlives the next save");
        const std::string& bytes = bytesOf(program_.jobs() / (again ? target_ : job));
        if (bytes.find(again ? "\r\nTo=/new\r\n" : "\r\nTo=/later\r\n") == std::string::npos)
            complain(faults, "the next save is lost");
        requireWhole(faults + ", next save", saved);
    }

    void replace(std::size_t number) const {
        const std::string note = "[Other]\r\nNote=1\r\n";
        const std::string foreign = before_.at(target_) + note;
        const std::string fault = std::to_string(number) + ":meanwhile";
        program_.restore();
        static_cast<void>(program_.folder.file("foreign", foreign));
        const Outcome outcome = program_.run(callOf(fault));
        Files now = program_.files();
        const bool littered = takeTemporaries(now) > 0;
        const bool updated = now[target_] == after_.at(target_) + note;
        const bool whole = updated || now[target_] == after_.at(target_) || now[target_] == foreign;
        if (outcome.code != 0) complain(fault, "fails: " + outcome.err);
        if (!whole || now.size() != before_.size() || littered) complain(fault, "the replaced job is not whole");
        if (number == firstCall_ && !updated) complain(fault, "the lines of the other process are lost");
    }

    SavingProgram& program_;
    const Scenario& scenario_;
    std::string edited_{scenario_.edited};
    std::string target_{scenario_.target};
    Files before_;
    Files after_;
    Files moved_;                     // in the middle of a rename: the old job under its new name
    std::vector<std::string> calls_;  // of a run without a fault, from the start of the program
    std::size_t firstCall_ = 0;       // of the save, by number
    Counts counts_;
};

}  // namespace kestedit::test
