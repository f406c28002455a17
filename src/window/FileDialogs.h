#pragma once

#include <QString>

namespace gatewise::window {

class Skin;

// Questions for a file, in the colours, the type and the size of the skin. Each begins at a path of this
// computer and is answered by one; empty: the person gives up.

/// A file to write. Its kind is that of the proposal: others are hidden at first, and a name without an
/// ending gets it. A file that is there is only taken when the person says so.
QString askNewFile(const Skin& skin, const QString& title, const QString& proposal);
/// A file to read.
QString askFile(const Skin& skin, const QString& title, const QString& proposal);
QString askFolder(const Skin& skin, const QString& title, const QString& proposal);

} // namespace gatewise::window
