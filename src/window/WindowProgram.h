#pragma once

#include "pages/Program.h"
#include "window/Accelerators.h"
#include "window/ContextMenus.h"
#include "window/Desk.h"
#include "window/Display.h"
#include "window/QtMachine.h"
#include "window/ShortCutKeys.h"
#include "window/Skin.h"

namespace gatewise::window {

/// The application object with what the whole program shares: style, tool tips, icon.
void dressApplication(const Skin& skin);

/// The program with its windows over services of a machine. One instance in a process that has a
/// QApplication.
class WindowProgram {
public:
    /// What the toolkit does not bring itself.
    struct Services {
        Clock& clock;
        Locale& locale;
        Registry& registry;
        Processes& processes;
        Random& random;
        SoundDevice& sound;
        Printer* printer = nullptr; // null: the computer's own
        TimeSource* time = nullptr; // null: the computer's own
        QtLoop* loop = nullptr;     // null: the plain one
        bool ownSize = false;       // true: size and colours are proposed, heeded and remembered
    };

    /// `appDir` is a text of the program.
    WindowProgram(const Services& services, const std::string& appDir);
    ~WindowProgram();

    /// Start-up, then events until the program has ended. A `note` is shown when the main screen is up.
    void run(const std::string& note = {});
    /// The start-up alone.
    void start();

    /// Shows the main window in front of all others.
    void toFront();

    QtDesktop desktop;

private:
    RealTime ownTime_;
    QtLoop ownLoop_;
    QtTimers timers_;
    QtPrinter ownPrinter_;
    QtLoop& loop_;
    Machine machine_;

public:
    Program program;
    Skin skin;
    Desk desk;
    Display display;

private:
    const bool ownSize_;
    ShortCutKeys shortCuts_{program, desk};
    Accelerators accelerators_{desk};
    ContextMenus contextMenus_{desk, program.forms};
};

} // namespace gatewise::window
