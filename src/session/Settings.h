#pragma once

#include "board/Board.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <system_error>

namespace gatewise {

/// The folder that an export went into last, with the drive of it ("C:", empty where there are no drives).
struct ExportFolder {
    std::string path;
    std::string drive;
};

/// The minutes before departure and the miles that the settings screen offers.
inline constexpr std::array kPreFlightMinutes = {0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50, 55, 60};
inline constexpr std::array kAlternateMiles = {5, 10, 15, 20, 25, 30, 35, 40, 45, 50, 75, 100, 150, 200, 500};

/// What GT.cfg keeps, under the names of its keys. The controls of the settings screens show these values and
/// store every change of theirs here at once; all other work reads them here. A box holds 0, 1 or 2, and only
/// 1 is on.
struct Settings {
    /// Why GT.cfg could not be read: what stands here then is not the pilot's, and is not written over it.
    std::error_code unread;

    std::string FsPath;          // folder of the simulator
    std::int32_t HomeIndex = 0;  // in the airport table; "Index" in the file
    std::string FavoriteAirline; // the default airline; the board may be filtered by another
    std::string DataSetPath = "\\Data";
    std::string Last, First; // the pilot's names
    int StatusBoard = 0;     // start with the board

    int AmbienceVolume = 0; // target, -9000 to 0 in hundredths of a decibel; a file may say any 16 bits
    int Dept1 = 0, Dept2 = 0, Dept3 = 0;
    int Arr1 = 0, Arr2 = 0, Arr3 = 0;
    BoardSort sort = BoardSort::None;

    int FltNumber = 0, Callsign = 0; // what ProFlight 2000 is handed

    std::optional<int> PreFlight; // minutes, one of kPreFlightMinutes; nothing before a file was read
    int FindAlternate = 0;
    int SetDept = 0, SetDest = 0; // the home airport follows; at most one of the two is 1 on the screen
    int SetDefault = 0;
    int AnyAirline = 0;
    std::optional<int> MinDist; // nautical miles, one of kAlternateMiles; likewise

    int Fmc747 = 0, PF2Kfmc = 0, CPfmc = 0;
    // Ours; what they are at the start changes nothing.
    int AnnouncementVolume = 0; // of announcements, -9000 to 0 in hundredths of a decibel
    int Muted = 0;
    int ComeBack = 0;              // the next start is where this run ended:
    int LastLeft = 0, LastTop = 0; // of the window, pixels of the desktop
    int LastPage = 0;              // 0 main, 1 board, 2 log book
    std::string LastAirport;       // ICAO code of the departure airport, empty: none

    std::map<std::string, ExportFolder, std::less<>> exportFolders; // by the export's word: "SB"
};

} // namespace gatewise
