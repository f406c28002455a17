#include "logbook/LogImport.h"

#include <cstdlib>

// Any bytes as another log book: what is taken over can be kept, and each row is counted once.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto log = gatewise::importLog(text, {});
    for (const auto& e : log.entries) {
        if (!(e.dayHours >= 0 && e.dayHours < 100 && e.nightHours >= 0 && e.instrumentHours >= 0))
            std::abort();
        if (e.actualArrival < 0 || e.actualArrival >= 2400 ||
            (e.departureIcao.trimmed().empty() && e.departureName.trimmed().empty()))
            std::abort();
    }
    if (!log.full && static_cast<int>(log.entries.size()) + log.duplicates + log.unread != log.rows)
        std::abort();
    return 0;
}
