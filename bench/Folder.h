// Where the files of a benchmark stand.
#pragma once

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>

namespace kestedit::bench {

/// A folder that goes with everything in it when the benchmark ends.
class Folder {
  public:
    /// In the folder that KESTEDIT_BENCH_DIR names, or where temporary files go. A memory file system tells most, a
    /// disk adds its own noise.
    Folder() : Folder(chosenPlace()) {}
    explicit Folder(const std::filesystem::path& parent) {
        std::string pattern = std::filesystem::absolute(parent) / "kestedit-bench-XXXXXX";
        if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder in " + parent.string());
        path_ = pattern;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  private:
    static std::filesystem::path chosenPlace() {
        const char* const chosen = std::getenv("KESTEDIT_BENCH_DIR");
        return chosen == nullptr ? std::filesystem::temp_directory_path() : std::filesystem::path(chosen);
    }

    std::filesystem::path path_;
};

/// A store reads a file that has just changed anew every time; files in use are older than that.
inline void letAge() {
    std::this_thread::sleep_for(std::chrono::milliseconds{100});
}

}  // namespace kestedit::bench
