#include "selection/AirportFinder.h"

#include <algorithm>
#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace gatewise {

namespace {

// One airport in the block: the four fields, each closed by a NUL, which no search text that is typed can
// hold. So no hit reaches from one field into the next.
constexpr std::size_t kLongestField = 35;
constexpr std::size_t kRow = 3 + 1 + 4 + 1 + 35 + 1 + 33 + 1;
constexpr std::size_t kLookahead = 16 + kLongestField; // bytes behind the block that may be read

/// Two characters of a text by which places in the block are passed over quickly: the two rarest.
struct Anchors {
    std::size_t first = 0, second = 0;
};

Anchors anchorsOf(std::string_view text, const std::array<std::uint32_t, 256>& frequency) {
    const auto count = [&](std::size_t i) { return frequency[static_cast<unsigned char>(text[i])]; };
    Anchors anchors;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (count(i) < count(anchors.first)) anchors.first = i;
    }
    anchors.second = anchors.first == 0 ? text.size() - 1 : 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i != anchors.first && text[i] != text[anchors.first] && count(i) < count(anchors.second))
            anchors.second = i;
    }
    return anchors;
}

/// Bit b is set when both anchors stand at `at` + b; 16 places at a time.
class AnchorTest {
public:
    static constexpr std::size_t kPlaces = 16;

    AnchorTest(std::string_view text, const Anchors& anchors)
        : anchors_(anchors), first_(text[anchors.first]), second_(text[anchors.second]) {}

#if defined(__SSE2__)
    [[nodiscard]] unsigned operator()(const char* at) const {
        const auto hits = [](const char* from, char wanted) {
            const auto bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
            return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted));
        };
        const auto both =
            _mm_and_si128(hits(at + anchors_.first, first_), hits(at + anchors_.second, second_));
        return static_cast<unsigned>(_mm_movemask_epi8(both));
    }
#else
    [[nodiscard]] unsigned operator()(const char* at) const {
        unsigned mask = 0;
        for (std::size_t b = 0; b < kPlaces; ++b) {
            const bool hit = at[b + anchors_.first] == first_ && at[b + anchors_.second] == second_;
            mask |= (hit ? 1U : 0U) << b;
        }
        return mask;
    }
#endif

private:
    Anchors anchors_;
    char first_, second_;
};

bool rowHolds(std::string_view row, std::string_view folded) {
    return row.find(folded) != std::string_view::npos;
}

bool canStandInAField(std::string_view text) {
    return !text.empty() && text.size() <= kLongestField;
}

} // namespace

AirportFinder::AirportFinder(const std::vector<AirportRecord>& airports) : airports_(airports.size()) {
    std::array<char, 256> fold{};
    for (unsigned c = 0; c < fold.size(); ++c) fold[c] = upperCase(static_cast<char>(c));
    folded_.assign(airports.size() * kRow + kLookahead, '\0');
    char* out = folded_.data();
    for (const auto& airport : airports) {
        for (const auto field :
             {airport.Iata.view(), airport.Icao.view(), airport.Name.view(), airport.City.view()}) {
            for (const char c : field) {
                *out = fold[static_cast<unsigned char>(c)];
                ++frequency_[static_cast<unsigned char>(*out++)];
            }
            ++out;
        }
    }
}

std::vector<std::int32_t> AirportFinder::find(std::string_view text) const {
    std::vector<std::int32_t> found;
    if (!canStandInAField(text)) return found;
    if (text.find('\0') != std::string_view::npos) {
        for (std::int32_t i = 0; i < static_cast<std::int32_t>(airports_); ++i) {
            if (matches(i, text)) found.push_back(i);
        }
        return found;
    }
    const std::string folded = upperCase(text);
    const AnchorTest test(folded, anchorsOf(folded, frequency_));
    const char* const block = folded_.data();
    const std::size_t end = airports_ * kRow;
    for (std::size_t at = 0; at < end;) {
        unsigned mask = test(block + at);
        std::size_t next = at + AnchorTest::kPlaces;
        for (; mask != 0; mask &= mask - 1) {
            const std::size_t place = at + static_cast<std::size_t>(std::countr_zero(mask));
            if (place >= end || std::memcmp(block + place, folded.data(), folded.size()) != 0) continue;
            // One hit is enough for an airport: go on with the next one.
            const std::size_t row = place / kRow;
            found.push_back(static_cast<std::int32_t>(row));
            next = (row + 1) * kRow;
            break;
        }
        at = next;
    }
    return found;
}

bool AirportFinder::matches(std::int32_t airport, std::string_view text) const {
    if (airport < 0 || static_cast<std::size_t>(airport) >= airports_ || !canStandInAField(text))
        return false;
    const std::string folded = upperCase(text);
    const auto row = std::string_view(folded_).substr(static_cast<std::size_t>(airport) * kRow, kRow);
    if (text.find('\0') == std::string_view::npos) return rowHolds(row, folded);
    std::size_t start = 0;
    for (const std::size_t width : {3U, 4U, 35U, 33U}) {
        if (rowHolds(row.substr(start, width), folded)) return true;
        start += width + 1;
    }
    return false;
}

} // namespace gatewise
