#pragma once

#include "platform/Text.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// What the lines of a profile file are, and where its sections and keys stand.

namespace gatewise::profile {

inline bool isSpace(char c) {
    return c == ' ' || c == '\t';
}

/// Without blanks and tabulators on both sides.
std::string_view stripped(std::string_view text);

/// A line without its end and the end-of-text mark.
std::string_view body(std::string_view line);

/// Name of the section that a line opens; nothing for any other line.
std::optional<std::string_view> sectionName(std::string_view line);

/// Position of "=" in a key line, npos for comments and everything else.
std::size_t equalsSign(std::string_view line);

/// Value of a key line: blanks around it and one pair of surrounding quotes gone.
std::string_view valueOf(std::string_view line);

/// The line at `at` with its end: CR LF, LF or CR.
std::string_view lineAt(std::string_view content, std::size_t at);

/// Where the keys of one section stand, the first of each name. Eight bytes a key: a file may be nothing but
/// keys.
class KeyIndex {
public:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// Takes the line at `at` in; a key that is there already stays where it is.
    void add(std::string_view content, std::size_t at);
    /// Start of the line that has the key, kNone without one.
    [[nodiscard]] std::size_t find(std::string_view content, std::string_view key) const;

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t line = 0; // its start and one; 0 for an empty slot
    };
    [[nodiscard]] std::size_t slotOf(std::string_view content, std::string_view key,
                                     std::uint32_t hash) const;
    void grow();

    std::vector<Slot> slots_; // a power of two of them, searched from the hash onwards
    std::size_t used_ = 0;
};

} // namespace gatewise::profile
