#include "persistence/JobStore.h"

#include <system_error>

#include "persistence/JobFormat.h"

namespace kestedit {

namespace {

StagedFile stageJob(IniStore::Edit edit, std::span<const JobLine> lines) {
    for (const JobLine& line : lines)
        edit.set(line.section, line.key, line.value);
    return edit.stage(StagedFile::Permissions::makeNormal);
}

}  // namespace

std::optional<std::string> JobRecord::field(std::string_view key) const {
    return snapshot_.value(jobSection, key);
}

std::optional<JobRecord> JobStore::read(const std::filesystem::path& file) const {
    try {
        IniStore::Snapshot snapshot = ini_.open(file);
        if (!snapshot.hasSection(jobSection)) return std::nullopt;
        return JobRecord{std::move(snapshot)};
    } catch (const std::system_error&) {
        return std::nullopt;
    }
}

void JobStore::write(const std::filesystem::path& file, std::span<const JobLine> lines, Write mode) const {
    stageJob(ini_.edit(file, mode == Write::create), lines).commit();
}

void JobStore::rename(const std::filesystem::path& from, const std::filesystem::path& to,
                      std::span<const JobLine> lines) const {
    stageJob(ini_.edit(to, true), lines).commitReplacing(from);
}

}  // namespace kestedit
