#pragma once

#include <algorithm>
#include <array>
#include <compare>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

// Texts inside the program are single bytes in Windows-1252, as the data files hold them. They become UTF-8
// only at the edges: the window, the text driver and the names of files.

namespace gatewise {

/// Without blanks (code 32 only) on both sides.
std::string_view trimmed(std::string_view text);

/// ASCII and Windows-1252 letters in upper or lower case; everything else stays.
std::string upperCase(std::string_view text);
std::string lowerCase(std::string_view text);
char upperCase(char c);
char lowerCase(char c);

bool equalNoCase(std::string_view a, std::string_view b);

/// True when `part` stands anywhere in `text`, letters compared without case. An empty part is found
/// everywhere.
bool containsNoCase(std::string_view text, std::string_view part);

/// Orders by letters folded to one case, then as bytes: the order of lists that sort their items.
bool lessFolded(std::string_view a, std::string_view b);

/// The parts one after the other.
std::string joined(std::initializer_list<std::string_view> parts);

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// Windows-1252 to UTF-8. The five codes that the page leaves open become the control characters of the same
/// number.
std::string utf8FromText(std::string_view text);

/// UTF-8 to Windows-1252. Characters outside the page become '?', malformed UTF-8 byte by byte.
std::string textFromUtf8(std::string_view utf8);

/// The same where nothing is lost; nothing for a text that the page cannot hold.
std::optional<std::string> exactTextFromUtf8(std::string_view utf8);

/// Whole text as a decimal number, blanks allowed around it, an optional sign; nothing when it is anything
/// else or does not fit.
std::optional<int> parseInteger(std::string_view text);

/// The number that a text begins with, 0 when there is none: how a list's text counts as a number.
double leadingNumber(std::string_view text);

/// A text field of fixed width: padded with blanks on the right, never longer.
template<std::size_t N> class FixedText {
public:
    constexpr FixedText() { bytes_.fill(' '); }
    FixedText(std::string_view text) { *this = text; }              // NOLINT(google-explicit-constructor)
    FixedText(const char* text) { *this = std::string_view(text); } // NOLINT(google-explicit-constructor)

    /// Cuts what is too long, pads what is too short.
    FixedText& operator=(std::string_view text) {
        bytes_.fill(' ');
        std::copy_n(text.begin(), std::min(N, text.size()), bytes_.begin());
        return *this;
    }
    FixedText& operator=(const char* text) { return *this = std::string_view(text); }

    static constexpr std::size_t width = N;
    [[nodiscard]] std::string_view view() const { return {bytes_.data(), N}; }
    [[nodiscard]] std::string str() const { return std::string(view()); }
    [[nodiscard]] std::string_view trimmed() const { return gatewise::trimmed(view()); }
    [[nodiscard]] const char* data() const { return bytes_.data(); }
    [[nodiscard]] char* data() { return bytes_.data(); }

    /// Untrimmed comparison, all N characters.
    friend bool operator==(const FixedText&, const FixedText&) = default;
    friend auto operator<=>(const FixedText&, const FixedText&) = default;

private:
    std::array<char, N> bytes_{};
};

} // namespace gatewise
