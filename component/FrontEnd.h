// What shows the form of an editor that a host has created through the C interface.
#pragma once

#include <memory>

#include "component/ModalRun.h"
#include "platform/Export.h"
#include "platform/Prompts.h"

namespace kestedit {

/// A driver and the prompts that go with it, for one run of the editor.
class KESTEDIT_EXPORT FrontEnd {
  public:
    virtual ~FrontEnd() = default;
    [[nodiscard]] virtual ModalRun& driver() = 0;
    [[nodiscard]] virtual Prompts& prompts() = 0;
};

using MakeFrontEnd = std::unique_ptr<FrontEnd> (*)();

/// What editors without a driver of their own are shown by, from their next run on; null for none, which is how a
/// process starts. kestEdit_useDesktop of the library kestEditDesktop is a call of this function.
KESTEDIT_EXPORT void setFrontEnd(MakeFrontEnd make);

/// Made anew for each run, so that nothing of a toolkit outlives it. Null without a front end.
[[nodiscard]] KESTEDIT_EXPORT std::unique_ptr<FrontEnd> makeFrontEnd();

}  // namespace kestedit
