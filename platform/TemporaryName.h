// Names of temporary files: they tell which file's save is under way, and in which process.
#pragma once

#include <filesystem>
#include <string>

namespace kestedit {

/// The two names of the file that a save is about; equal unless it renames the file.
struct SavedNames {
    std::string target;  ///< the name whose place the new content takes
    std::string former;  ///< the name that the file had before
};

/// A hidden name that no other process and no other call of this one picks.
[[nodiscard]] std::string freshTemporaryName(const SavedNames& names);

/// Removes from `folder` what saves of either name left when they were killed. A file of a process that lives stays;
/// one of a process that cannot be seen from here, on another machine or in a container, goes when it is a day old.
/// What cannot be removed stays for the next save.
void removeLeftovers(const std::filesystem::path& folder, const SavedNames& names);

}  // namespace kestedit
