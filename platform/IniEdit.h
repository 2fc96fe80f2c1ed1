// New keys and values over the bytes of an INI file, kept as changes until the whole is written.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/IniText.h"

namespace kestedit {

/// A text that cannot be written: the caller's mistake, and the error code that a silent write records for it.
class UnwritableText : public std::invalid_argument {
  public:
    UnwritableText(const std::string& reason, std::errc code) : std::invalid_argument(reason), code_(code) {}
    [[nodiscard]] std::error_code code() const { return std::make_error_code(code_); }

  private:
    std::errc code_;
};

/// The rules of writing. Costs what is changed and not what the file holds, however many keys are set.
class IniEdit {
  public:
    explicit IniEdit(std::shared_ptr<const IniText> base);

    /// Texts are UTF-8. Throws UnwritableText for what the code page lacks and for names that a reader of the file
    /// would take for something else.
    void set(std::string_view section, std::string_view key, std::string_view value);

    /// Whether the file is read back in its page by whoever recognises the page of the whole, and takes `told` where
    /// nothing is to be recognised.
    [[nodiscard]] bool readsBack(const CodePage& told) const;

    /// The whole content in order. The pieces are valid until the next set and as long as this object lives.
    [[nodiscard]] std::vector<std::string_view> pieces() const;

  private:
    /// A stretch of `texts_`.
    struct Stretch {
        std::size_t begin;
        std::size_t length;
    };
    struct Replacement {
        IniText::Range place;
        Stretch value;
    };
    /// A line that the file did not have: a key, or the header of a new section.
    struct NewLine {
        std::size_t position;
        std::size_t section;
        std::size_t nameLength;
        Stretch line;
    };

    std::size_t sectionFor(std::string_view name);
    void setNewKey(std::size_t section, std::string_view name, std::string_view value);
    Stretch remember(std::string_view text);
    Stretch rememberValue(std::string_view value);
    [[nodiscard]] std::string_view text(Stretch stretch) const;
    [[nodiscard]] std::vector<Replacement> replacementsInOrder() const;
    [[nodiscard]] bool changesLastLine(std::span<const Replacement> ordered) const;
    [[nodiscard]] std::vector<NewLine> newLinesInOrder() const;

    std::shared_ptr<const IniText> base_;
    std::string_view lineEnd_;
    std::string texts_;
    std::vector<Replacement> replacements_;
    std::vector<NewLine> newLines_;
    std::map<std::string, std::size_t> newSections_;  // folded name -> number, counted on from the base's
    std::map<std::string, std::size_t> newKeys_;      // section number and folded name -> index of the line
};

}  // namespace kestedit
