#pragma once

#include "drive/Json.h"
#include "platform/Binary.h"

namespace gatewise::drive {

/// The longest file that is shown.
inline constexpr std::uintmax_t kLongestShown = 1U << 20U;

/// A file's content: {"text":..,"encoding":..} where all of it is text, in "UTF-8" or else in "Windows-1252";
/// {"hex":..} where it is not. Text has no control characters but tab, line feed and carriage return.
void writeFile(JsonWriter& json, ByteView bytes);

} // namespace gatewise::drive
