#pragma once

#include "window/LabelText.h"
#include "window/Layout.h"

#include <QFont>
#include <QHash>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace gatewise::window {

/// The looks of the program: layout, typefaces, pictures. Pictures and typefaces come from the program
/// folder; what is missing there is drawn plain.
class Skin {
public:
    /// `programFolder` as the system spells paths.
    explicit Skin(std::string programFolder);

    [[nodiscard]] const Layout& layout() const { return layout_; }
    [[nodiscard]] QColor style(const char* key) const { return layout_.style(key); }
    [[nodiscard]] QFont font(const std::string& role) const;
    /// A text in that role, in no colour yet.
    [[nodiscard]] TextStyle text(const std::string& role) const;
    [[nodiscard]] QIcon icon() const;

    /// The picture of a tail such as "\Images\GT_BG.bmp" for a screen of so many device pixels to the logical
    /// one; null when it is missing.
    [[nodiscard]] QPixmap picture(const std::string& tail, double ratio) const;

    /// The words on a picture, empty when it has none.
    [[nodiscard]] QString caption(const std::string& tail) const;

private:
    void loadFonts();
    void loadCaptions();
    [[nodiscard]] QRawFont shipped(const FontRole& role) const;

    std::string folder_;
    Layout layout_;
    QHash<QString, QString> captions_; // by tail in lower case, without ending
    mutable QHash<QString, QPixmap> pictures_;
    std::vector<QByteArray> typefaces_; // contents of font files
    QHash<QString, QString> families_;  // names that shipped families have in place of their own
    mutable std::map<std::string, TextStyle> styles_;
};

} // namespace gatewise::window
