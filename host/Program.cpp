#include "host/Program.h"

#include <exception>
#include <filesystem>
#include <system_error>
#include <variant>

#include "component/events/PrintedText.h"
#include "host/EditorSession.h"
#include "host/ErrorLine.h"
#include "host/IniVerbs.h"
#include "host/Options.h"
#include "host/ScriptRun.h"
#include "host/Window.h"
#include "platform/IniStore.h"

namespace kestedit {

namespace {

namespace fs = std::filesystem;

/// Whether both paths lead to one folder, by whatever spelling and links.
bool isSameFolder(const fs::path& left, const fs::path& right) {
    std::error_code missing;
    return left == right || fs::equivalent(left, right, missing);
}

/// The editor loads a job from its folder by its name alone, so a job of another folder would become that one.
void requireJobInFolder(const EditorOptions& options) {
    if (!options.jobFile || !options.jobDir) return;
    const fs::path folder = fs::path(*options.jobFile).parent_path();
    if (isSameFolder(folder.empty() ? "." : folder, options.jobDir->empty() ? "." : *options.jobDir)) return;
    throw UsageError(quotedText(*options.jobFile) + " does not lie in the folder of --job-dir, " +
                     quotedText(*options.jobDir));
}

/// One overload for each command.
struct Run {
    std::ostream& out;
    std::ostream& err;

    ExitCode operator()(const ShowText& command) const {
        out << command.text;
        return ExitCode::done;
    }
    ExitCode operator()(const OpenWindow& command) const {
        requireJobInFolder(command.editor);
        if (const auto& job = command.editor.jobFile) static_cast<void>(IniStore().open(*job));
        const auto window = openWindow();
        EditorSession(command.editor, window->prompts()).show(window->driver());
        return ExitCode::done;
    }
    ExitCode operator()(const RunScript& command) const {
        requireJobInFolder(command.editor);
        return runScript(command, out, err);
    }
    ExitCode operator()(const ReadIniKey& command) const {
        readIniKey(command, out);
        return ExitCode::done;
    }
    ExitCode operator()(const WriteIniKey& command) const {
        writeIniKey(command);
        return ExitCode::done;
    }
};

}  // namespace

ExitCode runProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    ExitCode code = ExitCode::failed;
    try {
        code = std::visit(Run{out, err}, parseOptions(argc, argv));
    } catch (const UsageError& fault) {
        writeErrorLine(err, fault.what());
        return ExitCode::wrongUsage;
    } catch (const NoWindow& reason) {
        writeErrorLine(err, reason.what());
        code = ExitCode::noWindow;
    } catch (const std::exception& failure) {
        writeErrorLine(err, failure.what());
    }
    if (out.flush()) return code;
    writeErrorLine(err, "the standard output does not take the results");
    return code == ExitCode::done ? ExitCode::failed : code;
}

}  // namespace kestedit
