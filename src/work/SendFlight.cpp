#include "work/SendFlight.h"

#include "platform/FileNames.h"
#include "work/Notices.h"

namespace gatewise {

std::string aircraftFolder(const Settings& settings) {
    return settings.FsPath + "\\Aircraft";
}

std::vector<std::string> loadStartChoices(const Settings& settings, const Plan& plan,
                                          SimulatorHandOff& simulator) {
    const PlanAirport& from = plan.departureAirport;
    simulator.storedPositions = loadStoredPositions(settings.FsPath, from.Icao.view());
    return startChoices(from, simulator.storedPositions);
}

std::error_code WriteFlightToSimulator(const std::string& AppDir, const ExportJob& job,
                                       const FlightRecord& flight, const Settings& settings,
                                       const FlyOptions& options, SimulatorHandOff& simulator) {
    std::error_code refused;
    const auto plan = files::namedIn(settings.FsPath + "\\flights\\myflts", job.stem + ".pln", refused);
    const auto situation =
        files::namedIn(settings.FsPath + "\\flights\\fs2kflts", job.stem + ".FLT", refused);
    if (!plan || !situation) return refused;
    const StartPosition start =
        resolveStart(simulator.StartChoice, job.plan, simulator.storedPositions, simulator.SelectedPoint,
                     {simulator.StartLat, simulator.StartLon, simulator.StartHdg});
    simulator.StartLat = start.StartLat;
    simulator.StartLon = start.StartLon;
    simulator.StartHdg = start.StartHdg;
    (void)writeFs2000Plan(job, *plan); // nobody is told what becomes of it
    const SituationInput input{.plan = job.plan,
                               .CurrentFlight = flight,
                               .numbers = job.numbers,
                               .stem = job.stem,
                               .StartChoice = simulator.StartChoice,
                               .start = start,
                               .aircraft = options.aircraft,
                               .fuelPCT = options.fuelPCT,
                               .PreFlight = settings.PreFlight.value_or(0),
                               .pointIndex = simulator.SelectedPoint};
    return WriteSituationFile(AppDir + "\\Data\\default.FLT", *situation, situationKeys(input));
}

std::string situationPath(const Settings& settings, const std::string& stem) {
    return settings.FsPath + "\\flights\\fs2kflts\\" + stem + ".FLT";
}

std::vector<Notice> afterSending(const Settings& settings, const std::string& stem) {
    const auto sent = [&](Message message) {
        Notice notice = inform(message);
        notice.file = situationPath(settings, stem);
        return notice;
    };
    if (settings.SetDefault != 1) return {sent(Message::FlightSent)};
    const auto error = SetDefaultFlight(settings.FsPath, stem);
    if (!error) return {sent(Message::DefaultFlightSent)};
    // The flight itself has arrived; the pilot picks it by hand.
    return {failure(error, "SetDefaultFlight", settings.FsPath + "\\FS2002.CFG"), sent(Message::FlightSent)};
}

} // namespace gatewise
