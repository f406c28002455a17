#pragma once

#include "forms/Control.h"
#include "platform/Files.h"
#include "platform/Text.h"

#include <QColor>
#include <QString>

namespace gatewise::window {

/// Texts of the program and of the toolkit.
inline QString toQt(std::string_view text) {
    return QString::fromStdString(utf8FromText(text));
}
inline std::string fromQt(const QString& text) {
    return textFromUtf8(text.toStdString());
}
inline QColor toQt(const Color& color) {
    return {color.red, color.green, color.blue};
}

/// The toolkit's name of a file that the system names its own way.
inline QString nativePath(const std::string& path) {
    const auto native = files::resolve(path).u8string();
    return QString::fromUtf8(reinterpret_cast<const char*>(native.data()),
                             static_cast<qsizetype>(native.size()));
}

/// A path of the toolkit as a text of the program.
inline std::string pathText(const QString& path) {
    return files::textOf(std::filesystem::path(path.toStdU16String()));
}

} // namespace gatewise::window
