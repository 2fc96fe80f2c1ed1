#include "component/FrontEnd.h"

#include <atomic>

namespace kestedit {

namespace {

std::atomic<MakeFrontEnd> chosen = nullptr;

}  // namespace

void setFrontEnd(MakeFrontEnd make) {
    chosen = make;
}

std::unique_ptr<FrontEnd> makeFrontEnd() {
    const MakeFrontEnd make = chosen;
    return make ? make() : nullptr;
}

}  // namespace kestedit
