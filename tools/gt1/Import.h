#pragma once

#include <string>
#include <vector>

/// gt1 import; `words` are those behind it. The program's exit code; 2 when the words are not understood.
int importCommand(const std::vector<std::string>& words);
