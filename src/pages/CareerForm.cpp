#include "pages/CareerForm.h"

#include "pages/CareerImport.h"
#include "pages/CareerView.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"

namespace gatewise {

Waited showCareer(Program& p) {
    refreshCareer(p);
    resetCareerImport(p);
    return showModal(p, p.forms.CareerForm);
}

void bindCareerForm(Program& p) {
    auto& f = p.forms.CareerForm;
    f.load = [&p] { placeScreen(p, p.forms.CareerForm); };
    f.activate = [&p] {
        CenterOnMain(p, p.forms.CareerForm);
        restorePictures(p.forms.CareerForm);
    };
    for (Combo* combo : {&f.yearCOMBO, &f.aircraftCOMBO, &f.airlineCOMBO})
        combo->on(Event::Click, [&p] { fillCareer(p); });
    for (ListView* list : {&f.totals, &f.previewList})
        list->on(Event::Column, [list](const EventArgs& args) { list->resetColumn(args.value); });
    f.map.on(Event::Hover, [&p](const EventArgs& args) { chooseOnCareerMap(p, args.value); });
    f.map.on(Event::Pick, [&p](const EventArgs& args) { chooseOnCareerMap(p, args.value); });
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
    bindCareerImport(p);
}

} // namespace gatewise
