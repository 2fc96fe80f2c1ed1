// This project's own engine. A save always syncs; where nothing has to be synced (a memory file system) that costs the
// call alone.
#include "bench/peers/Peer.h"
#include "platform/IniStore.h"

namespace bench {

namespace {

std::size_t read(const std::filesystem::path& file, std::span<const Name> names) {
    kestedit::IniStore store;
    const auto snapshot = store.open(file);
    std::size_t sum = 0;
    for (const Name& name : names)
        sum += snapshot.value(name.section, name.key).value().size();
    return sum;
}

void change(const std::filesystem::path& file, std::span<const Name> names, const std::string& value, bool) {
    kestedit::IniStore store;
    auto edit = store.edit(file, false);
    for (const Name& name : names)
        edit.set(name.section, name.key, value);
    edit.stage(kestedit::StagedFile::Permissions::keep).commit();
}

}  // namespace

const Peer kestEdit{"kestEdit", read, change};

}  // namespace bench
