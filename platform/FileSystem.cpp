#include "platform/FileSystem.h"

#include <cerrno>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "platform/Patience.h"

namespace kestedit {

namespace fs = std::filesystem;

namespace {

fs::file_status statusOf(const fs::path& path, const char* operation) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::none) throw fs::filesystem_error(operation, path, error);
    return status;
}

void check(int result, const char* operation, const fs::path& path) {
    if (result != 0) throw fs::filesystem_error(operation, path, std::error_code(errno, std::system_category()));
}

FolderStatus lookAtFolder(const fs::path& folder) {
    struct stat status {};
    FolderStatus found;
    found.exists = ::stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    found.readable = found.exists && ::access(folder.c_str(), R_OK | X_OK) == 0;
    found.writable = found.exists && ::access(folder.c_str(), W_OK) == 0;
    return found;
}

/// "/a/b/" and "/a/b" are one folder.
fs::path withoutSeparatorAtEnd(const fs::path& path) {
    return path.has_filename() || !path.has_relative_path() ? path : path.parent_path();
}

}  // namespace

bool LocalFileSystem::FileExists(const fs::path& file) const {
    const fs::file_status status = statusOf(file, "look for file");
    return fs::exists(status) && !fs::is_directory(status);
}

bool LocalFileSystem::FolderExists(const fs::path& folder) const {
    return fs::is_directory(statusOf(folder, "look for folder"));
}

bool LocalFileSystem::isSameFile(const fs::path& left, const fs::path& right) const {
    std::error_code neither;
    return left == right || fs::equivalent(left, right, neither);
}

void LocalFileSystem::DeleteFile(const fs::path& file) const {
    check(::unlink(file.c_str()), "delete file", file);
}

void LocalFileSystem::CreateFolder(const fs::path& folder) const {
    check(::mkdir(folder.c_str(), 0777), "create folder", folder);
}

std::string LocalFileSystem::BuildPath(std::string_view folder, std::string_view name) const {
    if (folder.empty()) return std::string(name);
    if (name.empty()) return std::string(folder);
    while (folder.ends_with('/'))
        folder.remove_suffix(1);
    while (name.starts_with('/'))
        name.remove_prefix(1);
    std::string path(folder);
    path += '/';
    path += name;
    return path;
}

std::string LocalFileSystem::Absolute(std::string_view path) const {
    if (path.starts_with('/')) return std::string(path);
    return withoutSeparatorAtEnd((fs::current_path() / path).lexically_normal()).string();
}

std::string LocalFileSystem::GetFileName(std::string_view path) const {
    while (path.ends_with('/'))
        path.remove_suffix(1);
    return std::string(path.substr(path.rfind('/') + 1));
}

FolderStatus LocalFileSystem::inspectFolder(const fs::path& folder, std::chrono::milliseconds patience) const {
    FolderStatus silent;
    silent.answered = false;
    return answerWithin(patience, [folder] { return lookAtFolder(folder); }).value_or(silent);
}

fs::path LocalFileSystem::resolve(const fs::path& path, std::chrono::milliseconds patience) const {
    if (path.empty()) return path;
    const auto look = [path] {
        std::error_code error;
        fs::path absolute = fs::absolute(path, error);
        if (!error) absolute = fs::weakly_canonical(absolute, error);
        return error ? fs::path{} : absolute;
    };
    const fs::path resolved = answerWithin(patience, look).value_or(fs::path{});
    return withoutSeparatorAtEnd(resolved.empty() ? path.lexically_normal() : resolved);
}

}  // namespace kestedit
