#include "persistence/JobStore.h"

#include <algorithm>

#include "persistence/JobFormat.h"

namespace kestedit {

namespace {

namespace fs = std::filesystem;

bool isPassword(const JobLine& line) {
    const auto row = std::ranges::find(jobFormat(), line.key, &JobRow::key);
    return line.section == jobSection && row != jobFormat().end() && row->form == ValueForm::password &&
           !line.value.empty();
}

StagedFile stageJob(IniStore::Edit& edit, std::span<const JobLine> lines, const fs::path& target,
                    const fs::path& former) {
    for (const JobLine& line : lines)
        edit.set(line.section, line.key, line.value);
    const bool secret = std::ranges::any_of(lines, isPassword);
    return edit.stage({StagedFile::Permissions::makeNormal, secret, former}, target);
}

}  // namespace

bool JobRecord::isJob() const {
    return snapshot_.hasSection(jobSection);
}

std::optional<std::string> JobRecord::field(std::string_view key) const {
    return snapshot_.value(jobSection, key);
}

void JobChange::save(std::span<const JobLine> lines) {
    stageJob(edit_, lines, file_, file_).commit();
}

void JobChange::saveAs(const fs::path& target, std::span<const JobLine> lines) {
    stageJob(edit_, lines, target, file_).commitReplacing(file_);
}

JobRecord JobStore::read(const fs::path& file) const {
    JobRecord job{ini_.open(file, IniStore::Page::recognised)};
    if (!job.isJob()) throw NoJob("read \"" + file.string() + "\": no section \"" + std::string(jobSection) + '"');
    return job;
}

IniStore::Edit JobStore::edit(const fs::path& file, bool startEmpty) const {
    return utf8_ ? ini_.editAsUtf8(file, startEmpty) : ini_.edit(file, startEmpty, IniStore::Page::recognised);
}

JobChange JobStore::change(const fs::path& file) const {
    return {file, edit(file, false)};
}

void JobStore::create(const fs::path& file, std::span<const JobLine> lines, const fs::path& former) const {
    IniStore::Edit fresh = edit(file, true);
    stageJob(fresh, lines, file, former).commit();
}

}  // namespace kestedit
