// The five operations through which the editor reads and writes its INI files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "form/ComponentValues.h"
#include "platform/Export.h"
#include "platform/IniStore.h"

namespace kestedit {

/// Reads cut a value to `size - 1` bytes of the code page and give the default for what is missing or unreadable.
/// Writes are silent about failures; IniStore::lastError tells what the last one came to.
class KESTEDIT_EXPORT modIniHandler {
  public:
    /// Both must outlive the handler. The paths of `values` are looked up at each call.
    modIniHandler(IniStore& ini, const ComponentValues& values) : ini_(ini), values_(values) {}

    [[nodiscard]] std::string ReadProgramSetting(std::string_view section, std::string_view key,
                                                 std::string_view fallback, std::int16_t size) const;
    void WriteProgramSetting(std::string_view section, std::string_view key, std::string_view value) const;

    /// For job files, whose page is recognised.
    [[nodiscard]] std::string ReadIniFileValue(std::string_view section, std::string_view key,
                                               std::string_view fallback, const std::filesystem::path& file,
                                               std::int16_t size) const;
    void WriteIniFileValue(std::string_view section, std::string_view key, std::string_view value,
                           const std::filesystem::path& file) const;

    [[nodiscard]] std::string ReadLanguageText(std::string_view section, std::string_view key,
                                               std::string_view fallback, std::int16_t size) const;

  private:
    IniStore& ini_;
    const ComponentValues& values_;
};

/// Buffer size of every text and setting that the editor reads.
inline constexpr std::int16_t textSize = 256;

}  // namespace kestedit
