#include "pages/ExportFiles.h"

#include "export/ExportACSGPS.h"
#include "export/ExportFMC.h"
#include "export/ExportFS2000.h"
#include "export/ExportFSNav.h"
#include "export/ExportRC2.h"
#include "export/ExportSB.h"
#include "pages/MsgForm.h"
#include "platform/Files.h"
#include "schedule/FlightTexts.h"

namespace gatewise {

namespace {

ExportFlight exportFlight(const Program& p) {
    return {flightStem(p.g.tables, p.g.CurrentFlight), p.g.HaveAlternate != kFalse};
}

MagneticTable magneticTable(const Program& p) {
    return MagneticTable(p.g.FsPath);
}

/// Message `id` when the file stands, else message 14 with what kept it from standing.
void sayWritten(Program& p, std::error_code error, int id, const char* routine) {
    if (error) {
        ShowFailure(p, error, routine);
        return;
    }
    ShowMessage(p, kInformation, id);
}

} // namespace

void exportFlightPlanFile(Program& p, const std::string& path) {
    (void)files::replace(singleBackslashes(path), fs2000Plan(p.g.plan, exportFlight(p), p.g.numbers));
}

void exportFmcPlan(Program& p, const std::string& folder) {
    const std::string path = folder + "\\fmsplans.fmc";
    const auto old = files::readAll(path);
    if (!old) return;
    const std::string_view oldText(reinterpret_cast<const char*>(old->data()), old->size());
    if (const auto plans = fmcPlans(p.g.plan, oldText, p.g.numbers)) (void)files::replace(path, *plans);
}

void ExportRC2(Program& p, const std::string& path) {
    const DateTime now = p.machine.clock.now();
    const ExportMoment moment{p.machine.locale.longDate(now), twelveHourTime(now)};
    const auto plan = rc2Plan(p.g.plan, exportFlight(p), moment, magneticTable(p), p.g.numbers);
    if (!plan) {
        ShowMessage(p, kWarning, 12);
        return;
    }
    sayWritten(p, files::replace(singleBackslashes(path), *plan), 10, "ExportRC2");
}

void ExportACSGPS(Program& p, const std::string& path) {
    sayWritten(p, files::replace(singleBackslashes(path), acsGpsPlan(p.g.plan, p.g.numbers)), 8,
               "ExportACSGPS");
}

void ExportSB(Program& p, const std::string& path) {
    sayWritten(
        p, files::replace(singleBackslashes(path), squawkBoxPlan(p.g.plan, magneticTable(p), p.g.numbers)), 9,
        "ExportSB");
}

void ExportFSNav(Program& p) {
    const ExportFlight flight = exportFlight(p);
    const std::string path = p.g.FsPath + "\\Modules\\FSNavigator\\Plan\\" + flight.stem + ".fsn";
    std::error_code error;
    const auto old = files::readAll(path, &error);
    // What is there but cannot be read must not lose its tail.
    if (!old && error != std::errc::no_such_file_or_directory) {
        sayWritten(p, error, 0, "ExportFSNav");
        return;
    }
    error = files::replace(path, fsnavPlan(p.g.plan, flight, old ? ByteView(*old) : ByteView()));
    sayWritten(p, error, 18, "ExportFSNav");
}

} // namespace gatewise
