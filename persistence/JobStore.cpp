#include "persistence/JobStore.h"

#include <system_error>

#include "persistence/JobFormat.h"

namespace kestedit {

std::optional<std::string> JobRecord::field(std::string_view key) const {
    return snapshot_.value(jobSection, key);
}

std::optional<JobRecord> JobStore::read(const std::filesystem::path& file) const {
    try {
        IniStore::Snapshot snapshot = ini_.open(file, IniStore::Page::recognised);
        if (!snapshot.hasSection(jobSection)) return std::nullopt;
        return JobRecord{std::move(snapshot)};
    } catch (const std::system_error&) {
        return std::nullopt;
    }
}

StagedFile JobStore::stage(const std::filesystem::path& file, std::span<const JobLine> lines, Write mode) const {
    const bool startEmpty = mode == Write::create;
    IniStore::Edit edit =
        utf8_ ? ini_.editAsUtf8(file, startEmpty) : ini_.edit(file, startEmpty, IniStore::Page::recognised);
    for (const JobLine& line : lines)
        edit.set(line.section, line.key, line.value);
    return edit.stage(StagedFile::Permissions::makeNormal);
}

void JobStore::write(const std::filesystem::path& file, std::span<const JobLine> lines, Write mode) const {
    stage(file, lines, mode).commit();
}

void JobStore::rename(const std::filesystem::path& from, const std::filesystem::path& to,
                      std::span<const JobLine> lines) const {
    stage(to, lines, Write::create).commitReplacing(from);
}

}  // namespace kestedit
