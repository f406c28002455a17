#include "pages/MainTabs.h"

#include "board/Paging.h"
#include "pages/BoardTimers.h"
#include "pages/ConfigFile.h"
#include "pages/InfoForm.h"
#include "pages/MainBoard.h"
#include "pages/MainClocks.h"
#include "pages/MainLog.h"
#include "pages/MainPages.h"
#include "pages/MainPass.h"
#include "pages/Pictures.h"
#include "pages/Screens.h"
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

/// The minute tick falls on the next full minute; the blinking begins at once.
void startBoardTicks(Program& p) {
    auto& f = p.forms.MainForm;
    f.update_TIMER.enable(false);
    f.update_TIMER.setInterval(millisecondsToMinute(p));
    f.update_TIMER.enable(true);
    f.FlashTimer.enable(true);
}

void startAmbience(Program& p) {
    DS_Engine& engine = *p.SoundEngine;
    engine.StopDXSound(kAmbienceChannel);
    startSoundEngine(p);
    engine.ClearBuffer(kAmbienceChannel);
    engine.LoadWavToChannel(kAmbienceChannel, p.appPath("\\Wavs\\Ambience.wav"));
    engine.SetVolume(kAmbienceChannel, p.g.AmbienceLevel);
    engine.PlayDXSound(kAmbienceChannel, true);
    p.g.FadeDirection = "in";
    p.forms.MainForm.fade_timer.enable(true);
}

void startAnnouncements(forms::MainForm& f) {
    f.play1Timer.setInterval(10000);
    f.play2Timer.setInterval(25000);
    f.play3Timer.setInterval(40000);
    for (Timer* timer : {&f.play1Timer, &f.play2Timer, &f.play3Timer}) timer->enable(true);
}

/// The board's page with the flights of the mode in force, its rows still hidden.
void fillBoard(Program& p) {
    showPage(p, p.forms.MainForm.status_pic);
    showRows(p.forms.MainForm, false);
    p.machine.desktop.paint();
    p.g.BoardAirlineCode = find_airline_code(p, p.g.FavoriteAirlineName);
    bringUpBoard(p);
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
    p.g.FadeDirection = "out";
    p.forms.MainForm.fade_timer.enable(true);
    stopBoardTimers(p);
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
    p.g.LogPage = 1;
    resetLogButtons(p);
    ShowLogPage(p);
}

void ShowBoard(Program& p) {
    startAmbience(p);
    startBoardTicks(p);
    p.g.BoardPage = 0;
    fillBoard(p);
    updateTick(p);
    revealBoard(p);
}

void StartBoard(Program& p) {
    auto& f = p.forms.MainForm;
    startAmbience(p);
    startBoardTicks(p);
    fillBoard(p);
    f.update_TIMER.setInterval(50);
    f.update_TIMER.enable(true);
    revealBoard(p);
}

namespace {

void showBoardInNewOrder(Program& p) {
    startBoardTicks(p);
    showPage(p, p.forms.MainForm.status_pic);
    p.g.BoardAirlineCode = find_airline_code(p, p.g.FavoriteAirlineName);
    RefreshBoard(p);
    ShowPage(p);
    hideWait(p);
    p.machine.desktop.setPointer(false);
}

void sortBy(Program& p, Option& option) {
    option.set(true);
    WriteConfig(p);
    p.machine.desktop.paint();
    showWait(p, p.forms.WaitForm.infoLABEL.text, 3);
    showBoardInNewOrder(p);
}

/// The flight of a row of the page in view; -1 for a blank row.
int rowFlight(Program& p, const Label& label) {
    const int row = p.g.BoardPage * kRowsOnPage + label.index;
    const auto& rows = p.g.board.BoardRows;
    if (trimmed(label.text).empty() || row < 0 || row >= static_cast<int>(rows.size())) return -1;
    const int flight = rows[static_cast<std::size_t>(row)].FlightIndex;
    return flight <= p.g.BoardFlightCount() ? flight : -1;
}

void takeRow(Program& p, const Label& label) {
    const int flight = rowFlight(p, label);
    if (flight < 0) return;
    auto& f = p.forms.MainForm;
    SelectFlight(p, std::to_string(flight), 1);
    if (p.ending) return;
    f.FlashTimer.enable(false);
    f.update_TIMER.enable(false);
    showMainPage(p);
}

} // namespace

void takeBoardOptions(Program& p) {
    p.machine.desktop.setPointer(true);
    WriteConfig(p);
    hideScreen(p, p.forms.OptionsForm);
    p.machine.desktop.paint();
    showWait(p, p.forms.WaitForm.infoLABEL.text, 3);
    showBoardInNewOrder(p);
}

void bindMainTabs(Program& p) {
    auto& f = p.forms.MainForm;
    const auto tab = [&p](Label& label, void (*show)(Program&)) {
        const auto act = [&p, &label, show] {
            if (!label.enabled) return;
            playClick(p);
            show(p);
        };
        label.on(Event::Click, act);
        label.on(Event::Enter, act);
    };
    tab(f.main_LABEL, ShowMain);
    tab(f.statusboard_LABEL, ShowBoard);
    tab(f.log_LABEL, ShowLog);

    f.city_LABEL(kHeadingRow).on(Event::DoubleClick, [&p] { sortBy(p, p.forms.OptionsForm.cityOption); });
    f.fltnum_LABEL(kHeadingRow).on(Event::DoubleClick, [&p] { sortBy(p, p.forms.OptionsForm.fltnumOption); });
    for (auto* head : {&f.time_LABEL(kHeadingRow), &f.status_LABEL(kHeadingRow)}) {
        head->on(Event::DoubleClick, [&p] { sortBy(p, p.forms.OptionsForm.timeOption); });
    }
    for (int i = 0; i < kRowsOnPage; ++i) {
        for (Label* label : {&f.fltnum_LABEL(i), &f.city_LABEL(i)}) {
            label->on(Event::DoubleClick, [&p, label] { takeRow(p, *label); });
            label->on(Event::RightPress, [&p, label] {
                const int flight = rowFlight(p, *label);
                if (flight >= 0) showFlightInfo(p, 1, std::to_string(flight));
            });
        }
    }
}

} // namespace gatewise
