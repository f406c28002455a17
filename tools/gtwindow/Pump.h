#pragma once

#include "drive/Session.h"
#include "window/QtMachine.h"

#include <QObject>

namespace gatewise::gtwindow {

/// Reads and carries out the commands of a session one by one between the events of the window's own loop,
/// also while a modal screen waits inside an earlier command.
class Pump : public QObject {
    Q_OBJECT
public:
    explicit Pump(drive::Session& session) : session_(session) { schedule(); }

    /// A modal wait begins and ends.
    void enter(const std::function<bool()>& done);
    void leave() { waits_.pop_back(); }

private:
    void schedule();
    void turn();
    [[nodiscard]] bool free() const;

    drive::Session& session_;
    std::vector<const std::function<bool()>*> waits_; // the innermost last
    std::vector<std::size_t> running_;                // commands not ended, each with the waits at its start
    bool scheduled_ = false;
};

/// The loop that ships; it tells the pump of its modal waits.
class PumpedLoop : public window::QtLoop {
public:
    using QtLoop::QtLoop;
    void runModal(std::string_view screen, const std::function<bool()>& done) override;
    Pump* pump = nullptr;
};

} // namespace gatewise::gtwindow
