#include "map/LandData.h"

#include "platform/Files.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <mutex>
#include <string>

namespace gatewise::map {

namespace {

constexpr std::string_view kMagic = "GWLAND1\n";
constexpr double kUnit = 1000; // parts of a degree in the file

/// Degrees of detail that are made of each scale in the file, the finest first.
struct LevelRow {
    int scale;
    double degrees;
    bool thins; // else the file's own lines are that fine already
};
constexpr LevelRow kLevels[] = {
    {1, 0.002, false}, {1, 0.008, true}, {0, 0.02, false}, {0, 0.08, true}, {0, 0.3, true}};

enum Kind { kLand, kLakes, kBorders, kKinds };

/// Lines of one kind and scale as the file has them.
struct Layer {
    int kind = 0;
    int scale = 0;
    std::vector<std::vector<Vector>> lines;
};

/// Takes zigzag numbers of seven bits a byte from a block; `good` falls when it breaks off.
class Numbers {
public:
    explicit Numbers(ByteView bytes) : bytes_(bytes) {}
    int next() {
        std::uint32_t value = 0;
        for (unsigned shift = 0; shift < 28 && at_ < bytes_.size(); shift += 7) {
            const std::uint8_t byte = bytes_[at_++];
            value |= static_cast<std::uint32_t>(byte & 127U) << shift;
            if (byte < 128) return static_cast<int>(value >> 1U) ^ -static_cast<int>(value & 1U);
        }
        good = false;
        return 0;
    }
    [[nodiscard]] std::size_t left() const { return bytes_.size() - at_; }
    bool good = true;

private:
    ByteView bytes_;
    std::size_t at_ = 0;
};

bool readLine(Numbers& numbers, std::vector<Vector>& line) {
    const int count = numbers.next();
    // A point takes two bytes at least, so that a false count asks for no memory.
    if (!numbers.good || count < 1 || static_cast<std::size_t>(count) > numbers.left() / 2) return false;
    line.reserve(static_cast<std::size_t>(count));
    long long longitude = 0, latitude = 0;
    for (int i = 0; i < count; ++i) {
        longitude += numbers.next();
        latitude += numbers.next();
        if (!numbers.good || longitude < -360'000 || longitude > 360'000) return false;
        if (latitude < -90'000 || latitude > 90'000) return false;
        line.push_back(
            vectorOf({static_cast<double>(latitude) / kUnit, static_cast<double>(longitude) / kUnit}));
    }
    return true;
}

constexpr std::size_t kLayerHead = 12;

/// Reads the layer at `at` and moves behind it; false when it is broken.
bool readLayer(ByteView bytes, std::size_t& at, Layer& layer) {
    const auto kind = numberAt<std::uint8_t>(bytes, at);
    const auto scale = numberAt<std::uint8_t>(bytes, at + 1);
    const auto count = numberAt<std::uint32_t>(bytes, at + 4);
    const auto length = numberAt<std::uint32_t>(bytes, at + 8);
    if (!kind || !scale || !count || !length || *kind >= kKinds) return false;
    at += kLayerHead;
    if (*length > bytes.size() - at || *count > *length) return false;
    Numbers numbers(bytes.subspan(at, *length));
    layer = {*kind, *scale, std::vector<std::vector<Vector>>(*count)};
    if (!std::all_of(layer.lines.begin(), layer.lines.end(),
                     [&](auto& line) { return readLine(numbers, line); }))
        return false;
    at += *length;
    return numbers.left() == 0;
}

bool readLayers(ByteView bytes, std::vector<Layer>& layers) {
    if (bytes.size() < kMagic.size() || !std::equal(kMagic.begin(), kMagic.end(), bytes.begin()))
        return false;
    const auto count = numberAt<std::uint32_t>(bytes, kMagic.size());
    if (!count || *count > 2 * kKinds) return false;
    std::size_t at = kMagic.size() + 4;
    layers.resize(*count);
    return std::all_of(layers.begin(), layers.end(), [&](Layer& l) { return readLayer(bytes, at, l); }) &&
           at == bytes.size();
}

/// A ring is thinned in two halves, which its farthest points part; else it would fall together.
std::vector<Vector> thinned(const std::vector<Vector>& line, bool ring, double tolerance) {
    if (!ring || line.size() < 5) return simplified(line, tolerance);
    const auto far = std::max_element(line.begin(), line.end(), [&](const Vector& a, const Vector& b) {
        return dot(a, line.front()) > dot(b, line.front());
    });
    std::vector<Vector> first(line.begin(), far + 1);
    std::vector<Vector> second(far, line.end());
    second.push_back(line.front());
    std::vector<Vector> out = simplified(first, tolerance);
    const std::vector<Vector> rest = simplified(second, tolerance);
    out.insert(out.end(), rest.begin() + 1, rest.end() - 1);
    return out;
}

std::vector<Outline>& linesOf(LandLevel& level, int kind) {
    return kind == kLand ? level.land : kind == kLakes ? level.lakes : level.borders;
}

LandLevel levelOf(std::vector<Layer>& layers, const LevelRow& row) {
    LandLevel level{row.degrees * kDegree, {}, {}, {}};
    for (Layer& layer : layers) {
        if (layer.scale != row.scale) continue;
        const bool ring = layer.kind != kBorders;
        for (auto& line : layer.lines) {
            // Each level is made of the finer one, which has fewer points than the file.
            if (row.thins) line = thinned(line, ring, level.tolerance);
            Outline outline = outlineOf(line, ring);
            if (outline.points.empty() || outline.cap.radius < level.tolerance) continue;
            linesOf(level, layer.kind).push_back(std::move(outline));
        }
    }
    return level;
}

} // namespace

const LandLevel* Land::level(double tolerance) const {
    const LandLevel* found = levels.empty() ? nullptr : &levels.front();
    for (const LandLevel& level : levels) {
        if (level.tolerance <= tolerance) found = &level;
    }
    return found;
}

Land landOf(ByteView bytes) {
    std::vector<Layer> layers;
    if (!readLayers(bytes, layers)) return {};
    Land land;
    for (const LevelRow& row : kLevels) land.levels.push_back(levelOf(layers, row));
    return land;
}

std::shared_ptr<const Land> readLand(std::string_view path) {
    static std::mutex guard;
    static std::map<std::string, std::weak_ptr<const Land>, std::less<>> known;
    const std::scoped_lock lock(guard);
    auto& held = known[std::string(path)];
    if (auto land = held.lock()) return land;
    const auto bytes = files::readAll(path);
    auto land = std::make_shared<const Land>(bytes ? landOf(*bytes) : Land());
    held = land;
    return land;
}

} // namespace gatewise::map
