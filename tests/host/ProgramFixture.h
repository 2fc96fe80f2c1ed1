// The real program, called as a shell calls it, in a folder and a home of the test's own.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>

#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {

struct ProgramResult {
    int code;  ///< -1: killed
    std::string out;
    std::string err;
};

class Program {
  public:
    Program() { std::filesystem::create_directory(home()); }

    [[nodiscard]] std::filesystem::path home() const { return folder.path() / "home"; }

    /// `arguments` is shell text: redirections count, and relative paths lead to the test's folder.
    [[nodiscard]] ProgramResult kestedit(const std::string& arguments) const {
        const std::string command = "cd '" + folder.path().string() + "' && exec env -i HOME=\"$PWD/home\" LC_ALL=C " +
                                    environment + " >home/out 2>home/err " KESTEDIT_PROGRAM " " + arguments;
        const int status = std::system(command.c_str());
        ProgramResult result{WIFEXITED(status) ? WEXITSTATUS(status) : -1, bytesOf(home() / "out"),
                             bytesOf(home() / "err")};
        std::filesystem::remove(home() / "out");
        std::filesystem::remove(home() / "err");
        return result;
    }

    /// Runs `script` on what `target` says ("new", "edit a.job"), at a moment that stands still.
    [[nodiscard]] ProgramResult script(const std::string& target, const std::string& text) const {
        static_cast<void>(folder.file("home/script", text));
        return kestedit("script --now 2026-11-21T14:05:00 --date-format dd.MM.yyyy --job-dir '" + jobDir + "' " +
                        target + " home/script");
    }

    TemporaryFolder folder;
    std::string jobDir = ".";
    std::string environment;  ///< "NAME=VALUE" assignments for the call
};

class ProgramTest : public testing::Test, public Program {};

}  // namespace kestedit::test
