#pragma once

#include "board/BoardTypes.h"
#include "schedule/Records.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The board's pages of 20 rows: header, texts and colours.

namespace gatewise {

inline constexpr int kRowsOnPage = 20;

/// Number of pages, at least 1.
int boardPages(int BoardRowCount);
bool hasNextPage(int BoardRowCount, int BoardPage);
bool hasPreviousPage(int BoardPage);

struct BoardHeader {
    const AirportRecord& airport; // of the board
    int hours = 0, minutes = 0;   // of the board's clock
    int seconds = 0;              // of the system's
    std::string_view FavoriteAirlineName;
    bool arriving = false;
    std::string_view dayText; // of the day list
    int BoardPage = 0;
    int BoardRowCount = -1;
};

/// The two lines above the board, parted by a line feed.
std::string headerText(const BoardHeader& header);

struct StatusColour {
    std::uint8_t red = 0, green = 0, blue = 0;
    friend bool operator==(const StatusColour&, const StatusColour&) = default;
};

/// Colour of a status on an even or odd row; nothing for a text that is no status.
std::optional<StatusColour> statusColour(std::string_view status, bool arriving, bool oddRow);

/// What the labels of one row show.
struct BoardRowTexts {
    std::string fltnum = " ", city = " ", time = " ", status = " ";
    std::optional<StatusColour> statusColour; // nothing: the label keeps its colour
};

/// The 20 rows of a page, blank behind the last row of the board.
std::array<BoardRowTexts, kRowsOnPage> boardPage(const BoardLists& lists, int BoardPage, bool arriving);

} // namespace gatewise
