#include "input/Blocking.h"

#include <algorithm>

namespace gatewise::user {

Screen* blockedBy(const Forms& forms, const Screen& screen) {
    const auto at = std::find_if(forms.front.begin(), forms.front.end(),
                                 [&](const Screen* shown) { return shown == &screen || shown->modal; });
    return at == forms.front.end() || *at == &screen ? nullptr : *at;
}

Screen* modalBelow(const Forms& forms, const Screen& screen) {
    const auto at = std::find_if(forms.front.begin(), forms.front.end(),
                                 [&](const Screen* shown) { return shown != &screen && shown->modal; });
    return at == forms.front.end() ? nullptr : *at;
}

} // namespace gatewise::user
