#include "OutsideFile.h"
#include "logbook/LogExchange.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<gatewise::LogRecord> entries(12);
    gatewise::mergeExchange({data, size}, entries);
    const auto written = gatewise::exchangeBytes(entries, {data, size});
    gatewise::fuzz::expect(written.size() >= size);
    return 0;
}
