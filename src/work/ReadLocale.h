#pragma once

#include "platform/Machine.h"
#include "session/LocaleSigns.h"

namespace gatewise {

/// Takes the locale's signs; the monetary decimal sign is the one that files are freed from.
void ReadLocale(const Locale& locale, LocaleSigns& signs);

} // namespace gatewise
