#include "import/Sources.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace gatewise;

/// One source of any bytes: it is no table, or every row that its reader keeps lies within its bounds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    importer::Findings findings;
    std::vector<std::string> faults;
    const auto raw = importer::readSources({importer::textSource("source", text)}, false, findings, faults,
                                           importer::Job());
    const auto expect = [](bool holds) {
        if (!holds) std::abort();
    };
    for (const auto* table : {&raw.worldAirports, &raw.airports})
        for (const auto& row : table->rows)
            expect(row.latitude >= -90 && row.latitude <= 90 && row.longitude <= 180);
    for (const auto& row : raw.fixes.rows) expect(row.latitude >= -90 && row.longitude >= -180);
    for (const auto& row : raw.onTime.rows) {
        expect(row.departure >= 0 && row.departure < 1440 && row.arrival >= 0 && row.arrival < 1440);
        expect(row.number >= 0 && row.day > 0 && row.tail < raw.onTime.tails.size());
    }
    for (const auto& row : raw.ownFlights.rows)
        expect(row.departure / 100 < 24 && row.days > 0 && row.days < 128);
    return 0;
}
