// What the system offers to the editor, in one bundle that a host or a test puts together.
#pragma once

#include <filesystem>
#include <optional>

#include "platform/Clock.h"
#include "platform/DateFormat.h"
#include "platform/FileSystem.h"
#include "platform/IniStore.h"
#include "platform/Prompts.h"
#include "platform/TimeFormat.h"
#include "platform/UserSettings.h"

namespace kestedit {

/// Mostly references: whoever builds the bundle owns what stands behind it, and must keep it alive for as long as an
/// editor that uses it is open.
struct Platform {
    IniStore& ini;
    FileSystem& files;
    Clock& clock;
    const DateFormat& dates;
    Prompts& prompts;
    UserSettings& settings;
    TimeFormat times{};  ///< how the user reads and types times of day; a job file has one form for all users
    /// Where the manual stands, in a folder of that name; nothing: in dataFolder().
    std::optional<std::filesystem::path> data = std::nullopt;
};

}  // namespace kestedit
