#include "tests/faults/SavingProgram.h"

#include <array>
#include <fcntl.h>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace kestedit::test {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view linkMark = "-> ";

bool isTemporary(const fs::path& path) {
    return path.filename().string().starts_with(".kestedit-");
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// The exit code, or -1 for a program that was killed.
int spawn(std::vector<std::string> words, std::vector<std::string> environment, const fs::path& errors) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    pid_t process = 0;
    const int error = posix_spawn(&process, words.front().c_str(), &actions, nullptr, pointers(words).data(),
                                  pointers(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) throw std::system_error(error, std::system_category(), "start " + words.front());
    int status = 0;
    if (::waitpid(process, &status, 0) != process) throw std::system_error(errno, std::system_category(), "waitpid");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

SavingProgram::SavingProgram() {
    fs::create_directory(root() / "home");
    fs::create_directory(jobs());
}

Outcome SavingProgram::run(const Call& call) const {
    const fs::path log = root() / "log";
    fs::remove(log);
    static_cast<void>(folder_.file("script", call.script));
    std::vector<std::string> words{KESTEDIT_PROGRAM, "script",         "--now",     "2026-11-21T14:05:00",
                                   "--date-format",  "dd.MM.yyyy",     "--job-dir", jobs().string(),
                                   "--language",     KESTEDIT_LANGUAGE};
    if (call.target == "new") {
        words.emplace_back("new");
    } else {
        words.insert(words.end(), {"edit", (jobs() / call.target).string()});
    }
    words.push_back((root() / "script").string());
    const std::vector<std::string> environment{
        "HOME=" + (root() / "home").string(),
        "LC_ALL=C",
        "LD_PRELOAD=" KESTEDIT_INJECT,
        // The sanitizers' runtime wants to come first, but what is put ahead of it here replaces none of its functions.
        "ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0",
        "KESTEDIT_FAULTS_FOLDER=" + jobs().string(),
        "KESTEDIT_FAULTS_LOG=" + log.string(),
        "KESTEDIT_FAULTS=" + call.faults,
        "KESTEDIT_FAULTS_CLOCK=" + std::to_string(call.clock),
        "KESTEDIT_FAULTS_MOVE=" + call.move,
    };
    Outcome outcome;
    outcome.code = spawn(std::move(words), environment, root() / "errors");
    outcome.error = bytesOf(root() / "errors");
    std::istringstream lines(bytesOf(log));
    for (std::string number, name; lines >> number >> name;)
        outcome.calls.push_back(name);
    return outcome;
}

Files SavingProgram::files() const {
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(jobs())) {
        const std::string name = entry.path().lexically_relative(jobs());
        if (entry.is_symlink()) {
            files[name] = std::string(linkMark) + fs::read_symlink(entry).string();
        } else if (!entry.is_directory() && !isTemporary(name)) {
            files[name] = bytesOf(entry.path());
        }
    }
    return files;
}

std::size_t SavingProgram::temporaries() const {
    std::size_t count = 0;
    for (const auto& entry : fs::recursive_directory_iterator(jobs()))
        count += isTemporary(entry.path()) ? 1U : 0U;
    return count;
}

void SavingProgram::restore(const Files& files) const {
    if (temporaries() == 0 && this->files() == files) return;
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

std::map<std::string, std::string> wholeJob(const std::string& bytes) {
    std::map<std::string, std::string> keys;
    std::string section;
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = bytes.find("\r\n", begin);
        if (end == std::string::npos) throw std::runtime_error("the last line has no end");
        const std::string line = bytes.substr(begin, end - begin);
        begin = end + 2;
        const std::size_t equals = line.find('=');
        if (line.starts_with('[') && line.ends_with(']')) {
            section = line.substr(1, line.size() - 2);
        } else if (equals == std::string::npos || equals == 0 || section.empty()) {
            throw std::runtime_error("no line of a job: " + line);
        } else if (!keys.emplace(section + '/' + line.substr(0, equals), line.substr(equals + 1)).second) {
            throw std::runtime_error("twice in a job: " + line);
        }
    }
    // The first and the last key of a save, and about as many between them as the format has.
    if (keys.size() < 100 || !keys.contains("Job/Name") || !keys.contains("Info/ProgVersion")) {
        throw std::runtime_error("a job of " + std::to_string(keys.size()) + " keys");
    }
    return keys;
}

}  // namespace kestedit::test
