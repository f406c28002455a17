#pragma once

#include <string>
#include <vector>

namespace gatewise {

/// Folders that hold the simulator, among those where it usually lies: below the Windows programs of this
/// computer, of mounted `volumes` and of Wine's folders in `home`. Texts of the program, each folder once,
/// the likeliest first; empty when none is there.
std::vector<std::string> likelyPlaces(const std::string& home, const std::vector<std::string>& volumes);

} // namespace gatewise
