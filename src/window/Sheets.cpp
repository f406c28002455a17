#include "window/Sheets.h"

#include "window/Tone.h"

#include <QRegularExpression>

namespace gatewise::window {

namespace {

QColor plain(const QColor& color) {
    return color;
}

constexpr const char* kScrollBars = R"(
QScrollBar:vertical{background:g(list.scrollTrack);width:p(12);border:0}
QScrollBar:horizontal{background:g(list.scrollTrack);height:p(12);border:0}
QScrollBar::handle{background:e(list.scrollThumb);border-radius:p(4);margin:p(2)}
QScrollBar::handle:vertical{min-height:p(24)}
QScrollBar::handle:horizontal{min-width:p(24)}
QScrollBar::handle:hover{background:i(list.scrollThumbHover)}
QScrollBar::add-line,QScrollBar::sub-line{width:0;height:0}
QScrollBar::add-page,QScrollBar::sub-page{background:none})";

constexpr const char* kMenu = R"(
QMenu{background:g(menu.back);color:i(menu.text);border:1px solid e(menu.border);padding:p(4)}
QMenu::item{padding:p(4) p(24) p(4) p(24)}
QMenu::item:selected{background:s(list.selected);color:s(list.selectedText)}
QMenu::item:disabled{color:i(menu.disabledText)}
QMenu::separator{height:1px;background:e(menu.border);margin:p(4)})";

constexpr const char* kDialog = R"(
QDialog{background:g(menu.back)}
QLabel{color:i(menu.text)}
QLineEdit{background:g(textbox.back);color:i(textbox.text);border:1px solid e(textbox.border);border-radius:p(2);
 padding:p(3) p(5);selection-background-color:s(textbox.select);selection-color:s(textbox.selectText)}
QPushButton{background:g(key.face);color:i(key.text);border:1px solid e(key.rim);border-radius:p(4);
 min-width:p(70);padding:p(4) p(12)}
QPushButton:hover,QPushButton:focus{background:g(key.faceLit);border-color:e(key.rimLit)}
QPushButton:disabled{color:i(key.disabledText)}
QAbstractItemView{background:g(list.back);color:i(list.text);border:1px solid e(list.rim);
 selection-background-color:s(list.selected);selection-color:s(list.selectedText)}
QHeaderView{background:g(list.head)}
QHeaderView::section{background:g(list.head);color:i(list.headText);border:0;border-right:1px solid e(list.rim);
 padding:p(3) p(6)})";

/// A sheet with what it names filled in: g(key), i(key), e(key) and s(key) are a ground, an ink, an edge and
/// a plain colour of the skin, p(n) is n pixels of the layout.
QString filled(const Skin& skin, const QString& sheet) {
    static const QRegularExpression kNamed(R"(\b([gieps])\(([\w.]+)\))");
    QString out;
    qsizetype end = 0;
    for (auto all = kNamed.globalMatch(sheet); all.hasNext();) {
        const auto named = all.next();
        const QByteArray key = named.captured(2).toLatin1();
        out += sheet.mid(end, named.capturedStart() - end);
        end = named.capturedEnd();
        switch (named.captured(1).front().toLatin1()) {
        case 'g':
            out += groundOf(skin.style(key)).name();
            break;
        case 'i':
            out += inkOf(skin.style(key)).name();
            break;
        case 'e':
            out += edgeOf(skin.style(key)).name();
            break;
        case 's':
            out += skin.style(key).name();
            break;
        default:
            out += QString::number(skin.zoom().edge(key.toInt())) + "px";
            break;
        }
    }
    return out + sheet.mid(end);
}

struct RoleRow {
    QPalette::ColorRole role;
    QColor (*tone)(const QColor& color);
    const char* key;
};

constexpr RoleRow kRoles[] = {
    {QPalette::Window, groundOf, "menu.back"},
    {QPalette::WindowText, inkOf, "menu.text"},
    {QPalette::Base, groundOf, "list.back"},
    {QPalette::AlternateBase, groundOf, "list.stripe"},
    {QPalette::Text, inkOf, "list.text"},
    {QPalette::Button, groundOf, "key.face"},
    {QPalette::ButtonText, inkOf, "key.text"},
    {QPalette::Highlight, plain, "list.selected"},
    {QPalette::HighlightedText, plain, "list.selectedText"},
};

} // namespace

QString scrollBarSheet(const Skin& skin) {
    return filled(skin, kScrollBars);
}

QString menuSheet(const Skin& skin) {
    return filled(skin, kMenu);
}

QString dialogSheet(const Skin& skin) {
    // By name: the toolkit has types of its own for keys and heads.
    const QFont font = skin.widgetFont("data");
    const QString type =
        QString("*{font-family:\"%1\";font-size:%2px}").arg(font.family()).arg(font.pixelSize());
    return type + filled(skin, QString(kDialog) + kScrollBars);
}

QPalette dialogPalette(const Skin& skin, const QPalette& base) {
    QPalette palette = base;
    for (const auto& row : kRoles) palette.setColor(row.role, row.tone(skin.style(row.key)));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, inkOf(skin.style("key.disabledText")));
    return palette;
}

} // namespace gatewise::window
