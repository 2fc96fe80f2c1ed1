// Stands between the program and the C library (LD_PRELOAD): counts the system calls that concern one folder and makes
// chosen ones fail. Calls of other folders pass untouched. The environment says what to do:
//
//   KESTEDIT_FAULTS_FOLDER  the folder, absolute
//   KESTEDIT_FAULTS         "12:EIO,15:kill-after": what happens to which call; the first call is number 1
//   KESTEDIT_FAULTS_LOG     a file that gets one line for each call: "12 rename"
//   KESTEDIT_FAULTS_CLOCK   seconds by which the clock of the program is ahead, so that a test need not wait until a
//   file
//                           counts as unchanged for long
//   KESTEDIT_FAULTS_MOVE    "from:to", the rename of another process, for the action "replace"
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/uio.h>
#include <type_traits>
#include <unistd.h>

namespace {

/// The C library's own function of this name.
template <class Function>
Function* libraryCall(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

int errorOf(std::string_view name) {
    static constexpr std::array<std::pair<std::string_view, int>, 8> errors{{{"ENOSPC", ENOSPC},
                                                                             {"EIO", EIO},
                                                                             {"EACCES", EACCES},
                                                                             {"EROFS", EROFS},
                                                                             {"EINTR", EINTR},
                                                                             {"EDQUOT", EDQUOT},
                                                                             {"EMFILE", EMFILE},
                                                                             {"ENOMEM", ENOMEM}}};
    const auto* const found = std::ranges::find(errors, name, &std::pair<std::string_view, int>::first);
    return found == errors.end() ? 0 : found->second;
}

/// What the environment asks for, and how far the program is.
class Plan {
  public:
    static Plan& instance() {
        static Plan plan;
        return plan;
    }

    [[nodiscard]] bool concerns(const char* path) const {
        if (path == nullptr || folder_.empty()) return false;
        const std::string_view text = path;
        return text.starts_with(folder_) && (text.size() == folder_.size() || text[folder_.size()] == '/');
    }
    [[nodiscard]] bool concerns(int file) const { return isTracked(file) && tracked_[static_cast<std::size_t>(file)]; }
    void track(int file, bool concerned) {
        if (isTracked(file)) tracked_[static_cast<std::size_t>(file)] = concerned;
    }

    /// Counts one call; returns what is to happen to it, or an empty text.
    std::string_view nextAction(const char* call) {
        const int number = ++calls_;
        if (log_ >= 0) {
            std::array<char, 64> line{};
            const int length = std::snprintf(line.data(), line.size(), "%d %s\n", number, call);
            static auto* const write = libraryCall<ssize_t(int, const void*, size_t)>("write");
            (void)write(log_, line.data(), static_cast<std::size_t>(length));
        }
        const auto found = actions_.find(number);
        return found == actions_.end() ? std::string_view{} : found->second;
    }

    void replace() const {
        static auto* const rename = libraryCall<int(const char*, const char*)>("rename");
        (void)rename(moveFrom_.c_str(), moveTo_.c_str());
    }

    [[nodiscard]] long clockAhead() const { return clockAhead_; }

  private:
    Plan() : folder_(variable("KESTEDIT_FAULTS_FOLDER")) {
        std::string rest = variable("KESTEDIT_FAULTS") + ',';
        for (std::size_t end; (end = rest.find(',')) != std::string::npos; rest.erase(0, end + 1)) {
            const std::size_t colon = rest.find(':');
            if (colon < end) actions_[std::atoi(rest.c_str())] = rest.substr(colon + 1, end - colon - 1);
        }
        const std::string move = variable("KESTEDIT_FAULTS_MOVE");
        if (const std::size_t colon = move.find(':'); colon != std::string::npos) {
            moveFrom_ = move.substr(0, colon);
            moveTo_ = move.substr(colon + 1);
        }
        clockAhead_ = std::atol(variable("KESTEDIT_FAULTS_CLOCK").c_str());
        static auto* const open = libraryCall<int(const char*, int, ...)>("open");
        const std::string log = variable("KESTEDIT_FAULTS_LOG");
        if (!log.empty()) log_ = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    }

    [[nodiscard]] bool isTracked(int file) const {
        return file >= 0 && static_cast<std::size_t>(file) < tracked_.size();
    }

    std::string folder_;
    std::map<int, std::string> actions_;
    std::string moveFrom_;
    std::string moveTo_;
    std::atomic<int> calls_{0};
    std::array<std::atomic<bool>, 1024> tracked_{};  // by descriptor: whether it is open on something in the folder
    int log_ = -1;
    long clockAhead_ = 0;
};

/// Makes the library's call, or lets it fail, or ends the process on its near or far side. `evenWhenFailing`: a failing
/// close has closed all the same.
template <class Call>
auto faulty(const char* name, bool concerned, Call call, bool evenWhenFailing = false) {
    using Result = std::invoke_result_t<Call>;
    if (!concerned) return call();
    const std::string_view action = Plan::instance().nextAction(name);
    if (action == "kill-before") ::kill(::getpid(), SIGKILL);
    if (action == "replace") Plan::instance().replace();
    if (const int error = errorOf(action)) {
        if (evenWhenFailing) (void)call();
        errno = error;
        return static_cast<Result>(-1);
    }
    const Result result = call();
    if (action == "kill-after") ::kill(::getpid(), SIGKILL);
    return result;
}

/// As faulty, for a transfer of `size` bytes, of which `call` is told how many to move. The action "short" moves half
/// of them, as a signal in the middle makes it, and the next transfer is interrupted before it has moved any.
template <class Call>
ssize_t transfer(const char* name, int file, std::size_t size, Call call) {
    static std::atomic<bool> interruptNext{false};
    if (!Plan::instance().concerns(file)) return call(size);
    const std::string_view action = Plan::instance().nextAction(name);
    if (action == "short") {
        interruptNext = true;
        return call(std::max<std::size_t>(size / 2, 1));
    }
    if (interruptNext.exchange(false)) {
        errno = EINTR;
        return -1;
    }
    if (action == "kill-before") ::kill(::getpid(), SIGKILL);
    if (action == "replace") Plan::instance().replace();
    if (const int error = errorOf(action)) {
        errno = error;
        return -1;
    }
    const ssize_t result = call(size);
    if (action == "kill-after") ::kill(::getpid(), SIGKILL);
    return result;
}

int tracked(int file, const char* path) {
    if (file >= 0) Plan::instance().track(file, Plan::instance().concerns(path));
    return file;
}

bool concerns(const char* path) {
    return Plan::instance().concerns(path);
}

int openCall(const char* path, int flags, mode_t mode) {
    static auto* const open = libraryCall<int(const char*, int, ...)>("open");
    return tracked(faulty("open", concerns(path), [&] { return open(path, flags, mode); }), path);
}

int openAtCall(int folder, const char* path, int flags, mode_t mode) {
    static auto* const open = libraryCall<int(int, const char*, int, ...)>("openat");
    return tracked(faulty("open", concerns(path), [&] { return open(folder, path, flags, mode); }), path);
}

/// The mode that stands behind the flags of open when these create a file.
mode_t modeBehind(int flags, std::va_list& arguments) {
    return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : mode_t{0};
}

template <class Path, class... Rest>
int pathCall(const char* symbol, const char* name, Path path, Rest... rest) {
    auto* const call = libraryCall<int(Path, Rest...)>(symbol);
    return faulty(name, concerns(path), [&] { return call(path, rest...); });
}

template <class... Rest>
int folderCall(const char* symbol, const char* name, int folder, const char* path, Rest... rest) {
    auto* const call = libraryCall<int(int, const char*, Rest...)>(symbol);
    return faulty(name, concerns(path), [&] { return call(folder, path, rest...); });
}

template <class... Rest>
int fileCall(const char* symbol, const char* name, int file, Rest... rest) {
    auto* const call = libraryCall<int(int, Rest...)>(symbol);
    return faulty(name, Plan::instance().concerns(file), [&] { return call(file, rest...); });
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeBehind(flags, arguments);
    va_end(arguments);
    return openCall(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeBehind(flags, arguments);
    va_end(arguments);
    return openCall(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeBehind(flags, arguments);
    va_end(arguments);
    return openAtCall(folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeBehind(flags, arguments);
    va_end(arguments);
    return openAtCall(folder, path, flags, mode);
}

int close(int file) {
    static auto* const call = libraryCall<int(int)>("close");
    const bool concerned = Plan::instance().concerns(file);
    Plan::instance().track(file, false);
    return faulty(
        "close", concerned, [&] { return call(file); }, true);
}

ssize_t read(int file, void* buffer, size_t size) {
    static auto* const call = libraryCall<ssize_t(int, void*, size_t)>("read");
    return transfer("read", file, size, [&](std::size_t part) { return call(file, buffer, part); });
}

ssize_t write(int file, const void* bytes, size_t size) {
    static auto* const call = libraryCall<ssize_t(int, const void*, size_t)>("write");
    return transfer("write", file, size, [&](std::size_t part) { return call(file, bytes, part); });
}

ssize_t writev(int file, const iovec* pieces, int count) {
    static auto* const call = libraryCall<ssize_t(int, const iovec*, int)>("writev");
    std::size_t size = 0;
    for (int i = 0; i < count; ++i)
        size += pieces[i].iov_len;
    return transfer("write", file, size, [&](std::size_t part) -> ssize_t {
        if (part == size) return call(file, pieces, count);
        std::string bytes;
        for (int i = 0; i < count; ++i)
            bytes.append(static_cast<const char*>(pieces[i].iov_base), pieces[i].iov_len);
        static auto* const write = libraryCall<ssize_t(int, const void*, size_t)>("write");
        return write(file, bytes.data(), part);
    });
}

// clang-format off
int fsync(int file) { return fileCall("fsync", "fsync", file); }
int fdatasync(int file) { return fileCall("fdatasync", "fsync", file); }
int ftruncate(int file, off_t size) noexcept { return fileCall("ftruncate", "truncate", file, size); }
int fchmod(int file, mode_t mode) noexcept { return fileCall("fchmod", "chmod", file, mode); }
int fchown(int file, uid_t user, gid_t group) noexcept { return fileCall("fchown", "chown", file, user, group); }
int fstat(int file, struct stat* status) noexcept { return fileCall("fstat", "stat", file, status); }
int fstat64(int file, struct stat64* status) noexcept { return fileCall("fstat64", "stat", file, status); }

int stat(const char* path, struct stat* status) noexcept { return pathCall("stat", "stat", path, status); }
int stat64(const char* path, struct stat64* status) noexcept { return pathCall("stat64", "stat", path, status); }
int lstat(const char* path, struct stat* status) noexcept { return pathCall("lstat", "stat", path, status); }
int lstat64(const char* path, struct stat64* status) noexcept { return pathCall("lstat64", "stat", path, status); }
int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
    return folderCall("fstatat", "stat", folder, path, status, flags);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
    return folderCall("statx", "stat", folder, path, flags, mask, status);
}
int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    return folderCall("faccessat", "access", folder, path, mode, flags);
}
int access(const char* path, int mode) noexcept { return pathCall("access", "access", path, mode); }
int chmod(const char* path, mode_t mode) noexcept { return pathCall("chmod", "chmod", path, mode); }
ssize_t readlink(const char* path, char* text, size_t size) noexcept {
    static auto* const call = libraryCall<ssize_t(const char*, char*, size_t)>("readlink");
    return faulty("readlink", concerns(path), [&] { return call(path, text, size); });
}

int unlink(const char* path) noexcept { return pathCall("unlink", "unlink", path); }
int unlinkat(int folder, const char* path, int flags) noexcept {
    return folderCall("unlinkat", "unlink", folder, path, flags);
}
int remove(const char* path) noexcept { return pathCall("remove", "unlink", path); }
int rename(const char* from, const char* to) noexcept {
    static auto* const call = libraryCall<int(const char*, const char*)>("rename");
    return faulty("rename", concerns(from) || concerns(to), [&] { return call(from, to); });
}
int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    return folderCall("renameat", "rename", fromFolder, from, toFolder, to);
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    return folderCall("renameat2", "rename", fromFolder, from, toFolder, to, flags);
}
int link(const char* from, const char* to) noexcept { return pathCall("link", "link", from, to); }
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    return folderCall("linkat", "link", fromFolder, from, toFolder, to, flags);
}
// clang-format on

int clock_gettime(clockid_t clock, timespec* moment) noexcept {
    static auto* const call = libraryCall<int(clockid_t, timespec*)>("clock_gettime");
    const int result = call(clock, moment);
    if (result == 0 && clock == CLOCK_REALTIME) moment->tv_sec += Plan::instance().clockAhead();
    return result;
}

}  // extern "C"
