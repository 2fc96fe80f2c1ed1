// The folders of a job: who may type them, and what is wrong with them.
#pragma once

#include <optional>

#include "editor/JobFolders.h"
#include "form/FormModel.h"
#include "platform/FileSystem.h"

namespace kestedit {

/// Whether the selected action writes to the destination folder: all but delete.
[[nodiscard]] bool HasDestination(const FormModel& form);

/// The destination field applies only to an action that has a destination; part of every change of the action.
void ApplyDestinationPath(FormModel& form);
/// Change rule of chkEditPaths: without it only the inner buttons fill the path fields.
void ApplyEditPaths(FormModel& form);
/// Tool tips of the path fields: a path is often longer than its field.
void RefreshPathTexts(FormModel& form);

/// What the job's present choices want from its folders.
[[nodiscard]] FolderDemands DemandsOnFolders(const FormModel& form);
[[nodiscard]] JobFolders FoldersOf(const FormModel& form);

/// What the path check found, in the order in which findings are looked for; the first one is shown.
enum class PathFinding {
    noSource,
    sourceMissing,
    sourceUnreadable,
    noDestination,
    destinationMissing,
    destinationNotWritable,
    sameFolder,
    destinationInSource,
    sourceInDestination,
    noMonitored,
    monitoredMissing,
    monitoredUnreadable,
    sourceNotWritable,  ///< and the job deletes files there, or writes to it
    sourceNoAnswer,
    destinationNoAnswer,
    monitoredNoAnswer
};

/// Whether `finding` speaks of the folder that stands in `field`.
[[nodiscard]] bool Concerns(const FormModel& form, PathFinding finding, const EditorControl& field);

/// Looks at source, destination (when the action has one) and monitored folder (when the schedule uses it). The whole
/// look takes two seconds at most: a folder that has not answered by then is given up, and so are those behind it; what
/// could be found out about the others comes first. A path is taken as it stands, without variables or wildcards. May
/// run on any thread.
[[nodiscard]] std::optional<PathFinding> CheckPaths(const JobFolders& folders, const FileSystem& files);

}  // namespace kestedit
