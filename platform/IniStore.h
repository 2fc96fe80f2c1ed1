// INI files by the rules of the platform's private-profile functions, over an engine that keeps every byte it is not
// asked to change. Texts are UTF-8 here; the code page applies on the way to the file and back.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/CodePage.h"
#include "platform/Export.h"
#include "platform/StagedFile.h"

namespace kestedit {

/// Reads and writes INI files by section and key.
///
/// A file is read once for as long as it does not change on disk (device, inode, size, times of change); after that a
/// read by key is a hash look-up. Names compare without regard to case in the whole code page, the first section of a
/// name and the first key of a name count. docs/ini.md lists the rules of the format.
class KESTEDIT_EXPORT IniStore {
  public:
    explicit IniStore(CodePage page = CodePage{});
    ~IniStore();
    IniStore(const IniStore&) = delete;
    IniStore& operator=(const IniStore&) = delete;

    /// How the page of one file is found.
    enum class Page {
        told,       ///< by what the store was told
        recognised  ///< the same, but UTF-8 where the file's bytes tell of it: CodePage::recognise
    };

    /// The page of every file that has none of its own.
    [[nodiscard]] const CodePage& codePage() const;

    /// Gives one file a page of its own, by the path under which it is read: texts that a program brings along stand in
    /// their page, whatever page the user's files have. Call before the file is read.
    void setCodePage(const std::filesystem::path& file, CodePage page);

    /// The value of `key`, cut to `size - 1` bytes of the code page (never inside a character); `fallback`, cut the
    /// same way and without the blanks at its end, when file, section or key is missing or the file cannot be read.
    [[nodiscard]] std::string read(const std::filesystem::path& file, std::string_view section, std::string_view key,
                                   std::string_view fallback, std::size_t size, Page page = Page::told);

    /// Writes one key and replaces the file as a whole; creates file and section when needed. An empty value stays as a
    /// key with an empty value. A failure changes nothing on disk; it is returned and recorded, never thrown.
    std::error_code write(const std::filesystem::path& file, std::string_view section, std::string_view key,
                          std::string_view value, Page page = Page::told);

    /// What the most recent write came to.
    [[nodiscard]] std::error_code lastError() const;

    /// While one lives, a file that was looked at once since it began counts as unchanged (writes through this store
    /// apart): the many reads of one start-up cost one look at the disk a file. Must not outlive the store.
    class ReadScope;
    [[nodiscard]] ReadScope readScope();

    class Snapshot;
    class Edit;

    /// The file as it is now, for many reads with one look at the disk. Throws std::system_error when it cannot be
    /// read.
    [[nodiscard]] Snapshot open(const std::filesystem::path& file, Page page = Page::told);

    /// Collects the keys of one save. `startEmpty` forgets what the file holds; otherwise its lines are kept, and a
    /// missing file counts as empty. Throws std::system_error when an existing file cannot be read.
    [[nodiscard]] Edit edit(const std::filesystem::path& file, bool startEmpty, Page page = Page::told);

    /// The same for a file that is to be recognised as UTF-8 from now on: the lines that it keeps are converted. Throws
    /// std::system_error, too, when one of them holds bytes that are no characters of the page they stand in.
    [[nodiscard]] Edit editAsUtf8(const std::filesystem::path& file, bool startEmpty);

    /// The same for a file that has gone and is to come back: begins with `base`, what it held once.
    [[nodiscard]] Edit editAgain(const std::filesystem::path& file, const Snapshot& base, bool asUtf8);

  private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

class KESTEDIT_EXPORT IniStore::ReadScope {
  public:
    explicit ReadScope(IniStore& store);
    ~ReadScope();
    ReadScope(const ReadScope&) = delete;
    ReadScope& operator=(const ReadScope&) = delete;

  private:
    IniStore& store_;
};

/// One file's content at the moment it was opened.
class KESTEDIT_EXPORT IniStore::Snapshot {
  public:
    Snapshot(Snapshot&&) noexcept;
    Snapshot& operator=(Snapshot&&) noexcept;
    ~Snapshot();

    [[nodiscard]] const CodePage& codePage() const;

    /// The number of the first line, from 1, with bytes that are no characters of the page: editAsUtf8 refuses those.
    [[nodiscard]] std::optional<std::size_t> lineOfNoCharacters() const;

    [[nodiscard]] bool hasSection(std::string_view section) const;

    /// The whole value; nothing when section or key is missing.
    [[nodiscard]] std::optional<std::string> value(std::string_view section, std::string_view key) const;

  private:
    friend class IniStore;
    struct Impl;
    explicit Snapshot(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

/// The keys of one save, applied in memory until they are staged.
class KESTEDIT_EXPORT IniStore::Edit {
  public:
    Edit(Edit&&) noexcept;
    Edit& operator=(Edit&&) noexcept;
    ~Edit();

    /// Line breaks and NUL in `value` become blanks. Throws std::invalid_argument, naming the key, when the code page
    /// cannot hold a text.
    void set(std::string_view section, std::string_view key, std::string_view value);

    /// What the file held when the edit began; the same whatever is set.
    [[nodiscard]] Snapshot base() const;

    /// Whether the file, as it is now, would be read back in its page by whoever recognises it. Always so for one whose
    /// page is not recognised.
    [[nodiscard]] bool readsBack() const;

    /// Writes and syncs the whole content to a temporary file beside the file, or beside `target`, whose place it is to
    /// take then. Throws std::system_error, also when the file would not be read back in its page.
    [[nodiscard]] StagedFile stage(const StagedFile::Access& access) const;
    [[nodiscard]] StagedFile stage(const StagedFile::Access& access, const std::filesystem::path& target) const;

  private:
    friend class IniStore;
    struct Impl;
    explicit Edit(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

}  // namespace kestedit
