#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gatewise::importer {

/// How a text in quotes holds a quote: doubled, or behind a backslash.
enum class Quotes { Doubled, Backslash };

/// The cells of one line. They stay good until the next line is taken apart, and as long as the line itself.
class Cells {
public:
    /// Takes a comma-separated line apart; false when a quote stands where none may. Blanks around a cell do
    /// not count; the words for "no value" (\N, NA) become empty cells.
    bool commas(std::string_view line, Quotes quotes = Quotes::Doubled);
    /// Words with blanks or tabs between them.
    void blanks(std::string_view line);

    [[nodiscard]] std::size_t size() const { return cells_.size(); }
    /// A cell from 0; empty when the line has none there.
    [[nodiscard]] std::string_view operator[](std::size_t index) const {
        return index < cells_.size() ? cells_[index] : std::string_view();
    }
    /// The words from this one on with a blank between each two: a name at the end of a line.
    [[nodiscard]] std::string from(std::size_t index) const;

private:
    bool quoted(std::string_view& rest, Quotes quotes);

    std::vector<std::string_view> cells_;
    std::deque<std::string> unescaped_;
};

/// The whole cell as a number of any locale's machine: digits, at most one ".", a sign; nothing when it is
/// anything else or no finite number.
std::optional<double> realIn(std::string_view cell);
/// The same for a whole number; "12.00" is one.
std::optional<long long> wholeIn(std::string_view cell);
/// A latitude from -90 to 90, a longitude from -180 to 180 degrees.
std::optional<double> latitudeIn(std::string_view cell);
std::optional<double> longitudeIn(std::string_view cell);

/// ASCII letters in upper case, everything else as it is.
std::string upperAscii(std::string_view text);
/// Two to `most` letters A to Z and digits, as airlines, airports and aircraft are coded.
bool isCode(std::string_view text, std::size_t least, std::size_t most);

} // namespace gatewise::importer
