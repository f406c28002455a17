#include "ExportAll.h"

#include "export/ExportACSGPS.h"
#include "export/ExportFMC.h"
#include "export/ExportFS2000.h"
#include "export/ExportFSNav.h"
#include "export/ExportPF2K.h"
#include "export/ExportRC2.h"
#include "export/ExportSB.h"

#include <cstdio>

namespace gatewise::test {

std::vector<ExportedFile> exportAll(const ExportCase& c, const NumberLocale& numbers) {
    const ExportFlight flight = c.exportFlight();
    const ExportMoment moment{"Saturday, June 15, 2002", "08:30 AM"};
    std::vector<ExportedFile> out;
    const auto add = [&](const char* extension, std::string bytes) {
        out.push_back({c.name + extension, std::move(bytes)});
    };
    add(".pln", fs2000Plan(c.plan, flight, numbers));
    add(".fmc", fmcPlans(c.plan, "", numbers).value_or("(refused)"));
    if (const auto rc2 = rc2Plan(c.plan, flight, moment, exportMagnetic(), numbers)) add(".apl", *rc2);
    add(".prg", acsGpsPlan(c.plan, numbers));
    add(".sbp", squawkBoxPlan(c.plan, exportMagnetic(), numbers));
    add(".fsn.hex", hexText(fsnavPlan(c.plan, flight, {})));
    std::string keys;
    for (const auto& key :
         proFlightKeys(c.plan, c.flight, exportTables(), {"Ada ", " Lovell", true, true, 15}, numbers))
        keys += "[" + key.section + "] " + key.key + "=" + key.value + "\r\n";
    add(".keys", keys);
    return out;
}

std::string hexText(ByteView bytes) {
    std::string out;
    char part[24];
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i % 16 == 0) {
            std::snprintf(part, sizeof part, "%04zx:", i);
            out += part;
        }
        std::snprintf(part, sizeof part, " %02x", bytes[i]);
        out += part;
        if (i % 16 == 15 || i + 1 == bytes.size()) out += "\n";
    }
    return out;
}

} // namespace gatewise::test
