#include "platform/Posix.h"

#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace kestedit {

std::system_error systemFailure(const std::string& operation, const std::filesystem::path& path) {
    return systemFailure(operation, path, std::error_code(errno, std::system_category()));
}

std::system_error systemFailure(const std::string& operation, const std::filesystem::path& path, std::error_code code) {
    return {code, operation + " \"" + path.native() + '"'};
}

FileDescriptor::~FileDescriptor() {
    if (isOpen()) ::close(number_);
}

bool FileDescriptor::close() {
    // After EINTR the descriptor is gone already; a second close could hit a file that another thread just opened.
    return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR;
}

int openFile(const std::filesystem::path& path, int flags, unsigned mode) {
    return uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); });
}

}  // namespace kestedit
