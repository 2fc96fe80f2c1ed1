// A regular file without a disk behind it, so that a fuzzer reads its input by the same calls as a user's file.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace kestedit::test {

class MemoryFile {
  public:
    MemoryFile() : number_(memfd_create("input", MFD_CLOEXEC)) {
        if (number_ < 0) std::abort();
    }
    ~MemoryFile() { ::close(number_); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    /// The file now holds `bytes`. Returns its path.
    std::string with(std::string_view bytes) const {
        if (::ftruncate(number_, 0) != 0) std::abort();
        if (::pwrite(number_, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) std::abort();
        return "/proc/self/fd/" + std::to_string(number_);
    }

  private:
    int number_;
};

/// Ends the fuzzer's run with `what` when a property does not hold.
inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "property broken: %s\n", what);
    std::abort();
}

}  // namespace kestedit::test
