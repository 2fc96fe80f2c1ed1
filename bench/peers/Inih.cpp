// Only reads.
#include <INIReader.h>

#include "bench/peers/Peer.h"

namespace bench {

namespace {

std::size_t read(const std::filesystem::path& file, std::span<const Name> names) {
    const INIReader ini(file.string());
    std::size_t sum = 0;
    for (const Name& name : names)
        sum += ini.Get(name.section, name.key, "").size();
    return sum;
}

}  // namespace

const Peer inih{"inih", read, nullptr};

}  // namespace bench
