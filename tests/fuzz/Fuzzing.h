// What the fuzzers share: a file for their input, the bytes of an edit, and the end of a run that breaks a property.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "platform/IniEdit.h"

namespace kestedit::test {

/// The path of a regular file that now holds `bytes`, without a disk behind it: a fuzzer reads its input by the same
/// calls as a user's file.
inline std::string fileOf(std::string_view bytes) {
    static const int file = memfd_create("input", MFD_CLOEXEC);
    if (::ftruncate(file, 0) != 0) std::abort();
    if (::pwrite(file, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) std::abort();
    return "/proc/self/fd/" + std::to_string(file);
}

inline std::string bytesOf(const IniEdit& edit) {
    std::string bytes;
    for (const std::string_view piece : edit.pieces())
        bytes += piece;
    return bytes;
}

/// Ends the fuzzer's run with `what` when a property does not hold.
inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "property broken: %s\n", what);
    std::abort();
}

}  // namespace kestedit::test
