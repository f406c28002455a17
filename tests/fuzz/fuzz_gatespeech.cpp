#include "OutsideFile.h"
#include "sound/GateSpeech.h"

// Any text as a flight and a city: what is spoken are three characters, digits, and recordings of the folder.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gatewise;
    const std::string text(data, data + size);
    if (const auto flight = splitFlight(text)) {
        fuzz::expect(flight->airline == text.substr(0, 3));
        fuzz::expect(flight->lastDigits.size() <= 4 && flight->firstDigits.size() <= 4);
    }
    const std::string folder = "/no/such/folder/";
    fuzz::expect(airlineRecording(folder, text).starts_with(folder));
    const SpokenCity city = cityRecordings(folder, "to", text);
    fuzz::expect(city.city.starts_with(folder));
    return 0;
}
