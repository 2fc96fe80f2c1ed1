#include "tests/faults/SavingProgram.h"

#include <set>
#include <sstream>

namespace kestedit::test {

namespace fs = std::filesystem;

SavingProgram::SavingProgram() {
    jobDir = fs::canonical(folder.path()) / "jobs";
    fs::create_directory(jobs());
}

Outcome SavingProgram::run(const Call& call) {
    static_cast<void>(folder.file("log", ""));
    // The sanitizers' runtime wants to come first, but what is put ahead of it here replaces none of its functions.
    environment = "LD_PRELOAD=" KESTEDIT_INJECT " ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0" +
                  (" KESTEDIT_FAULTS_FOLDER=" + jobDir) + " KESTEDIT_FAULTS_LOG=log KESTEDIT_FAULTS='" + call.faults +
                  "' KESTEDIT_FAULTS_CLOCK=" + std::to_string(call.clock) +
                  " KESTEDIT_FAULTS_MEANWHILE='LD_PRELOAD= mv foreign jobs/a.job'";
    Outcome outcome{script(call.target == "new" ? "new" : "edit " + jobDir + "/" + call.target, call.script), {}};
    std::istringstream lines(bytesOf(folder.path() / "log"));
    for (std::string name; lines >> name;)
        outcome.calls.push_back(name);
    return outcome;
}

Files SavingProgram::files() const {
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(jobs())) {
        const std::string name = entry.path().lexically_relative(jobs());
        if (entry.is_symlink())
            files[name] = "-> " + fs::read_symlink(entry).string();
        else if (!entry.is_directory())
            files[name] = bytesOf(entry.path());
    }
    return files;
}

void SavingProgram::keep() const {
    fs::remove_all(folder.path() / "kept");
    fs::copy(jobs(), folder.path() / "kept", fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

void SavingProgram::restore() const {
    fs::remove_all(jobs());
    fs::copy(folder.path() / "kept", jobs(), fs::copy_options::recursive | fs::copy_options::copy_symlinks);
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
