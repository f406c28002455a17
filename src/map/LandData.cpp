#include "map/LandData.h"

#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace gatewise::map {

/// Lines of one kind and scale where the file has them.
struct LandLayer {
    int kind = 0;
    int scale = 0;
    std::size_t count = 0;
    ByteView bytes;
};

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

using Lines = std::vector<std::vector<Vector>>;

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

/// Hands the points of the next line to `take` as thousandths of a degree; false when it breaks off.
template<class Take> bool readLine(Numbers& numbers, Take take) {
    const int count = numbers.next();
    // A point takes two bytes at least, so that a false count asks for no memory.
    if (!numbers.good || count < 1 || static_cast<std::size_t>(count) > numbers.left() / 2) return false;
    long long longitude = 0, latitude = 0;
    for (int i = 0; i < count; ++i) {
        longitude += numbers.next();
        latitude += numbers.next();
        if (!numbers.good || longitude < -360'000 || longitude > 360'000) return false;
        if (latitude < -90'000 || latitude > 90'000) return false;
        take(static_cast<double>(latitude) / kUnit, static_cast<double>(longitude) / kUnit);
    }
    return true;
}

constexpr std::size_t kLayerHead = 12;

/// Finds the layer at `at` and moves behind it; false when it is broken.
bool findLayer(ByteView bytes, std::size_t& at, LandLayer& layer) {
    const auto kind = numberAt<std::uint8_t>(bytes, at);
    const auto scale = numberAt<std::uint8_t>(bytes, at + 1);
    const auto count = numberAt<std::uint32_t>(bytes, at + 4);
    const auto length = numberAt<std::uint32_t>(bytes, at + 8);
    if (!kind || !scale || !count || !length || *kind >= kKinds) return false;
    at += kLayerHead;
    if (*length > bytes.size() - at || *count > *length) return false;
    layer = {*kind, *scale, *count, bytes.subspan(at, *length)};
    at += *length;
    Numbers numbers(layer.bytes);
    for (std::size_t i = 0; i < layer.count; ++i) {
        if (!readLine(numbers, [](double, double) {})) return false;
    }
    return numbers.left() == 0;
}

/// The layers of a file, all of it looked through; none when it is broken.
std::vector<LandLayer> layersOf(ByteView bytes) {
    if (bytes.size() < kMagic.size() || !std::equal(kMagic.begin(), kMagic.end(), bytes.begin())) return {};
    const auto count = numberAt<std::uint32_t>(bytes, kMagic.size());
    if (!count || *count > 2 * kKinds) return {};
    std::size_t at = kMagic.size() + 4;
    std::vector<LandLayer> layers(*count);
    const bool good =
        std::all_of(layers.begin(), layers.end(), [&](LandLayer& l) { return findLayer(bytes, at, l); });
    return good && at == bytes.size() ? layers : std::vector<LandLayer>();
}

Lines linesOf(const LandLayer& layer) {
    Lines lines(layer.count);
    Numbers numbers(layer.bytes);
    for (auto& line : lines)
        (void)readLine(numbers, [&](double latitude, double longitude) {
            line.push_back(vectorOf(Spot{latitude, longitude}));
        });
    return lines;
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

std::vector<Outline>& outlinesOf(LandLevel& level, int kind) {
    return kind == kLand ? level.land : kind == kLakes ? level.lakes : level.borders;
}

/// The lines of a layer as fine as a row wants them: each is made of the finer row's, which has fewer points
/// than the file.
Lines linesFor(const LandLayer& layer, std::size_t row) {
    if (!kLevels[row].thins) return linesOf(layer);
    Lines lines = linesFor(layer, row - 1);
    for (auto& line : lines) line = thinned(line, layer.kind != kBorders, kLevels[row].degrees * kDegree);
    return lines;
}

LandLevel levelOf(const std::vector<LandLayer>& layers, std::size_t row) {
    LandLevel level{kLevels[row].degrees * kDegree, {}, {}, {}};
    for (const LandLayer& layer : layers) {
        if (layer.scale != kLevels[row].scale) continue;
        for (const auto& line : linesFor(layer, row)) {
            Outline outline = outlineOf(line, layer.kind != kBorders);
            if (outline.points.empty() || outline.cap.radius < level.tolerance) continue;
            outlinesOf(level, layer.kind).push_back(std::move(outline));
        }
    }
    return level;
}

} // namespace

/// The file and the levels made of it so far.
class Land::Maker {
public:
    explicit Maker(Bytes file) : file_(std::move(file)), layers_(layersOf(file_)) {}
    [[nodiscard]] bool empty() const { return layers_.empty(); }
    const LandLevel& at(std::size_t row) {
        const std::scoped_lock lock(guard_);
        if (!made_.at(row)) made_.at(row) = std::make_unique<const LandLevel>(levelOf(layers_, row));
        return *made_.at(row);
    }

private:
    Bytes file_;
    std::vector<LandLayer> layers_;
    std::mutex guard_;
    std::array<std::unique_ptr<const LandLevel>, std::size(kLevels)> made_;
};

Land::Land(Bytes file) : maker_(std::make_shared<Maker>(std::move(file))) {
    if (maker_->empty()) maker_.reset();
}

std::size_t Land::levels() const {
    return maker_ ? std::size(kLevels) : 0;
}

const LandLevel& Land::at(std::size_t level) const {
    return maker_->at(level);
}

const LandLevel* Land::level(double tolerance) const {
    if (!maker_) return nullptr;
    std::size_t found = 0;
    for (std::size_t i = 0; i < std::size(kLevels); ++i) {
        if (kLevels[i].degrees * kDegree <= tolerance) found = i;
    }
    return &at(found);
}

std::shared_ptr<const Land> readLand(std::string_view path) {
    static std::mutex guard;
    static std::map<std::string, std::weak_ptr<const Land>, std::less<>> known;
    const std::scoped_lock lock(guard);
    auto& held = known[std::string(path)];
    if (auto land = held.lock()) return land;
    auto bytes = files::readAll(path);
    auto land = std::make_shared<const Land>(bytes ? Land(std::move(*bytes)) : Land());
    held = land;
    return land;
}

} // namespace gatewise::map
