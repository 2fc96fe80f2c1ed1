// The folders of a job, and what it needs them for.
#pragma once

#include <string>

namespace kestedit {

/// What a job's present choices want from its folders.
struct FolderDemands {
    bool destination = false;     ///< it writes to the destination
    bool monitored = false;       ///< it starts on changes of a folder of its own
    bool writableSource = false;  ///< it deletes files at the source, or writes to it

    bool operator==(const FolderDemands&) const = default;
};

/// As the path fields name them.
struct JobFolders {
    std::string source;
    std::string destination;
    std::string monitored;
    FolderDemands demands;

    bool operator==(const JobFolders&) const = default;
};

}  // namespace kestedit
