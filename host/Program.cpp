#include "host/Program.h"

#include <exception>
#include <variant>

#include "host/EditorSession.h"
#include "host/ErrorLine.h"
#include "host/IniVerbs.h"
#include "host/Options.h"
#include "host/ScriptRun.h"
#include "host/Window.h"
#include "platform/IniStore.h"

namespace kestedit {

namespace {

/// One overload for each command.
struct Run {
    std::ostream& out;
    std::ostream& err;

    ExitCode operator()(const ShowText& command) const {
        out << command.text;
        return ExitCode::done;
    }
    ExitCode operator()(const OpenWindow& command) const {
        if (const auto& job = command.editor.jobFile) static_cast<void>(IniStore().open(*job));
        const auto window = openWindow();
        EditorSession(command.editor, window->prompts()).show(window->driver());
        return ExitCode::done;
    }
    ExitCode operator()(const RunScript& command) const { return runScript(command, out, err); }
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
