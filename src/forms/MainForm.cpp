#include "forms/MainForm.h"

namespace gatewise::forms {

namespace {

struct Day {
    const char* text;
    int bit;
};
constexpr Day kDays[] = {{"Any Day of the Week", 0}, {"Monday", 1},   {"Tuesday", 2},
                         {"Wednesday", 4},           {"Thursday", 8}, {"Friday", 16},
                         {"Saturday", 32},           {"Sunday", 64}};

} // namespace

MainForm::MainForm() : Screen("MainForm", "Gatewise Terminal", 800, 600, "\\Images\\GT_BG.bmp") {
    closedBy = {&close_button};
    heedsEscape = false;
    routeCombo.add("All Real World Airline Schedules");
    for (const auto& day : kDays) dayCombo.add(day.text, day.bit);
    cityTime(4).text = "LOCAL";
    main_LABEL.toolTip = "Click to return to the Main Screen";
    statusboard_LABEL.toolTip = "Click to view the Departures and Arrivals Status Board";
    log_LABEL.toolTip = "Click to view your Log Book";
    pf2k_LABEL.toolTip = "Click to create a ProFlight 2000 Adventure with the selected flight";
    export_LABEL.toolTip = "Click to export the selected flight plan";
    departureText.toolTip =
        "Enter a name, iata code, or icao code to use to search for the departure airport";
    enterButton.toolTip = "Press to search for the departure airport using the criteria in the input block";
    logcsvButton.toolTip = "Export the Log Book as CSV";
    routesButton.toolTip = boardroutesButton.toolTip = "Map of all destinations";
    careerButton.toolTip = "Hours, miles, routes and airports of the whole Log Book";
    logprintButton.toolTip = "Print this page of the Log Book";
    nowButton.toolTip = "Set the clock back to the time of this computer";
    nowButton.visible = shift_LABEL.visible = anyDayButton.visible = false;
    boardEmpty_LABEL.visible = logEmpty_LABEL.visible = false;
    fltnum_LABEL(20).text = " FLIGHT";
    city_LABEL(20).text = " DEPARTING TO";
    time_LABEL(20).text = "TIME";
    status_LABEL(20).text = "STATUS";
}

} // namespace gatewise::forms
