#include "tests/faults/Trial.h"

#include <algorithm>
#include <iostream>
#include <span>

namespace kestedit::test {

namespace fs = std::filesystem;

namespace {

/// A short run tries one of them on each call, in turn.
constexpr std::string_view errors[] = {"ENOSPC", "EIO", "EACCES", "EROFS", "EDQUOT", "EMFILE", "ENOMEM"};
constexpr std::string_view transfers[] = {"read", "write"};
/// A call that a signal interrupts is made again, so its failure must be none of the save's.
constexpr std::string_view interruptible[] = {"open", "read", "write", "fsync", "close", "rename", "unlink"};
/// A save that goes on when one of these has failed, up to its last rename, has lost data.
constexpr std::string_view indispensable[] = {"write", "fsync", "rename"};
/// Faults that have none of these to hit do not reach the save.
constexpr std::string_view needed[] = {"lstat", "open", "write", "fsync", "close", "rename"};

bool isOneOf(std::string_view word, std::span<const std::string_view> words) {
    return std::ranges::find(words, word) != words.end();
}

std::size_t takeTemporaries(Files& files) {
    return std::erase_if(files, [](const auto& file) { return file.first.find(".kestedit-") != std::string::npos; });
}

/// One kind of save in the folder of one program.
class Trial {
  public:
    Trial(SavingProgram& program, const Scenario& scenario);

    void fail(std::size_t number, std::string_view action);
    void failTwice(std::size_t number);
    Outcome tryFaults(const std::string& faults, std::string_view second = {});
    void replace(std::size_t number) const;

    std::vector<std::string> calls;  // of a run without a fault, from the start of the program
    std::size_t firstCall = 0;       // of the save, by number
    Counts counts;

  private:
    void createJobs();
    [[nodiscard]] Call callOf(const std::string& faults, const char* end = saveLine) const;
    void complain(const std::string& faults, const std::string& what) const;
    void requireWhole(const std::string& faults, const Files& files) const;
    void saveAgain(const std::string& faults, const Files& now, std::size_t litter) const;

