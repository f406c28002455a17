#include "board/Paging.h"

#include "platform/Numbers.h"
#include "platform/Text.h"

namespace gatewise {

namespace {

constexpr std::size_t kCodeChars = 4;   // of FlightText: the blank and the airline code
constexpr std::size_t kNumberChars = 4; // the digits of the flight number

struct ColourRow {
    std::string_view status;
    bool departures, arrivals; // the boards on which the row holds
    StatusColour even, odd;
};

constexpr StatusColour kRed = {255, 0, 0};
constexpr StatusColour kCyan = {0, 255, 255}, kDarkCyan = {0, 196, 196};
constexpr StatusColour kGreen = {0, 255, 0}, kDarkGreen = {0, 160, 0};
constexpr StatusColour kYellow = {255, 255, 0}, kDarkYellow = {160, 160, 0};

constexpr std::array<ColourRow, 6> kColours = {{{"ARRIVING", true, true, kRed, kRed},
                                                {"AT GATE", false, true, kCyan, kDarkCyan},
                                                {"ON TIME", true, true, kGreen, kDarkGreen},
                                                {"DEPARTED", true, true, kCyan, kDarkCyan},
                                                {"BOARDING", true, true, kRed, kRed},
                                                {"AT GATE", true, false, kYellow, kDarkYellow}}};

/// " AA123" from " AA 0123": the code without its blanks against the number without its zeros. A text without
/// a number has no such form.
std::optional<std::string> flightLabel(std::string_view FlightText) {
    const std::size_t digits = std::min(kNumberChars, FlightText.size());
    const auto number = parseInteger(FlightText.substr(FlightText.size() - digits));
    if (!number) return std::nullopt;
    return " " + std::string(trimmed(FlightText.substr(0, kCodeChars))) + std::to_string(*number);
}

void writeRow(BoardRowTexts& row, const BoardEntry& entry) {
    if (auto flight = flightLabel(entry.FlightText)) row.fltnum = std::move(*flight);
    row.city = " " + entry.CityText;
    row.time = entry.TimeText;
    row.status = entry.StatusText;
}

} // namespace

int boardPages(int BoardRowCount) {
    return BoardRowCount / kRowsOnPage + 1;
}

bool hasNextPage(int BoardRowCount, int BoardPage) {
    return BoardRowCount / kRowsOnPage > BoardPage;
}

bool hasPreviousPage(int BoardPage) {
    return BoardPage >= 1;
}

std::string headerText(const BoardHeader& header) {
    std::string text = "FLIGHT INFORMATION for ";
    text.append(header.airport.Name.trimmed()).append("- ");
    text.append(formatInteger("00", header.hours)).append(":");
    text.append(formatInteger("00", header.minutes)).append(":");
    text.append(formatInteger("00", header.seconds)).append("\n");
    text.append(trimmed(header.FavoriteAirlineName));
    text.append(header.arriving ? " Arrivals for " : " Departures for ");
    text.append(header.dayText).append("- Page ").append(std::to_string(header.BoardPage + 1));
    return text.append(" of ").append(std::to_string(boardPages(header.BoardRowCount)));
}

std::optional<StatusColour> statusColour(std::string_view status, bool arriving, bool oddRow) {
    for (const auto& row : kColours) {
        if (row.status == status && (arriving ? row.arrivals : row.departures))
            return oddRow ? row.odd : row.even;
    }
    return std::nullopt;
}

std::array<BoardRowTexts, kRowsOnPage> boardPage(const BoardLists& lists, int BoardPage, bool arriving) {
    std::array<BoardRowTexts, kRowsOnPage> rows;
    const auto& entries = lists.BoardRows;
    const auto first = static_cast<std::size_t>(BoardPage) * kRowsOnPage;
    for (std::size_t i = 0; i < kRowsOnPage; ++i) {
        // Rows are coloured in pairs, and only where the flight list is long enough for both.
        const std::size_t pairsEnd = first + i / 2 * 2 + 1;
        if (pairsEnd < entries.size())
            rows[i].statusColour = statusColour(entries[first + i].StatusText, arriving, i % 2 == 1);
        if (static_cast<int>(first + i) <= lists.BoardRowCount && first + i < entries.size())
            writeRow(rows[i], entries[first + i]);
    }
    return rows;
}

} // namespace gatewise
