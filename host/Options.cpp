#include "host/Options.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <functional>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <utility>

#include "component/events/IsoTime.h"
#include "component/events/PrintedText.h"
#include "component/events/WholeNumber.h"
#include "editor/Views.h"
#include "host/ScriptEvents.h"
#include "persistence/JobFormat.h"

namespace kestedit {

namespace {

constexpr const char* programExamples = R"(Examples:
  kestedit script new night.script                 create a job by the lines of night.script
  kestedit script --view 9 edit backup.job -       open a job, with the lines from standard input
  kestedit ini get backup.job Job SubFolder        print one value of a job
  kestedit ini set backup.job Job SubFolder 1      change it

Exit codes: 0 done; 1 a script line failed, or a file could not be read or written; 2 wrong usage; 3 no window.)";

constexpr const char* windowExamples = R"(Examples:
  kestedit new --job-dir jobs                      the job is saved in the folder jobs
  kestedit edit --view 9 jobs/backup.job           the same editor with fewer pages)";

constexpr const char* scriptPointer =
    "The options of \"kestedit script\" may stand here too; its help also lists the events.";

constexpr const char* iniExamples = R"(Examples:
  kestedit ini get backup.job Job SubFolder --default 0
  kestedit ini set backup.job Job From /data/in
  kestedit ini set backup.job Job RenameTxt -- -5  a value that begins with "-" stands behind "--")";

template <class Number>
Number wholeNumber(const std::string& option, const std::string& text, Number least) {
    const auto number = parseWholeNumber(text, static_cast<std::int64_t>(least), std::numeric_limits<Number>::max());
    if (!number) throw CLI::ValidationError(option, quotedText(text) + " is no whole number that fits");
    return static_cast<Number>(*number);
}

/// Runs `make`, whose std::invalid_argument says why the option's text is not accepted.
template <class Make>
auto accepted(const std::string& option, Make make) {
    try {
        return make();
    } catch (const std::invalid_argument& fault) {
        throw CLI::ValidationError(option, fault.what());
    }
}

/// The verbs of the script language, aligned, for the help text.
std::string eventList() {
    std::ostringstream list;
    list << "A script has one event a line; # starts a comment, a word with blanks stands in double quotes:\n";
    for (const Verb& verb : scriptVerbs()) {
        list << "  " << std::left << std::setw(32) << usage(verb) << verb.meaning << '\n';
    }
    list << R"(
Example:
  printf 'type dxName Night\nchoose optAction 3\nclick cmdSave\n' | kestedit script --job-dir jobs new

The last line printed is event SearchJobs, event SetNewValues "" or event none.)";
    return list.str();
}

/// The parser and what it fills. Options write straight into the command that their subcommand stands for.
class CommandLine {
  public:
    CommandLine();
    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;

    Command parse(int argc, const char* const* argv);

  private:
    void addWindowCommands();
    void addScriptCommand();
    void addIniCommands();
    void addEditorOptions(CLI::App& command);
    [[nodiscard]] OpenWindow openWindow() const;
    static void addCodePage(CLI::App& command, int& page);

    CLI::App app_{"Creates and edits jobs.", "kestedit"};
    EditorOptions editor_;
    std::string jobFile_;
    std::string script_ = "-";
    ReadIniKey readIni_;
    WriteIniKey writeIni_;
    std::function<Command()> chosen_;
};

CommandLine::CommandLine() {
    app_.require_subcommand(1);
    app_.set_version_flag("--version", "kestedit " + std::string(programVersion()));
    app_.footer(programExamples);
    addWindowCommands();
    addScriptCommand();
    addIniCommands();
}

Command CommandLine::parse(int argc, const char* const* argv) {
    try {
        app_.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return ShowText{app_.help()};
    } catch (const CLI::CallForVersion& version) {
        return ShowText{std::string(version.what()) + '\n'};
    } catch (const CLI::RequiredError& fault) {
        // A word that nothing takes, such as a mistyped subcommand, is the likelier cause of what is missing.
        const auto unexpected = app_.remaining(true);
        throw UsageError(unexpected.empty() ? fault.what() : "unexpected argument " + quotedText(unexpected.front()));
    } catch (const CLI::ParseError& fault) {
        throw UsageError(fault.what());
    }
    return chosen_();
}

void CommandLine::addWindowCommands() {
    CLI::App* create = app_.add_subcommand("new", "Opens the editor on a new job");
    addEditorOptions(*create);
    create->footer(windowExamples);
    create->callback([this] { chosen_ = [this] { return openWindow(); }; });

    CLI::App* edit = app_.add_subcommand("edit", "Opens the editor on a job");
    addEditorOptions(*edit);
    edit->footer(windowExamples);
    edit->add_option("FILE", jobFile_, "The job")->required();
    edit->callback([this] {
        editor_.jobFile = jobFile_;
        chosen_ = [this] { return openWindow(); };
    });
}

