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

void setAll(IniStore::Edit& edit, std::span<const JobLine> lines) {
    for (const JobLine& line : lines)
        edit.set(line.section, line.key, line.value);
}

StagedFile stageJob(IniStore::Edit& edit, std::span<const JobLine> lines, const fs::path& target,
                    const fs::path& former) {
    setAll(edit, lines);
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

bool JobChange::readsBack(std::span<const JobLine> lines) {
    setAll(edit_, lines);
    return edit_.readsBack();
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

JobChange JobStore::change(const OpenedJob& job) const {
    try {
        (void)ini_.open(job.file, IniStore::Page::recognised);
    } catch (const std::system_error& failure) {
        if (failure.code() != std::errc::no_such_file_or_directory) throw;
        return {job.file, ini_.editAgain(job.file, job.stored.snapshot_, utf8_)};
    }
    return {job.file, edit(job.file, false)};
}

bool JobStore::readsBack(const fs::path& file, std::span<const JobLine> lines) const {
    IniStore::Edit fresh = edit(file, true);
    setAll(fresh, lines);
    return fresh.readsBack();
}

void JobStore::create(const fs::path& file, std::span<const JobLine> lines, const fs::path& former) const {
    IniStore::Edit fresh = edit(file, true);
    stageJob(fresh, lines, file, former).commit();
}

}  // namespace kestedit
