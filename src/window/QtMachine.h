#pragma once

#include "forms/Control.h"
#include "platform/Machine.h"
#include "window/TimeSource.h"

#include <set>
#include <string>

namespace gatewise::window {

class Desk;

/// The toolkit's part of the machine. Each is made before the desk, which needs the program, which needs the
/// machine; `attach` closes the ring. Without a desk they do nothing.

class QtDesktop : public Desktop {
public:
    /// `programFolder` holds the help pages.
    explicit QtDesktop(std::string programFolder) : folder_(std::move(programFolder)) {}
    void attach(Desk* desk) { desk_ = desk; }

    /// Screens are laid out in pixels of 96 to the inch; the toolkit scales them to the real ones.
    [[nodiscard]] int dpi() const override { return dotsPerInch; }
    int dotsPerInch = 96; // another number tries a desk that is not scaled
    void setPointer(bool busy) override;
    void paint() override;
    void minimise() override;
    void showHelp(const std::string& page) override;
    std::optional<std::string> askSavePath(const std::string& title, const std::string& proposal) override;
    std::optional<std::string> askOpenPath(const std::string& title, const std::string& proposal) override;
    std::optional<std::string> askFolder(const std::string& title) override;
    void notify(const std::string& text) override;
    void notifyFile(const std::string& text, const std::string& file) override;
    void open(const std::string& path) override;
    void copy(const std::string& text) override;

private:
    std::string folder_;
    Desk* desk_ = nullptr;
    bool busy_ = false;
};

class QtLoop : public EventLoop {
public:
    explicit QtLoop(TimeSource& time) : time_(time) {}
    void attach(Desk* desk) { desk_ = desk; }
    void runModal(std::string_view screen, const std::function<bool()>& done) override;
    void wait(std::int64_t milliseconds) override;
    void work(const std::function<void()>& job) override;

private:
    TimeSource& time_;
    Desk* desk_ = nullptr;
};

/// Runs the timers of the forms between events.
class QtTimers : public QObject, public TimerHost {
    Q_OBJECT
public:
    explicit QtTimers(TimeSource& time);
    ~QtTimers() override;
    void attach(Desk* desk) { desk_ = desk; }
    void arm(Timer& timer) override;
    void disarm(Timer& timer) override;

private:
    void due(Timer& timer);
    TimeSource& time_;
    std::set<Timer*> late_; // fell due during a paint
    Desk* desk_ = nullptr;
};

/// Prints on the default printer. Where there is none, the pages go into the folder "Printouts" below the
/// program's data, as PDF and as text, and the pilot is told.
class QtPrinter : public Printer {
public:
    QtPrinter(std::string folder, Desktop& desktop) : folder_(std::move(folder)), desktop_(desktop) {}
    std::error_code print(const std::string& font, int size, const std::string& text,
                          const std::vector<Drawing>& drawings) override;
    std::error_code save(const std::string& path, const std::string& font, int size, const std::string& text,
                         const std::vector<Drawing>& drawings) override;

private:
    std::string folder_;
    Desktop& desktop_;
};

} // namespace gatewise::window
