// The file-system object: the few operations on files and folders that the editor needs besides INI files.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/Export.h"

namespace kestedit {

/// What a look at a folder from outside found. See FileSystem::inspectFolder.
struct FolderStatus {
    bool answered = true;  ///< false: the folder gave no answer in time, the rest is unknown
    bool exists = false;
    bool readable = false;
    bool writable = false;
};

/// Failures are std::filesystem::filesystem_error (a std::system_error) that names operation and path. A missing file
/// is no failure of the two questions.
class KESTEDIT_EXPORT FileSystem {
  public:
    virtual ~FileSystem() = default;

    [[nodiscard]] virtual bool FileExists(const std::filesystem::path& file) const = 0;
    [[nodiscard]] virtual bool FolderExists(const std::filesystem::path& folder) const = 0;
    /// Whether both paths lead to one file, by whatever spelling and links. Two equal paths do; of two others, one that
    /// leads nowhere does not.
    [[nodiscard]] virtual bool isSameFile(const std::filesystem::path& left,
                                          const std::filesystem::path& right) const = 0;
    virtual void DeleteFile(const std::filesystem::path& file) const = 0;
    /// Creates one folder; its parent must exist.
    virtual void CreateFolder(const std::filesystem::path& folder) const = 0;
    /// `folder` and `name` with one separator between them; `name` alone when `folder` is empty.
    [[nodiscard]] virtual std::string BuildPath(std::string_view folder, std::string_view name) const = 0;
    /// `path` from the root on; one that is relative, or empty, begins at the process's working folder.
    [[nodiscard]] virtual std::string Absolute(std::string_view path) const = 0;
    [[nodiscard]] virtual std::string GetFileName(std::string_view path) const = 0;

    /// Looks at a folder without ever blocking longer than `patience`: a dead network mount must not freeze the editor.
    [[nodiscard]] virtual FolderStatus inspectFolder(const std::filesystem::path& folder,
                                                     std::chrono::milliseconds patience) const = 0;
    /// `path` made absolute, its links and dots resolved as far as it exists, so that two spellings of one folder
    /// compare equal. Gives `path` in lexical normal form when the system refuses or does not answer within `patience`.
    [[nodiscard]] virtual std::filesystem::path resolve(const std::filesystem::path& path,
                                                        std::chrono::milliseconds patience) const = 0;
};

/// The machine's own file system. Open to those who see some folders in another way.
class KESTEDIT_EXPORT LocalFileSystem : public FileSystem {
  public:
    [[nodiscard]] bool FileExists(const std::filesystem::path& file) const override;
    [[nodiscard]] bool FolderExists(const std::filesystem::path& folder) const override;
    [[nodiscard]] bool isSameFile(const std::filesystem::path& left, const std::filesystem::path& right) const override;
    void DeleteFile(const std::filesystem::path& file) const override;
    void CreateFolder(const std::filesystem::path& folder) const override;
    [[nodiscard]] std::string BuildPath(std::string_view folder, std::string_view name) const override;
    [[nodiscard]] std::string Absolute(std::string_view path) const override;
    [[nodiscard]] std::string GetFileName(std::string_view path) const override;
    [[nodiscard]] FolderStatus inspectFolder(const std::filesystem::path& folder,
                                             std::chrono::milliseconds patience) const override;
    [[nodiscard]] std::filesystem::path resolve(const std::filesystem::path& path,
                                                std::chrono::milliseconds patience) const override;
};

}  // namespace kestedit
