#include "pages/MainData.h"

#include "pages/MainDispatch.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/SaveSettings.h"
#include "work/DataSets.h"

namespace gatewise {

namespace {

Waited changeDataSet(Program& p) {
    Session& s = p.session;
    if (s.desk.StartupDone == kFalse) return waited(p);
    auto& f = p.forms.MainForm;
    const std::string path = dataSetPath(s.AppDir, f.routeCombo.text());
    if (path == s.settings.DataSetPath) return waited(p);

    p.machine.desktop.setPointer(true);
    if (const auto error = changeTables(s.AppDir, path, s.schedule)) {
        p.machine.desktop.setPointer(false);
        f.routeCombo.select(dataSetPlace(f.routeCombo.items, s.settings.DataSetPath));
        return ShowMessage(p, failure(error, "LoadTables"));
    }
    s.settings.DataSetPath = path;
    s.settings.HomeIndex = 0;
    saveSettings(p);
    ClearDispatch(p);
    f.arrivalButton.State = 0;
    f.statusboard_LABEL.enabled = false;
    f.departureText.text.clear();
    RefreshMainButtons(p, " ");
    const Waited answer = ShowMessage(p, Heading::Information, Message::NewDataSet);
    p.machine.desktop.setPointer(false);
    return answer;
}

} // namespace

void DiscoverDataSets(Program& p) {
    auto& combo = p.forms.MainForm.routeCombo;
    const auto names = dataSetNames(p.session.AppDir);
    combo.clear();
    for (const auto& name : names) combo.add(name);
    combo.select(0);
    const int place = dataSetPlace(combo.items, p.session.settings.DataSetPath);
    if (place > 0) combo.select(place);
    combo.locked = combo.count() == 1;
}

void bindMainData(Program& p) {
    p.forms.MainForm.routeCombo.on(Event::Click, [&p] { return changeDataSet(p); });
}

} // namespace gatewise
