// What the members of the option groups stand for, and the pages by their numbers.
#pragma once

namespace kestedit {

// The numbers of the members are those that a job file stores, and the runners read them: never change one.

/// optAction: what the job does.
enum class Action : int { copy, move, remove, compress, extract, synchronise };
/// optIntervall: what starts a run.
enum class Schedule : int { interval, time, monitoring };
/// optIntTime: the days of a job that runs at a time.
enum class RunTime : int { daily, weekly, monthly, onDate };
/// optMonitorPath: the folder whose changes start a run.
enum class MonitoredFolder : int { source, destination, own };
/// optFolderMatch, optFileMatch and optExt: what a pattern or list takes.
enum class Matching : int { all, only, allBut };
/// optSize: the size of the files taken.
enum class SizeLimit : int { any, smaller, larger };
/// optAge: the age or date of the files taken.
enum class AgeLimit : int { any, older, newer, fromTo, oneDate };
/// optExist: what becomes of files that exist at the destination.
enum class Existing : int { keep, replaceOlder, rename, overwrite, replaceIf };
/// optUnZip: the same while files are extracted.
enum class UnZipExisting : int { keep, replaceOlder, overwrite };
/// optSyncExist: the same while folders are synchronised.
enum class SyncExisting : int { keep, overwrite, replaceIf };
/// optSyncStart: the direction of synchronising.
enum class SyncStart : int { oneWay, bothWays };

/// The pages by their numbers in the complete editor. Rules name pages by these, whatever the view.
enum class Page : int {
    comment,
    mode,
    path,
    monitoring,
    execute,
    folders,
    files,
    extensions,
    filesize,
    date,
    attributes,
    compression,
    existing,
    reduced = 22  ///< a page that no view has; a new job of view 4 or 15 marks it all the same, without effect
};

}  // namespace kestedit
