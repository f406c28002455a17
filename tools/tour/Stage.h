#pragma once

#include "gtwindow/SimulatedTime.h"
#include "platform/simulated/SimulatedMachine.h"
#include "sound/SilentDevice.h"
#include "window/WindowProgram.h"

#include <QImage>

#include <deque>
#include <functional>
#include <semaphore>
#include <string>
#include <vector>

namespace gatewise::stage {

/// A desk without a display of that size in pixels of the screen. To be called before the application object
/// is made.
void useDesk(const std::string& scratch, int width, int height);
/// One that is larger than the windows, whatever the scale.
void useRoomyDesk(const std::string& scratch);

/// A program folder of its own below a scratch folder: pictures and sounds of `program` by links, a copy
/// of its data, settings as delivered, and an empty simulator beside it. Returns the folder's path.
std::string makeProgramFolder(const std::string& program, const std::string& scratch);

/// Whether timers and waits run on the stage's clock, or on the computer's as they ship. With the latter the
/// pages go to the printer that ships, too.
enum class Time { Simulated, Real };

/// The loop that ships, which counts how deep it is. Work beside the window can be held before it begins.
class StageLoop : public window::QtLoop {
public:
    using QtLoop::QtLoop;
    void runModal(std::string_view screen, const std::function<bool()>& done) override {
        ++depth;
        QtLoop::runModal(screen, done);
        --depth;
    }
    /// Work that is held before it begins counts as a wait: the next steps run meanwhile.
    void work(const std::function<void()>& job) override;
    /// Holds the next work on its own thread.
    void hold() { holds_ = true; }
    /// Lets it go; the step after this one runs when it is done.
    void letGo();
    int depth = 0; // waits now, one inside the other

private:
    bool holds_ = false;
    std::binary_semaphore gate_{0};
};

/// The real windows with a clock, a printer and a simulator of the stage. Steps run one by one between
/// events, also while a modal screen waits inside an earlier step.
class Stage {
public:
    using Step = std::function<void()>;

    explicit Stage(const std::string& appDir, Time time = Time::Simulated);

    /// Adds a step at the end.
    void then(Step step) { steps_.push_back(std::move(step)); }
    /// Start-up, then the steps, then the end of the program.
    void play();
    /// Moves the simulated clock and brings the forms onto the screen.
    void advance(std::int64_t milliseconds);

    /// What went wrong on the stage itself: controls that could not be reached.
    std::vector<std::string> misses;

    Forms& forms() { return window.program.forms; }
    /// The widget of a control.
    QWidget& widget(const Control& control) {
        return *desk().window(*control.screen).view(control)->widget();
    }
    window::Desk& desk() { return window.desk; }
    StageLoop& loop() { return loop_; }

    /// What the person sees: the main window with all that lies over it.
    QImage picture();

    // With the mouse, the way a hand goes: to the middle of the control, then the button.
    void hover(Control& control);
    void click(Control& control);
    void doubleClick(Control& control);
    void rightClick(Control& control);
    /// Types into whatever has the focus.
    void type(const QString& text);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Presses Tab until the control has the focus; false when it never gets it.
    bool tabTo(const Control& control);
    [[nodiscard]] Control* focused();

private:
    void schedule();
    void nextStep();
    [[nodiscard]] bool free();
    int waited_ = 0; // turns for a window to get the keyboard
    QPoint middle(const Control& control);
    /// The window of a control that can be reached with the mouse now, null otherwise.
    QWindow* windowOf(const Control& control);
    SilentDevice sound_;

public:
    simulated::SimulatedMachine machine{sound_};

private:
    window::TimeSource& timeOf(Time time) {
        if (time == Time::Real) return realTime_;
        return time_;
    }
    window::RealTime realTime_;
    gtwindow::SimulatedTime time_{machine.loop};
    StageLoop loop_;
    std::deque<Step> steps_;
    std::vector<int> running_; // steps that have not ended, each with the modal waits around its start

public:
    window::WindowProgram window;
};

} // namespace gatewise::stage
