#include "work/ProFlight.h"

#include "export/ExportPF2K.h"
#include "platform/Files.h"
#include "work/Notices.h"

namespace gatewise {

namespace {

std::string configOf(const Settings& settings) {
    return proFlightFolder(settings) + "\\PF2000.cfg";
}

} // namespace

std::string proFlightFolder(const Settings& settings) {
    return settings.FsPath + "\\PF2000";
}

std::optional<Notice> proFlightMissing(const Settings& settings) {
    if (files::fileExists(configOf(settings))) return std::nullopt;
    return warn(Message::NoProFlight);
}

void ExportPF2K(const Settings& settings, const Schedule& schedule, const Dispatch& dispatch,
                const NumberLocale& numbers, const std::string& planName, Plan& plan) {
    if (plan.descentRate < 0) plan.descentRate = -plan.descentRate;
    const ProFlightOptions options{settings.First, settings.Last, settings.Callsign == 1,
                                   settings.FltNumber == 1, settings.PreFlight.value_or(0)};
    auto keys = proFlightKeys(plan, dispatch.CurrentFlight, schedule.tables, options, numbers);
    keys.push_back({"FlightInfo", "GTFlight", planName});
    // The missing installation was the one warning.
    (void)WriteValues(keys, configOf(settings));
}

} // namespace gatewise
