#include "pages/MainTabs.h"

#include "pages/AirlineList.h"
#include "pages/BoardTimers.h"
#include "pages/MainBoard.h"
#include "pages/MainLog.h"
#include "pages/MainPages.h"
#include "pages/OptionsForm.h"
#include "pages/Pictures.h"
#include "pages/SaveSettings.h"
#include "pages/WaitForm.h"
#include "sound/Announcements.h"

namespace gatewise {

namespace {

constexpr const char* kBoardTitle = "Departures and Arrivals Status Board ";
constexpr const char* kLogTitle = "Gatewise Terminal - Pilot's Log Book ";

void showRows(forms::MainForm& f, bool visible) {
    for (int i = 0; i <= kHeadingRow; ++i) {
        for (auto* column : {&f.fltnum_LABEL, &f.city_LABEL, &f.time_LABEL, &f.status_LABEL}) {
            (*column)(i).visible = visible;
        }
    }
    f.header_LABEL.visible = visible;
}

/// (60 - seconds of the current time) x 1000: the next full minute.
int millisecondsToMinute(const Clock& clock) {
    return (60 - clock.now().second) * 1000;
}

/// The minute tick falls on the next full minute; the blinking begins at once.
void startBoardTicks(Program& p) {
    auto& f = p.forms.MainForm;
    f.update_TIMER.enable(false);
    f.update_TIMER.setInterval(millisecondsToMinute(p.machine.clock));
    f.update_TIMER.enable(true);
    f.FlashTimer.enable(true);
}

void fade(Program& p, const char* direction) {
    p.session.hall.FadeDirection = direction;
    p.forms.MainForm.fade_timer.enable(true);
}

void startAmbience(Program& p) {
    DS_Engine& engine = *p.SoundEngine;
    engine.StopDXSound(kAmbienceChannel);
    startSoundEngine(p);
    engine.ClearBuffer(kAmbienceChannel);
    engine.LoadWavToChannel(kAmbienceChannel, p.session.appPath("\\Wavs\\Ambience.wav"));
    engine.SetVolume(kAmbienceChannel, p.session.hall.AmbienceLevel);
    engine.PlayDXSound(kAmbienceChannel, true);
    fade(p, "in");
}

void startAnnouncements(forms::MainForm& f) {
    f.play1Timer.setInterval(10000);
    f.play2Timer.setInterval(25000);
    f.play3Timer.setInterval(40000);
    for (Timer* timer : {&f.play1Timer, &f.play2Timer, &f.play3Timer}) timer->enable(true);
}

/// The board's page with the flights of the mode in force, its rows still hidden.
Waited fillBoard(Program& p) {
    showPage(p, p.forms.MainForm.status_pic);
    showRows(p.forms.MainForm, false);
    p.machine.desktop.paint();
    if (filterByFavorite(p) == Waited::Ended) return Waited::Ended;
    return bringUpBoard(p);
}

void revealBoard(Program& p) {
    auto& f = p.forms.MainForm;
    f.title_LABEL.text = kBoardTitle;
    ShowHelpText(p, 1);
    showRows(f, true);
    startAnnouncements(f);
}

/// Leaving the board: the hall fades out and the board stands still.
void leaveBoard(Program& p) {
    fade(p, "out");
    runBoardTimers(p.forms.MainForm, false);
}

Waited showBoardInNewOrder(Program& p) {
    startBoardTicks(p);
    showPage(p, p.forms.MainForm.status_pic);
    if (filterByFavorite(p) == Waited::Ended) return Waited::Ended;
    if (RefreshBoard(p) == Waited::Ended) return Waited::Ended;
    ShowPage(p);
    hideWait(p);
    p.machine.desktop.setPointer(false);
    return Waited::Answered;
}

Waited sortBy(Program& p, BoardSort sort) {
    chooseSort(p, sort);
    saveSettings(p);
    p.machine.desktop.paint();
    showWait(p, 3);
    return showBoardInNewOrder(p);
}

void bindTabs(Program& p) {
    auto& f = p.forms.MainForm;
    const auto tab = [&p](Label& label, auto show) {
        const auto act = [&p, &label, show] {
            if (!label.enabled) return;
            playClick(p);
            show(p);
        };
        label.on(Event::Click, act);
        label.on(Event::Enter, act);
    };
    tab(f.main_LABEL, ShowMain);
    tab(f.statusboard_LABEL, [](Program& program) { (void)ShowBoard(program); });
    tab(f.log_LABEL, ShowLog);
}

} // namespace

void ShowMain(Program& p) {
    leaveBoard(p);
    showMainPage(p);
    ShowHelpText(p, 0);
}

void ShowLog(Program& p) {
    leaveBoard(p);
    p.forms.MainForm.title_LABEL.text = kLogTitle;
    showPage(p, p.forms.MainForm.log_pic);
    showFirstLogPage(p);
}

Waited ShowBoard(Program& p) {
    startAmbience(p);
    startBoardTicks(p);
    p.session.board.BoardPage = 0;
    if (fillBoard(p) == Waited::Ended) return Waited::Ended;
    updateTick(p);
    revealBoard(p);
    return Waited::Answered;
}

Waited StartBoard(Program& p) {
    auto& f = p.forms.MainForm;
    startAmbience(p);
    startBoardTicks(p);
    if (fillBoard(p) == Waited::Ended) return Waited::Ended;
    f.update_TIMER.setInterval(50);
    f.update_TIMER.enable(true);
    revealBoard(p);
    return Waited::Answered;
}

Waited takeBoardOptions(Program& p) {
    p.machine.desktop.setPointer(true);
    saveSettings(p);
    hideScreen(p, p.forms.OptionsForm);
    p.machine.desktop.paint();
    showWait(p, 3);
    return showBoardInNewOrder(p);
}

void bindMainTabs(Program& p) {
    bindTabs(p);
    auto& f = p.forms.MainForm;
    f.status_pic.on(Event::Turn, [&p](const EventArgs& args) { turnPages(p, args.value); });
    const auto head = [&p](Label& label, BoardSort sort) {
        label.on(Event::DoubleClick, [&p, sort] { return sortBy(p, sort); });
    };
    head(f.city_LABEL(kHeadingRow), BoardSort::City);
    head(f.fltnum_LABEL(kHeadingRow), BoardSort::FlightNumber);
    head(f.time_LABEL(kHeadingRow), BoardSort::Time);
    head(f.status_LABEL(kHeadingRow), BoardSort::Time);
}

} // namespace gatewise
