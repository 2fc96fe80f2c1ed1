// A hidden file that takes a target's new bytes until they are complete.
#pragma once

#include <filesystem>
#include <span>
#include <string_view>
#include <sys/stat.h>

#include "platform/TemporaryName.h"

namespace kestedit {

/// Creates a file of a name of its own, which tells `names`, beside `target`, with the permissions `mode` and, when
/// `model` is given, the owner and group of that file where the process may set them. Writes `pieces` one behind the
/// other and syncs the file. Returns its path. Throws std::system_error, which names the target, the one of both that
/// users know; no file is left then.
[[nodiscard]] std::filesystem::path writeTemporaryFile(const std::filesystem::path& target, const SavedNames& names,
                                                       std::span<const std::string_view> pieces, mode_t mode,
                                                       const struct stat* model);

/// Syncs the names in `folder`, so that a rename there outlives a power failure. The names already hold for every
/// running program, so a folder that cannot be synced (some network mounts) is left at that.
void syncFolder(const std::filesystem::path& folder) noexcept;

}  // namespace kestedit
