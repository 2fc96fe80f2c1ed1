// The values that a host assigns before Show, shared by everything that runs for one editor.
#pragma once

#include <cstdint>
#include <string>

namespace kestedit {

/// One set per clsEdit. Nothing resets them between two runs of the editor: Save changes Mode and JobFile, Cancel sets
/// Cancelled, and both stay that way until the host assigns them anew.
struct ComponentValues {
    std::string JobFile;       ///< full path of the job; Save may change it
    std::string Mode;          ///< "New", "Edit" or anything else; case counts
    std::int16_t View = 0;     ///< kept only
    std::string AppTitle;      ///< of the window and the message boxes
    std::string JobDir;        ///< folder of the job files
    std::string INIFile;       ///< program settings file
    std::string Language;      ///< language file
    std::string PgmData;       ///< kept only
    std::string JobExtension;  ///< behind a job's name, ".job"
    std::string HelpFile;      ///< for the help key
    std::string ViewLevel;     ///< decimal text of Show's argument
    bool Cancelled = false;
    bool CancelCompanion = false;  ///< cleared together with Cancelled; nothing reads it
    bool UseBuiltInTexts = false;  ///< texts of modMessages in place of a language file; nothing sets it
};

}  // namespace kestedit