    SavingProgram& program_;
    const Scenario& scenario_;
    std::string edited_{scenario_.edited};
    std::string target_{scenario_.target};
    Files before_;
    Files after_;
    Files moved_;  // in the middle of a rename: the old job under its new name
};

Trial::Trial(SavingProgram& program, const Scenario& scenario) : program_(program), scenario_(scenario) {
    createJobs();
    firstCall = program_.run(callOf("", "")).calls.size() + 1;
    const Outcome clean = program_.run(callOf(""));
    calls = clean.calls;
    after_ = program_.files();
    moved_ = before_;
    if (before_.contains(edited_) && !after_.contains(edited_)) {
        moved_[target_] = before_.at(edited_);
        moved_.erase(edited_);
    }
    counts["calls"] = static_cast<int>(calls.size() - firstCall + 1);
    if (clean.code != 0) complain("no fault", "fails: " + clean.err);
    if (after_ == before_) complain("no fault", "saves nothing");
    // A call by a function that the faults do not know would never fail, and so all this prove nothing.
    for (const std::string_view name : needed) {
        if (std::ranges::count(calls, name) == 0) complain("no fault", "no call to " + std::string(name));
    }
    if (std::ranges::count(calls, "open") != std::ranges::count(calls, "close"))
        complain("no fault", "a file is opened or closed by a function that is not known");
}

void Trial::createJobs() {
    fs::remove_all(program_.jobs());
    fs::create_directories(program_.jobs() / "elsewhere");
    for (const std::string name : {"a", "b"}) {
        const std::string lines = "type dxName " + name + "\ntype dxSource /from/" + name + "\ntype dxDest /old\n";
        (void)program_.run({"new", lines + saveLine});
    }
    if (edited_ == "link.job") {
        fs::rename(program_.jobs() / "a.job", program_.jobs() / "elsewhere/a.job");
        fs::create_symlink("elsewhere/a.job", program_.jobs() / edited_);
    }
    program_.keep();
    before_ = program_.files();
}

Call Trial::callOf(const std::string& faults, const char* end) const {
    return {edited_.empty() ? "new" : edited_, std::string(scenario_.lines) + end, faults, scenario_.clock};
}

void Trial::complain(const std::string& faults, const std::string& what) const {
    report(std::string(scenario_.title) + ", " + faults, what);
}

void Trial::requireWhole(const std::string& faults, const Files& files) const {
    for (const auto& [name, bytes] : files) {
        const std::string fault = bytes.starts_with("-> ") ? "" : faultOf(bytes);
        if (!fault.empty()) complain(faults, name + ": " + fault);
    }
}

void Trial::fail(std::size_t number, std::string_view action) {
    const std::string_view call = calls[number - 1];
    const std::string fault = std::to_string(number) + ':' + std::string(action);
    const Outcome outcome = tryFaults(fault);
    const bool interrupted = action == "short" || (action == "EINTR" && isOneOf(call, interruptible));
    if (interrupted && outcome.code != 0) complain(fault, "an interruption fails the save: " + outcome.err);
    const bool renameFollows = std::ranges::count(std::span(calls).subspan(number - 1), "rename") > 0;
    const bool closesNewFile = call == "close" && number > 1 && calls[number - 2] == "fsync";
    const bool losesData = closesNewFile || isOneOf(call, indispensable);
    if (!interrupted && renameFollows && losesData && outcome.code == 0) complain(fault, "the failure is lost");
}

/// The calls that answer the first fault fail as well.
void Trial::failTwice(std::size_t number) {
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
Outcome Trial::tryFaults(const std::string& faults, std::string_view second) {
    program_.restore();
    Outcome outcome = program_.run(callOf(faults));
    Files now = program_.files();
    const std::size_t litter = takeTemporaries(now);
    const bool killed = outcome.code < 0;
    ++counts["faults"];
    requireWhole(faults, now);
    if (now == after_) {
        ++counts[killed ? "killed at new" : "new stands"];
    } else if (now == before_) {
        ++counts[killed ? "killed at old" : "old kept"];
    } else if (now == moved_) {
        ++counts["old moved"];
    } else {
        complain(faults, "leaves other jobs than the old ones or the new ones");
    }
    const bool mayLeaveLitter = killed || second == "unlink";
    if (litter > (mayLeaveLitter ? 1U : 0U)) complain(faults, "a temporary file stays");
    if (outcome.code == 0 && now != after_) complain(faults, "says that it saved, and did not");
    if (outcome.code > 0 && now != before_ && second.empty()) complain(faults, "fails, but not as before");
    if (outcome.code > 0 && !outcome.err.starts_with("kestedit: ")) complain(faults, "fails without a word");
    saveAgain(faults, now, litter);
    return outcome;
}

void Trial::saveAgain(const std::string& faults, const Files& now, std::size_t litter) const {
    const std::string& job = now.contains(target_) ? target_ : edited_;
    const bool again = job.empty();  // a new job that was not saved
    const Outcome outcome =
        program_.run(again ? callOf("") : Call{job, std::string("type dxDest /later\n") + saveLine});
    Files saved = program_.files();
    if (outcome.code != 0) complain(faults, "the next save fails: " + outcome.err);
    if (takeTemporaries(saved) > litter) complain(faults, "the next save leaves a temporary file");
    const std::string& bytes = bytesOf(program_.jobs() / (again ? target_ : job));
    if (bytes.find(again ? "\r\nTo=/new\r\n" : "\r\nTo=/later\r\n") == std::string::npos)
        complain(faults, "the next save is lost");
    requireWhole(faults + ", next save", saved);
}

void Trial::replace(std::size_t number) const {
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
    if (number == firstCall && !updated) complain(fault, "the lines of the other process are lost");
}

}  // namespace

void report(const std::string& where, const std::string& what) {
    std::cerr << "faults: " << where << ": " << what << '\n';
    ++findings;
}

Counts tryEveryFault(SavingProgram& program, const Scenario& scenario, bool full) {
    Trial trial(program, scenario);
    for (std::size_t number = trial.firstCall; number <= trial.calls.size(); ++number) {
        for (std::size_t i = 0; i < std::size(errors); ++i) {
            if (full || i == number % std::size(errors)) trial.fail(number, errors[i]);
        }
        trial.fail(number, "EINTR");
        if (isOneOf(trial.calls[number - 1], transfers)) trial.fail(number, "short");
        for (const char* const kill : {":kill-before", ":kill-after"})
            (void)trial.tryFaults(std::to_string(number) + kill);
        if (full) trial.failTwice(number);
    }
    return trial.counts;
}

int replaceMeanwhile(SavingProgram& program, const Scenario& scenario) {
    const Trial trial(program, scenario);
    for (std::size_t number = trial.firstCall; number <= trial.calls.size(); ++number)
        trial.replace(number);
    return trial.counts.at("calls");
}

}  // namespace kestedit::test
