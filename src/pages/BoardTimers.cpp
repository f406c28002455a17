#include "pages/BoardTimers.h"

#include "board/Paging.h"
#include "pages/MainBoard.h"
#include "pages/MainClocks.h"
#include "pages/MainPass.h"
#include "sound/AnnouncementScan.h"
#include "sound/Announcements.h"

namespace gatewise {

namespace {

constexpr int kMinute = 60000;

/// A row that is boarding or arriving blinks.
void flashTick(Program& p) {
    WriteHeader(p);
    const char* word = p.g.BoardMode == "departing"  ? "BOARDING"
                       : p.g.BoardMode == "arriving" ? "ARRIVING"
                                                     : "";
    for (int i = 0; i < kRowsOnPage; ++i) {
        Label& status = p.forms.MainForm.status_LABEL(i);
        status.visible = status.text == word ? !status.visible : true;
    }
}

void fadeTick(Program& p) {
    if (!p.SoundEngine) return; // the start is still asking for the simulator's folder
    const FadeStep step = stepFade(p.g.AmbienceLevel, p.g.AmbienceVolume, p.g.FadeDirection);
    p.g.AmbienceLevel = step.level;
    if (step.silence) p.SoundEngine->StopDXSound(kAmbienceChannel);
    p.g.FadeDirection = step.direction;
    if (step.finished) p.forms.MainForm.fade_timer.enable(false);
    p.SoundEngine->ChangeVolume(kAmbienceChannel, p.g.AmbienceLevel);
}

/// The three play timers, each with its ring for either board.
struct PlayTimer {
    std::int16_t number;
    Timer forms::MainForm::*timer;
};

constexpr PlayTimer kPlayTimers[] = {
    {1, &forms::MainForm::play1Timer},
    {2, &forms::MainForm::play2Timer},
    {3, &forms::MainForm::play3Timer},
};

std::vector<ScanRow> scanRows(const BoardLists& board) {
    std::vector<ScanRow> rows;
    const auto count = std::min(board.BoardRows.size(), static_cast<std::size_t>(board.BoardRowCount + 1));
    rows.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        rows.push_back({board.BoardRows[i].FlightText, board.BoardRows[i].TimeText});
    return rows;
}

/// The other end of a row's flight. Departures are looked up in the dispatch list, even when the board shows
/// another airport.
std::string cityOfRow(const Program& p, int row, bool departing) {
    const auto& flights = departing ? p.g.DepartureFlights : p.g.BoardFlights;
    const auto index =
        static_cast<std::size_t>(p.g.board.BoardRows[static_cast<std::size_t>(row)].FlightIndex);
    if (index >= flights.size()) return {};
    return departing ? flights[index].DestinationIata.str() : flights[index].OriginIata.str();
}

void scanAndAnnounce(Program& p, const AnnouncementWindow& window, const AnnouncementDraws& draws) {
    const auto rows = scanRows(p.g.board);
    auto& f = p.forms.MainForm;
    auto& rings = window.departing ? p.g.AnnouncedDepartures : p.g.AnnouncedArrivals;
    const ScanBoard board{rows, p.g.BoardPage, f.gt_hoursLABEL.text, f.gt_minutesLABEL.text,
                          [&](int row) { return cityOfRow(p, row, window.departing); }};
    const auto flag = static_cast<std::size_t>(window.kind - 1);
    const auto due = scanForAnnouncement(board, window, draws.start, p.g.PlayedFlags[flag] != kFalse,
                                         rings[static_cast<std::size_t>(window.timer - 1)]);
    if (!due) return;
    f.waitPlayTimer.enable(true);
    PlayAnnouncement(*p.SoundEngine, p.g.AppDir,
                     {due->flightKey, due->kind, due->city, due->pan, due->volume, draws.echo,
                      draws.frequency, draws.voice},
                     p.g.PlayedFlags);
}

void playTick(Program& p, const PlayTimer& play) {
    auto& f = p.forms.MainForm;
    Timer& own = f.*play.timer;
    if (!p.SoundEngine || p.g.board.BoardRowCount < 0) return;
    if (f.waitPlayTimer.enabled) {
        own.setInterval(kPlayHeldBackInterval);
        own.enable(true);
        return;
    }
    startSoundEngine(p);
    const AnnouncementDraws draws = drawAnnouncement(p.machine.random, p.g.board.BoardRowCount);
    const AnnouncementWindow& window = windowOf(play.number, p.g.BoardMode == "departing");
    const auto* option = static_cast<Check*>(p.forms.OptionsForm.find(window.option));
    if (option != nullptr && option->value == 1) scanAndAnnounce(p, window, draws);
    own.setInterval(drawPlayInterval(p.machine.random));
}

/// A clock that the user moved rebuilds the board once, however many clicks went before.
void checkOffsets(Program& p) {
    if (p.g.HourOffset == p.g.LastHourOffset && p.g.MinuteOffset == p.g.LastMinuteOffset) return;
    if (p.forms.MainForm.status_pic.visible) updateTick(p);
    p.g.LastHourOffset = p.g.HourOffset;
    p.g.LastMinuteOffset = p.g.MinuteOffset;
}

} // namespace

void updateTick(Program& p) {
    auto& f = p.forms.MainForm;
    for (int i = 0; i < kRowsOnPage; ++i) f.status_LABEL(i).visible = true;
    f.update_TIMER.setInterval(kMinute);
    p.g.PlayedFlags.fill(kFalse);
    WriteHeader(p);
    p.machine.desktop.setPointer(true);
    buildBoard(p);
    ShowPage(p);
    p.machine.desktop.setPointer(false);
}

void bindBoardTimers(Program& p) {
    auto& f = p.forms.MainForm;
    f.timeCheck_Timer.on(Event::Tick, [&p] { checkOffsets(p); });
    f.update_TIMER.on(Event::Tick, [&p] { updateTick(p); });
    f.FlashTimer.on(Event::Tick, [&p] { flashTick(p); });
    f.fade_timer.on(Event::Tick, [&p] { fadeTick(p); });
    f.waitPlayTimer.on(Event::Tick, [&p] { p.forms.MainForm.waitPlayTimer.enable(false); });
    for (const auto& play : kPlayTimers) {
        (f.*play.timer).on(Event::Tick, [&p, &play] { playTick(p, play); });
    }
}

} // namespace gatewise
