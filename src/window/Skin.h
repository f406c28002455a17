#pragma once

#include "window/LabelText.h"
#include "window/Layout.h"
#include "window/Zoom.h"

#include <QFont>
#include <QHash>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

class QWidget;

namespace gatewise::window {

/// The looks of the program: layout, typefaces, pictures. Pictures and typefaces come from the program
/// folder; what is missing there is drawn plain.
class Skin {
public:
    /// `programFolder` as the system spells paths.
    explicit Skin(std::string programFolder);

    [[nodiscard]] const Layout& layout() const { return layout_; }
    [[nodiscard]] QColor style(const char* key) const { return layout_.style(key); }
    /// The zoom of all windows. Another one, or another contrast, forgets the pictures of the last.
    [[nodiscard]] const Zoom& zoom() const { return zoom_; }
    void setZoom(double factor);
    void forgetPictures() { sized_.clear(); }
    /// Whether signs that blink are shown lit all the time.
    bool steady = false;

    /// A face in pixels of the layout, and in those of the desk for a widget that draws its text itself.
    [[nodiscard]] QFont font(const std::string& role) const;
    [[nodiscard]] QFont widgetFont(const std::string& role) const;
    /// A text in that role, in no colour yet.
    [[nodiscard]] TextStyle text(const std::string& role) const;
    [[nodiscard]] QIcon icon() const;

    /// The picture of a tail such as "\Images\GT_BG.bmp" for a screen of so many device pixels to the logical
    /// one; null when it is missing.
    [[nodiscard]] QPixmap picture(const std::string& tail, double ratio) const;
    /// The same as large as a widget, made from the next larger set at any zoom but the layout's own.
    [[nodiscard]] QPixmap picture(const std::string& tail, const QWidget& on) const;

    /// The words on a picture, empty when it has none.
    [[nodiscard]] QString caption(const std::string& tail) const;

private:
    void loadFonts();
    void loadCaptions();
    [[nodiscard]] QRawFont shipped(const FontRole& role) const;

    std::string folder_;
    Layout layout_;
    QHash<QString, QString> captions_; // by tail in lower case, without ending
    [[nodiscard]] QPixmap largest(const std::string& tail, double scale) const;

    Zoom zoom_;
    mutable QHash<QString, QPixmap> pictures_;
    mutable QHash<QString, QPixmap> sized_; // by tail and size, at the zoom of now
    std::vector<QByteArray> typefaces_;     // contents of font files
    QHash<QString, QString> families_;      // names that shipped families have in place of their own
    mutable std::map<std::string, TextStyle> styles_;
};

} // namespace gatewise::window
