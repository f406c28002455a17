#include "logbook/LogBook.h"
#include "logbook/LogTexts.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto entries = gatewise::logEntriesOf({data, size});
    const gatewise::NumberLocale numbers;
    for (int page = 1; page <= gatewise::logPages(static_cast<int>(entries.size()) - 1); ++page) {
        (void)gatewise::logPageTexts(entries, page, numbers);
    }
    for (const auto& e : entries) {
        (void)gatewise::hhmmText(e.actualDeparture);
        (void)gatewise::differenceText(e.scheduledArrival, e.actualArrival);
        for (const char* type : {"timeHr_up", "timeHr_dn", "timeMin_up", "timeMin_dn"}) {
            (void)gatewise::stepTime(e.actualArrival, type);
            (void)gatewise::stepHours(e.dayHours, type);
        }
    }
    return 0;
}
