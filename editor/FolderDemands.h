// Which folders a job needs, and for what.
#pragma once

namespace kestedit {

/// What a job's present choices want from its folders.
struct FolderDemands {
    bool destination = false;     ///< it writes to the destination
    bool monitored = false;       ///< it starts on changes of a folder of its own
    bool writableSource = false;  ///< it deletes files at the source, or writes to it

    bool operator==(const FolderDemands&) const = default;
};

}  // namespace kestedit
