#pragma once

#include "platform/ProfileLines.h"
#include "platform/ProfileText.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// Text files of [sections] and key=value lines: GT.cfg, situation files, plans, the configuration of the
// simulator and of add-ons. Sections and keys are found without regard to case, the first match wins, the
// order stays and whatever is not named is left as it is, byte for byte.

namespace gatewise {

/// One profile file in memory. Files of any line end are read; new lines end in CR LF. A file with the mark
/// of UTF-8 or UTF-16 is read as that and keeps it.
class Profile {
public:
    Profile() = default;
    explicit Profile(Bytes file);
    explicit Profile(std::string_view file);

    /// The raw value: blanks around it and one pair of surrounding quotes gone. Nothing when the key is
    /// missing.
    [[nodiscard]] std::optional<std::string> find(std::string_view section, std::string_view key) const;

    /// Replaces the value where the key stands, else adds the key at the end of its section, else the section
    /// at the end of the file. The value is written bare; a line end, a NUL or an end mark inside any of the
    /// three is written as a blank.
    void set(std::string_view section, std::string_view key, std::string_view value);

    /// The bytes of the file.
    [[nodiscard]] std::string content() const;

private:
    /// A section that was asked for. Its new keys stand in front of `end`, behind its last line that is not
    /// blank.
    struct Section {
        std::string name;
        bool inFile = false;
        std::size_t end = 0;
        profile::KeyIndex keys;
        std::vector<std::string> added; // new lines
    };

    [[nodiscard]] std::string_view text() const;
    [[nodiscard]] std::string_view lineOf(std::size_t at) const;
    [[nodiscard]] Section& section(std::string_view name) const;
    void index(Section& section, std::size_t header) const;
    [[nodiscard]] static std::string* addedLine(Section& section, std::string_view key);

    ProfileCoding coding_ = ProfileCoding::Page;
    Bytes lines_;                                 // as they were read, without a mark
    std::vector<std::uint32_t> headers_;          // where sections begin
    std::map<std::size_t, std::string> replaced_; // new lines in the place of those that begin there
    mutable std::vector<std::unique_ptr<Section>> sections_; // those that were asked for, indexed then
    std::vector<const Section*> appended_; // those that are new, in the order of their first keys
};

/// Text of a key, at most 254 characters; NUL characters become blanks, blanks around it go. Empty for a
/// missing key or file.
std::string ReadText(std::string_view section, std::string_view key, std::string_view file);

/// The whole number a value begins with, modulo 2^32; 0 for anything else and for a missing key. Decimal, or
/// behind "0x", "0o" and "0b" with 16, 8 and 2 digits.
int ReadNumber(std::string_view section, std::string_view key, std::string_view file);

/// Writes one key; the file is created when it is missing and replaced in one step.
[[nodiscard]] std::error_code WriteValue(std::string_view section, std::string_view key,
                                         std::string_view value, std::string_view file);

/// A key and its value on the way to a file.
struct ProfileValue {
    std::string section;
    std::string key;
    std::string value;
};

/// Writes keys in their order with a single replacement of the file; the result is that of one WriteValue
/// after the other. A file that is there but cannot be read is not written over; one that another program
/// replaces meanwhile is read again.
[[nodiscard]] std::error_code WriteValues(const std::vector<ProfileValue>& values, std::string_view file);

/// The bytes of a profile file with keys set in their order.
std::string contentWith(Bytes file, const std::vector<ProfileValue>& values);

/// The same reads on a profile that is in memory already.
std::string textIn(const Profile& profile, std::string_view section, std::string_view key);
int numberIn(const Profile& profile, std::string_view section, std::string_view key);

/// A profile from a file; an unreadable file gives an empty profile, and `error` says why.
Profile loadProfile(std::string_view file, std::error_code* error = nullptr);

} // namespace gatewise
