#pragma once

#include "programs/Route.h"

#include <span>
#include <string>

// The programs that take a plan. One row of the table is all that the rest of the program knows of one: the
// screen, the settings, the tests and the files' names are made from it.

namespace gatewise::programs {

/// A route as the bytes of a file.
using Writer = std::string(const Route& route);

/// Where a program may keep its plans, tried in this order. Paths are parts with "/" between them.
enum class Base {
    Home,      // the user's own folder
    Documents, // the user's documents
    Settings,  // where programs keep their settings
    Listed     // `list`, a file below the user's folder or the settings, names installations, a line each
};

struct Place {
    Base base;
    const char* folder; // below the base
    const char* list = nullptr;
};

struct Format {
    const char* name;      // on the screen
    const char* key;       // in the settings
    const char* extension; // of its files, with the point
    const char* tail;      // behind the flight in a file's name, where another format has the same extension
    bool takesComputed;    // has room for top and step points
    bool toClipboard;      // its text goes to the clipboard too
    Writer* write;
    std::span<const Place> places; // usual folders; none of them there: the documents
};

/// Rows of the table.
inline constexpr int kFormatCount = 11;

std::span<const Format> formats();

} // namespace gatewise::programs
