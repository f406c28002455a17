#include "window/WindowProgram.h"

#include "app/StartUp.h"
#include "input/Bind.h"

#include <QApplication>
#include <QStyleFactory>
#include <QToolTip>

namespace gatewise::window {

void dressApplication(const Skin& skin) {
    QApplication::setApplicationName("Gatewise Terminal");
    QApplication::setQuitOnLastWindowClosed(false);
    // One style everywhere: what the skin does not draw itself looks alike on every desktop.
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setWindowIcon(skin.icon());
    QPalette tips = QToolTip::palette();
    for (const auto role : {QPalette::ToolTipBase, QPalette::Window})
        tips.setColor(role, skin.style("tooltip.back"));
    for (const auto role : {QPalette::ToolTipText, QPalette::WindowText}) {
        tips.setColor(role, skin.style("tooltip.text"));
    }
    QToolTip::setPalette(tips);
    QToolTip::setFont(skin.widgetFont("body"));
}

WindowProgram::WindowProgram(const Services& s, const std::string& appDir)
    : desktop(appDir), ownLoop_(s.time != nullptr ? *s.time : static_cast<TimeSource&>(ownTime_)),
      timers_(s.time != nullptr ? *s.time : static_cast<TimeSource&>(ownTime_)), ownPrinter_(appDir, desktop),
      loop_(s.loop != nullptr ? *s.loop : ownLoop_),
      machine_{
          s.clock,    s.locale,    desktop,
          s.registry, s.processes, s.printer != nullptr ? *s.printer : static_cast<Printer&>(ownPrinter_),
          s.random,   loop_,       s.sound},
      program(machine_, appDir), skin(appDir), desk(program.forms, skin), display(program.forms, desk),
      ownSize_(s.ownSize) {
    dressApplication(skin);
    desktop.attach(&desk);
    loop_.attach(&desk);
    timers_.attach(&desk);
    bindScreens(program);
    program.forms.attachTimers(&timers_);
}

WindowProgram::~WindowProgram() {
    program.forms.attachTimers(nullptr);
    desktop.attach(nullptr);
    loop_.attach(nullptr);
    timers_.attach(nullptr);
}

void WindowProgram::start() {
    if (ownSize_) {
        display.remember(program.session.AppDir);
        desk.centreMain(); // on a small screen the layout's size had not been in the middle
        askWishes(&display, [this](const Wishes& wishes) { display.heed(wishes); });
    }
    startUp(program);
    desk.sync();
}

void WindowProgram::run(const std::string& note) {
    start();
    if (!note.empty()) desktop.notify(note);
    while (!program.ending) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    desk.sync();
}

void WindowProgram::toFront() {
    QWidget* front = desk.front() != nullptr ? desk.front() : &desk.mainWindow();
    if (front->isMinimized()) front->showNormal();
    front->raise();
    front->activateWindow();
}

} // namespace gatewise::window
