// The store of job files: reads one as a record of its keys, and replaces, creates or renames one as a whole.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Export.h"
#include "platform/IniStore.h"

namespace kestedit {

/// A file that can be read and holds no job.
class KESTEDIT_EXPORT NoJob : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The keys of section "Job" of one file.
class KESTEDIT_EXPORT JobRecord {
  public:
    explicit JobRecord(IniStore::Snapshot snapshot) : snapshot_(std::move(snapshot)) {}

    /// Whether there is such a section.
    [[nodiscard]] bool isJob() const;
    /// The stored text; nothing when the file lacks the key.
    [[nodiscard]] std::optional<std::string> field(std::string_view key) const;

    [[nodiscard]] bool isUtf8() const { return snapshot_.codePage().number() == CodePage::utf8; }

    /// The number of the first line, from 1, that cannot be converted to UTF-8.
    [[nodiscard]] std::optional<std::size_t> lineOfNoCharacters() const { return snapshot_.lineOfNoCharacters(); }

  private:
    friend class JobStore;
    IniStore::Snapshot snapshot_;
};

/// One line of a job file to be written.
struct JobLine {
    std::string_view section;
    std::string_view key;
    std::string value;
};

/// A job as it was opened.
struct OpenedJob {
    std::filesystem::path file;
    JobRecord stored;                ///< what the file held
    std::vector<JobLine> untouched;  ///< what a save would have written before anything was edited
};

/// A job that is about to be changed: what its file holds now, and the ways to replace it. Lines that a save does not
/// know stay as they are, whichever way. A read-only file becomes writable. Both ways throw std::system_error and leave
/// the old file when anything fails.
class KESTEDIT_EXPORT JobChange {
  public:
    /// What the file holds, or held when it has gone.
    [[nodiscard]] JobRecord present() const { return JobRecord{edit_.base()}; }

    /// Whether a file with these lines would be read back in its code page. It is not where bytes of the page happen to
    /// be UTF-8, too.
    [[nodiscard]] bool readsBack(std::span<const JobLine> lines);
    /// Writes all lines in one replacement of the file, in their order.
    void save(std::span<const JobLine> lines);
    /// The same, with the file moving to `target`: at every instant exactly one of both names holds a whole job. The
    /// new file has permissions and owner of the old one. A missing old file is no failure.
    void saveAs(const std::filesystem::path& target, std::span<const JobLine> lines);

  private:
    friend class JobStore;
    JobChange(std::filesystem::path file, IniStore::Edit edit) : file_(std::move(file)), edit_(std::move(edit)) {}

    std::filesystem::path file_;
    IniStore::Edit edit_;
};

class KESTEDIT_EXPORT JobStore {
  public:
    /// Must outlive the store.
    explicit JobStore(IniStore& ini) : ini_(ini) {}

    /// From now on every file is written as UTF-8, the lines that it keeps converted. Without this, it is written in
    /// the page that it was read in, and a new one in that of `ini`.
    void writeAsUtf8() { utf8_ = true; }
    [[nodiscard]] bool writesAsUtf8() const { return utf8_; }

    /// Throws std::system_error when the file cannot be read, and NoJob when it has no section "Job".
    [[nodiscard]] JobRecord read(const std::filesystem::path& file) const;

    /// Begins with the file as it stands now, or as it was opened when it has gone since. Throws std::system_error when
    /// it is there and cannot be read.
    [[nodiscard]] JobChange change(const OpenedJob& job) const;

    /// As of a change, for a job that holds these lines alone.
    [[nodiscard]] bool readsBack(const std::filesystem::path& file, std::span<const JobLine> lines) const;

    /// Writes a job that holds these lines alone, and forgets what the file held. A file that is new and holds a
    /// password is for its owner alone; one that is not lets nobody in who could not read `former`, where the job stood
    /// so far. Throws as a change does.
    void create(const std::filesystem::path& file, std::span<const JobLine> lines,
                const std::filesystem::path& former = {}) const;

  private:
    [[nodiscard]] IniStore::Edit edit(const std::filesystem::path& file, bool startEmpty) const;

    IniStore& ini_;
    bool utf8_ = false;
};

}  // namespace kestedit
