// A form and a language file for it: one of the two that the product ships, or lines that a test writes itself.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "editor/FormModel.h"
#include "i18n/LoadLanguage.h"
#include "persistence/modIniHandler.h"
#include "platform/IniStore.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit {

/// Path of "german" or "english".
inline std::filesystem::path shippedLanguage(std::string_view name) {
    return std::filesystem::path{KESTEDIT_LANG_DIR} / (std::string{name} + ".lng");
}

/// Loads language files into the form, one after the other.
class LanguageTest : public testing::Test {
  protected:
    void load(const std::filesystem::path& file) {
        IniStore ini;
        ComponentValues values;
        values.Language = file.string();
        LoadLanguage(form, modIniHandler{ini, values});
    }
    void loadLines(std::string_view lines) { load(folder_.file("texts.lng", lines)); }

    FormModel form;

  private:
    test::TemporaryFolder folder_;
};

}  // namespace kestedit
