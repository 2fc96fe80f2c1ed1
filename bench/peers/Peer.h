// The same work on INI files by different libraries.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace bench {

/// A key of a file.
struct Name {
    std::string section;
    std::string key;
};

/// One way to read and write INI files. Nothing is kept from one call to the next.
struct Peer {
    std::string_view name;
    /// Opens the file and reads these keys, each into a std::string; returns the sum of their lengths.
    std::size_t (*read)(const std::filesystem::path& file, std::span<const Name> names);
    /// Opens the file, sets these keys to `value`, and puts the whole into the file's place by temporary file and
    /// rename; `sync` waits for the disk, for the content and then for the name. Null for what only reads.
    void (*change)(const std::filesystem::path& file, std::span<const Name> names, const std::string& value, bool sync);
};

/// Replaces `file` by `bytes` as every peer does that has no way of its own.
void replaceFile(const std::filesystem::path& file, std::string_view bytes, bool sync);

/// The peers that this machine has the libraries for; the first is a bare program without any, the second is ours.
[[nodiscard]] std::span<const Peer* const> peers();

extern const Peer bare;
extern const Peer kestEdit;
extern const Peer gKeyFile;
extern const Peer simpleIni;
extern const Peer qSettings;
extern const Peer inih;
extern const Peer boostTree;

}  // namespace bench
