#include "screens/MainPages.h"

#include "board/Paging.h"
#include "screens/BoardInformation.h"
#include "screens/BoardTimers.h"
#include "screens/Clocks.h"
#include "screens/Dispatch.h"
#include "screens/FlightScreens.h"
#include "screens/LogScreens.h"
#include "screens/Screens.h"
#include "screens/SkinnedButtons.h"
#include "sound/Announcements.h"
#include "state/ConfigFile.h"

namespace gatewise {

namespace {

constexpr const char* kBoardTitle = "Departures and Arrivals Status Board ";
constexpr const char* kLogTitle = "Gatewise Terminal - Pilot's Log Book ";
constexpr const char* kMainTitle = "Gatewise Terminal - Main Interface ";

constexpr const char* kHelpTexts[] = {
    "Select the airport you would like to depart from by entering the name, iata code, or icao code in the "
    "block above.  "
    "Press enter or press the blue button to the right to view a list of matching airports.  Select the "
    "arrival airport "
    "by pressing the 'Select Arrival' button, after you have selected a departure airport.  The Boarding "
    "Pass will show "
    "you your selected flight.  Navigate to other screens by clicking the labels along the top of the main "
    "screen.",
    "Use the Departure and Arrival Status Board to view flights departing from and arriving to the selected "
    "airport.  "
    "The Triangular buttons on either side of the screen allow you to navigate to extra screens if there is "
    "more than "
    "one screen of information.  Use the Change Airline button to select a different airline for viewing.  "
    "Double "
    "clicking on a flight will select the current flight, and right clicking will pop-up extra information "
    "about the "
    "flight.",
};

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

void stopBoardTimers(Program& p) {
    auto& f = p.forms.MainForm;
    for (Timer* timer : {&f.update_TIMER, &f.FlashTimer, &f.play1Timer, &f.play2Timer, &f.play3Timer}) {
        timer->enable(false);
    }
}

void showPage(Program& p, Container& page) {
    auto& f = p.forms.MainForm;
    for (Container* each : {&f.main_pic, &f.status_pic, &f.log_pic}) each->visible = each == &page;
}

void showMainPage(Program& p) {
    p.forms.MainForm.title_LABEL.text = kMainTitle;
    showPage(p, p.forms.MainForm.main_pic);
}

void ShowHelpText(Program& p, int page) {
    p.g.HelpPage = page;
    p.forms.MainForm.infoLABEL.text = kHelpTexts[page == 1 ? 1 : 0];
}

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

void bindMainPages(Program& p) {
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
