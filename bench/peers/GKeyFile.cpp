#include <glib.h>
#include <memory>
#include <stdexcept>

#include "bench/peers/Peer.h"

namespace bench {

namespace {

using Keys = std::unique_ptr<GKeyFile, decltype(&g_key_file_free)>;
using Text = std::unique_ptr<char, decltype(&g_free)>;

/// Comments are kept, since a save would lose them otherwise.
Keys load(const std::filesystem::path& file) {
    Keys keys(g_key_file_new(), g_key_file_free);
    if (!g_key_file_load_from_file(keys.get(), file.c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr))
        throw std::runtime_error("GKeyFile does not load " + file.string());
    return keys;
}

std::size_t read(const std::filesystem::path& file, std::span<const Name> names) {
    const Keys keys = load(file);
    std::size_t sum = 0;
    for (const Name& name : names) {
        const Text value(g_key_file_get_value(keys.get(), name.section.c_str(), name.key.c_str(), nullptr), g_free);
        sum += std::string(value.get()).size();
    }
    return sum;
}

void change(const std::filesystem::path& file, std::span<const Name> names, const std::string& value, bool sync) {
    const Keys keys = load(file);
    for (const Name& name : names)
        g_key_file_set_value(keys.get(), name.section.c_str(), name.key.c_str(), value.c_str());
    gsize size = 0;
    const Text bytes(g_key_file_to_data(keys.get(), &size, nullptr), g_free);
    replaceFile(file, {bytes.get(), size}, sync);
}

}  // namespace

const Peer gKeyFile{"GKeyFile", read, change};

}  // namespace bench
