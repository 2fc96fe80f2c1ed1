// The real program, run in a folder of its own with faults in its way.
#pragma once

#include <map>
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
    SavingProgram();

    [[nodiscard]] std::filesystem::path jobs() const { return jobDir; }
    [[nodiscard]] Outcome run(const Call& call);
    [[nodiscard]] Files files() const;
    /// Remembers what the folder holds.
    void keep() const;
    /// Makes the folder hold that and nothing else.
    void restore() const;
};

/// Why the bytes are no whole job, by rules of the test's own; empty for one that is.
[[nodiscard]] std::string faultOf(const std::string& bytes);

}  // namespace kestedit::test
