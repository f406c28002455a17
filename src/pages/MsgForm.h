#pragma once

#include "pages/Program.h"

#include <string>
#include <string_view>
#include <system_error>

namespace gatewise {

inline constexpr int kInformation = 1;
inline constexpr int kWarning = 2;

/// The error number of a table that is full.
inline constexpr int kSubscriptOutOfRange = 9;

/// Says message `id` (1 to 19) on the message screen and returns when it has been answered. Another heading
/// than 1 or 2 keeps the one that stands; another id keeps text and mode. `errorNumber` is used by message
/// 14, with ErrorText. When the message screen is up already, only its texts change.
void ShowMessage(Program& p, int heading, int id, int errorNumber = 0);

/// Message 14 for a failure with its own description.
void ShowFailure(Program& p, int errorNumber, std::string_view description, std::string_view function);

/// The same for an error of the system, with the system's words.
void ShowFailure(Program& p, const std::error_code& error, std::string_view function);

/// A plain message box with one button.
void ShowMsgBox(Program& p, std::string text);

void bindMsgForm(Program& p);

} // namespace gatewise
