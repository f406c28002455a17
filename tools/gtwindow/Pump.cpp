#include "gtwindow/Pump.h"

#include <QTimer>

namespace gatewise::gtwindow {

void Pump::enter(const std::function<bool()>& done) {
    waits_.push_back(&done);
    schedule();
}

void Pump::schedule() {
    if (scheduled_) return;
    scheduled_ = true;
    QTimer::singleShot(0, this, [this] { turn(); });
}

/// Whether the next command may be read: none is on its way, or the one that is waits in a modal screen that
/// has not been answered.
bool Pump::free() const {
    if (!waits_.empty() && (*waits_.back())()) return false;
    return running_.empty() || waits_.size() > running_.back();
}

void Pump::turn() {
    scheduled_ = false;
    if (!free()) return; // the command that ends, or the next wait, schedules again
    session_.settle();
    running_.push_back(waits_.size());
    const bool more = session_.readCommand();
    running_.pop_back();
    if (!more) session_.endProcess();
    schedule();
}

void PumpedLoop::runModal(std::string_view screen, const std::function<bool()>& done) {
    pump->enter(done);
    QtLoop::runModal(screen, done);
    pump->leave();
}

} // namespace gatewise::gtwindow
