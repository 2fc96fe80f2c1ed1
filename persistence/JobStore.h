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
    IniStore& ini_;
};

}  // namespace kestedit
