#pragma once

#include "programs/Formats.h"

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// A plan put into the folders of the programs that take it.

namespace gatewise::programs {

/// The name of a format's file for a flight. What a name cannot hold is a "-".
std::string fileNameOf(const Format& format, std::string_view stem);

struct Sent {
    const Format* format = nullptr;
    std::string file;   // name of what was written, empty when nothing was
    std::string reason; // why not, empty when it was
};

/// Writes a file into an existing folder (a text of the program), in one replacement: an older file of the
/// name is whole until the new one is.
Sent sendTo(const Format& format, const std::string& folder, std::string_view stem, const Route& route);

/// In a few words what an error means to the pilot.
std::string reasonOf(const std::error_code& error);

/// All in one message: what was written, then what was not, by reason.
std::string summaryOf(const std::vector<Sent>& sent);

} // namespace gatewise::programs
