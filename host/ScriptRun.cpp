#include "host/ScriptRun.h"

#include <array>
#include <fcntl.h>
#include <string>
#include <system_error>
#include <unistd.h>

#include "host/EditorSession.h"
#include "host/ErrorLine.h"
#include "host/ScriptDriver.h"
#include "host/ScriptParser.h"
#include "host/ScriptPrompts.h"
#include "platform/FileContent.h"
#include "platform/Posix.h"

namespace kestedit {

namespace {

std::string nameOf(const std::string& script) {
    return script == "-" ? "<stdin>" : script;
}

std::string readAll(int descriptor, const std::string& name) {
    std::string text;
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t count = uninterrupted([&] { return ::read(descriptor, buffer.data(), buffer.size()); });
        if (count < 0) throw systemFailure("read", name);
        if (count == 0) return text;
        if (text.size() + static_cast<std::size_t>(count) > FileContent::maximumSize)
            throw systemFailure("read", name, std::make_error_code(std::errc::file_too_large));
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

std::string readScript(const std::string& script) {
    if (script == "-") return readAll(STDIN_FILENO, nameOf(script));
    const FileDescriptor file(openFile(script, O_RDONLY));
    if (!file.isOpen()) throw systemFailure("open", script);
    return readAll(file.number(), script);
}

/// `SCRIPT:LINE: REASON`
std::string located(const std::string& script, const ScriptFailure& failure) {
    return nameOf(script) + ':' + std::to_string(failure.line()) + ": " + failure.what();
}

/// Shows the form under the script's control. Returns what went wrong, or an empty text.
std::string showUnderScript(EditorSession& session, ScriptDriver& driver, const std::string& script) {
    driver.queueFirstAnswers();
    try {
        session.show(driver);
    } catch (const std::exception& failure) {
        return nameOf(script) + ": " + failure.what();  // while the form loaded, or was cancelled: no line is to blame
    }
    return driver.failure() ? located(script, *driver.failure()) : std::string{};
}

struct Outcome {
    std::string failure;  ///< empty when all went well
    std::string event = "none";
};

Outcome runEditor(const RunScript& command, std::ostream& out) {
    try {
        auto steps = compileScript(parseScript(readScript(command.script)));
        ScriptPrompts prompts(out);
        ScriptDriver driver(std::move(steps), prompts, out);
        EditorSession session(command.editor, prompts);
        std::string failure = showUnderScript(session, driver, command.script);
        return {std::move(failure), session.event()};
    } catch (const ScriptFailure& failure) {
        return {located(command.script, failure)};
    } catch (const std::exception& failure) {
        return {failure.what()};
    }
}

}  // namespace

ExitCode runScript(const RunScript& command, std::ostream& out, std::ostream& err) {
    const Outcome outcome = runEditor(command, out);
    out << "event " << outcome.event << '\n';
    out.flush();
    if (outcome.failure.empty()) return ExitCode::done;
    writeErrorLine(err, outcome.failure);
    return ExitCode::failed;
}

}  // namespace kestedit
