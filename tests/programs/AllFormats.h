#pragma once

#include "Readers.h"
#include "programs/Formats.h"

#include <string>

namespace gatewise::test {

/// How a format is read back, and what of a plan it keeps.
struct FormatTest {
    const char* key; // of the format's row
    Reader* read;
    double tolerance; // degrees
    bool kinds, airways, altitudes, cruise;
    bool endAltitudes = true;       // the airports' elevations too
    bool brokenAtUserPoint = false; // no airway to or from a point of the user's
    bool regions = false;
};

const FormatTest& testOf(const programs::Format& format);
const programs::Format& formatOf(std::string_view key);

/// Reads the bytes strictly and holds what comes out against the route. Empty, or what is wrong.
std::string faultsOf(const programs::Format& format, const std::string& bytes, const programs::Route& route);

} // namespace gatewise::test
