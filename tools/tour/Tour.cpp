#include "tour/Tour.h"

#include "input/UserEvents.h"
#include "pages/Screens.h"
#include "platform/Paths.h"
#include "tour/Structure.h"
#include "window/QtText.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace gatewise::tour {

namespace {

/// Pictures that are taken where not all are.
constexpr const char* kFew[] = {"board", "pass", "settings", "plan", "log", "charts", "routes"};

/// A few downloaded tables as an import takes them; returns their folder.
std::string writeTables(const std::string& appDir) {
    const std::string folder = appDir + "/Downloads";
    const auto write = [&](const char* name, const std::string& text) {
        std::filesystem::create_directories(files::target(folder));
        std::ofstream(files::target(folder + "/" + name)) << text;
    };
    write("airports.dat",
          "1,\"Quill International "
          "Airport\",\"Quill\",\"Freedonia\",\"QLL\",\"KQLL\",40.0,-100.0,1000,-6,\"A\","
          "\"America/Chicago\",\"airport\",\"made\"\n"
          "2,\"Orrery Field\",\"Orrery\",\"Freedonia\",\"ORY\",\"KORY\",41.5,-92.5,800,-6,\"A\","
          "\"America/Chicago\",\"airport\",\"made\"\n");
    write("airlines.dat", "10,\"Orrery Air\",\\N,\"X0\",\"ORR\",\"ORRERY\",\"Freedonia\",\"Y\"\n");
    write("flights.csv", "origin,departure,destination,arrival,airline,number,days\n"
                         "QLL,0700,ORY,0830,X0,77,12345\nORY,0915,QLL,1045,X0,78,12345\n");
    return folder;
}

/// The log book of a pilot who has flown for some years; returns its file.
std::string writeLogBook(const std::string& appDir) {
    struct Leg {
        const char* route; // from, to
        const char* aircraft;
        const char* airline;
        double hours;
        int times; // flown
    };
    constexpr Leg kLegs[] = {
        {"KATL,KJFK", "Boeing 737-800", "Quillmark Air Lines", 2.1, 14},
        {"KATL,KMIA", "Boeing 737-800", "Quillmark Air Lines", 1.7, 9},
        {"KJFK,EGLL", "Boeing 767-300", "Quillmark Air Lines", 6.9, 6},
        {"KLAX,PHNL", "Boeing 767-300", "Saltbrook Pacific", 5.4, 5},
        {"EGLL,LFPG", "Airbus A320", "Fernblick Air", 1.1, 7},
        {"KSFO,RJAA", "Boeing 777-200", "Saltbrook Pacific", 10.6, 3},
        {"EDDF,SBGR", "Airbus A340-300", "Fernblick Air", 11.8, 2},
        {"KDEN,KSFO", "Boeing 757-200", "Quillmark Air Lines", 2.6, 6},
    };
    std::ofstream out(files::target(appDir + "/Flown.csv"));
    out << "date,from,to,aircraft,airline,flight,scheduled_arrival,actual_arrival,day_hours,night_hours\n";
    int flown = 0;
    for (const Leg& leg : kLegs) {
        for (int i = 0; i < leg.times; ++i, ++flown) {
            const bool late = flown % 7 == 0;
            out << 1999 + flown * 5 % 4 << "-0" << 1 + flown * 3 % 9 << "-" << 10 + flown % 18 << ","
                << leg.route << "," << leg.aircraft << "," << leg.airline << "," << 100 + flown << ",18:00,"
                << (late ? "18:25" : "17:55") << "," << leg.hours * 0.7 << "," << leg.hours * 0.3 << "\n";
        }
    }
    return appDir + "/Flown.csv";
}

} // namespace

Tour::Tour(stage::Stage& stage, Album album) : stage_(stage), f_(stage.forms()), album_(std::move(album)) {}

void Tour::play() {
    board();
    boardDialogs();
    search();
    pass();
    plan();
    flying();
    exports();
    logBook();
    settings();
    imports();
    notices();
    stage_.play();
}

