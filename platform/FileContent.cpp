#include "platform/FileContent.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <unistd.h>

#include "platform/Posix.h"

namespace kestedit {

namespace {

bool sameMoment(const std::timespec& left, const std::timespec& right) {
    return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

/// Whether the last change lies further back than one tick of the file system's clock. The change time counts and not
/// the modification time, because programs can set that one to any moment.
bool isLongAgo(const std::timespec& changed) {
    using namespace std::chrono;
    const bool wholeSeconds = changed.tv_nsec == 0;  // likely a file system that knows no fractions
    const nanoseconds tick = wholeSeconds ? nanoseconds{seconds{2}} : nanoseconds{milliseconds{50}};
    const nanoseconds moment = seconds{changed.tv_sec} + nanoseconds{changed.tv_nsec};
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()) - moment > tick;
}

/// Reads until `capacity` bytes are there or the file ends; returns how many there are. A read that leaves just the
/// last byte free has met the end: it stands behind the file's size.
std::size_t fill(const FileDescriptor& file, char* buffer, std::size_t used, std::size_t capacity,
                 const std::filesystem::path& path) {
    ssize_t count = 0;
    do {
        count = uninterrupted([&] { return ::read(file.number(), buffer + used, capacity - used); });
        if (count < 0) throw systemFailure("read", path);
        used += static_cast<std::size_t>(count);
    } while (count > 0 && used + 1 < capacity);
    return used;
}

}  // namespace

FileIdentity::FileIdentity(const struct stat& status)
    : device(status.st_dev),
      inode(status.st_ino),
      size(status.st_size),
      modified(status.st_mtim),
      changed(status.st_ctim) {}

bool FileIdentity::operator==(const FileIdentity& other) const {
    return device == other.device && inode == other.inode && size == other.size &&
           sameMoment(modified, other.modified) && sameMoment(changed, other.changed);
}

void requireRegularFile(const struct stat& status, const char* operation, const std::filesystem::path& path) {
    if (S_ISREG(status.st_mode)) return;
    const bool folder = S_ISDIR(status.st_mode);
    throw systemFailure(operation + std::string(folder ? " folder" : " special file"), path,
                        std::make_error_code(folder ? std::errc::is_a_directory : std::errc::not_supported));
}

FileContent::FileContent(const struct stat& status) : identity_(status), settled_(isLongAgo(status.st_ctim)) {}

FileContent FileContent::withBytes(std::string_view bytes) const {
    FileContent content(identity_, settled_);
    content.bytes_ = std::make_unique_for_overwrite<char[]>(bytes.size());
    content.size_ = bytes.size();
    std::ranges::copy(bytes, content.bytes_.get());
    return content;
}

FileContent FileContent::read(const std::filesystem::path& path) {
    const FileDescriptor file(openFile(path, O_RDONLY | O_NONBLOCK));
    if (!file.isOpen()) throw systemFailure("open", path);
    struct stat status {};
    if (::fstat(file.number(), &status) != 0) throw systemFailure("look at", path);
    requireRegularFile(status, "read", path);

    FileContent content(status);
    // One byte more than the file has, which stays free unless the file has grown since.
    std::size_t capacity = static_cast<std::size_t>(status.st_size) + 1;
    for (;;) {
        if (capacity > maximumSize + 1)
            throw systemFailure("read", path, std::make_error_code(std::errc::file_too_large));
        auto buffer = std::make_unique_for_overwrite<char[]>(capacity);
        std::copy_n(content.bytes_.get(), content.size_, buffer.get());
        content.bytes_ = std::move(buffer);
        content.size_ = fill(file, content.bytes_.get(), content.size_, capacity, path);
        if (content.size_ < capacity) return content;
        capacity *= 2;  // the file has grown since
    }
}

}  // namespace kestedit