// A script may open the editor under any level, as a host may; a person would see an empty window.
OpenWindow CommandLine::openWindow() const {
    if (viewNodes(std::to_string(editor_.view)).empty())
        throw UsageError("--view: " + std::to_string(editor_.view) + " is no view level: 4, 9, 15 or 23");
    return {editor_};
}

void CommandLine::addScriptCommand() {
    CLI::App* script = app_.add_subcommand("script", "Drives the editor by the lines of a script, without a window");
    script->require_subcommand(1);
    script->footer(eventList());
    addEditorOptions(*script);
    const char* const meaning = "The script; \"-\" or none: standard input";

    CLI::App* create = script->add_subcommand("new", "Drives it on a new job: new [SCRIPT]")->fallthrough();
    create->add_option("SCRIPT", script_, meaning);
    CLI::App* edit = script->add_subcommand("edit", "Drives it on a job: edit FILE [SCRIPT]")->fallthrough();
    edit->add_option("FILE", jobFile_, "The job")->required();
    edit->add_option("SCRIPT", script_, meaning);
    edit->callback([this] { editor_.jobFile = jobFile_; });
    for (CLI::App* command : {create, edit})
        command->footer(scriptPointer);
    script->final_callback([this] { chosen_ = [this] { return RunScript{editor_, script_}; }; });
}

void CommandLine::addIniCommands() {
    CLI::App* ini = app_.add_subcommand("ini", "Reads or writes one key of an INI file");
    ini->require_subcommand(1);
    ini->footer(iniExamples);

    CLI::App* get = ini->add_subcommand("get", "Prints the value of a key");
    get->add_option("FILE", readIni_.file)->required();
    get->add_option("SECTION", readIni_.section)->required();
    get->add_option("KEY", readIni_.key)->required();
    get->add_option("--default", readIni_.fallback, "What to print when file, section or key is missing")
        ->type_name("TEXT");
    get->add_option_function<std::string>(
           "--size", [this](const std::string& text) { readIni_.size = wholeNumber("--size", text, std::uint32_t{1}); },
           "Cut the value to N - 1 bytes (default: the whole value)")
        ->type_name("N");
    addCodePage(*get, readIni_.codePage);
    get->callback([this] { chosen_ = [this] { return readIni_; }; });

    CLI::App* set = ini->add_subcommand("set", "Writes the value of a key; file and section are created when missing");
    set->add_option("FILE", writeIni_.file)->required();
    set->add_option("SECTION", writeIni_.section)->required();
    set->add_option("KEY", writeIni_.key)->required();
    set->add_option("VALUE", writeIni_.value)->required();
    addCodePage(*set, writeIni_.codePage);
    set->callback([this] { chosen_ = [this] { return writeIni_; }; });
}

void CommandLine::addEditorOptions(CLI::App& command) {
    const auto text = [&](const char* name, auto& target, const char* type, const char* meaning) {
        command.add_option(name, target, meaning)->type_name(type);
    };
    const auto checked = [&](const char* name, const char* type, const char* meaning, auto assign) {
        command.add_option_function<std::string>(name, assign, meaning)->type_name(type);
    };
    text("--job-dir", editor_.jobDir, "DIR",
         "Folder of the jobs, in which FILE must lie (default: that of FILE; for new, one of the user's own)");
    text("--extension", editor_.extension, "EXT", "Behind a job's name (default: .job)");
    checked("--view", "N", "View level: 4 shows every page; 9, 15 and 23 show fewer (default: 4)",
            [this](const std::string& given) {
                editor_.view = wholeNumber("--view", given, std::numeric_limits<std::int16_t>::min());
            });
    text("--language", editor_.language, "FILE", "Language file (default: by the user's locale)");
    text("--settings", editor_.settings, "FILE", "Program settings (default: a file of the user's own)");
    text("--title", editor_.title, "TEXT", "Title of the window and its messages (default: kestEdit)");
    text("--help-file", editor_.helpFile, "FILE", "What the help key opens (default: the manual)");
    addCodePage(command, editor_.codePage);
    checked("--now", "YYYY-MM-DDTHH:MM:SS", "A clock that stands still", [this](const std::string& given) {
        editor_.now = parseIsoMoment(given);
        if (!editor_.now)
            throw CLI::ValidationError("--now", quotedText(given) + " is no moment such as 2026-11-21T14:05:00");
    });
    checked("--date-format", "PATTERN", "How dates stand in job files, such as dd.MM.yyyy (default: the user's locale)",
            [this](const std::string& given) {
                editor_.dateFormat = accepted("--date-format", [&] { return DateFormat(given); });
            });
}

void CommandLine::addCodePage(CLI::App& command, int& page) {
    const auto assign = [&page](const std::string& given) {
        const auto number = wholeNumber("--code-page", given, 0);
        page = accepted("--code-page", [&] { return CodePage(number).number(); });
    };
    command
        .add_option_function<std::string>(
            "--code-page", assign, "Code page of INI files: a single-byte page, or 65001 for UTF-8 (default: 1252)")
        ->type_name("N");
}

}  // namespace

Command parseOptions(int argc, const char* const* argv) {
    return CommandLine().parse(argc, argv);
}

}  // namespace kestedit
