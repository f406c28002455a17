#include "input/Shutdown.h"

#include "pages/ConfigFile.h"
#include "pages/Screens.h"
#include "sound/DS_Engine.h"

namespace gatewise {

void Shutdown(Program& p) {
    if (p.ending) return;
    p.ending = true;
    p.g.board = {};
    p.g.DepartureFlights.clear();
    p.g.BoardFlights.clear();
    if (p.SoundEngine) p.SoundEngine->Terminate_Engine();
    WriteConfig(p);
    p.forms.attachTimers(nullptr);
    for (Screen* screen : p.forms.all()) hideScreen(p, *screen);
}

} // namespace gatewise
