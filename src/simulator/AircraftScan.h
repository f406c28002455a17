#pragma once

#include <atomic>
#include <string>
#include <string_view>
#include <vector>

// The aircraft that the simulator has: one folder each, with its variations in aircraft.cfg.

namespace gatewise {

inline constexpr std::size_t kAircraftLimit = 10'000; // folders, and aircraft in all

/// An aircraft on offer.
struct ScannedAircraft {
    std::string title;
    std::string notesPath; // of its folder
};

/// A variation as aircraft.cfg names it. Both values end after 254 characters, blanks around them are gone
/// unless they stood in quotes; a missing key reads as its own name.
struct AircraftVariation {
    std::string title;
    std::string sim;
};

/// The variations fltsim.0 to fltsim.99 of an aircraft.cfg up to the first one that is missing or unnamed. A
/// title that begins with "title" counts as missing.
std::vector<AircraftVariation> variationsOf(std::string_view content);

/// A scan on its way, which another thread may watch and end.
struct ScanProgress {
    std::atomic<int> folders = 0; // looked into so far
    std::atomic<bool> stop = false;
};

/// All aircraft with a panel below a folder: folders in the order of the file system, variations in theirs.
/// A scan that was stopped has those that it had found.
std::vector<ScannedAircraft> FilesSearch(std::string_view path, ScanProgress* progress = nullptr);

} // namespace gatewise
