#include "platform/DataFolder.h"

#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>
#include <system_error>

namespace kestedit {

namespace fs = std::filesystem;

namespace {

/// The file that an address of this process was loaded from; empty when the system does not tell.
fs::path fileAt(std::uintptr_t address) {
    // 7f3a1c000000-7f3a1c021000 r-xp 00000000 08:01 131072      /usr/lib/libkestEdit.so.1
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::istringstream range(line);
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        char dash = 0;
        range >> std::hex >> begin >> dash >> end;
        const auto path = line.find('/');
        if (address >= begin && address < end && path != std::string::npos) return line.substr(path);
    }
    return {};
}

}  // namespace

fs::path dataFolder() {
    constexpr int levels = 2;  // from lib/x86_64-linux-gnu to the tree's root
    fs::path folder = fileAt(reinterpret_cast<std::uintptr_t>(&dataFolder)).parent_path();
    for (int level = 0; level < levels; ++level) {
        folder = folder.parent_path();
        std::error_code ignored;
        if (fs::is_directory(folder / "share/kestedit", ignored)) return folder / "share/kestedit";
    }
    return {};
}

}  // namespace kestedit
