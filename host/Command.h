// What one call of the program asks for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "platform/CodePage.h"
#include "platform/DateFormat.h"
#include "platform/DateTime.h"

namespace kestedit {

/// What the editor is opened on. An option that was not given is empty, and its default is looked up when the editor
/// opens.
struct EditorOptions {
    std::optional<std::string> jobFile;  ///< nothing: a new job
    std::optional<std::string> jobDir;
    std::string extension = ".job";
    std::int16_t view = 4;
    std::optional<std::string> language;
    std::optional<std::string> settings;
    std::string title = "kestEdit";
    std::string helpFile;
    int codePage = CodePage::western;
    std::optional<LocalTime> now;          ///< nothing: the machine's clock
    std::optional<DateFormat> dateFormat;  ///< nothing: the user's locale
};

/// Print a text, such as the help.
struct ShowText {
    std::string text;
};

/// Open the editor's window.
struct OpenWindow {
    EditorOptions editor;
};

/// Drive the editor by a script.
struct RunScript {
    EditorOptions editor;
    std::string script = "-";  ///< a file, or "-" for the standard input
};

struct ReadIniKey {
    /// A value of any length is printed whole.
    static constexpr std::size_t wholeValue = SIZE_MAX;

    std::string file;
    std::string section;
    std::string key;
    std::string fallback;
    std::size_t size = wholeValue;  ///< of the buffer: the value is cut to one byte less
    int codePage = CodePage::western;
};

struct WriteIniKey {
    std::string file;
    std::string section;
    std::string key;
    std::string value;
    int codePage = CodePage::western;
};

using Command = std::variant<ShowText, OpenWindow, RunScript, ReadIniKey, WriteIniKey>;

}  // namespace kestedit
