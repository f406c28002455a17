#pragma once

#include "platform/Machine.h"

#include <functional>
#include <memory>

// The services of the computer that the program really runs on. posix/ and windows/ hold one implementation
// each of what stands here.

namespace gatewise::native {

/// Tells the person at the desk a sentence.
using Notify = std::function<void(const std::string& text)>;

/// Local time of the system; the bias is that of the zone's standard time.
std::unique_ptr<Clock> systemClock();
/// The signs of the person's own settings.
std::unique_ptr<Locale> userLocale();
/// Where the simulator was installed, as its installer left word of it.
std::unique_ptr<Registry> systemRegistry();
/// `notify` hears what is missing where a program cannot be started.
std::unique_ptr<Processes> systemProcesses(Notify notify);
/// Seeded afresh at every start.
std::unique_ptr<Random> systemRandom();

/// What the program says on its standard output reaches the console that it was started from, where programs
/// with a window have none of their own.
void useCallersConsole();

/// A parameter as Windows programs read their command line: in quotes where it has blanks or quotes of its
/// own. Empty for an empty one.
std::string commandLineWord(const std::string& parameter);

} // namespace gatewise::native
