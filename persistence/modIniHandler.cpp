#include "persistence/modIniHandler.h"

namespace kestedit {

namespace {

// A size that has no room even for the end of a text leaves nothing of it.
std::string readCut(IniStore& ini, const std::filesystem::path& file, std::string_view section, std::string_view key,
                    std::string_view fallback, std::int16_t size, IniStore::Page page = IniStore::Page::told) {
    if (size <= 0) return {};
    return ini.read(file, section, key, fallback, static_cast<std::size_t>(size), page);
}

}  // namespace

std::string modIniHandler::ReadProgramSetting(std::string_view section, std::string_view key, std::string_view fallback,
                                              std::int16_t size) const {
    return readCut(ini_, values_.INIFile, section, key, fallback, size);
}

void modIniHandler::WriteProgramSetting(std::string_view section, std::string_view key, std::string_view value) const {
    ini_.write(values_.INIFile, section, key, value);
}

std::string modIniHandler::ReadIniFileValue(std::string_view section, std::string_view key, std::string_view fallback,
                                            const std::filesystem::path& file, std::int16_t size) const {
    return readCut(ini_, file, section, key, fallback, size, IniStore::Page::recognised);
}

void modIniHandler::WriteIniFileValue(std::string_view section, std::string_view key, std::string_view value,
                                      const std::filesystem::path& file) const {
    ini_.write(file, section, key, value, IniStore::Page::recognised);
}

std::string modIniHandler::ReadLanguageText(std::string_view section, std::string_view key, std::string_view fallback,
                                            std::int16_t size) const {
    return readCut(ini_, values_.Language, section, key, fallback, size);
}

}  // namespace kestedit
