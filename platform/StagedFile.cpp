#include "platform/StagedFile.h"

#include <cstdio>
#include <fcntl.h>
#include <new>
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

SavedNames namesOf(const fs::path& target, const fs::path& former) {
    return {target.filename(), former.filename()};
}

/// The regular file that `path` leads to; nothing when it leads to none.
std::optional<struct stat> fileBehind(const fs::path& path) {
    struct stat status {};
    const bool found = !path.empty() && ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    return found ? std::optional{status} : std::nullopt;
}

mode_t modeOf(const std::optional<struct stat>& existing, const std::optional<struct stat>& former, bool secret) {
    constexpr mode_t everyone = 0666;
    constexpr mode_t owner = 0600;
    constexpr mode_t permissions = 07777;
    if (!existing && !former) return secret ? owner : everyone;
    mode_t mode = (existing ? existing : former)->st_mode & permissions;
    if (secret) mode &= former ? former->st_mode : owner;
    return mode | ownerMayWrite;
}

/// Whether both names lead to one file. Unknown counts as yes, so that nobody deletes what might be the only name.
bool mayBeOneFile(const fs::path& left, const fs::path& right) {
    struct stat leftStatus {};
    struct stat rightStatus {};
    return ::lstat(left.c_str(), &leftStatus) != 0 || ::lstat(right.c_str(), &rightStatus) != 0 ||
           isSameFile(leftStatus, rightStatus);
}

}  // namespace

StagedFile::StagedFile(fs::path target, std::string_view bytes, const Access& access)
    : StagedFile(std::move(target), std::span<const std::string_view>(&bytes, 1), access) {}

StagedFile::StagedFile(fs::path target, std::span<const std::string_view> pieces, const Access& access)
    : target_(std::move(target)) {
    std::optional<struct stat> existing;
    place_ = behindLinks(target_, existing);
    if (existing) {
        requireRegularFile(*existing, "replace", place_);
        if (access.permissions == Permissions::keep) requireWritable(*existing, place_);
    }
    const auto former = access.former == target_ ? existing : fileBehind(access.former);
    const std::optional<struct stat>& model = existing ? existing : former;
    former_ = access.former.empty() ? place_ : access.former;
    temporary_ = writeTemporaryFile(place_, namesOf(place_, former_), pieces, modeOf(existing, former, access.secret),
                                    model ? &*model : nullptr);
}

StagedFile::StagedFile(StagedFile&& other) noexcept
    : target_(std::move(other.target_)),
      place_(std::move(other.place_)),
      former_(std::move(other.former_)),
      temporary_(std::exchange(other.temporary_, fs::path{})) {}

StagedFile& StagedFile::operator=(StagedFile&& other) noexcept {
    if (this != &other) {
        discard();
        target_ = std::move(other.target_);
        place_ = std::move(other.place_);
        former_ = std::move(other.former_);
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
    settle(folderOf(place_));
}

/// The save is done: what is left to do may fail.
void StagedFile::settle(const fs::path& folder) const noexcept {
    syncFolder(folder);
    try {
        removeLeftovers(folder, namesOf(place_, former_));
    } catch (const std::bad_alloc&) {
        // The next save removes them.
    }
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
    } else if (const auto behind = entryAt(place_); place_ != target_ && behind && isSameFile(*former, *behind)) {
        commit();  // the target is a link to the former file, which holds the job from now on
    } else {
        commit();
        deleteFile(formerTarget);
    }
    if (folderOf(formerTarget) != folderOf(place_)) syncFolder(folderOf(formerTarget));
}

}  // namespace kestedit
