#include "tests/faults/SavingProgram.h"

#include <csignal>
#include <set>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace kestedit::test {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view linkMark = "-> ";

/// The exit code, or -1 for a program that was killed.
int runShell(const std::string& command, const std::function<void()>& meanwhile) {
    const char* const words[] = {"sh", "-c", command.c_str(), nullptr};
    pid_t process = 0;
    const int error = ::posix_spawn(&process, "/bin/sh", nullptr, nullptr, const_cast<char* const*>(words), ::environ);
    if (error != 0) throw std::system_error(error, std::system_category(), "start sh");
    int status = 0;
    while (::waitpid(process, &status, WUNTRACED) == process && WIFSTOPPED(status)) {
        meanwhile();
        ::kill(process, SIGCONT);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

SavingProgram::SavingProgram() : root_(fs::canonical(folder_.path())) {
    fs::create_directory(root_ / "home");
    fs::create_directory(jobs());
}

Outcome SavingProgram::run(const Call& call) const {
    static_cast<void>(folder_.file("script", call.script));
    static_cast<void>(folder_.file("log", ""));
    std::ostringstream command;
    // The sanitizers' runtime wants to come first, but what is put ahead of it here replaces none of its functions.
    command << "cd " << root_ << " && exec env -i HOME=home LC_ALL=C LD_PRELOAD=" KESTEDIT_INJECT
            << " ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 KESTEDIT_FAULTS_FOLDER=" << jobs()
            << " KESTEDIT_FAULTS_LOG=log KESTEDIT_FAULTS='" << call.faults << "' KESTEDIT_FAULTS_CLOCK=" << call.clock
            << " " KESTEDIT_PROGRAM " script --now 2026-11-21T14:05:00 --date-format dd.MM.yyyy --language "
            << KESTEDIT_LANGUAGE " --job-dir " << jobs() << ' ';
    if (call.target != "new") command << "edit " << jobs().string() << '/';
    command << call.target << " script >out 2>errors";
    Outcome outcome;
    outcome.code = runShell(command.str(), call.meanwhile);
    outcome.error = bytesOf(root_ / "errors");
    std::istringstream lines(bytesOf(root_ / "log"));
    for (std::string name; lines >> name;)
        outcome.calls.push_back(name);
    return outcome;
}

Files SavingProgram::files() const {
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(jobs())) {
        const std::string name = entry.path().lexically_relative(jobs());
        if (entry.is_symlink()) {
            files[name] = std::string(linkMark) + fs::read_symlink(entry).string();
        } else if (!entry.is_directory()) {
            files[name] = bytesOf(entry.path());
        }
    }
    return files;
}

void SavingProgram::restore(const Files& files) const {
    if (this->files() == files) return;
    fs::remove_all(jobs());
    fs::create_directory(jobs());
    for (const auto& [name, bytes] : files) {
        const fs::path path = jobs() / name;
        fs::create_directories(path.parent_path());
        if (bytes.starts_with(linkMark)) {
            fs::create_symlink(bytes.substr(linkMark.size()), path);
        } else {
            static_cast<void>(folder_.file("jobs/" + name, bytes));
        }
    }
}

std::string faultOf(const std::string& bytes) {
    std::set<std::string> names;
    std::string section;
    std::istringstream lines(bytes + "|");
    std::string line;
    while (std::getline(lines, line) && line.ends_with('\r')) {
        const std::size_t equals = line.find('=');
        if (line.starts_with('[') && line.ends_with("]\r")) {
            section = line;
        } else if (equals == std::string::npos || equals == 0 || section.empty()) {
            return "no line of a job: " + line;
        } else if (!names.insert(section + line.substr(0, equals)).second) {
            return "twice in a job: " + line;
        }
    }
    // The first and the last key of a save, and about as many between them as the format has.
    const bool whole = line == "|" && names.contains("[Job]\rName") && names.contains("[Info]\rProgVersion");
    return whole && names.size() >= 100 ? ""
                                        : "a job of " + std::to_string(names.size()) + " keys that ends with " + line;
}

}  // namespace kestedit::test
