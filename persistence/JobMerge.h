// A save of a job that another program has changed since it was opened: whose value stands for each key.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "persistence/JobFormat.h"
#include "persistence/JobStore.h"

namespace kestedit {

/// A key that both have changed.
struct BothChanged {
    const JobRow* row;
    std::optional<std::string> theirs;  ///< what the file holds now; nothing when it lacks the key

    bool operator==(const BothChanged&) const = default;
};

/// Whose value stands where both have changed it.
enum class Winner { mine, theirs };

struct JobMerge {
    std::vector<JobLine> lines;  ///< to be written; a key that keeps the other's value is not among them
    std::vector<BothChanged> conflicts;
};

/// `mine` are the lines of the form, `present` is what the file holds now; a file that holds no job any more has
/// nothing to keep. Keys that nobody edits follow the key that they are made from, or are the other's.
[[nodiscard]] JobMerge MergeJob(std::vector<JobLine> mine, const OpenedJob& opened, const JobRecord& present,
                                Winner winner);

}  // namespace kestedit
