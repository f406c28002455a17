#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace gatewise {

/// The region of a point: two capital letters or digits as charts and other programs give them ("K3", "ED").
struct RegionEntry {
    char kind = 'I';   // V, N, I: VOR, NDB, fix
    std::string ident; // as in the navigation files
    float latitude = 0;
    float longitude = 0; // degrees, north and east positive
    std::string region;
};

/// Whether a text can be a region.
bool isRegion(std::string_view text);

/// The regions of the world's fixes and navaids. The navigation files have no room for them, so they stand in
/// a text of their own beside those, a point a line: "I LLAKE 27.35 -81.3 K7".
class Regions {
public:
    /// Adds a point at the end; nothing happens where the region of that point is known already.
    void add(RegionEntry entry);
    /// The region of a point: of its kind and ident, the nearest within 0.001 degrees. Empty where it is
    /// unknown.
    [[nodiscard]] std::string_view find(char kind, std::string_view ident, double latitude,
                                        double longitude) const;
    [[nodiscard]] const std::vector<RegionEntry>& entries() const { return entries_; }

private:
    std::vector<RegionEntry> entries_;
    std::unordered_map<std::string, std::size_t> byPlace_; // by kind, ident and cell of a grid: one in each
};

/// The bytes of the file, and the way back. Lines that are none are left out and their numbers, from 1, told
/// to `bad`. With `wanted` only the idents that it wants are kept.
std::string regionsText(const Regions& regions);
Regions regionsIn(std::string_view text, const std::function<void(int line)>& bad = {},
                  const std::function<bool(std::string_view ident)>& wanted = {});

/// The file of a program folder; without one no region is known.
inline constexpr const char* kRegionsFile = "Regions.txt";
std::string regionsPath(std::string_view AppDir);

} // namespace gatewise
