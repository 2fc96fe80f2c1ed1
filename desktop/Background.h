// Work that the window does not wait for.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <functional>

namespace kestedit {

class Background final : public QObject {
    Q_OBJECT

  public:
    /// Waits for the work that is under way; what was to follow it is dropped.
    ~Background() override;

    /// Runs `work` on a thread of its own and then `follow` on the thread of this object, from its event loop. `work`
    /// must not throw, and must own what it uses or know that it outlives this object.
    void run(std::function<void()> work, std::function<void()> follow);

  private:
    QThreadPool threads_;
};

}  // namespace kestedit
