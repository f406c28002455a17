#pragma once

#include "logbook/LogImport.h"

#include <string>

namespace gatewise {

/// Another log book on its way into this one.
struct CareerDesk {
    LogImport found;        // what was read last and is not taken over yet
    std::size_t taken = 0;  // entries of the last import, which can be undone; 0: none
    std::size_t before = 0; // entries that the log book had before it
};

} // namespace gatewise