void Tour::take(const char* name) {
    for (auto& fault : stage::misplaced(f_, stage_.desk()))
        complaints_.push_back(std::string(name) + ": " + std::move(fault));
    const auto wanted = [&](const char* one) { return std::string_view(one) == name; };
    if (!album_.whole && std::none_of(std::begin(kFew), std::end(kFew), wanted)) return;
    const std::string file = album_.folder + "/" + name + album_.ending + ".png";
    if (stage_.picture().save(QString::fromStdString(file)))
        pictures_.push_back(file);
    else
        complaints_.push_back("could not write " + file);
}

void Tour::takeLater(const char* name) {
    then([this, name] { take(name); });
}

void Tour::expect(const Screen& screen) {
    if (!screen.visible) complaints_.push_back(screen.name + " did not come up");
}

void Tour::close() {
    if (!f_.front.empty() && f_.front.front() != &f_.MainForm) stage_.key(Qt::Key_Escape);
}

void Tour::visit(const char* name, Screen& screen, stage::Stage::Step there, stage::Stage::Step back) {
    then(std::move(there));
    then([this, name, &screen] {
        expect(screen);
        take(name);
    });
    then(std::move(back));
}

void Tour::board() {
    then([this] { stage_.advance(500); });
    takeLater("board");
    then([this] { stage_.click(f_.MainForm.boardButton(1)); });
    takeLater("board-page-2");
    then([this] { stage_.click(f_.MainForm.boardButton(0)); });
    then([this] { stage_.click(f_.MainForm.switchButton(1)); });
    takeLater("board-arrivals");
    then([this] { stage_.click(f_.MainForm.switchButton(1)); });
}

void Tour::boardDialogs() {
    visit(
        "options", f_.OptionsForm, [this] { stage_.click(f_.MainForm.switchButton(2)); },
        [this] { close(); });
    visit(
        "airlines", f_.SelectForm, [this] { stage_.click(f_.MainForm.switchButton(0)); },
        [this] { close(); });
    visit(
        "information", f_.InfoForm, [this] { stage_.rightClick(f_.MainForm.city_LABEL(2)); },
        [this] { close(); });
}

/// A departure airport by its city, a destination, the flights between them.
void Tour::search() {
    then([this] { stage_.click(f_.MainForm.main_LABEL); });
    takeLater("main-empty");
    then([this] { stage_.tabTo(f_.MainForm.departureText); });
    then([this] {
        stage_.key(Qt::Key_A, Qt::ControlModifier);
        stage_.type("atlanta");
    });
    visit(
        "picker", f_.SelectForm, [this] { stage_.key(Qt::Key_Return); },
        [this] {
            stage_.key(Qt::Key_Home);
            stage_.click(f_.SelectForm.selectButton);
        });
    visit(
        "routes", f_.RoutesForm, [this] { stage_.click(f_.MainForm.routesButton); }, [this] { close(); });
    then([this] {
        stage_.click(f_.MainForm.arrSearch);
        stage_.type("miami");
    });
    then([this] { stage_.click(f_.MainForm.arrivalButton); });
    then([this] {
        expect(f_.SelectForm);
        stage_.key(Qt::Key_Home);
        stage_.key(Qt::Key_Return);
    });
    visit(
        "flights", f_.FlightForm, [] {},
        [this] {
            stage_.key(Qt::Key_Home);
            stage_.key(Qt::Key_Return);
        });
}

void Tour::pass() {
    then([this] {
        if (f_.MainForm.seatLABEL_1.text.empty()) complaints_.push_back("no flight came onto the pass");
    });
    takeLater("pass");
}

void Tour::plan() {
    visit(
        "plan", f_.ViewPlan, [this] { stage_.click(f_.MainForm.viewButton); },
        [this] { stage_.click(f_.ViewPlan.printButton); });
    visit(
        "charts", f_.PlanCharts, [this] { stage_.click(f_.ViewPlan.chartsButton); }, [this] { close(); });
    then([this] { stage_.click(f_.ViewPlan.continueButton); });
}

void Tour::flying() {
    then([this] { stage_.click(f_.MainForm.FlatButton(3)); });
    then([this] { stage_.key(Qt::Key_Down); }); // the first aircraft
    visit(
        "fly", f_.FlyForm, [] {}, [this] { stage_.click(f_.FlyForm.continueButton); });
    visit(
        "message-fly", f_.MsgForm, [] {}, [this] { close(); });
}

