#include "OutsideFile.h"
#include "schedule/Lookups.h"
#include "schedule/Readers.h"

// Any bytes as airline.gt1: a code that the table holds is found again, by the last row that has it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gatewise;
    static const fuzz::OutsideFile file("airline.gt1");
    file.fill({data, size});
    Tables tables;
    fuzz::expect(loadAirlines(file.path(), tables));
    for (const auto& airline : tables.airlines) {
        std::string_view name;
        for (const auto& other : tables.airlines) {
            if (other.Code.trimmed() == airline.Code.trimmed()) name = other.Name.trimmed();
        }
        fuzz::expect(find_airline(tables, airline.Code.view()) == name);
        fuzz::expect(find_pf_callsign(tables, airline.Code.view()).size() == 24);
        (void)find_airline_code(tables, airline.Name.view());
        (void)firstAirlineCode(tables, airline.Name.view());
    }
    return 0;
}
