#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// Text files of [sections] and key=value lines: GT.cfg, situation files, plans, the configuration of the
// simulator and of add-ons. Sections and keys are found without regard to case, the first match wins, the
// order stays and whatever is not named is left as it is, byte for byte.

namespace gatewise {

/// One profile file in memory. Files of any line end are read; new lines end in CR LF.
class Profile {
public:
    Profile() = default;
    explicit Profile(std::string_view content);

    /// The raw value: blanks around it and one pair of surrounding quotes gone. False when the key is
    /// missing.
    [[nodiscard]] bool find(std::string_view section, std::string_view key, std::string& value) const;

    /// Replaces the value where the key stands, else adds the key at the end of its section, else the section
    /// at the end of the file. The value is written bare.
    void set(std::string_view section, std::string_view key, std::string_view value);

    [[nodiscard]] std::string content() const;

private:
    [[nodiscard]] std::size_t sectionLine(std::string_view section) const;
    [[nodiscard]] std::size_t sectionEnd(std::size_t start) const;
    [[nodiscard]] std::size_t keyLine(std::size_t start, std::string_view key) const;

    std::vector<std::string> lines_; // each with its line end
};

/// Text of a key, at most 254 characters; NUL characters become blanks, blanks around it go. Empty for a
/// missing key or file.
std::string ReadText(std::string_view section, std::string_view key, std::string_view file);

/// The whole number a value begins with, modulo 2^32; 0 for anything else and for a missing key.
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
/// after the other.
[[nodiscard]] std::error_code WriteValues(const std::vector<ProfileValue>& values, std::string_view file);

/// The same reads on a profile that is in memory already.
std::string textIn(const Profile& profile, std::string_view section, std::string_view key);
int numberIn(const Profile& profile, std::string_view section, std::string_view key);

/// A profile from a file; an unreadable file gives an empty profile.
Profile loadProfile(std::string_view file);

} // namespace gatewise
