// The whole editor without a window: a folder of its own, a clock that stands still, answers queued ahead, and the
// user's events as short words.
#pragma once

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <utility>

#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {

inline constexpr LocalTime now{Date{std::chrono::year{2026}, std::chrono::November, std::chrono::day{21}},
                               std::chrono::hours{14} + std::chrono::minutes{5}};
inline constexpr int allViews[] = {4, 9, 15, 23};
inline constexpr int actionCount = 6;

/// Answers what was queued and keeps what was asked. A message box that nobody answers is a failure of the test.
class ScriptedPrompts final : public Prompts {
  public:
    std::deque<Answer> answers;
    std::deque<std::string> choices;  ///< of both choosers; with none left they are cancelled
    std::function<void(dlgNewFolder&)> newFolder;
    std::function<void()> meanwhile;  ///< what happens while the first message stands
    std::vector<MessageBox> messages;
    std::function<void()> whileAsked;  ///< the message box stands open
    std::string lastChooser;           ///< its title, or what it lets choose

    Answer showMessage(const MessageBox& box) override {
        messages.push_back(box);
        if (whileAsked) whileAsked();
        if (meanwhile) std::exchange(meanwhile, nullptr)();
        if (answers.empty()) throw std::logic_error("nobody answers: " + box.text);
        return next(answers);
    }
    std::optional<std::string> chooseFolder(const FolderRequest& request) override { return choose(request.title); }
    std::optional<std::string> chooseFile(const FileRequest& request) override { return choose(request.filter); }
    void runNewFolder(dlgNewFolder& dialog) override { newFolder(dialog); }

  private:
    template <typename Value>
    static Value next(std::deque<Value>& queue) {
        Value value = std::move(queue.front());
        queue.pop_front();
        return value;
    }
    std::optional<std::string> choose(const std::string& from) {
        lastChooser = from;
        return choices.empty() ? std::nullopt : std::optional(next(choices));
    }
};

/// What stands around an editor: a host's values and a platform over a temporary folder.
struct Surroundings {
    Surroundings() {
        std::filesystem::create_directory(jobs);
        values.AppTitle = "kestEdit";
        values.JobDir = jobs.string();
        values.JobExtension = ".job";
        values.INIFile = (folder.path() / "program.ini").string();
        values.Language = KESTEDIT_LANG_DIR "/german.lng";
    }
    [[nodiscard]] std::filesystem::path jobFile(std::string_view name) const {
        return jobs / (std::string{name} + ".job");
    }
    void putJob(std::string_view name, std::string_view bytes) const { std::ofstream(jobFile(name)) << bytes; }
    [[nodiscard]] std::string jobBytes(std::string_view name) const { return bytesOf(jobFile(name)); }
    [[nodiscard]] std::string jobNames() const { return namesIn(jobs); }

    TemporaryFolder folder;
    std::filesystem::path jobs = folder.path() / "jobs";
    ComponentValues values;
    ScriptedPrompts prompts;
    IniStore ini;
    LocalFileSystem files;
    FixedClock clock{now};
    DateFormat dates{"dd.MM.yyyy"};
    UserSettingsFile settings{folder.path() / "user.ini"};
    Platform platform{ini, files, clock, dates, prompts, settings};
};

/// One control with all its properties, a line.
inline std::string lineOf(const EditorControl& control) {
    std::string line = control.Name() + " " + std::to_string(control.State);
    if (control.EditValue.index() > 0) line += " " + testing::PrintToString(control.EditValue);
    for (const bool flag : {control.Enabled, control.Visible, control.ReadOnly, control.TabStop})
        line += flag ? " yes" : " no";
    line += " tab " + std::to_string(control.TabIndex) + " \"" + control.Caption + "\" \"" + control.ToolTipText + "\"";
    for (const std::string& item : control.Items)
        line += " [" + item + "]";
    return line + "\n";
}

/// Images of the nodes, each with a comma behind it.
inline std::string marksOf(const FormModel& form) {
    std::string marks;
    for (const NavigationNode& node : form.Navigation.Nodes)
        marks += node.Image + ",";
    return marks;
}

inline std::string dumpOf(const FormModel& form) {
    std::string dump;
    for (const EditorControl* control : form.controls())
        dump += lineOf(*control);
    for (const NavigationNode& node : form.Navigation.Nodes)
        dump += node.Title + " " + node.Image + "\n";
    return dump + form.Caption + " " + std::to_string(form.SelectedAction) + " " +
           std::to_string(form.CompressionLevel) + " " + std::to_string(form.ActionPicture);
}

/// Opens the editor and does what a user does. Names are those of the form: "optExist(2)".
class EditorTest : public testing::Test, public Surroundings {
  protected:
    frmEdit& show(std::string_view mode, int view) {
        form_.reset();
        values.Mode = mode;
        values.ViewLevel = std::to_string(view);
        form_ = std::make_unique<frmEdit>(values, platform);
        form_->Load();
        return *form_;
    }
    frmEdit& create(int view = 4) { return show("New", view); }
    frmEdit& edit(std::string_view job, int view = 4) {
        values.JobFile = jobFile(job).string();
        return show("Edit", view);
    }
    frmEdit& form() { return *form_; }
    EditorControl& at(std::string_view name) { return form().at(name); }

    void type(std::string_view name, std::string_view text) { form().onTextTyped(at(name), text); }
    void check(std::string_view name, int state = 1) { form().onCheckClicked(at(name), state); }
    void choose(std::string_view group, int member) {
        form().onOptionChosen(at(std::string{group} + "(" + std::to_string(member) + ")"));
    }
    void pick(std::string_view name, std::size_t item) { form().onItemPicked(at(name), static_cast<int>(item)); }
    void number(std::string_view name, std::int64_t value) { form().onNumberTyped(at(name), value); }
    void spin(std::string_view name, bool up) { form().onSpin(at(name), up); }
    void button(std::string_view name, int index) { form().onInnerButton(at(name), index); }
    void click(std::string_view name) { form().onCommand(at(name)); }
    void node(int position) { form().onNodeClicked(position); }
    /// As a user does it: on the action's page, which is node 1 in every view.
    void act(int action) {
        node(1);
        choose("optAction", action);
    }
    void walkAllPages() {
        for (std::size_t i = 0; i < form().Navigation.Nodes.size(); ++i)
            click("cmdNext");
    }

    /// The page that is shown: no more than one.
    [[nodiscard]] std::string visibleFrames() {
        std::string names;
        for (const EditorControl* control : form().controls()) {
            if (control->Kind == ControlKind::frame && !control->Container && control->Visible)
                names += control->Name();
        }
        return names;
    }
    [[nodiscard]] const std::string& title(std::size_t position) { return form().Navigation.Nodes.at(position).Title; }
    [[nodiscard]] const std::string& image(std::size_t position) { return form().Navigation.Nodes.at(position).Image; }
    [[nodiscard]] const std::string& text(std::size_t entry) { return form().TextCatalogue.at(entry); }

    /// The form refuses the event and stays as it is.
    void expectRefused(const std::function<void()>& event) {
        const std::string before = dumpOf(form());
        EXPECT_THROW(event(), EventRefused);
        EXPECT_EQ(dumpOf(form()), before);
    }

  private:
    std::unique_ptr<frmEdit> form_;
};

}  // namespace kestedit::test
