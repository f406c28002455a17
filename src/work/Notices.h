#pragma once

#include "session/Message.h"

#include <string_view>
#include <system_error>

namespace gatewise {

/// The error number of a table that is full.
inline constexpr int kSubscriptOutOfRange = 9;

constexpr Notice inform(Message message) {
    return {Heading::Information, message, 0, {}};
}
constexpr Notice warn(Message message) {
    return {Heading::Warning, message, 0, {}};
}

/// A failure with its own description, in a function of the system.
Notice failure(int errorNumber, std::string_view description, std::string_view function);

/// The same for an error of the operating system, with its words.
Notice failure(const std::error_code& error, std::string_view function);

/// The same about a file that could not be written, with the reason in plain words.
Notice failure(const std::error_code& error, std::string_view function, const std::string& file);

/// "there is no permission to write there": an error of the operating system as a pilot understands it.
std::string plainReason(const std::error_code& error);

/// A table that is full.
Notice tableFull(std::string_view function);

} // namespace gatewise
