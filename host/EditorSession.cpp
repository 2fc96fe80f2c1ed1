#include "host/EditorSession.h"

#include <stdexcept>
#include <system_error>
#include <utility>

#include "component/clsEdit.h"
#include "component/events/PrintedText.h"
#include "editor/frmEdit.h"
#include "host/LanguageFile.h"
#include "platform/Posix.h"

namespace kestedit {

namespace fs = std::filesystem;

namespace {

std::unique_ptr<Clock> makeClock(const std::optional<LocalTime>& moment) {
    if (moment) return std::make_unique<FixedClock>(*moment);
    return std::make_unique<SystemClock>();
}

/// A driver that no form reaches whose job could not be read: its fields show defaults, and a save would hide the
/// mistake.
class OfReadableJob final : public ModalRun {
  public:
    explicit OfReadableJob(ModalRun& driver) : driver_(driver) {}

    void run(frmEdit& form) override {
        if (!form.LoadProblem.empty()) throw std::runtime_error(form.LoadProblem);
        driver_.run(form);
    }
    void processPending() override { driver_.processPending(); }

  private:
    ModalRun& driver_;
};

}  // namespace

EditorSession::EditorSession(EditorOptions options, Prompts& prompts)
    : options_(std::move(options)),
      ini_(CodePage(options_.codePage)),
      clock_(makeClock(options_.now)),
      dates_(options_.dateFormat ? *options_.dateFormat : DateFormat::ofUserLocale()),
      settings_(userFolders().config / "user.ini"),
      platform_{ini_, files_, *clock_, dates_, prompts, settings_, TimeFormat::ofUserLocale()} {
    if (options_.jobFile) static_cast<void>(ini_.open(*options_.jobFile, IniStore::Page::recognised));
}

void EditorSession::show(ModalRun& driver) {
    OfReadableJob readable(driver);
    clsEdit editor(platform_, readable);
    editor.JobFile(options_.jobFile.value_or(""));
    editor.Mode(options_.jobFile ? "Edit" : "New");
    editor.View(options_.view);
    editor.AppTitle(options_.title);
    editor.JobDir(jobFolder());
    editor.INIFile(settingsFile());
    editor.Language(options_.language.value_or(ownLanguageFile()));
    editor.JobExtension(options_.extension);
    editor.HelpFile(options_.helpFile);

    event_ = "none";
    editor.SetNewValues = [this](std::string& text) { event_ = "SetNewValues " + quotedText(text); };
    editor.SearchJobs = [this] { event_ = "SearchJobs"; };
    editor.Show(options_.view);
}

std::string EditorSession::jobFolder() const {
    if (options_.jobDir) return *options_.jobDir;
    if (options_.jobFile) return fs::path(*options_.jobFile).parent_path().string();
    const UserFolders user = userFolders();
    if (const std::error_code error = createUserFolder(user.data))
        throw systemFailure(user.dataFrom + " is not usable: create folder", user.data, error);
    return user.data.string();
}

// The files that come with the program stand in one page, whatever page the user's jobs have.
std::string EditorSession::ownLanguageFile() {
    const fs::path file = userLanguageFile();
    ini_.setCodePage(file, CodePage(CodePage::western));
    return file.string();
}

std::string EditorSession::settingsFile() const {
    if (options_.settings) return *options_.settings;
    const fs::path folder = userFolders().config;
    // Settings that cannot be kept are no reason to keep the user from a job.
    static_cast<void>(createUserFolder(folder));
    return (folder / "program.ini").string();
}

}  // namespace kestedit
