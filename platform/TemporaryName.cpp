#include "platform/TemporaryName.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "platform/Posix.h"

namespace kestedit {

namespace {

constexpr std::string_view prefix = ".kestedit-";
constexpr std::string_view suffix = ".tmp";
constexpr std::size_t hashLength = 8;

/// A short stand-in for a text of any length and any characters. A clash costs nothing: what it would remove is dead.
std::string hashOf(std::string_view text) {
    std::uint32_t hash = 2166136261U;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    std::array<char, hashLength> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), hash, 16).ptr;
    const std::string_view written(digits.data(), static_cast<std::size_t>(end - digits.data()));
    return std::string(hashLength - written.size(), '0').append(written);
}

/// Where the numbers of processes mean the same as here.
const std::string& processSpace() {
    static const std::string space = [] {
        std::array<char, 256> host{};
        if (::gethostname(host.data(), host.size() - 1) != 0) host.front() = '\0';
        struct stat container {};
        if (::stat("/proc/self/ns/pid", &container) != 0) container.st_ino = 0;
        return hashOf(host.data() + std::to_string(container.st_ino));
    }();
    return space;
}

struct TemporaryName {
    std::string_view target;  ///< hashes
    std::string_view former;
    std::string_view space;
    pid_t process;
};

/// Takes one part and the dash behind it off `rest`.
std::string_view takePart(std::string_view& rest) {
    const std::string_view part = rest.substr(0, rest.find('-'));
    rest.remove_prefix(std::min(part.size() + 1, rest.size()));
    return part;
}

std::optional<TemporaryName> parse(std::string_view name) {
    if (!name.starts_with(prefix) || !name.ends_with(suffix)) return std::nullopt;
    std::string_view rest = name.substr(prefix.size());
    TemporaryName parts{takePart(rest), takePart(rest), takePart(rest), 0};
    const std::string_view number = takePart(rest);
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), parts.process);
    const bool isNumber = error == std::errc{} && end == number.data() + number.size() && parts.process > 0;
    return isNumber ? std::optional{parts} : std::nullopt;
}

bool isDead(pid_t process) {
    return ::kill(process, 0) != 0 && errno == ESRCH;
}

bool isOlderThanADay(const std::filesystem::path& file) {
    using namespace std::chrono;
    struct stat status {};
    if (::lstat(file.c_str(), &status) != 0) return false;
    return system_clock::now() - system_clock::from_time_t(status.st_mtim.tv_sec) > hours{24};
}

int isTemporary(const dirent* entry) {
    return std::string_view(entry->d_name).starts_with(prefix) ? 1 : 0;
}

struct Freed {
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory): what scandir gives is to be freed
    void operator()(void* memory) const { std::free(memory); }
};

// By scandir: the tests let it fail.
std::vector<std::string> temporariesIn(const std::filesystem::path& folder) {
    dirent** found = nullptr;
    const int count = ::scandir(folder.c_str(), &found, isTemporary, nullptr);
    const std::unique_ptr<dirent*, Freed> list(found);
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) {
        const std::unique_ptr<dirent, Freed> entry(found[i]);
        names.emplace_back(entry->d_name);
    }
    return names;
}

}  // namespace

std::string freshTemporaryName(const SavedNames& names) {
    static std::atomic<std::uint64_t> counter{
        static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count())};
    std::string name(prefix);
    for (const std::string& part :
         {hashOf(names.target), hashOf(names.former), processSpace(), std::to_string(::getpid())})
        name.append(part).append("-");
    return name.append(std::to_string(counter.fetch_add(1))).append(suffix);
}

void removeLeftovers(const std::filesystem::path& folder, const SavedNames& names) {
    const std::string hashes[] = {hashOf(names.target), hashOf(names.former)};
    for (const std::string& name : temporariesIn(folder)) {
        const auto parts = parse(name);
        const auto isOf = [&](const std::string& hash) { return parts->target == hash || parts->former == hash; };
        if (!parts || std::ranges::none_of(hashes, isOf)) continue;
        const std::filesystem::path file = folder / name;
        const bool killed = parts->space == processSpace() && isDead(parts->process);
        if (killed || isOlderThanADay(file)) ::unlink(file.c_str());
    }
}

}  // namespace kestedit
