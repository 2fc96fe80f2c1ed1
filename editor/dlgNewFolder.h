// The small dialog that creates one folder below the folder of a path field.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "editor/JobCharacters.h"
#include "form/FormModel.h"
#include "persistence/modIniHandler.h"
#include "platform/Export.h"
#include "platform/Platform.h"

namespace kestedit {

/// Its controls answer to their own names; FormModel::fMode of the form says which path field it serves. A driver shows
/// it from Prompts::runNewFolder and hands it events until it is closed.
class KESTEDIT_EXPORT dlgNewFolder : public ControlRegistry {
  public:
    /// All must outlive the dialog.
    dlgNewFolder(FormModel& form, const modIniHandler& texts, std::string_view title, Platform& platform,
                 JobCharacters& characters);

    EditorControl fraNew{*this, ControlKind::frame, "fraNew"};
    /// Says in which folder the new one will stand: that of the path field, as an absolute path whatever the field
    /// holds.
    EditorControl lblFolder{*this, ControlKind::label, "lblFolder", fraNew};
    EditorControl dxTextEdit1{*this, ControlKind::text, "dxTextEdit1", fraNew, ""};
    EditorControl cmdCreate{*this, ControlKind::command, "cmdCreate"};
    EditorControl cmdCancel{*this, ControlKind::command, "cmdCancel"};

    std::string Caption;
    /// Background of the dialog and of fraNew: blue * 65536 + green * 256 + red; nothing keeps the system's.
    std::optional<std::int64_t> BackColour;

    /// Texts, colour and the state of the buttons.
    void Load();
    [[nodiscard]] bool isOpen() const { return open_; }

    // ---- user events. Each throws EventRefused for what no user could do.
    void onTextTyped(EditorControl& control, std::string_view text);
    void onCommand(EditorControl& control);
    void onCloseBox();

  private:
    void requireOpen() const;
    [[nodiscard]] EditorControl* pathField() const;
    void create();
    void reportExisting();
    void report(std::string_view text);

    FormModel& form_;
    const modIniHandler& texts_;
    std::string_view title_;
    Platform& platform_;
    std::string folder_;  ///< where the new folder will stand
    JobCharacters& characters_;
    bool open_ = true;
};

}  // namespace kestedit
