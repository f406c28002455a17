#include "pages/BoardTimers.h"

#include "pages/MainBoard.h"
#include "sound/Announcements.h"
#include "work/Clocks.h"
#include "work/HallWork.h"

namespace gatewise {

namespace {

constexpr int kMinute = 60000;

/// A row that is boarding or arriving blinks.
void flashTick(Program& p) {
    WriteHeader(p);
    const std::string& mode = p.session.board.BoardMode;
    const char* word = mode == "departing" ? "BOARDING" : mode == "arriving" ? "ARRIVING" : "";
    for (int i = 0; i < kRowsOnPage; ++i) {
        Label& status = p.forms.MainForm.status_LABEL(i);
        status.visible = status.text == word ? !status.visible : true;
    }
}

void fadeTick(Program& p) {
    if (!p.SoundEngine) return; // the start is still asking for the simulator's folder
    const FadeStep step = fadeAmbience(p.session.settings, p.session.hall);
    if (step.silence) p.SoundEngine->StopDXSound(kAmbienceChannel);
    if (step.finished) p.forms.MainForm.fade_timer.enable(false);
    p.SoundEngine->ChangeVolume(kAmbienceChannel, step.level);
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

/// Echoes are paused for in the middle of an announcement.
Waited announce(Program& p, const DueAnnouncement& due, const AnnouncementDraws& draws) {
    p.forms.MainForm.waitPlayTimer.enable(true);
    PlayAnnouncement(*p.SoundEngine, p.session.AppDir,
                     {due.flightKey, due.kind, due.city, due.pan,
                      announcementVolume(p.session.settings, due.volume), draws.echo, draws.frequency,
                      draws.voice},
                     p.session.hall.PlayedFlags);
    return waited(p);
}

Waited playTick(Program& p, const PlayTimer& play) {
    Session& s = p.session;
    auto& f = p.forms.MainForm;
    Timer& own = f.*play.timer;
    const int rowCount = s.board.board.BoardRowCount;
    if (!p.SoundEngine || rowCount < 0) return waited(p);
    if (f.waitPlayTimer.enabled) {
        own.setInterval(kPlayHeldBackInterval);
        own.enable(true);
        return waited(p);
    }
    startSoundEngine(p);
    const AnnouncementDraws draws = drawAnnouncement(p.machine.random, rowCount);
    const AnnouncementWindow& window = windowOf(play.number, s.board.BoardMode == "departing");
    if (announces(s.settings, window.kind)) {
        const auto due = dueAnnouncement(s.board, s.schedule, window, draws.start, f.gt_hoursLABEL.text,
                                         f.gt_minutesLABEL.text, s.hall);
        if (due && announce(p, *due, draws) == Waited::Ended) return Waited::Ended;
    }
    own.setInterval(drawPlayInterval(p.machine.random));
    return waited(p);
}

/// A clock that the user moved rebuilds the board once, however many clicks went before.
void checkOffsets(Program& p) {
    if (!clockMoved(p.session.clock)) return;
    if (p.forms.MainForm.status_pic.visible) updateTick(p);
    rememberOffsets(p.session.clock);
}

} // namespace

void startSoundEngine(Program& p) {
    p.SoundEngine->setMuted(p.session.settings.Muted == 1);
    p.SoundEngine->Initialize_Engine();
    p.SoundEngine->SetSpeakerConfig("stereo");
    std::string unused;
    p.SoundEngine->GetSpeakerConfig(unused);
}

void updateTick(Program& p) {
    auto& f = p.forms.MainForm;
    showStatusTexts(f);
    f.update_TIMER.setInterval(kMinute);
    p.session.hall.PlayedFlags.fill(kFalse);
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
        (f.*play.timer).on(Event::Tick, [&p, &play] { return playTick(p, play); });
    }
}

} // namespace gatewise
