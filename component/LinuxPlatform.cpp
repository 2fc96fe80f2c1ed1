#include "component/LinuxPlatform.h"

namespace kestedit {

struct LinuxPlatform::State {
    State(Prompts& prompts, int codePage)
        : ini(CodePage(codePage)), platform{ini, files, clock, dates, prompts, settings, TimeFormat::ofUserLocale()} {}

    IniStore ini;
    LocalFileSystem files;
    SystemClock clock;
    DateFormat dates = DateFormat::ofUserLocale();
    UserSettingsFile settings{userFolders().config / "user.ini"};
    Platform platform;
};

LinuxPlatform::LinuxPlatform(Prompts& prompts, int codePage) : state_(std::make_unique<State>(prompts, codePage)) {}

LinuxPlatform::~LinuxPlatform() = default;

Platform& LinuxPlatform::services() {
    return state_->platform;
}

}  // namespace kestedit
