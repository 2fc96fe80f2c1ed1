// The library's own sources are part of this one; without conversion, since the files are plain bytes.
#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>
#include <stdexcept>

#include "bench/peers/Peer.h"

namespace bench {

namespace {

void load(CSimpleIniA& ini, const std::filesystem::path& file) {
    if (ini.LoadFile(file.c_str()) < 0) throw std::runtime_error("SimpleIni does not load " + file.string());
}

std::size_t read(const std::filesystem::path& file, std::span<const Name> names) {
    CSimpleIniA ini;
    load(ini, file);
    std::size_t sum = 0;
    for (const Name& name : names)
        sum += std::string(ini.GetValue(name.section.c_str(), name.key.c_str())).size();
    return sum;
}

void change(const std::filesystem::path& file, std::span<const Name> names, const std::string& value, bool sync) {
    CSimpleIniA ini;
    load(ini, file);
    for (const Name& name : names)
        ini.SetValue(name.section.c_str(), name.key.c_str(), value.c_str());
    std::string bytes;
    if (ini.Save(bytes) < 0) throw std::runtime_error("SimpleIni does not save");
    replaceFile(file, bytes, sync);
}

}  // namespace

const Peer simpleIni{"SimpleIni", read, change};

}  // namespace bench
