#include "platform/StagedFile.h"

#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/FileContent.h"
#include "platform/Posix.h"
#include "platform/TemporaryFile.h"

namespace kestedit {

namespace fs = std::filesystem;

namespace {

constexpr mode_t ownerMayWrite = S_IWUSR;

/// What stands at `path` itself; nothing when nothing does.
std::optional<struct stat> entryAt(const fs::path& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) == 0) return status;
    if (errno != ENOENT) throw systemFailure("look at", path);
    return std::nullopt;
}

bool isSameFile(const struct stat& left, const struct stat& right) {
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

fs::path folderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// Follows `path` from link to link to the place where a file stands or will stand.
fs::path behindLinks(fs::path path, std::optional<struct stat>& entry) {
    constexpr int longestChain = 40;
    entry = entryAt(path);
    for (int links = 0; entry && S_ISLNK(entry->st_mode); ++links) {
        if (links == longestChain) {
            throw systemFailure("follow", path, std::make_error_code(std::errc::too_many_symbolic_link_levels));
        }
        path = folderOf(path) / fs::read_symlink(path);
        entry = entryAt(path);
    }
    return path;
}

/// A replacement needs write permission on the folder only, so a read-only file has to be asked for its own.
void requireWritable(const struct stat& status, const fs::path& path) {
    const bool writable = (status.st_mode & ownerMayWrite) != 0;
    if (!writable) throw systemFailure("write", path, std::make_error_code(std::errc::permission_denied));
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) throw systemFailure("write", path);
}

void moveFile(const fs::path& from, const fs::path& to) {
    if (uninterrupted([&] { return ::rename(from.c_str(), to.c_str()); }) != 0) {
        throw systemFailure("rename \"" + from.native() + "\" to", to);
    }
}

void deleteFile(const fs::path& file) {
    if (uninterrupted([&] { return ::unlink(file.c_str()); }) != 0) throw systemFailure("delete", file);
}

/// Whether both names lead to one file. Unknown counts as yes, so that nobody deletes what might be the only name.
bool mayBeOneFile(const fs::path& left, const fs::path& right) {
    struct stat leftStatus {};
    struct stat rightStatus {};
    return ::lstat(left.c_str(), &leftStatus) != 0 || ::lstat(right.c_str(), &rightStatus) != 0 ||
           isSameFile(leftStatus, rightStatus);
}

}  // namespace

StagedFile::StagedFile(fs::path target, std::string_view bytes, Permissions permissions)
    : StagedFile(std::move(target), std::span<const std::string_view>(&bytes, 1), permissions) {}

StagedFile::StagedFile(fs::path target, std::span<const std::string_view> pieces, Permissions permissions)
    : target_(std::move(target)) {
    std::optional<struct stat> existing;
    place_ = behindLinks(target_, existing);
    mode_t mode = 0666;
    if (existing) {
        requireRegularFile(*existing, "replace", place_);
        if (permissions == Permissions::keep) requireWritable(*existing, place_);
        mode = (existing->st_mode & 07777U) | ownerMayWrite;
    }
    temporary_ = writeTemporaryFile(place_, pieces, mode, existing ? &*existing : nullptr);
}

StagedFile::StagedFile(StagedFile&& other) noexcept
    : target_(std::move(other.target_)),
      place_(std::move(other.place_)),
      temporary_(std::exchange(other.temporary_, fs::path{})) {}

StagedFile& StagedFile::operator=(StagedFile&& other) noexcept {
    if (this != &other) {
        discard();
        target_ = std::move(other.target_);
        place_ = std::move(other.place_);
        temporary_ = std::exchange(other.temporary_, fs::path{});
    }
    return *this;
}

StagedFile::~StagedFile() {
    discard();
}

void StagedFile::discard() noexcept {
    if (temporary_.empty()) return;
    ::unlink(temporary_.c_str());
    temporary_.clear();
}

void StagedFile::commit() {
    moveFile(temporary_, place_);
    temporary_.clear();
    syncFolder(folderOf(place_));
}

void StagedFile::commitReplacing(const fs::path& formerTarget) {
    const std::optional<struct stat> former = entryAt(formerTarget);
    const bool isFile = former && (S_ISREG(former->st_mode) || S_ISLNK(former->st_mode));
    if (!isFile || formerTarget == target_) return commit();

    const std::optional<struct stat> present = entryAt(target_);
    if (!present) {
        moveFile(formerTarget, target_);
        try {
            commit();
        } catch (...) {
            ::rename(target_.c_str(), formerTarget.c_str());
            throw;
        }
    } else if (isSameFile(*former, *present)) {
        // On a file system without case this changes the spelling of the one name; for two hard links it does nothing.
        moveFile(formerTarget, target_);
        commit();
        if (!mayBeOneFile(formerTarget, target_)) deleteFile(formerTarget);
    } else {
        commit();
        deleteFile(formerTarget);
    }
    if (folderOf(formerTarget) != folderOf(place_)) syncFolder(folderOf(formerTarget));
}

}  // namespace kestedit
