#include "OutsideFile.h"
#include "plan/Geometry.h"

#include <cmath>

// Two positions, a heading, then any bytes as the simulator's table of variation.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gatewise;
    static const std::filesystem::path root =
        std::filesystem::temp_directory_path() / ("gatewise-fuzz-magdec-" + std::to_string(::getpid()));
    static const bool made = std::filesystem::create_directories(root / "SCENERY");
    fuzz::expect(made);
    const ByteView input(data, size);
    const auto latitude = numberAt<float>(input, 0);
    const auto longitude = numberAt<float>(input, 4);
    const auto heading = numberAt<float>(input, 8);
    if (!latitude || !longitude || !heading) return 0;
    const ByteView bytes = input.subspan(12);
    std::ofstream(root / "SCENERY" / "magdec.bgl", std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    const MagneticTable table(root.string());
    const float magnetic = table.magneticHeading(*latitude, *longitude, *heading);
    // A heading from outside the circle may come back as it went in; one inside stays inside.
    if (*heading >= 0 && *heading < 360) fuzz::expect(magnetic >= 0 && magnetic < 360);
    return 0;
}
