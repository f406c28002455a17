#include "work/ProgramChoices.h"

#include "platform/Files.h"
#include "programs/Cycle.h"
#include "schedule/FlightTexts.h"
#include "work/ConfigFile.h"

#include <algorithm>

namespace gatewise {

programs::Choices readChoices(const std::string& AppDir) {
    return programs::choicesIn(loadProfile(configPath(AppDir)), userFolders());
}

std::error_code writeChoices(const std::string& AppDir, const programs::Choices& choices) {
    const UserFolders folders = userFolders();
    const auto same = [](const ProfileValue& a, const ProfileValue& b) { return a.value == b.value; };
    const auto values = valuesOf(choices, folders);
    if (std::ranges::equal(values, valuesOf(readChoices(AppDir), folders), same)) return {};
    return WriteValues(values, configPath(AppDir));
}

programs::Dispatch programDispatch(const std::string& AppDir, const PlanDesk& desk, const Schedule& schedule,
                                   const Dispatch& dispatch, const Machine& machine) {
    const Bytes regions = files::readAll(regionsPath(AppDir)).value_or(Bytes());
    return {desk.plan, flightStem(schedule.tables, dispatch.CurrentFlight),
            programs::utcOf(machine.clock.now(), machine.clock.bias()),
            programs::regionsOf(desk.plan, asText(regions))};
}

} // namespace gatewise
