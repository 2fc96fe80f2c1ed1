// What the system offers to the editor, in one bundle that a host or a test puts together.
#pragma once

#include "platform/Clock.h"
#include "platform/DateFormat.h"
#include "platform/FileSystem.h"
#include "platform/IniStore.h"
#include "platform/Prompts.h"
#include "platform/UserSettings.h"

namespace kestedit {

/// References only: whoever builds the bundle owns what stands behind it, and must keep it alive for as long as an
/// editor that uses it is open.
struct Platform {
    IniStore& ini;
    FileSystem& files;
    Clock& clock;
    const DateFormat& dates;
    Prompts& prompts;
    UserSettings& settings;
};

}  // namespace kestedit
