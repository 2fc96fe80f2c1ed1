// The real program, run in a folder of its own with faults in its way.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/host/ProgramFixture.h"

namespace kestedit::test {

/// What a folder holds, by relative path: the bytes of a file, "-> TARGET" for a symbolic link.
using Files = std::map<std::string, std::string>;

/// One run of `kestedit script`.
struct Call {
    std::string target;       ///< "new", or the edited job's path in the folder of the jobs
    std::string script;       ///< its lines
    std::string faults = "";  ///< "12:EIO 15:kill-after", by the number of the call
    long clock = 0;           ///< seconds by which the program's clock is ahead
};

struct Outcome : ProgramResult {
    std::vector<std::string> calls;  ///< names of the system calls that concerned the jobs, in order
};

/// A folder of jobs, and the program that works on it. At a fault "meanwhile" another process moves the file "foreign"
/// of the program's folder to the place of the job "a".
class SavingProgram : public Program {
  public:
    SavingProgram() {
        jobDir = std::filesystem::canonical(folder.path()) / "jobs";
        std::filesystem::create_directory(jobs());
    }

    [[nodiscard]] std::filesystem::path jobs() const { return jobDir; }
    [[nodiscard]] Outcome run(const Call& call) {
        static_cast<void>(folder.file("log", ""));
        // The sanitizers' runtime wants to come first, but what is put ahead of it here replaces none of its functions.
        environment = "LD_PRELOAD=" KESTEDIT_INJECT " ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0" +
                      (" KESTEDIT_FAULTS_FOLDER='" + jobDir) + "' KESTEDIT_FAULTS_LOG=log KESTEDIT_FAULTS='" +
                      call.faults + "' KESTEDIT_FAULTS_CLOCK=" + std::to_string(call.clock) +
                      " KESTEDIT_FAULTS_MEANWHILE='LD_PRELOAD= mv foreign jobs/a.job'";
        Outcome outcome{script(call.target == "new" ? "new" : "edit '" + jobDir + "/" + call.target + "'", call.script),
                        {}};
        std::istringstream lines(bytesOf(folder.path() / "log"));
        for (std::string name; lines >> name;)
            outcome.calls.push_back(name);
        return outcome;
    }
    [[nodiscard]] Files files() const {
        Files files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(jobs())) {
            const std::string name = entry.path().lexically_relative(jobs());
            if (entry.is_symlink())
                files[name] = "-> " + std::filesystem::read_symlink(entry).string();
            else if (!entry.is_directory())
                files[name] = bytesOf(entry.path());
        }
        return files;
    }
    /// Remembers what the folder holds.
    void keep() const { copyFolder(jobs(), folder.path() / "kept"); }
    /// Makes the folder hold that and nothing else.
    void restore() const { copyFolder(folder.path() / "kept", jobs()); }

  private:
    static void copyFolder(const std::filesystem::path& from, const std::filesystem::path& to) {
        using enum std::filesystem::copy_options;
        std::filesystem::remove_all(to);
        std::filesystem::copy(from, to, recursive | copy_symlinks);
    }
};

/// Why the bytes are no whole job, by rules of the test's own; empty for one that is.
inline std::string faultOf(const std::string& bytes) {
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
