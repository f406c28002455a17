#include "pages/MsgForm.h"

#include "pages/Placement.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "work/PlanWork.h"

#include <algorithm>

namespace gatewise {

namespace {

struct MessageRow {
    Message message;
    const char* text; // {flight}, {number} and {error} stand for what the moment puts in
    const char* mode;
};

constexpr MessageRow kMessages[] = {
    {Message::FmcExported,
     "Gatewise Terminal has Exported your flight plan to the Flight Management Computer(s) that were "
     "selected.  "
     "Please refer to FMC product specific documentation on how to load the flight plan.",
     "regular"},
    {Message::LogEntryMade,
     "Gatewise Terminal has created a Log Book Entry for the currently selected flight.  To view or change "
     "the Log "
     "Book Entry, please select the Log Book Page.",
     "regular"},
    {Message::DeleteLogEntry,
     "Gatewise Terminal is about to permanently delete the selected Log Book Entry!\n\nDo you wish to "
     "continue?",
     "del_log"},
    {Message::NoFlights,
     "Gatewise Terminal was unable to find any schedule airine service from this airport.", "regular"},
    {Message::FlightSent,
     "Your flight has been sent to Flight Simulator 2002.  Please use the Select Flight Menu in FS2002 and "
     "select "
     "the FS2000 flight - {flight}.\n\nTo Launch FS2002 please press FLY NOW or press CANCEL to fly later.",
     "fly_now"},
    {Message::LogEntrySaved, "Gatewise Terminal has saved the current Entry to your Log Book.", "regular"},
    {Message::Fs2000Exported,
     "Gatewise Terminal has exported the current flight plan to the Microsoft Flight Simulator 2000 Flight "
     "Plan "
     "Format.",
     "regular"},
    {Message::AcsGpsExported,
     "Gatewise Terminal has exported the current flight plan to the ACS-GPS Flight Plan Format.", "regular"},
    {Message::SquawkBoxExported,
     "Gatewise Terminal has exported the current flight plan to the SquawkBox Flight Plan Format.",
     "regular"},
    {Message::RadarContactExported,
     "Gatewise Terminal has exported the current flight plan to the Radar Contact Flight Plan Format.",
     "regular"},
    {Message::SimulatorNotFound,
     "Path to Flight Simulator 2002 not found.  Gatewise Terminal will now bring up the Select FS2002 Path "
     "dialog for "
     "you to select your path.  Please locate and double-click your FS2002.exe file to set the correct path "
     "to Flight "
     "Simulator.",
     "path"},
    {Message::PlanTooLong,
     "Gatewise Terminal is unable to proccess this request.  The currently selected flight plan is too long "
     "for Radar "
     "Contact.  The plan contains more than the maximum 29 waypoints!",
     "regular"},
    {Message::NoProFlight,
     "Gatewise Terminal is unable to find the installation of AETI's ProFlight 2000 on your computer.  "
     "Please verify "
     "that your path to FS2002 is correct and AETI's ProFlight 2000 is correctly installed.",
     "regular"},
    {Message::Failure,
     "Gatewise Terminal has recieved an Error.\nError Number {number}\n{error}\nPlease contact Gatewise "
     "support at "
     "support@gatewise.example for further assistance.",
     "regular"},
    {Message::NewDataSet,
     "Gatewise Terminal is now using a new set of Route Data.  Please select a Departure Airport to "
     "Continue.",
     "regular"},
    {Message::NoArrivals, "Gatewise Terminal found now arriving flights for this time.", "regular"},
    {Message::DefaultFlightSent,
     "Your flight has been sent to Flight Simulator 2002.  The Flight is set as your Default FS2002 Flight.  "
     "To Launch "
     "Flight Simulator 2002 please press FLY NOW or press CANCEL to fly later.",
     "fly_now"},
    {Message::FsNavigatorExported,
     "Gatewise Terminal has exported the current flight plan to the FSNavigator 4 Flight Plan Format.",
     "regular"},
    {Message::NoFsNavigator,
     "Gatewise Terminal has been unable to find FSNavigator 4 installed on your computer.", "regular"},
};

struct ModeButtons {
    const char* mode;
    const char* okType; // its picture is okType + "_regular"
    bool cancel;
    bool destroys; // the answer that harms nothing is the one at hand
};

constexpr ModeButtons kMessageModes[] = {
    {"del_log", "ok", true, true},
    {"path", "ok", true, false},
    {"fly_now", "fly", true, false},
    {"regular", "ok", false, false},
};

void regularPictures(forms::MsgForm& f) {
    f.okButton.picture = f.okButton.button_type + "_regular";
    f.cancelButton.picture = "cancel_regular";
}

void setButtons(Program& p) {
    auto& f = p.forms.MsgForm;
    CenterOnMain(p, f);
    for (const auto& row : kMessageModes) {
        if (p.session.desk.MessageMode != row.mode) continue;
        f.okButton.button_type = row.okType;
        f.okButton.picture = f.okButton.button_type + "_regular";
        f.cancelButton.visible = row.cancel;
        f.first = row.destroys ? &f.cancelButton : nullptr;
    }
    f.okButton.visible = true;
}

/// What was written or not, in words and with its path as this computer spells it.
void showFile(Program& p, const Notice& notice) {
    auto& f = p.forms.MsgForm;
    const bool told = !notice.file.empty();
    const bool stands = told && notice.reason.empty();
    p.session.desk.shownFile = notice.file;
    f.file_LABEL.visible = told;
    f.openButton.visible = stands;
    const std::string path = told ? files::textOf(files::target(notice.file)) : std::string();
    f.file_LABEL.toolTip = path;
    f.file_LABEL.text =
        told ? (stands ? "Written to" : "Not written: " + notice.reason) + "\n" + path : std::string();
}

} // namespace

void openWrittenFolder(Program& p) {
    const std::string path = files::textOf(files::target(p.session.desk.shownFile));
    const auto end = path.find_last_of("/\\");
    if (end != std::string::npos) p.machine.desktop.open(path.substr(0, std::max<std::size_t>(end, 1)));
}

Waited ShowMessage(Program& p, const Notice& notice) {
    auto& f = p.forms.MsgForm;
    Desk& desk = p.session.desk;
    if (!notice.errorText.empty()) desk.ErrorText = notice.errorText;
    loadScreen(f);
    if (notice.heading == Heading::Information) f.type_LABEL.text = "Information";
    if (notice.heading == Heading::Warning) f.type_LABEL.text = "Warning!";
    for (const auto& row : kMessages) {
        if (row.message != notice.message) continue;
        std::string text =
            replaceAll(row.text, "{flight}", flightStem(p.session.schedule, p.session.dispatch));
        text = replaceAll(text, "{number}", std::to_string(notice.errorNumber));
        f.Msg_LABEL.text = replaceAll(text, "{error}", desk.ErrorText);
        desk.MessageMode = row.mode;
    }
    showFile(p, notice);
    if (f.visible) {
        setButtons(p);
        return waited(p);
    }
    return showModal(p, f);
}

Waited ShowMessage(Program& p, Heading heading, Message message) {
    return ShowMessage(p, Notice{heading, message, 0, {}});
}

Waited ShowMessages(Program& p, const std::vector<Notice>& notices) {
    for (const Notice& notice : notices) {
        if (ShowMessage(p, notice) == Waited::Ended) return Waited::Ended;
    }
    return waited(p);
}

void bindMsgForm(Program& p) {
    auto& f = p.forms.MsgForm;
    f.load = [&p] { placeScreen(p, p.forms.MsgForm); };
    f.activate = [&p] { setButtons(p); };
    f.openButton.on(Event::Click, [&p] { openWrittenFolder(p); });
    f.BG.on(Event::Move, [&f] { regularPictures(f); });
    f.Msg_LABEL.on(Event::Move, [&f] { regularPictures(f); });
}

} // namespace gatewise
