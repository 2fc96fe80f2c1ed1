// The store of job files: reads one as a record of its keys, and replaces, creates or renames one as a whole.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Export.h"
#include "platform/IniStore.h"

namespace kestedit {

/// The keys of section "Job" of one file.
class KESTEDIT_EXPORT JobRecord {
  public:
    explicit JobRecord(IniStore::Snapshot snapshot) : snapshot_(std::move(snapshot)) {}

    /// The stored text; nothing when the file lacks the key.
    [[nodiscard]] std::optional<std::string> field(std::string_view key) const;

    [[nodiscard]] bool isUtf8() const { return snapshot_.codePage().number() == CodePage::utf8; }

    /// The number of the first line, from 1, that cannot be converted to UTF-8.
    [[nodiscard]] std::optional<std::size_t> lineOfNoCharacters() const { return snapshot_.lineOfNoCharacters(); }

  private:
    IniStore::Snapshot snapshot_;
};

/// One line of a job file to be written.
struct JobLine {
    std::string_view section;
    std::string_view key;
    std::string value;
};

class KESTEDIT_EXPORT JobStore {
  public:
    /// Must outlive the store.
    explicit JobStore(IniStore& ini) : ini_(ini) {}

    /// From now on every file is written as UTF-8, the lines that it keeps converted. Without this, it is written in
    /// the page that it was read in, and a new one in that of `ini`.
    void writeAsUtf8() { utf8_ = true; }
    [[nodiscard]] bool writesAsUtf8() const { return utf8_; }

    /// Nothing when the file cannot be read or has no section "Job".
    [[nodiscard]] std::optional<JobRecord> read(const std::filesystem::path& file) const;

    enum class Write {
        update,  ///< lines that the save does not know stay as they are
        create   ///< whatever the file holds is forgotten
    };
    /// Writes all lines in one replacement of the file, in their order; a read-only file becomes writable. Throws
    /// std::system_error and leaves the old file when anything fails.
    void write(const std::filesystem::path& file, std::span<const JobLine> lines, Write mode) const;

    /// Writes a new file and takes the old one away, so that at every instant one of both names holds a whole job.
    /// Throws std::system_error with the old file in place when anything fails. A missing old file is no failure.
    void rename(const std::filesystem::path& from, const std::filesystem::path& to,
                std::span<const JobLine> lines) const;

  private:
    [[nodiscard]] StagedFile stage(const std::filesystem::path& file, std::span<const JobLine> lines, Write mode) const;

    IniStore& ini_;
    bool utf8_ = false;
};

}  // namespace kestedit
