#include "editor/rules/paths.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <vector>

#include "editor/rules/applicability.h"

namespace kestedit {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds checkTime{2000};

/// What can be wrong with one folder by itself, and what the job wants from it.
struct FolderFindings {
    PathFinding empty;
    PathFinding missing;
    PathFinding unusable;
    PathFinding silent;
    bool FolderStatus::*usable;
};

constexpr FolderFindings sourceFindings{PathFinding::noSource, PathFinding::sourceMissing,
                                        PathFinding::sourceUnreadable, PathFinding::sourceNoAnswer,
                                        &FolderStatus::readable};
constexpr FolderFindings destinationFindings{PathFinding::noDestination, PathFinding::destinationMissing,
                                             PathFinding::destinationNotWritable, PathFinding::destinationNoAnswer,
                                             &FolderStatus::writable};
constexpr FolderFindings monitoredFindings{PathFinding::noMonitored, PathFinding::monitoredMissing,
                                           PathFinding::monitoredUnreadable, PathFinding::monitoredNoAnswer,
                                           &FolderStatus::readable};

std::optional<PathFinding> judge(const std::string& folder, const FolderStatus& status,
                                 const FolderFindings& findings) {
    if (folder.empty()) return findings.empty;
    if (!status.answered) return findings.silent;
    if (!status.exists) return findings.missing;
    if (!(status.*findings.usable)) return findings.unusable;
    return std::nullopt;
}

/// Component by component: "/data/old" is inside "/data" and not inside "/dat". A path is not inside itself.
bool isInside(const fs::path& inner, const fs::path& outer) {
    const auto [rest, end] = std::mismatch(inner.begin(), inner.end(), outer.begin(), outer.end());
    return end == outer.end() && rest != inner.end();
}

std::optional<PathFinding> compareFolders(const fs::path& source, const fs::path& destination) {
    if (source == destination) return PathFinding::sameFolder;
    if (isInside(destination, source)) return PathFinding::destinationInSource;
    if (isInside(source, destination)) return PathFinding::sourceInDestination;
    return std::nullopt;
}

bool watchesOwnFolder(const FormModel& form) {
    return form.optIntervall[Schedule::monitoring].isSet() && form.optMonitorPath[MonitoredFolder::own].isSet();
}

/// Whether the job deletes files at the source, or writes to it.
bool changesSource(const FormModel& form) {
    const bool deletesRenamed = form.optExist[Existing::rename].isSet() && form.chkDelSourceRename.isSet();
    switch (form.action()) {
        case Action::move:
        case Action::remove:
            return true;
        case Action::copy:
            return deletesRenamed;
        case Action::compress:
            return form.chkZipDelComp.isSet() || deletesRenamed;
        case Action::extract:
            return form.chkZipDelDeComp.isSet();
        case Action::synchronise:
            return form.optSyncStart[SyncStart::bothWays].isSet();
    }
    return false;
}

/// One look at all folders of a job.
class PathCheck {
  public:
    PathCheck(const JobFolders& folders, const FileSystem& files)
        : folders_(folders), files_(files), end_(std::chrono::steady_clock::now() + checkTime) {}

    std::optional<PathFinding> run() {
        const FolderStatus source = look(folders_.source, sourceFindings);
        if (folders_.demands.destination) {
            look(folders_.destination, destinationFindings);
            compare();
        }
        if (folders_.demands.monitored) look(folders_.monitored, monitoredFindings);
        const bool writable = !source.answered || source.writable;
        if (!writable && folders_.demands.writableSource) found_.push_back(PathFinding::sourceNotWritable);
        // The enumerators stand in the order in which findings are shown.
        return found_.empty() ? std::nullopt : std::optional{std::ranges::min(found_)};
    }

  private:
    FolderStatus look(const std::string& folder, const FolderFindings& findings) {
        const FolderStatus status = folder.empty() ? FolderStatus{} : files_.inspectFolder(folder, patience());
        note(judge(folder, status, findings));
        return status;
    }

    /// An empty path compares as the folder of all others, which does no harm: that it is empty is shown first.
    void compare() {
        const fs::path source = files_.resolve(folders_.source, patience());
        const fs::path destination = files_.resolve(folders_.destination, patience());
        note(compareFolders(source, destination));
    }

    void note(std::optional<PathFinding> finding) {
        if (finding) found_.push_back(*finding);
    }

    [[nodiscard]] std::chrono::milliseconds patience() const {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - std::chrono::steady_clock::now());
        return std::max(left, std::chrono::milliseconds{0});
    }

    const JobFolders& folders_;
    const FileSystem& files_;
    const std::chrono::steady_clock::time_point end_;
    std::vector<PathFinding> found_;
};

}  // namespace

bool HasDestination(const FormModel& form) {
    return form.action() != Action::remove;
}

FolderDemands DemandsOnFolders(const FormModel& form) {
    return {HasDestination(form), watchesOwnFolder(form), changesSource(form)};
}

JobFolders FoldersOf(const FormModel& form) {
    return {form.dxSource.text(), form.dxDest.text(), form.dxMonitorPath.text(), DemandsOnFolders(form)};
}

void ApplyDestinationPath(FormModel& form) {
    SetAllApply(form, HasDestination(form), form.lblDest, form.dxDest);
}

void ApplyEditPaths(FormModel& form) {
    const bool typing = form.chkEditPaths.isSet();
    for (EditorControl* field : {&form.dxSource, &form.dxDest, &form.dxMonitorPath})
        field->ReadOnly = !typing;
}

void RefreshPathTexts(FormModel& form) {
    for (EditorControl* field : {&form.dxSource, &form.dxDest, &form.dxMonitorPath})
        field->ToolTipText = field->text();
}

bool Concerns(const FormModel& form, PathFinding finding, const EditorControl& field) {
    const auto isOneOf = [finding](const FolderFindings& folder) {
        return finding == folder.empty || finding == folder.missing || finding == folder.unusable ||
               finding == folder.silent;
    };
    if (isOneOf(sourceFindings) || finding == PathFinding::sourceNotWritable) return &field == &form.dxSource;
    if (isOneOf(destinationFindings)) return &field == &form.dxDest;
    if (isOneOf(monitoredFindings)) return &field == &form.dxMonitorPath;
    return &field == &form.dxSource || &field == &form.dxDest;  // how the two lie to one another
}

std::optional<PathFinding> CheckPaths(const JobFolders& folders, const FileSystem& files) {
    return PathCheck(folders, files).run();
}

}  // namespace kestedit
