#include "OutsideFile.h"
#include "gt1/Compile.h"
#include "gt1/Pack.h"

#include <array>

namespace {

using namespace gatewise;

constexpr std::array<std::pair<const char*, const char*>, 11> kTables = {{
    {"airports.csv",
     "iata,icao,name,city,elevation_ft,latitude,longitude\nAAA,KAAA,A,A,1,1,1\nBBB,KBBB,B,B,1,2,2\n"},
    {"runways.csv", "airport,runway,latitude,longitude,heading_true,heading_magnetic,ils,ils_frequency\nAAA,"
                    "04L,1,1,30,40,,\n"},
    {"radios.csv",
     "airport,approach,delivery,departure,ground,radio5,tower,radio7\nAAA,,,,,,,\nBBB,,,,,,,\n"},
    {"airlines.csv", "code,name,callsign\nX0,Example,EXAMPLE\n"},
    {"aircraft.csv",
     "code,name,climb_fpm,descent_fpm,cruise_altitude_ft,cruise_speed_kt,pf_company,pf_aircraft\n"
     "320,A320,2300,2000,37000,258,Airbus,A320\n"},
    {"flights.csv",
     "origin,departure,destination,arrival,miles,days,airline,number,aircraft,class,meals,reserved,plan\n"
     "AAA,0005,BBB,0210,640,17,X0,1,320,A,B S,,1\n"},
    {"vor.csv", "ident,name,latitude,longitude,frequency\nPUT,PUTNAM,41,-71,117.40\n"},
    {"ndb.csv", "ident,name,latitude,longitude,frequency\nAB,ALBA,61,-6,381.0\n"},
    {"fixes.csv", "name,key,latitude,longitude\n53N20,53N20,53,-20\n"},
    {"jets.csv", "key,name,description,latitude,longitude,kind,frequency\nJ1,PUT,PUTNAM,41,-71,V,117.40\n"},
    {"plans.csv", "plan,origin,destination,sequence,kind,fix,airway\n1,AAA,BBB,1,V,PUT,J1\n"},
}};

/// A folder of sound tables in which one at a time is replaced.
struct TableFolder {
    TableFolder() {
        std::filesystem::create_directories(path);
        for (const auto& [name, text] : kTables) write(name, text);
    }
    ~TableFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    void write(const char* name, std::string_view text) const {
        std::ofstream(path / name, std::ios::binary | std::ios::trunc) << text;
    }
    const std::filesystem::path path = fuzz::scratchPath("tables");
};

} // namespace

// Any bytes as one of the tables: a set that is made without an error can be packed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TableFolder tables;
    if (size == 0) return 0;
    const auto& [name, sound] = kTables[data[0] % kTables.size()];
    tables.write(name, {reinterpret_cast<const char*>(data + 1), size - 1});
    gt1::Report report;
    const gt1::World world = gt1::readWorld(tables.path, report);
    const gt1::DataSet set = gt1::readDataSet(tables.path, world, report);
    if (!report.failed()) fuzz::expect(gt1::packDataSet(set, report).size() == 6);
    tables.write(name, sound);
    return 0;
}
