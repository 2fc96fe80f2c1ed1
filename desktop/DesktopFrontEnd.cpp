#include "desktop/DesktopFrontEnd.h"

#include <QCoreApplication>
#include <stdexcept>

#include "desktop/DesktopRun.h"
#include "desktop/kestEditDesktop.h"

namespace kestedit {

namespace {

class DesktopFrontEnd final : public FrontEnd {
  public:
    ModalRun& driver() override { return run_; }
    Prompts& prompts() override { return run_.prompts(); }

  private:
    DesktopRun run_;
};

}  // namespace

std::unique_ptr<FrontEnd> desktopFrontEnd() {
    // The toolkit ends the process when it finds no display.
    if (!QCoreApplication::instance() && !DesktopRun::hasDisplay()) throw std::runtime_error("there is no display");
    return std::make_unique<DesktopFrontEnd>();
}

}  // namespace kestedit

void kestEdit_useDesktop(void) {
    kestedit::setFrontEnd(&kestedit::desktopFrontEnd);
}
