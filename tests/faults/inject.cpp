// Stands between the program and the C library (LD_PRELOAD): counts the calls that concern one folder and makes chosen
// ones fail. It holds the functions by which the program reaches its jobs; a call by another one is missed in the count
// (Trial.h). The environment says all of this:
//
//   KESTEDIT_FAULTS_FOLDER     the folder, absolute and without links
//   KESTEDIT_FAULTS            "12:EIO 15:kill-after": what happens to which call; the first call is number 1
//   KESTEDIT_FAULTS_LOG        a file that gets one line for each call, its name
//   KESTEDIT_FAULTS_CLOCK      seconds by which the program's clock is ahead, so that a file has long been unchanged
//   KESTEDIT_FAULTS_MEANWHILE  the shell command that is the action "meanwhile"
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The C library's function behind the one of this name and type that stands here.
template <class Function>
Function* library(Function* /*own*/, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// What the environment asks for, and how far the program is.
struct Plan {
    Plan() {
        std::istringstream faults(std::getenv("KESTEDIT_FAULTS"));
        char colon = ':';
        std::string action;
        for (int number = 0; faults >> number >> colon >> action;)
            actions[number] = action;
    }

    std::string_view folder = std::getenv("KESTEDIT_FAULTS_FOLDER");
    long clockAhead = std::atol(std::getenv("KESTEDIT_FAULTS_CLOCK"));
    int log =
        library(::open, "open")(std::getenv("KESTEDIT_FAULTS_LOG"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    std::map<int, std::string> actions;
    std::atomic<int> calls{0};
};

Plan& plan() {
    static Plan plan;
    return plan;
}

bool concerns(std::string_view path) {
    const std::string_view folder = plan().folder;
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

bool concerns(int file) {
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = library(::readlink, "readlink")(link.c_str(), path.data(), path.size());
    return length > 0 && concerns(std::string_view(path.data(), static_cast<std::size_t>(length)));
}

/// Counts one call; returns what is to happen to it, or an empty text.
std::string_view nextAction(const char* call) {
    (void)::dprintf(plan().log, "%s\n", call);
    const auto found = plan().actions.find(++plan().calls);
    return found == plan().actions.end() ? std::string_view{} : found->second;
}

int errorOf(std::string_view action) {
    for (int error = 1; error <= EHWPOISON; ++error) {
        const char* const name = strerrorname_np(error);
        if (name != nullptr && name == action) return error;
    }
    return 0;
}

/// Makes the library's call, or lets it fail, or ends the process on its near or far side, or lets another one go
/// first.
template <class Call>
auto act(std::string_view action, Call call) -> decltype(call()) {
    if (action == "kill-before") (void)::raise(SIGKILL);
    if (action == "meanwhile") (void)std::system(std::getenv("KESTEDIT_FAULTS_MEANWHILE"));
    if (const int error = errorOf(action)) {
        errno = error;
        return -1;
    }
    const auto result = call();
    if (action == "kill-after") (void)::raise(SIGKILL);
    return result;
}

/// A call about a path or a descriptor, its first argument.
template <class Function, class Subject, class... Rest>
auto relay(Function* own, const char* name, Subject subject, Rest... rest) {
    const auto call = [&] { return library(own, name)(subject, rest...); };
    return concerns(subject) ? act(nextAction(name), call) : call();
}

/// A transfer of `size` bytes; `call` is told how many to move. The action "short" moves half of them, as a signal in
/// the middle makes it, and the next transfer is interrupted before it has moved any.
template <class Call>
ssize_t transfer(const char* name, int file, std::size_t size, Call call) {
    static std::atomic<bool> interruptNext{false};
    if (!concerns(file)) return call(size);
    std::string_view action = nextAction(name);
    if (interruptNext.exchange(action == "short")) action = "EINTR";
    return act(action, [&] { return call(action == "short" ? std::max<std::size_t>(size / 2, 1) : size); });
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : mode_t{0};
    va_end(rest);
    return relay(::open, "open", path, flags, mode);
}

int close(int file) {
    const auto call = [&] { return library(::close, "close")(file); };
    if (!concerns(file)) return call();
    const std::string_view action = nextAction("close");
    if (errorOf(action) != 0) (void)call();  // a failing close has closed all the same
    return act(action, call);
}

ssize_t read(int file, void* buffer, size_t size) {
    return transfer("read", file, size, [&](std::size_t part) { return library(::read, "read")(file, buffer, part); });
}

ssize_t write(int file, const void* bytes, size_t size) {
    return transfer("write", file, size,
                    [&](std::size_t part) { return library(::write, "write")(file, bytes, part); });
}

// clang-format off
int fsync(int file) { return relay(::fsync, "fsync", file); }
int fchmod(int file, mode_t mode) noexcept { return relay(::fchmod, "fchmod", file, mode); }
int fchown(int file, uid_t user, gid_t group) noexcept { return relay(::fchown, "fchown", file, user, group); }
int fstat(int file, struct stat* status) noexcept { return relay(::fstat, "fstat", file, status); }
int stat(const char* path, struct stat* status) noexcept { return relay(::stat, "stat", path, status); }
int lstat(const char* path, struct stat* status) noexcept { return relay(::lstat, "lstat", path, status); }
int rename(const char* from, const char* to) noexcept { return relay(::rename, "rename", from, to); }
int unlink(const char* path) noexcept { return relay(::unlink, "unlink", path); }
int scandir(const char* path, dirent*** names, int (*filter)(const dirent*),
            int (*order)(const dirent**, const dirent**)) {
    return relay(::scandir, "scandir", path, names, filter, order);
}
ssize_t readlink(const char* path, char* text, size_t size) noexcept {
    return relay(::readlink, "readlink", path, text, size);
}
// clang-format on

int clock_gettime(clockid_t clock, timespec* moment) noexcept {
    const int result = library(::clock_gettime, "clock_gettime")(clock, moment);
    if (result == 0 && clock == CLOCK_REALTIME) moment->tv_sec += plan().clockAhead;
    return result;
}

}  // extern "C"
