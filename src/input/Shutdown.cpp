#include "input/Shutdown.h"

#include "pages/ComeBack.h"
#include "pages/ImportForm.h"
#include "pages/SaveSettings.h"
#include "pages/Screens.h"
#include "sound/DS_Engine.h"

namespace gatewise {

void Shutdown(Program& p) {
    if (p.ending) return;
    rememberPlace(p);
    p.ending = true;
    p.session.board.board = {};
    p.session.schedule.DepartureFlights.clear();
    p.session.schedule.BoardFlights.clear();
    // Long work holds a wait, and so the end.
    if (p.session.simulator.scan) p.session.simulator.scan->stop = true;
    closeImport(p);
    if (p.SoundEngine) p.SoundEngine->Terminate_Engine();
    saveSettings(p);
    p.forms.attachTimers(nullptr);
    for (Screen* screen : p.forms.all()) hideScreen(p, *screen);
}

} // namespace gatewise
