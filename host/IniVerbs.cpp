#include "host/IniVerbs.h"

#include <system_error>

#include "platform/IniStore.h"

namespace kestedit {

namespace {

/// The store's own read takes an unreadable file for an empty one, as the editor wants it; a shell script must know.
void requireReadable(IniStore& store, const std::string& file) {
    try {
        static_cast<void>(store.open(file));
    } catch (const std::system_error& failure) {
        if (failure.code() != std::errc::no_such_file_or_directory) throw;
    }
}

}  // namespace

void readIniKey(const ReadIniKey& command, std::ostream& out) {
    IniStore store{CodePage(command.codePage)};
    requireReadable(store, command.file);
    out << store.read(command.file, command.section, command.key, command.fallback, command.size) << '\n';
}

void writeIniKey(const WriteIniKey& command) {
    IniStore store{CodePage(command.codePage)};
    const std::error_code error = store.write(command.file, command.section, command.key, command.value);
    if (error) throw std::system_error(error, "write \"" + command.file + '"');
}

}  // namespace kestedit
