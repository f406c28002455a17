#include "app/StartUp.h"

#include "pages/ComeBack.h"
#include "pages/DirForm.h"
#include "pages/LoadSettings.h"
#include "pages/MainData.h"
#include "pages/MainDispatch.h"
#include "pages/MainTabs.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "platform/Text.h"
#include "sound/DS_Engine.h"
#include "work/Clocks.h"
#include "work/DataSets.h"
#include "work/LogWork.h"
#include "work/ReadLocale.h"

namespace gatewise {

namespace {

constexpr std::int16_t kFadeStart = -9000;

void sayOnSplash(Program& p, const char* message) {
    p.forms.SplashForm.Label1.text = message;
    p.machine.desktop.paint();
}

void showSplash(Program& p) {
    auto& splash = p.forms.SplashForm;
    splash.load = [&p] {
        p.forms.SplashForm.Label2.text = "version " GATEWISE_VERSION;
        placeScreen(p, p.forms.SplashForm);
    };
    showScreen(p, splash);
    p.machine.desktop.paint();
}

void loadGraphics(Program& p) {
    auto& f = p.forms;
    sayOnSplash(p, "Loading Graphics, Standby...");
    // The plan screen stands twice in the order; its second load has nothing left to do.
    for (Screen* screen : std::initializer_list<Screen*>{&f.MainForm, &f.ViewPlan, &f.SelectForm, &f.ViewPlan,
                                                         &f.SettingsForm, &f.ExportForm, &f.FlightForm,
                                                         &f.InfoForm, &f.LogEntry, &f.WaitForm}) {
        loadScreen(*screen);
    }
}

void disableProFlight(Program& p) {
    if (p.session.simulator.ProFlightFound != kFalse) return;
    p.forms.SettingsForm.pf2_FltNumCHECK.enabled = false;
    p.forms.SettingsForm.pf2_CallsignCHECK.enabled = false;
    p.forms.MainForm.pf2k_LABEL.enabled = false;
}

/// Tables, log book, screens: what the splash tells of.
void loadAll(Program& p) {
    Session& s = p.session;
    LoadTables(s.AppDir, s.settings.DataSetPath, s.schedule,
               [&p](const char* message) { sayOnSplash(p, message); });
    (void)LoadLogBook(logFiles(s.AppDir, s.settings.FsPath), p.machine.clock.now(), s.log);
    loadGraphics(p);
    sayOnSplash(p, "Finding Flights, Standby...");
}

/// The pilot's own files that are there but could not be read: they are left as they are.
void sayUnread(Program& p) {
    const std::pair<const char*, std::error_code> files[] = {
        {"GT.cfg", p.session.settings.unread}, {"The log book", p.session.log.logStore.doubt()}};
    for (const auto& [name, error] : files) {
        if (error)
            p.machine.desktop.notify(std::string(name) + " could not be read and is left as it is: " +
                                     textFromUtf8(error.message()));
    }
}

} // namespace

void startUp(Program& p) {
    Session& s = p.session;
    s.desk.StartupDone = kFalse;
    loadSettings(p);
    if (LocateSimulator(p) == Waited::Ended) return;
    DiscoverDataSets(p);
    p.SoundEngine = std::make_unique<DS_Engine>(p.machine.sound, p.machine.loop);
    s.hall.AmbienceLevel = kFadeStart;
    takeTimeZone(s.clock, p.machine.clock.bias());
    ReadLocale(p.machine.locale, s.locale);
    showSplash(p);
    s.clock.HourOffset = s.clock.MinuteOffset = 0;
    rememberOffsets(s.clock);
    loadAll(p);
    if (LoadHomeFlights(p) == Waited::Ended) return;
    s.desk.StartupDone = kTrue;
    disableProFlight(p);
    hideScreen(p, p.forms.SplashForm);
    if (comeBackToAirport(p) == Waited::Ended) return;
    const bool board = s.settings.StatusBoard == 1 && s.settings.ComeBack != 1;
    if (board && StartBoard(p) == Waited::Ended) return;
    showScreen(p, p.forms.MainForm);
    if (comeBackToPage(p) == Waited::Ended) return;
    sayUnread(p);
}

} // namespace gatewise
