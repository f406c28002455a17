#include "OutsideFile.h"
#include "simulator/AircraftScan.h"

// Any bytes as an aircraft folder's file: what is offered has a title of its own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gatewise;
    static const struct Folder {
        Folder() { std::filesystem::create_directories(path / "b737" / "panel"); }
        ~Folder() {
            std::error_code ignored;
            std::filesystem::remove_all(path, ignored);
        }
        const std::filesystem::path path = fuzz::scratchPath("Aircraft");
    } folder;
    std::ofstream(folder.path / "b737" / "aircraft.cfg", std::ios::binary | std::ios::trunc)
        << std::string_view(reinterpret_cast<const char*>(data), size);
    const auto found = FilesSearch(folder.path.string());
    fuzz::expect(found.size() <= 100);
    for (const ScannedAircraft& aircraft : found) {
        fuzz::expect(!aircraft.title.empty() && aircraft.title.size() <= 254);
        fuzz::expect(aircraft.notesPath.ends_with("_NOTES"));
    }
    return 0;
}
