// A form and a language file for it: one of the two that the product ships, or lines that a test writes itself.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <string_view>

#include "editor/FormModel.h"
#include "i18n/LoadLanguage.h"
#include "persistence/modIniHandler.h"
#include "platform/IniStore.h"

namespace kestedit {

/// Path of "german" or "english".
inline std::filesystem::path shippedLanguage(std::string_view name) {
    return std::filesystem::path{KESTEDIT_LANG_DIR} / (std::string{name} + ".lng");
}

/// Loads language files into the form, one after the other.
class LanguageTest : public testing::Test {
  protected:
    LanguageTest() {
        std::string pattern = testing::TempDir() + "language-XXXXXX";
        if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot create " + pattern);
        folder_ = pattern;
    }
    ~LanguageTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    void load(const std::filesystem::path& file) {
        values_.Language = file.string();
        LoadLanguage(form, modIniHandler{ini_, values_});
    }

    void loadLines(std::string_view lines) {
        const auto file = folder_ / ("texts" + std::to_string(++files_) + ".lng");
        std::ofstream{file, std::ios::binary} << lines;
        load(file);
    }

    FormModel form;

  private:
    std::filesystem::path folder_;
    int files_ = 0;
    IniStore ini_;
    ComponentValues values_;
};

inline bool hasCaption(const EditorControl& control) {
    using enum ControlKind;
    return control.Kind == label || control.Kind == check || control.Kind == option || control.Kind == command;
}

}  // namespace kestedit
