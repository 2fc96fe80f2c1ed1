// A folder of a test's own and whole files in it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <set>
#include <stdexcept>
#include <stdlib.h>
#include <string>
#include <string_view>
#include <system_error>

namespace kestedit::test {

inline std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The names in a folder, in order and each with a blank behind it.
inline std::string namesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.insert(entry.path().filename().string() + " ");
    return std::accumulate(names.begin(), names.end(), std::string());
}

/// An empty folder that goes with everything in it when the test ends.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "kestedit-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = pattern;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Writes `bytes` as they are and returns the file's path.
    std::filesystem::path file(const std::string& name, std::string_view bytes) const {
        std::filesystem::path path = path_ / name;
        std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return path;
    }

    /// What a test left behind.
    [[nodiscard]] std::string names() const { return namesIn(path_); }

  private:
    std::filesystem::path path_;
};

}  // namespace kestedit::test
