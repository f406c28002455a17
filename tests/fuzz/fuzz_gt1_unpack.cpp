#include "OutsideFile.h"
#include "gt1/Commands.h"
#include "gt1/Unpack.h"

#include <array>

namespace {

using namespace gatewise;

constexpr std::array<const char*, 12> kFiles = {"index.gt1", "airline.gt1", "routes.gt1",   "arrivals.gt1",
                                                "Plans.gt1", "APT.gt1",     "aircraft.gt1", "VOR.gt1",
                                                "NDB.gt1",   "ISC.gt1",     "JRT.gt1",      "Regions.txt"};

/// A folder of empty tables in which one at a time is replaced.
struct Set {
    Set() {
        std::filesystem::create_directories(path);
        for (const char* name : kFiles) write(name, {});
    }
    ~Set() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    void write(const char* name, std::string_view bytes) const {
        std::ofstream(path / name, std::ios::binary | std::ios::trunc) << bytes;
    }
    const std::filesystem::path path = fuzz::scratchPath("set");
};

} // namespace

// Any bytes as files of a set: every table is written down, or what is wrong is said. The bytes are dealt
// out: a number of a file and a length before each part.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Set set;
    for (std::size_t at = 0; at + 2 < size;) {
        const std::size_t length = std::min<std::size_t>(data[at + 1] * 4U, size - at - 2);
        set.write(kFiles[data[at] % kFiles.size()], {reinterpret_cast<const char*>(data + at + 2), length});
        at += 2 + length;
    }
    gt1::Report report;
    const auto tables = gt1::dumpFolder(set.path, std::nullopt, report);
    fuzz::expect(tables.size() == kFiles.size() - 1); // regions are a column
    for (std::size_t at = 0; at + 2 < size; at += 2 + std::min<std::size_t>(data[at + 1] * 4U, size - at - 2))
        set.write(kFiles[data[at] % kFiles.size()], {});
    return 0;
}
