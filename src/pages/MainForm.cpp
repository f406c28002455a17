#include "pages/MainForm.h"
#include "board/Paging.h"
#include "pages/ExportForm.h"
#include "pages/MainBoard.h"
#include "pages/MainPages.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "pages/SelectForm.h"
#include "pages/ViewPlan.h"

#include <array>

namespace gatewise {

namespace {

constexpr Color kWhite{255, 255, 255};
constexpr Color kGrey{190, 190, 190};
constexpr Color kCyan{0, 255, 255};

std::array<Label*, 5> tabs(forms::MainForm& f) {
    return {&f.main_LABEL, &f.statusboard_LABEL, &f.log_LABEL, &f.pf2k_LABEL, &f.export_LABEL};
}

/// The label under the mouse in cyan, the other tabs white; nullptr for none.
void highlightTab(forms::MainForm& f, const Label* under) {
    for (Label* tab : tabs(f)) tab->color = tab == under ? kCyan : kWhite;
}

void colorRows(forms::MainForm& f) {
    for (int i = 0; i < kRowsOnPage; ++i) {
        for (auto* column : {&f.fltnum_LABEL, &f.city_LABEL, &f.time_LABEL, &f.status_LABEL}) {
            (*column)(i).color = i % 2 == 0 ? kWhite : kGrey;
        }
    }
}

void loadMainForm(Program& p) {
    auto& f = p.forms.MainForm;
    ApplySmallFontFix(p, f);
    colorRows(f);
    for (Label* red : {&f.gt_hoursLABEL, &f.gt_sepLABEL, &f.gt_minutesLABEL}) red->color = {255, 0, 0};
    f.dayCombo.select(0);
    showPage(p, f.main_pic);
    ShowHelpText(p, 0);
    f.statusboard_LABEL.enabled = false;
    f.pf2k_LABEL.enabled = false;
    f.export_LABEL.enabled = false;
    RefreshMainButtons(p, " ");
    f.GTclock_Timer.enable(true);
    f.timeCheck_Timer.enable(true);
}

/// The two dialogs that keep to the middle of the main screen.
void followMain(Program& p) {
    for (Screen* screen :
         {static_cast<Screen*>(&p.forms.SettingsForm), static_cast<Screen*>(&p.forms.FlyForm)}) {
        if (screen->visible) CenterOnMain(p, *screen);
    }
}

void dragWindow(Program& p, const EventArgs& args) {
    auto& f = p.forms.MainForm;
    if (p.session.desk.DragActive == kFalse || !args.left) return;
    f.left += args.x - p.session.desk.DragX;
    f.top += args.y - p.session.desk.DragY;
    followMain(p);
}

void bindMoves(Program& p) {
    auto& f = p.forms.MainForm;
    for (Label* tab : tabs(f)) {
        tab->on(Event::Move, [&f, tab] { highlightTab(f, tab); });
    }
    f.BG.on(Event::Move, [&p](const EventArgs& args) {
        highlightTab(p.forms.MainForm, nullptr);
        RefreshMainButtons(p, " ");
        dragWindow(p, args);
    });
    f.main_pic.on(Event::Move, [&p] {
        highlightTab(p.forms.MainForm, nullptr);
        RefreshMainButtons(p, " ");
    });
    f.status_pic.on(Event::Move, [&p] {
        highlightTab(p.forms.MainForm, nullptr);
        RefreshMainButtons(p, " ");
        RefreshBoardButtons(p, " ");
    });
    f.log_pic.on(Event::Move, [&p] { RefreshLogButtons(p, ""); });
    f.BG.on(Event::Press, [&p](const EventArgs& args) {
        p.session.desk.DragX = args.x;
        p.session.desk.DragY = args.y;
        p.session.desk.DragActive = kTrue;
    });
    f.moved = [&p] { followMain(p); };
    f.BG.on(Event::Release, [&p] { p.session.desk.DragActive = kFalse; });
}

void openPicker(Program& p, const char* mode) {
    p.session.dispatch.SelectMode = mode;
    showScreen(p, p.forms.SelectForm);
}

Waited leaveForExport(Program& p) {
    auto& f = p.forms.MainForm;
    if (!f.export_LABEL.enabled) return waited(p);
    playClick(p);
    preparePlan(p);
    runBoardTimers(f, false);
    showMainPage(p);
    return showModal(p, p.forms.ExportForm);
}

Waited handToProFlight(Program& p) {
    if (!p.forms.MainForm.pf2k_LABEL.enabled) return waited(p);
    playClick(p);
    preparePlan(p);
    return SendToProFlight(p);
}

Waited changeDay(Program& p) {
    return p.session.desk.StartupDone != kFalse ? RefreshBoard(p) : waited(p);
}

} // namespace

void bindMainForm(Program& p) {
    auto& f = p.forms.MainForm;
    f.load = [&p] { loadMainForm(p); };
    bindMoves(p);
    for (TextBox* box : {&f.departureText, &f.arrSearch, &f.altSearch}) {
        box->on(Event::Focus, [box] { box->selectAll = true; });
    }
    f.departureText.on(Event::Enter, [&p] { return searchDeparture(p); });
    f.arrSearch.on(Event::Enter, [&p] { openPicker(p, "arrival"); });
    f.altSearch.on(Event::Enter, [&p] { openPicker(p, "alternate"); });
    f.dayCombo.on(Event::Click, [&p] { return changeDay(p); });
    for (const Event key : {Event::Click, Event::Enter}) {
        f.export_LABEL.on(key, [&p] { return leaveForExport(p); });
        f.pf2k_LABEL.on(key, [&p] { return handToProFlight(p); });
    }
}

} // namespace gatewise
