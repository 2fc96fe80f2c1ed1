// What every file access here shares: descriptors that close themselves, interrupted calls, and errors that name
// operation and path.
#pragma once

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

namespace kestedit {

/// Runs `call` again for as long as a signal interrupts it; returns its last result, errno as it left it.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

/// The error that errno stands for, or `code`, as an exception whose text names operation and path.
[[nodiscard]] std::system_error systemFailure(const std::string& operation, const std::filesystem::path& path);
[[nodiscard]] std::system_error systemFailure(const std::string& operation, const std::filesystem::path& path,
                                              std::error_code code);

/// Owns an open file.
class FileDescriptor {
  public:
    explicit FileDescriptor(int number) : number_(number) {}
    ~FileDescriptor();
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }
    /// Closes now. False when the system reports that written data were lost.
    [[nodiscard]] bool close();

  private:
    int number_;
};

/// Opens with O_CLOEXEC; `mode` counts for a file that `flags` create. Failing leaves the reason in errno.
[[nodiscard]] int openFile(const std::filesystem::path& path, int flags, unsigned mode = 0);

}  // namespace kestedit