void Tour::exports() {
    visit(
        "export", f_.ExportForm, [this] { stage_.click(f_.MainForm.export_LABEL); },
        [this] { stage_.click(f_.ExportForm.programsButton); });
    for (const int line : {0, 4, 7}) then([this, line] { stage_.click(f_.ProgramsForm.programCHECK(line)); });
    visit(
        "programs", f_.ProgramsForm, [] {}, [this] { close(); });
    then([this] { stage_.click(f_.ExportForm.exportButton(1)); });
    visit(
        "export-file", f_.DirExportForm, [] {}, [this] { stage_.click(f_.DirExportForm.selectButton); });
    visit(
        "message-export", f_.MsgForm, [] {}, [this] { stage_.key(Qt::Key_Return); });
    then([this] { close(); });
    then([this] { close(); });
}

void Tour::logBook() {
    visit(
        "message-log", f_.MsgForm, [this] { stage_.click(f_.MainForm.sendlogButton); },
        [this] { stage_.key(Qt::Key_Return); });
    then([this] { stage_.click(f_.MainForm.log_LABEL); });
    then([this] { stage_.click(f_.MainForm.log_press(0)); });
    takeLater("log");
    visit(
        "log-entry", f_.LogEntry, [this] { stage_.click(f_.MainForm.logButton(0)); },
        [this] { stage_.click(f_.LogEntry.ACTdepttime_LABEL); });
    visit(
        "clock", f_.ClockForm, [] {}, [this] { close(); });
    then([this] { close(); });
    career();
}

/// Another log book is looked at and taken over; then all of it on one screen.
void Tour::career() {
    const std::string book = writeLogBook(stage_.window.program.session.AppDir);
    then([this] { stage_.click(f_.MainForm.careerButton); });
    then([this, book] {
        stage_.click(f_.CareerForm.sourceTEXT);
        stage_.type(window::toQt(book));
        stage_.key(Qt::Key_Return);
    });
    visit(
        "career-import", f_.CareerForm, [] {}, [this] { stage_.click(f_.CareerForm.takeButton); });
    then([this] {
        stage_.click(f_.CareerForm.sourceTEXT);
        stage_.key(Qt::Key_A, Qt::ControlModifier);
        stage_.key(Qt::Key_Delete);
        close();
    });
    visit(
        "career", f_.CareerForm, [this] { stage_.click(f_.MainForm.careerButton); }, [this] { close(); });
}

void Tour::settings() {
    visit(
        "settings", f_.SettingsForm, [this] { stage_.click(f_.MainForm.FlatButton(1)); },
        [this] { stage_.click(f_.SettingsForm.pathButton); });
    visit(
        "folder", f_.DirForm, [] {}, [this] { close(); });
    then([this] { close(); });
}

void Tour::imports() {
    const std::string tables = writeTables(stage_.window.program.session.AppDir);
    then([this] { stage_.click(f_.MainForm.main_LABEL); });
    then([this] { stage_.click(f_.MainForm.importButton); });
    then([this, tables] {
        stage_.click(f_.ImportForm.sourceTEXT);
        stage_.type(window::toQt(tables));
        stage_.key(Qt::Key_Return);
    });
    then([this] { stage_.click(f_.ImportForm.startButton); });
    then([this] { stage_.key(Qt::Key_Return); });
    visit(
        "import", f_.ImportForm, [] {}, [this] { close(); });
}

/// Screens that are only up for a moment of work, or that nothing on this road brings up.
void Tour::notices() {
    const auto briefly = [this](const char* name, Screen& screen) {
        then([this, &screen] { stage_.desk().act([&] { showScreen(stage_.window.program, screen); }); });
        takeLater(name);
        then([this, &screen] { stage_.desk().act([&] { hideScreen(stage_.window.program, screen); }); });
    };
    briefly("wait", f_.WaitForm);
    then([this] { f_.MsgBox.text.text = "You may not remove the Departure or Destination Airport"; });
    briefly("message-box", f_.MsgBox);
    briefly("splash", f_.SplashForm);
    then([this] {
        stage_.window.desktop.notify("There is no printer. The pages lie in Printouts/Printout 1.pdf");
    });
    takeLater("note");
}

} // namespace gatewise::tour
