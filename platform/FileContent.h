// Whole files in memory, and whether what was read still stands on disk.
#pragma once

#include <cstddef>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string_view>
#include <sys/stat.h>

namespace kestedit {

/// Which file in which state a path leads to.
struct FileIdentity {
    dev_t device;
    ino_t inode;
    off_t size;
    std::timespec modified;
    std::timespec changed;

    explicit FileIdentity(const struct stat& status);
    [[nodiscard]] bool operator==(const FileIdentity& other) const;
};

/// The bytes of one file at the moment it was read.
class FileContent {
  public:
    /// No INI file comes near this size; what does is not one, and would only eat memory.
    static constexpr std::size_t maximumSize = std::size_t{64} << 20U;

    /// Never waits: what is no regular file (a folder, a FIFO, a device) is refused at once. Throws std::system_error.
    [[nodiscard]] static FileContent read(const std::filesystem::path& path);

    /// Other bytes for the same file.
    [[nodiscard]] FileContent withBytes(std::string_view bytes) const;

    [[nodiscard]] std::string_view bytes() const { return {bytes_.get(), size_}; }
    [[nodiscard]] const FileIdentity& identity() const { return identity_; }

    /// Whether an unchanged identity proves unchanged bytes. A file that changed a moment before it was read can change
    /// again within the same tick of the file system's clock, and then looks as if it had not.
    [[nodiscard]] bool isSettled() const { return settled_; }

  private:
    explicit FileContent(const struct stat& status);
    FileContent(const FileIdentity& identity, bool settled) : identity_(identity), settled_(settled) {}

    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
    FileIdentity identity_;
    bool settled_;
};

/// The reason why `status` is no file to read or replace, as an exception; does nothing for a regular file.
void requireRegularFile(const struct stat& status, const char* operation, const std::filesystem::path& path);

}  // namespace kestedit
