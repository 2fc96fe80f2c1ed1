#include "desktop/Background.h"

#include <utility>

namespace kestedit {

Background::~Background() {
    threads_.waitForDone();
}

void Background::run(std::function<void()> work, std::function<void()> follow) {
    threads_.start([this, work = std::move(work), follow = std::move(follow)] {
        work();
        QMetaObject::invokeMethod(this, follow, Qt::QueuedConnection);
    });
}

}  // namespace kestedit
