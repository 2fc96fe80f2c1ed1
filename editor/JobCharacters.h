// The characters that the form's job can hold: those of its code page, or all once it is stored as UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "form/FormModel.h"
#include "persistence/JobStore.h"
#include "persistence/modIniHandler.h"
#include "platform/Export.h"
#include "platform/Platform.h"

namespace kestedit {

/// A job stays in its code page for as long as everything fits. The first text that does not is a question to the user,
/// whose Yes makes the store write the job as UTF-8 from then on.
class KESTEDIT_EXPORT JobCharacters {
  public:
    /// All must outlive this.
    JobCharacters(FormModel& form, Platform& platform, const modIniHandler& texts, JobStore& jobs);

    /// The form is loading this job; one that is UTF-8 stays so.
    void loaded(const JobRecord& job);

    enum class Entry : std::uint8_t {
        typed,      ///< line breaks are the field's business
        typedName,  ///< typed, and to be a part of a path: a line break would stand there as a blank, and lead
                    ///< elsewhere
        chosenPath  ///< each choice is asked about by itself
    };
    /// Returns when the job can hold `text`, perhaps because the user has just agreed to UTF-8. Otherwise throws
    /// EventRefused, which names the characters, but none of a password. A No is not asked about again while the user
    /// types on in the same field.
    void require(const EditorControl& field, std::string_view text, Entry entry);

    /// The user has left the field.
    void editingFinished() { declined_ = nullptr; }

    /// Whether a save may go on whose bytes of the code page happen to be UTF-8, too, and would be read as that: the
    /// user is asked for UTF-8 here as well.
    [[nodiscard]] bool agreeToSave();

  private:
    [[nodiscard]] const CodePage& page() const { return platform_.ini.codePage(); }
    [[nodiscard]] bool holds(std::string_view text) const;
    [[nodiscard]] std::string unconvertibleText() const;
    [[nodiscard]] bool agree(const std::string& reason);
    void becomeUtf8();

    FormModel& form_;
    Platform& platform_;
    const modIniHandler& texts_;
    JobStore& jobs_;
    std::optional<std::size_t> unconvertibleLine_;  ///< of the loaded job
    const EditorControl* declined_ = nullptr;       ///< the field whose present editing has had its question
};

}  // namespace kestedit
