#include "pages/MainPages.h"

#include <utility>

namespace gatewise {

namespace {

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

} // namespace

void runBoardTimers(forms::MainForm& f, bool on) {
    for (Timer* timer : {&f.update_TIMER, &f.FlashTimer, &f.play1Timer, &f.play2Timer, &f.play3Timer}) {
        timer->enable(on);
    }
}

void showPage(Program& p, Container& page) {
    auto& f = p.forms.MainForm;
    const std::pair<Container*, Label*> pages[] = {
        {&f.main_pic, &f.main_LABEL}, {&f.status_pic, &f.statusboard_LABEL}, {&f.log_pic, &f.log_LABEL}};
    for (const auto& [each, tab] : pages) {
        each->visible = each == &page;
        tab->mark = each->visible ? Mark::Current : Mark::None;
    }
}

void showMainPage(Program& p) {
    p.forms.MainForm.title_LABEL.text = kMainTitle;
    showPage(p, p.forms.MainForm.main_pic);
}

void ShowHelpText(Program& p, int page) {
    p.session.desk.HelpPage = page;
    p.forms.MainForm.infoLABEL.text = kHelpTexts[page == 1 ? 1 : 0];
}

} // namespace gatewise
