#include "OutsideFile.h"
#include "sound/WaveJoiner.h"

#include <array>

// Any bytes as three recordings: what is joined holds exactly their samples, and nothing is left of what is
// not.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gatewise;
    static const std::array<fuzz::OutsideFile, 3> pieces = {
        fuzz::OutsideFile("a.wav"), fuzz::OutsideFile("b.wav"), fuzz::OutsideFile("c.wav")};
    static const fuzz::OutsideFile target("joined.wav");
    if (size < 2) return 0;
    const std::size_t first = std::min<std::size_t>(data[0], size - 2);
    const std::size_t second = std::min<std::size_t>(data[1], size - 2 - first);
    const ByteView rest(data + 2, size - 2);
    const std::array<ByteView, 3> parts = {rest.first(first), rest.subspan(first, second),
                                           rest.subspan(first + second)};
    std::vector<std::string> names;
    std::size_t samples = 0;
    bool whole = true;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        pieces[i].fill(parts[i]);
        names.push_back(pieces[i].path());
        whole = whole && parts[i].size() > 44;
        samples += parts[i].size() - 44;
    }
    std::error_code ignored = files::remove(target.path());
    fuzz::expect(joinWaves(names, target.path()) == whole);
    const auto joined = files::readAll(target.path(), &ignored);
    fuzz::expect(joined.has_value() == whole);
    // Each piece begins on the last byte of the one before.
    fuzz::expect(!whole || joined->size() == 44 + samples - 2);
    return 0;
}
