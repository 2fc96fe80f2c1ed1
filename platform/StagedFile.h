// A file's new content, complete and synced beside its target, waiting to take the target's place.
#pragma once

#include <filesystem>
#include <span>
#include <string_view>
#include <utility>

#include "platform/Export.h"

namespace kestedit {

/// Owns a temporary file in the target's folder. Destroyed before commit, it removes the temporary file and leaves the
/// target as it was. A target that is a symbolic link is followed: the link stays and the file behind it is replaced.
class KESTEDIT_EXPORT StagedFile {
  public:
    /// What becomes of the permissions of a target that exists. A new file follows the process's umask.
    enum class Permissions {
        keep,       ///< as they are; a read-only target is refused, as a direct write would be
        makeNormal  ///< as they are, and writable by the owner
    };

    /// Who may read and write the new content.
    struct Access {
        Access(Permissions kept) : permissions(kept) {}  // NOLINT(google-explicit-constructor): mostly all there is
        Access(Permissions kept, bool isSecret, std::filesystem::path holder)
            : permissions(kept), secret(isSecret), former(std::move(holder)) {}

        Permissions permissions;
        /// What nobody else should read. A file that is new then belongs to its owner alone, and one of another content
        /// lets nobody in who could not read `former`.
        bool secret = false;
        /// The file that holds this content so far, empty without one: a new target takes its permissions and owner.
        std::filesystem::path former;
    };

    /// Writes `bytes` to the temporary file and syncs it. Keeps the target's permissions and, where the process may,
    /// its ownership. Throws std::system_error that names operation and path; no temporary file is left then. A target
    /// that is a folder, a FIFO or a device is refused.
    StagedFile(std::filesystem::path target, std::string_view bytes, const Access& access);
    /// The same for content that lies in pieces, which stand in the file one behind the other.
    StagedFile(std::filesystem::path target, std::span<const std::string_view> pieces, const Access& access);

    StagedFile(StagedFile&& other) noexcept;
    StagedFile& operator=(StagedFile&& other) noexcept;
    ~StagedFile();

    /// Puts the new content in the target's place by one rename: a reader sees the old file or the new one, never a
    /// part. The folder is synced afterwards; from the rename on the save counts as done, whatever that sync says.
    /// Throws std::system_error and leaves the old file when the rename fails. What saves of the same file left when
    /// they were killed goes as well.
    void commit();

    /// Moves the job from `formerTarget` to the target: the old file goes to the new name first, then the new content
    /// replaces it there, so that at every instant exactly one of the two names holds a whole file. Throws
    /// std::system_error, with the old file back under its name, when a step fails. A missing old file is no failure.
    ///
    /// Where another file stands at the target already, it is replaced first and the old name removed after that, so
    /// that a failure loses neither. Two names of one file (a hard link, a file system without case) end as the target
    /// alone, but a file that the target leads to by a link stays.
    void commitReplacing(const std::filesystem::path& formerTarget);

    [[nodiscard]] const std::filesystem::path& target() const { return target_; }

  private:
    void discard() noexcept;
    void settle(const std::filesystem::path& folder) const noexcept;

    std::filesystem::path target_;
    std::filesystem::path place_;      // the target, or the file behind it when it is a link
    std::filesystem::path former_;     // the file that holds the content so far, in most cases the target
    std::filesystem::path temporary_;  // empty once committed
};

}  // namespace kestedit
