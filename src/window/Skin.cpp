#include "window/Skin.h"

#include "platform/Files.h"
#include "platform/Text.h"
#include "window/QtText.h"
#include "window/Tone.h"

#include <QFile>
#include <QFontDatabase>
#include <QImage>
#include <QWidget>

#include <cmath>

// A static library must name its resources once, outside of any namespace.
static void takeResources() {
    Q_INIT_RESOURCE(looks);
}

namespace gatewise::window {

namespace {

/// Before the names of families that were changed for the program.
constexpr QLatin1String kOwnPrefix("Gatewise ");

QByteArray resource(const char* name) {
    takeResources();
    QFile file(QString(":/gatewise/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The bytes of a file of the program; none for what cannot be read and for what is no file: a pipe in the
/// place of a picture would hold the start for ever.
QByteArray contentOf(const std::string& path) {
    const auto bytes = files::readAll(path);
    if (!bytes) return {};
    return {reinterpret_cast<const char*>(bytes->data()), static_cast<qsizetype>(bytes->size())};
}

QPixmap load(const std::string& path) {
    QPixmap picture;
    picture.loadFromData(contentOf(path));
    return picture;
}

QString captionKey(const std::string& tail) {
    QString key = toQt(tail).toLower();
    const auto dot = key.lastIndexOf('.');
    return dot > key.lastIndexOf('\\') ? key.left(dot) : key;
}

} // namespace

Skin::Skin(std::string programFolder)
    : folder_(std::move(programFolder)), layout_(Layout::fromJson(resource("layout.json"))) {
    loadFonts();
    loadCaptions();
}

void Skin::loadFonts() {
    for (const auto& entry : files::list(folder_ + "\\Fonts")) {
        const std::string name = lowerCase(entry.name);
        if (name.ends_with(".ttf") || name.ends_with(".otf")) {
            typefaces_.push_back(contentOf(folder_ + "\\Fonts\\" + entry.name));
            const int id = QFontDatabase::addApplicationFontFromData(typefaces_.back());
            const QStringList families = QFontDatabase::applicationFontFamilies(id);
            for (const QString& family : families) {
                if (family.startsWith(kOwnPrefix)) families_[family.mid(kOwnPrefix.size())] = family;
            }
        }
    }
}

void Skin::loadCaptions() {
    const QStringList lines = QString::fromUtf8(resource("buttons.csv")).split('\n', Qt::SkipEmptyParts);
    if (lines.isEmpty()) return;
    const auto caption = lines[0].trimmed().split(',').indexOf("caption");
    for (const QString& line : lines) {
        const QStringList cells = line.trimmed().split(',');
        if (caption > 1 && cells.size() > caption) {
            captions_.insert((cells[0] + cells[1]).toLower(), cells[caption]);
        }
    }
}

QFont Skin::font(const std::string& name) const {
    const FontRole& role = layout_.role(name);
    QFont font(families_.value(role.family, role.family));
    font.setStyleHint(role.family.startsWith("OCR") ? QFont::Monospace : QFont::SansSerif);
    font.setPixelSize(qRound(role.size));
    font.setWeight(static_cast<QFont::Weight>(role.weight));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

/// The face of a role from the program folder, invalid when it is not there.
QRawFont Skin::shipped(const FontRole& role) const {
    for (const QByteArray& file : typefaces_) {
        QRawFont face(file, role.size, QFont::PreferNoHinting);
        if (face.isValid() && face.familyName() == families_.value(role.family, role.family) &&
            face.weight() == role.weight)
            return face;
    }
    return {};
}

TextStyle Skin::text(const std::string& name) const {
    const auto known = styles_.find(name);
    if (known != styles_.end()) return known->second;
    TextStyle style;
    style.role = layout_.role(name);
    style.font = font(name);
    // Other faces of the same family name on the computer can hide the program's own; their widths tell.
    TextStyle own = style;
    own.face = shipped(style.role);
    constexpr double kNear = 0.02;
    const QString sample = "iiiiMMMM";
    const double width = advance(sample, style);
    if (own.face.isValid() && std::abs(advance(sample, own) - width) > kNear * width) style = own;
    styles_[name] = style;
    return style;
}

QIcon Skin::icon() const {
    QIcon icon;
    for (const char* size : {"16", "32", "48", "64", "128", "256"}) {
        const QPixmap picture = load(folder_ + "\\Images\\icon_" + size + ".png");
        if (!picture.isNull()) icon.addPixmap(picture);
    }
    return icon;
}

QPixmap Skin::picture(const std::string& tail, double ratio) const {
    if (tail.empty()) return {};
    const bool fine = ratio > 1.25;
    const QString key = toQt(tail) + (fine ? "@2" : "@1");
    const auto known = pictures_.constFind(key);
    if (known != pictures_.constEnd()) return *known;
    QPixmap picture;
    const auto dot = tail.rfind('.');
    if (fine && dot != std::string::npos) {
        picture = load(folder_ + tail.substr(0, dot) + "@2x" + tail.substr(dot));
        picture.setDevicePixelRatio(2);
    }
    if (picture.isNull()) picture = load(folder_ + tail);
    pictures_.insert(key, picture);
    return picture;
}

void Skin::setZoom(double factor) {
    zoom_.factor = factor;
    sized_.clear();
}

QFont Skin::widgetFont(const std::string& name) const {
    QFont font = this->font(name);
    font.setPixelSize(qRound(layout_.role(name).size * zoom_.factor));
    return font;
}

/// The picture from the set that is at least as fine as the screen; the finest where none is.
QPixmap Skin::largest(const std::string& tail, double scale) const {
    const auto dot = tail.rfind('.');
    if (scale > 2 && dot != std::string::npos) {
        const QPixmap fine = load(folder_ + tail.substr(0, dot) + "@3x.png");
        if (!fine.isNull()) return fine;
    }
    return picture(tail, 2);
}

QPixmap Skin::picture(const std::string& tail, const QWidget& on) const {
    const double ratio = on.devicePixelRatioF();
    if (zoom_.factor == 1 && !highContrast()) return picture(tail, ratio);
    const QSize size = (QSizeF(on.size()) * ratio).toSize();
    const QString key = toQt(tail) + QString("@%1x%2").arg(size.width()).arg(size.height());
    const auto known = sized_.constFind(key);
    if (known != sized_.constEnd()) return *known;
    QPixmap picture = zoom_.factor == 1 ? this->picture(tail, ratio) : largest(tail, zoom_.factor * ratio);
    if (!picture.isNull()) {
        QImage image = picture.toImage();
        if (image.size() != size) image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (highContrast()) setTones(image);
        picture = QPixmap::fromImage(std::move(image));
        picture.setDevicePixelRatio(ratio);
    }
    sized_.insert(key, picture);
    return picture;
}

QString Skin::caption(const std::string& tail) const {
    return captions_.value(captionKey(tail));
}

} // namespace gatewise::window
