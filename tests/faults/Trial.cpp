#include "tests/faults/Trial.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>

namespace kestedit::test {

namespace {

/// A short run tries one of them on each call, in turn.
constexpr std::string_view errors[] = {"ENOSPC", "EIO", "EACCES", "EROFS", "EDQUOT", "EMFILE", "ENOMEM"};
constexpr std::string_view kills[] = {"kill-before", "kill-after"};
constexpr std::string_view transfers[] = {"read", "write"};
/// A call that a signal interrupts is made again, so its failure must be none of the save's.
constexpr std::string_view interruptible[] = {"open", "read", "write", "fsync", "close", "rename", "unlink"};
/// A save that goes on when one of these has failed, up to its last rename, has lost data.
constexpr std::string_view indispensable[] = {"write", "fsync", "rename"};

bool isOneOf(std::string_view word, std::span<const std::string_view> words) {
    return std::ranges::find(words, word) != words.end();
}

}  // namespace

void report(std::string_view where, const std::string& what) {
    std::cerr << "faults: " << where << ": " << what << '\n';
    ++findings;
}

Counts& Counts::operator+=(const Counts& other) {
    for (int Counts::*const field : {&Counts::calls, &Counts::faults, &Counts::oldKept, &Counts::newStands,
                                     &Counts::killedOld, &Counts::killedNew, &Counts::oldMoved}) {
        this->*field += other.*field;
    }
    return *this;
}

Trial::Trial(const SavingProgram& program, const Scenario& scenario) : program_(program), scenario_(scenario) {
    before_ = filesBefore();
    Outcome unsaved = attempt("", false);
    firstCall_ = unsaved.calls.size() + 1;
    Outcome clean = attempt("");
    after_ = program_.files();
    calls_ = std::move(clean.calls);
    counts_.calls = static_cast<int>(calls_.size() - firstCall_ + 1);
    if (clean.code != 0) report(scenario.title, "fails without a fault: " + clean.error);
    if (after_ == before_) report(scenario.title, "saves nothing");
    for (const auto& [name, bytes] : after_)
        checkWhole("no fault", bytes);
    for (const char* const needed : {"open", "write", "fsync", "rename", "close", "stat"}) {
        if (std::ranges::find(calls_, needed) == calls_.end())
            report(scenario.title, "no call seen to " + std::string(needed));
    }
}

Counts Trial::run(bool full) {
    for (std::size_t number = firstCall_; number <= calls_.size(); ++number) {
        for (std::size_t i = 0; i < std::size(errors); ++i) {
            if (full || i == number % std::size(errors)) fail(number, errors[i]);
        }
        fail(number, "EINTR");
        if (isOneOf(calls_[number - 1], transfers)) fail(number, "short");
        for (const std::string_view kill : kills)
            (void)tryFaults(std::to_string(number) + ':' + std::string(kill));
        if (full) failTwice(number);
    }
    return counts_;
}

/// Another process puts another job in the place of the edited one, ahead of each call of the save.
int Trial::replaceMeanwhile() const {
    const std::string note = "[Other]\r\nNote=1\r\n";
    const std::string name(scenario_.target);
    const std::string foreign = before_.at(name) + note;
    for (std::size_t number = firstCall_; number <= calls_.size(); ++number) {
        program_.restore(before_);
        const auto foreignFile = program_.root() / "foreign";
        std::ofstream(foreignFile, std::ios::binary) << foreign;
        Call call = callOf(std::to_string(number) + ":replace", true);
        call.move = foreignFile.string() + ':' + (program_.jobs() / name).string();
        const Outcome outcome = program_.run(call);
        const Files now = program_.files();
        const std::string& bytes = now.at(name);
        const bool updated = bytes == after_.at(name) + note;
        const bool whole = updated || bytes == after_.at(name) || bytes == foreign;
        const std::string where = std::string(scenario_.title) + ", replaced before call " + std::to_string(number);
        if (outcome.code != 0) report(where, outcome.error);
        if (!whole || now.size() != before_.size() || program_.temporaries() != 0) report(where, "not whole");
        if (number == firstCall_ && !updated) report(where, "the lines of the other process are lost");
    }
    return counts_.calls;
}

Files Trial::filesBefore() const {
    program_.restore({});
    const auto create = [&](const std::string& name) {
        const Outcome made = program_.run({"new", "type dxName " + name + "\ntype dxSource /from/" + name +
                                                      "\ntype dxDest /old\nanswer ok\n" + std::string(saveLine)});
        if (made.code != 0) report(scenario_.title, "no job to begin with: " + made.error);
    };
    for (const char other : scenario_.others)
        create(std::string(1, other));
    if (!scenario_.edited.empty()) create("a");
    Files files = program_.files();
    if (scenario_.edited == "link.job") {
        files["elsewhere/a.job"] = files["a.job"];
        files.erase("a.job");
        files["link.job"] = "-> elsewhere/a.job";
    }
    return files;
}

Call Trial::callOf(const std::string& faults, bool save) const {
    std::string lines(scenario_.lines);
    if (save) lines += saveLine;
    return {scenario_.edited.empty() ? "new" : std::string(scenario_.edited), lines, faults, scenario_.clock};
}

Outcome Trial::attempt(const std::string& faults, bool save) const {
    program_.restore(before_);
    return program_.run(callOf(faults, save));
}

void Trial::fail(std::size_t number, std::string_view action) {
    const std::string fault = std::to_string(number) + ':' + std::string(action);
    const Outcome outcome = tryFaults(fault);
    const bool interrupted = action == "short" || (action == "EINTR" && isOneOf(calls_[number - 1], interruptible));
    if (interrupted && outcome.code != 0) report(where(fault), "an interruption fails the save: " + outcome.error);
    const bool behindRename =
        std::find(calls_.begin() + static_cast<std::ptrdiff_t>(number - 1), calls_.end(), "rename") == calls_.end();
    if (!interrupted && !behindRename && isOneOf(calls_[number - 1], indispensable) && outcome.code == 0)
        report(where(fault), "the failure is lost");
}

/// The calls that answer the first fault fail as well.
void Trial::failTwice(std::size_t number) {
    const std::string first = std::to_string(number) + ":EIO";
    const Outcome outcome = attempt(first);
    for (std::size_t second = number + 1; second <= outcome.calls.size(); ++second) {
        const std::string at = first + ',' + std::to_string(second) + ':';
        for (const std::string_view action : {"EIO", "EACCES", "EINTR", "kill-before", "kill-after"})
            (void)tryFaults(at + std::string(action), outcome.calls[second - 1]);
    }
}

std::string Trial::where(const std::string& faults) const {
    return std::string(scenario_.title) + ", " + faults;
}

void Trial::checkWhole(const std::string& faults, const std::string& bytes) const {
    if (bytes.starts_with("-> ")) return;
    try {
        (void)wholeJob(bytes);
    } catch (const std::exception& broken) {
        report(where(faults), broken.what());
    }
}

/// `second` is the call that fails behind the first, if one does.
Outcome Trial::tryFaults(const std::string& faults, std::string_view second) {
    Outcome outcome = attempt(faults);
    const Files now = program_.files();
    const bool killed = outcome.code < 0;
    ++counts_.faults;
    checkFiles(faults, now);
    const bool mayLeaveLitter = killed || second == "unlink";
    const std::size_t litter = program_.temporaries();
    if (litter > (mayLeaveLitter ? 1U : 0U)) report(where(faults), "a temporary file stays");
    if (outcome.code == 0 && now != after_) report(where(faults), "says that it saved, and did not");
    if (outcome.code > 0 && now != before_ && second.empty()) report(where(faults), "fails, but not as before");
    if (outcome.code > 0 && !outcome.error.starts_with("kestedit: ")) report(where(faults), "fails without a word");
    count(killed, now);
    saveAgain(faults, now, litter);
    return outcome;
}

void Trial::count(bool killed, const Files& now) {
    if (now == after_) {
        ++(killed ? counts_.killedNew : counts_.newStands);
    } else if (now == before_) {
        ++(killed ? counts_.killedOld : counts_.oldKept);
    } else {
        ++counts_.oldMoved;
    }
}

/// Every file holds a whole job that was there before or is the new one, and no job is gone.
void Trial::checkFiles(const std::string& faults, const Files& now) const {
    bool jobIsThere = false;
    for (const auto& [name, bytes] : now) {
        checkWhole(faults, bytes);
        const bool known = before_.contains(name) || after_.contains(name);
        const bool unchanged = before_.contains(name) && before_.at(name) == bytes;
        const bool isNew = after_.contains(name) && after_.at(name) == bytes;
        const bool complete = unchanged || isNew || isMovedJob(name, bytes);
        if (!known || !complete) report(where(faults), name + " is neither the old job nor the new one");
        const bool involved = !before_.contains(name) || !after_.contains(name) || before_.at(name) != after_.at(name);
        jobIsThere = jobIsThere || involved;
    }
    for (const auto& [name, bytes] : before_) {
        if (after_.contains(name) && !now.contains(name)) report(where(faults), name + " is gone");
    }
    if (!scenario_.edited.empty() && !jobIsThere) report(where(faults), "the job is under neither name");
}

/// In the middle of a rename the old job stands under the new name.
bool Trial::isMovedJob(const std::string& name, const std::string& bytes) const {
    return name == scenario_.target && !before_.contains(name) && before_.contains(std::string(scenario_.edited)) &&
           before_.at(std::string(scenario_.edited)) == bytes;
}

void Trial::saveAgain(const std::string& faults, const Files& now, std::size_t litter) const {
    std::string name(scenario_.target);
    Call call{name, "type dxDest /later\n" + std::string(saveLine)};
    if (!now.contains(name)) {
        name = scenario_.edited;
        call.target = name;
    }
    if (!now.contains(name)) {
        call = callOf("", true);
        name = scenario_.target;
    }
    const std::string saved = call.target == "new" ? "\r\nTo=/new\r\n" : "\r\nTo=/later\r\n";
    const Outcome outcome = program_.run(call);
    const std::string job = bytesOf(program_.jobs() / name);
    if (outcome.code != 0) report(where(faults), "the next save fails: " + outcome.error);
    if (program_.temporaries() > litter) report(where(faults), "the next save leaves a temporary file");
    if (job.find(saved) == std::string::npos) report(where(faults), "the next save is lost");
    checkWhole(faults + ", next save", job);
}

}  // namespace kestedit::test
