#include "OutsideFile.h"
#include "schedule/Lookups.h"
#include "schedule/Readers.h"

// Any bytes as aircraft.gt1: a code that the table holds is found again, by the last row that has it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gatewise;
    static const fuzz::OutsideFile file("aircraft.gt1");
    file.fill({data, size});
    Tables tables;
    fuzz::expect(loadAircraft(file.path(), tables));
    for (const auto& aircraft : tables.aircraft) {
        std::string_view name;
        for (const auto& other : tables.aircraft) {
            if (other.Code == aircraft.Code) name = other.Name.view();
        }
        fuzz::expect(find_aircraft(tables, aircraft.Code.view()) == name);
        fuzz::expect(find_pf_compnay(tables, aircraft.Code.view()).size() == 27);
        fuzz::expect(find_pf_aircraft(tables, aircraft.Code.view()).size() == 29);
    }
    return 0;
}
