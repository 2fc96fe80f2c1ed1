// The editor's form: its start-up, one handler for each kind of user event, and its end.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "editor/JobCharacters.h"
#include "editor/JobFolders.h"
#include "form/ComponentValues.h"
#include "form/FormModel.h"
#include "i18n/Texts.h"
#include "persistence/JobStore.h"
#include "persistence/modIniHandler.h"
#include "platform/Export.h"
#include "platform/Platform.h"

namespace kestedit {

enum class PathFinding;
struct BothChanged;

/// An event that no user could cause: its control is disabled, hidden, read-only or of another kind, or its window has
/// closed.
class KESTEDIT_EXPORT EventRefused : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

/// Drivers hand every user event to one of the `on...` handlers and then show what the controls say; they change
/// nothing in the model themselves. A handler throws EventRefused, before it has changed anything, for an event that no
/// user could cause, and lets a failure of the platform (std::system_error) out; the form stays open then, with
/// everything the user typed. Handlers may put questions through Platform::prompts and return when these are answered.
class KESTEDIT_EXPORT frmEdit : public FormModel {
  public:
    /// Both must outlive the form.
    frmEdit(ComponentValues& values, Platform& platform);

    /// Runs `look`, on any thread, and then `show` on the thread of the form.
    using Background = std::function<void(std::function<void()> look, std::function<void()> show)>;
    /// How folders are looked at, which takes two seconds when one gives no answer; at once and here, without this. For
    /// a driver whose user must not wait. What it still has to show, it drops before the form goes.
    void lookInBackground(Background background) { background_ = std::move(background); }

    /// Everything up to the moment where the form becomes visible: settings, texts, job or new-job defaults,
    /// navigation, first rule pass, focus, tab order.
    void Load();

    [[nodiscard]] bool isOpen() const { return open_; }
    /// Whether the one-shot timer still waits for the form to become visible.
    [[nodiscard]] bool isTimerRunning() const { return timerRunning_; }
    [[nodiscard]] const ComponentValues& values() const { return values_; }
    [[nodiscard]] Platform& platform() const { return platform_; }
    /// Where a driver reads the texts that it shows beside the controls' own.
    [[nodiscard]] const modIniHandler& texts() const { return ini_; }

    // ---- user events
    /// The text of a field is now `text`; one call for each change while typing, deleting or pasting. Refused, with the
    /// text before it kept, when the job cannot hold it and the user does not agree to UTF-8. Line breaks in a memo
    /// become "\r\n", in any other field blanks. A date or time takes the value that its text says; one that says none
    /// is no refusal: the value from before the typing stays.
    void onTextTyped(EditorControl& control, std::string_view text);
    /// The user has left a field or confirmed it: checks that look at the disk run now and not while typing, and a
    /// finding about the field, which is not told while the user is still at it, is told now. A date or time is read
    /// for good, and told beside the field when its text says none.
    void onEditingFinished(EditorControl& control);
    /// A state or a choice that holds already is no change, and no rule runs.
    void onCheckClicked(EditorControl& control, int state);
    void onOptionChosen(EditorControl& member);
    /// Refused when the list has no entry at `position`.
    void onItemPicked(EditorControl& control, int position);
    /// The same by the entry's text, the first of equal ones; refused when `text` is not an entry of the list.
    void onItemPicked(EditorControl& control, std::string_view text);
    /// Nothing empties the editor.
    void onDateChosen(EditorControl& control, std::optional<Date> date);
    void onTimeChosen(EditorControl& control, std::optional<TimeOfDay> time);
    void onNumberTyped(EditorControl& control, std::optional<std::int64_t> number);
    /// One click of a spin button.
    void onSpin(EditorControl& control, bool up);
    /// A path field's inner button: 0 browses, 1 creates a folder.
    void onInnerButton(EditorControl& control, int button);
    /// A command button: cmdPrevious, cmdNext, cmdSave, cmdCancel.
    void onCommand(EditorControl& control);
    void onNodeClicked(int position);
    /// A key in the navigation list: 38 and 40 move the focus and show the page, others do nothing.
    void onNodeKey(int keyCode);
    /// A mouse button pressed on a field; 2 is the right one. Changes nothing.
    void onMousePressed(EditorControl& control, int button);
    void onFocused(EditorControl& control);
    /// The one-shot timer; does nothing when it has fired before.
    void onTimer();
    /// The help key: the file to open, the host's own or the installed manual in the language of the texts. Without one
    /// it tells the user so and gives nothing.
    [[nodiscard]] std::optional<std::string> onHelpKey();
    /// The window's close box: ends the editing without setting Cancelled.
    void onCloseBox();

    /// What the field of a date or time shows: the text that is typed into it, or the value in the user's own form.
    [[nodiscard]] std::string momentText(const EditorControl& control) const;

    /// Why a user cannot act on the control now ("dxSize is disabled"), or nothing. Page frames do not count: a script
    /// may act on a page that is not shown, as a user would after a click on its node.
    [[nodiscard]] std::optional<std::string> obstacle(const EditorControl& control) const;

  private:
    // start-up
    void readWindowSettings();
    void loadTexts();
    void loadByMode();
    void loadJob();
    void tellDateChange();
    void applyNewJob();
    // events
    void requireOpen() const;
    void requireReachable(const EditorControl& control, std::initializer_list<ControlKind> kinds) const;
    /// `typing`: the user may still be in the middle of it.
    void changed(EditorControl& control, bool typing = false);
    void refreshNotices();
    void showPage(int position);
    void focus(EditorControl& control);
    void open(EditorControl& control);
    void checkPaths();
    void withdrawPathFinding(const EditorControl& typed);
    void showPathFinding(std::optional<PathFinding> finding);
    void checkSchedule(bool mayAppear = true);
    [[nodiscard]] bool isUnfinished(const EditorControl& control) const;
    void browsePath(EditorControl& control);
    void browseExecPath(int button);
    void createFolder(EditorControl& control);
    [[nodiscard]] std::string installedManual() const;
    // saving
    [[nodiscard]] bool validate();
    [[nodiscard]] bool momentsAreRead();
    void reportInvalid(EditorControl& control, std::size_t message);
    void save();
    void saveNew(const std::string& name);
    void saveEdited(const std::string& name);
    void wantName();
    [[nodiscard]] Answer askForName(Buttons buttons, TextId firstLine);
    [[nodiscard]] bool confirmOverwrite(TextId question);
    [[nodiscard]] bool create(const std::string& file);
    [[nodiscard]] bool saveOpened(const std::filesystem::path& target);
    [[nodiscard]] Answer askWhoseValues(const std::vector<BothChanged>& keys);
    [[nodiscard]] std::string jobPath(const std::string& name) const;
    void close();

    ComponentValues& values_;
    Platform& platform_;
    modIniHandler ini_;
    JobStore jobs_;
    JobCharacters characters_;
    std::optional<OpenedJob> opened_;  ///< the job that is edited, unless it could not be read
    bool loading_ = true;
    bool open_ = true;
    bool timerRunning_ = true;
    EditorControl* typing_ = nullptr;  ///< the field that the user is typing into; not owned
    JobFolders checkedFolders_;  ///< those of the last check, which may still be under way, or of what is typed since
    std::optional<PathFinding> pathFinding_;  ///< the one shown now
    Background background_;
    bool editPaths_ = true;
};

}  // namespace kestedit
