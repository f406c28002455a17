#include "app/StartUp.h"

#include "pages/ConfigFile.h"
#include "pages/LocateSimulator.h"
#include "pages/MainClocks.h"
#include "pages/MainData.h"
#include "pages/MainLog.h"
#include "pages/MainPass.h"
#include "pages/MainTabs.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "sound/DS_Engine.h"

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
    if (p.g.ProFlightFound != kFalse) return;
    p.forms.SettingsForm.pf2_FltNumCHECK.enabled = false;
    p.forms.SettingsForm.pf2_CallsignCHECK.enabled = false;
    p.forms.MainForm.pf2k_LABEL.enabled = false;
}

} // namespace

void startUp(Program& p) {
    p.g.StartupDone = kFalse;
    ReadConfig(p);
    LocateSimulator(p);
    if (p.ending) return;
    DiscoverDataSets(p);
    p.SoundEngine = std::make_unique<DS_Engine>(p.machine.sound, p.machine.loop);
    p.g.AmbienceLevel = kFadeStart;
    takeTimeZone(p);
    ReadLocale(p);
    showSplash(p);
    p.g.HourOffset = p.g.MinuteOffset = p.g.LastHourOffset = p.g.LastMinuteOffset = 0;
    LoadTables(p, [&p](const char* message) { sayOnSplash(p, message); });
    LoadLogBook(p);
    loadGraphics(p);
    sayOnSplash(p, "Finding Flights, Standby...");
    LoadHomeFlights(p);
    if (p.ending) return;
    p.g.StartupDone = kTrue;
    disableProFlight(p);
    hideScreen(p, p.forms.SplashForm);
    if (p.forms.SettingsForm.statusboardCHECK.value == 1) StartBoard(p);
    if (!p.ending) showScreen(p, p.forms.MainForm);
}

} // namespace gatewise
