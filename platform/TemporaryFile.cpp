#include "platform/TemporaryFile.h"

#include <fcntl.h>
#include <string>
#include <unistd.h>

#include "platform/Posix.h"

namespace kestedit {

namespace {

int createFile(const std::filesystem::path& folder, const SavedNames& names, mode_t mode, std::filesystem::path& path) {
    int number = -1;
    do {
        path = folder / freshTemporaryName(names);
        number = openFile(path, O_WRONLY | O_CREAT | O_EXCL, mode);
    } while (number < 0 && errno == EEXIST);
    return number;
}

/// Gives the still empty file the owner, group and permissions of the file whose place it will take.
void takeAfter(int file, const struct stat& model, mode_t mode, const std::filesystem::path& target) {
    struct stat own {};
    if (::fstat(file, &own) != 0) throw systemFailure("look at", target);
    bool owned = own.st_uid == model.st_uid && own.st_gid == model.st_gid;
    if (!owned) {
        // Only root may give files away; a member of the group may still keep the group.
        owned = ::fchown(file, model.st_uid, model.st_gid) == 0 || ::fchown(file, own.st_uid, model.st_gid) == 0;
        own.st_mode = 0;  // a change of owner may have cleared bits
    }
    if ((own.st_mode & 07777U) != mode && ::fchmod(file, mode) != 0) throw systemFailure("set permissions of", target);
}

void writeAll(int file, std::string_view bytes, const std::filesystem::path& target) {
    while (!bytes.empty()) {
        const ssize_t written = uninterrupted([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (written < 0) throw systemFailure("write", target);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// Copies short pieces together: handing them over one by one takes longer.
void writePieces(int file, std::span<const std::string_view> pieces, const std::filesystem::path& target) {
    constexpr std::size_t shortPiece = std::size_t{4} << 10U;
    constexpr std::size_t enoughTogether = std::size_t{64} << 10U;
    std::string together;
    const auto writeTogether = [&] {
        writeAll(file, together, target);
        together.clear();
    };
    for (const std::string_view piece : pieces) {
        if (piece.size() > shortPiece) {
            writeTogether();
            writeAll(file, piece, target);
        } else {
            together += piece;
            if (together.size() > enoughTogether) writeTogether();
        }
    }
    writeTogether();
}

}  // namespace

std::filesystem::path writeTemporaryFile(const std::filesystem::path& target, const SavedNames& names,
                                         std::span<const std::string_view> pieces, mode_t mode,
                                         const struct stat* model) {
    std::filesystem::path path;
    FileDescriptor file(createFile(target.parent_path(), names, mode, path));
    if (!file.isOpen()) throw systemFailure("create", target);
    try {
        if (model != nullptr) takeAfter(file.number(), *model, mode, target);
        writePieces(file.number(), pieces, target);
        if (uninterrupted([&] { return ::fsync(file.number()); }) != 0) throw systemFailure("sync", target);
        if (!file.close()) throw systemFailure("close", target);
    } catch (...) {
        ::unlink(path.c_str());
        throw;
    }
    return path;
}

void syncFolder(const std::filesystem::path& folder) noexcept {
    const FileDescriptor opened(openFile(folder, O_RDONLY | O_DIRECTORY));
    if (opened.isOpen()) uninterrupted([&] { return ::fsync(opened.number()); });
}

}  // namespace kestedit
