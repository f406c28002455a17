#pragma once

#include "logbook/LogImport.h"

namespace gatewise {

/// Another log book on its way into this one.
struct CareerDesk {
    LogTable table;  // as it was read last, its codes as the names of our tables; empty: none
    LogImport found; // what it would bring
};

} // namespace gatewise
