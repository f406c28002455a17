#pragma once

namespace gatewise::window {

/// Tells screen readers about views that paint themselves: name, kind, state, what pressing does.
void installAccessibility();

} // namespace gatewise::window
