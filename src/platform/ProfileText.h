#pragma once

#include "platform/Binary.h"

#include <string>
#include <string_view>

// The bytes of a profile file and the text they stand for. Files without a mark are the program's own
// Windows-1252; a file that an editor saved with the mark of UTF-8 or UTF-16 is worked on as UTF-8 and goes
// back as it came.

namespace gatewise {

enum class ProfileCoding { Page, Utf8, Utf16Little, Utf16Big };

/// The coding that the mark in front of a file tells.
ProfileCoding codingOf(ByteView file);

/// The file without its mark as lines to work on: of the page, or in UTF-8. Halves of characters that belong
/// to nothing become the replacement character.
Bytes unmarked(Bytes file, ProfileCoding coding);

/// The lines as the file holds them, with its mark.
std::string marked(std::string lines, ProfileCoding coding);

/// A value between a file's lines and the program. What the page cannot hold stays UTF-8, as in paths.
std::string valueFrom(std::string_view line, ProfileCoding coding);
std::string valueFor(std::string_view text, ProfileCoding coding);

/// Without what would end a line or a text: CR, LF, NUL and the end mark 1A become blanks.
std::string onOneLine(std::string_view text);

} // namespace gatewise
