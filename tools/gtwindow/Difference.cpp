#include "gtwindow/Difference.h"

#include "gtwindow/Painted.h"
#include "window/QtText.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <QTreeView>

#include <cmath>

namespace gatewise::gtwindow {

namespace {

using Words = std::optional<std::string>;

/// What a look at a control needs.
struct Look {
    window::Desk& desk;
    const Control& control;
    window::View& view;
    Painted painted;
};

std::string shown(const QString& text) {
    return "\"" + text.toStdString() + "\"";
}
std::string shown(bool value) {
    return value ? "true" : "false";
}
std::string shown(int value) {
    return std::to_string(value);
}
std::string shown(const QColor& color) {
    return color.name().toStdString();
}

template<class T> Words unequal(const char* what, const T& window, const T& form) {
    if (window == form) return std::nullopt;
    return std::string(what) + " shows " + shown(window) + ", form holds " + shown(form);
}

template<class T> T* as(const Look& look) {
    return dynamic_cast<T*>(look.view.widget());
}

/// The text that the paint put there, all of it in one piece.
Words paintedText(const Look& look, const std::string& text) {
    const QString form = window::toQt(text);
    const QString first = look.painted.texts.empty() ? QString() : look.painted.texts.front().text;
    return unequal("painted text", first, form);
}

Words label(const Look& look) {
    const auto& label = static_cast<const Label&>(look.control);
    if (look.view.place.font.empty()) return std::nullopt; // a bar without words
    if (auto words = paintedText(look, label.text)) return words;
    constexpr Color kNoColor{255, 255, 255}; // the layout's own
    if (label.color == kNoColor || !label.enabled || look.painted.texts.empty()) return std::nullopt;
    return unequal("color", look.painted.texts.front().color, window::toQt(label.color));
}

/// The picture of a file, where the program folder has it.
Words picture(const Look& look, const std::string& tail) {
    const QPixmap file = look.desk.skin().picture(tail, *look.view.widget());
    if (file.isNull()) return std::nullopt;
    if (!look.painted.pictures.empty() && look.painted.pictures.front().cacheKey() == file.cacheKey())
        return std::nullopt;
    return "picture is not " + tail;
}

/// A key that is off looks off, whatever picture its form was left with.
std::string offName(const Look& look, const std::string& stem, const std::string& name) {
    const std::string key = name.substr(0, name.rfind('_'));
    for (const char* end : {"_disabled", "_dis"}) {
        if (!look.desk.skin().picture(stem + key + end + ".bmp", 1).isNull()) return key + end;
    }
    return name;
}

Words button(const Look& look) {
    const auto& button = static_cast<const SkinnedButton&>(look.control);
    const char* folder = look.control.kind == Kind::FlatButton    ? "Menu"
                         : look.control.kind == Kind::FormButton  ? "Main"
                         : look.control.kind == Kind::boardButton ? "Status"
                                                                  : "Buttons";
    const std::string stem = "\\Images\\" + std::string(folder) + "\\";
    const bool off = button.hasState() && button.State == 0;
    return picture(look, stem + (off ? offName(look, stem, button.picture) : button.picture) + ".bmp");
}

Words pictureBox(const Look& look) {
    return picture(look, static_cast<const Picture&>(look.control).picture);
}

Words textBox(const Look& look) {
    const auto& box = static_cast<const TextBox&>(look.control);
    const QString form = window::toQt(box.text).replace("\r\n", "\n");
    if (auto* line = as<QLineEdit>(look)) {
        if (auto words = unequal("text", line->text(), form)) return words;
        return unequal("enabled", line->isEnabled(), box.enabled);
    }
    auto* notes = as<QPlainTextEdit>(look);
    if (notes == nullptr) return "no field to type in";
    if (auto words = unequal("text", notes->toPlainText(), form)) return words;
    return unequal("enabled", notes->isEnabled(), box.enabled);
}

Words combo(const Look& look) {
    const auto& list = static_cast<const ItemControl&>(look.control);
    auto* box = as<QComboBox>(look);
    if (box == nullptr) return "no combo box";
    if (auto words = unequal("number of items", box->count(), list.count())) return words;
    for (int i = 0; i < list.count(); ++i) {
        if (auto words =
                unequal("item", box->itemText(i), window::toQt(list.items[static_cast<std::size_t>(i)])))
            return words;
    }
    if (auto words = unequal("index", box->currentIndex(), list.picked)) return words;
    if (auto words = paintedText(look, list.text())) return words;
    return unequal("enabled", box->isEnabled(), list.enabled && !list.locked);
}

Words check(const Look& look) {
    const auto& form = static_cast<const Check&>(look.control);
    auto* box = as<QCheckBox>(look);
    if (box == nullptr) return "no check box";
    const int value = box->checkState() == Qt::Checked            ? 1
                      : box->checkState() == Qt::PartiallyChecked ? 2
                                                                  : 0;
    if (auto words = unequal("value", value, form.value)) return words;
    if (auto words = unequal("enabled", box->isEnabled(), form.enabled)) return words;
    return paintedText(look, form.text);
}

Words option(const Look& look) {
    const auto& form = static_cast<const Option&>(look.control);
    auto* box = as<QRadioButton>(look);
    if (box == nullptr) return "no option box";
    if (auto words = unequal("value", box->isChecked(), form.value)) return words;
    if (auto words = unequal("enabled", box->isEnabled(), form.enabled)) return words;
    return paintedText(look, form.text);
}

Words range(const Look& look) {
    const auto& form = static_cast<const RangeControl&>(look.control);
    auto* slider = as<QSlider>(look);
    if (slider == nullptr) return "no slider";
    if (auto words = unequal("value", slider->value(), form.value)) return words;
    if (auto words = unequal("min", slider->minimum(), form.min)) return words;
    if (auto words = unequal("max", slider->maximum(), form.max)) return words;
    return unequal("enabled", slider->isEnabled(), form.enabled);
}

Words progress(const Look& look) {
    auto* bar = as<QProgressBar>(look);
    if (bar == nullptr) return "no progress bar";
    return unequal("value", bar->value(), static_cast<const RangeControl&>(look.control).value);
}

/// The rows as the form holds them, cell by cell.
std::vector<std::vector<std::string>> rowsOf(const Control& control) {
    std::vector<std::vector<std::string>> rows;
    if (control.kind == Kind::ListView) {
        for (const auto& row : static_cast<const ListView&>(control).rows) rows.push_back(row.cells);
    } else {
        for (const auto& item : static_cast<const ItemControl&>(control).items) rows.push_back({item});
    }
    return rows;
}

QString native(const Control& control, const std::string& text) {
    QString out = window::toQt(text);
    if (control.kind == Kind::FolderList) out.replace('\\', QDir::separator());
    return out;
}

Words columns(const ListView& form, const QHeaderView& head, const window::Zoom& zoom) {
    if (auto words = unequal("number of columns", head.count(), static_cast<int>(form.columns.size())))
        return words;
    for (int i = 0; i < head.count(); ++i) {
        const auto& column = form.columns[static_cast<std::size_t>(i)];
        const QString text = head.model()->headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
        if (auto words = unequal("head", text, window::toQt(column.text))) return words;
        const int width = zoom.edge(std::max(8, static_cast<int>(std::floor(column.width))));
        if (auto words = unequal("column width", head.sectionSize(i), width)) return words;
    }
    return std::nullopt;
}

/// The rows in sight are painted from the form's cells, one after the other.
Words paintedRows(const Look& look, const QTreeView& table,
                  const std::vector<std::vector<std::string>>& rows) {
    std::size_t next = 0;
    const QModelIndex first = table.indexAt({1, 1});
    const int room = table.viewport()->height();
    for (int row = first.row(); first.isValid() && row < static_cast<int>(rows.size()); ++row) {
        const QRect line = table.visualRect(table.model()->index(row, 0));
        if (line.bottom() >= room) break;
        for (const std::string& cell : rows[static_cast<std::size_t>(row)]) {
            if (static_cast<int>(&cell - rows[static_cast<std::size_t>(row)].data()) >=
                table.model()->columnCount())
                break;
            const QString came = next < look.painted.texts.size() ? look.painted.texts[next].text : QString();
            ++next;
            if (auto words = unequal("painted cell", came, native(look.control, cell))) return words;
        }
    }
    return std::nullopt;
}

Words list(const Look& look) {
    auto* table = look.view.widget()->findChild<QTreeView*>();
    if (table == nullptr) return "no table";
    const auto rows = rowsOf(look.control);
    const auto& model = *table->model();
    if (auto words = unequal("number of rows", model.rowCount(), static_cast<int>(rows.size()))) return words;
    for (int i = 0; i < model.rowCount(); ++i) {
        const auto& cells = rows[static_cast<std::size_t>(i)];
        for (int c = 0; c < model.columnCount() && c < static_cast<int>(cells.size()); ++c) {
            const QString text = model.index(i, c).data().toString();
            const QString form = native(look.control, cells[static_cast<std::size_t>(c)]);
            if (auto words = unequal("cell", text, form)) return words;
        }
    }
    const bool view = look.control.kind == Kind::ListView;
    const int picked = view ? static_cast<const ListView&>(look.control).picked
                            : static_cast<const ItemControl&>(look.control).picked;
    if (auto words = unequal("picked row", table->currentIndex().row(), picked)) return words;
    const auto marked = table->selectionModel()->selectedRows();
    if (auto words = unequal("marked row", marked.isEmpty() ? -1 : marked.front().row(), picked))
        return words;
    if (auto words = unequal("enabled", table->isEnabled(), look.control.enabled)) return words;
    if (view) {
        if (auto words = columns(static_cast<const ListView&>(look.control), *table->header(),
                                 look.desk.skin().zoom()))
            return words;
    }
    return paintedRows(look, *table, rows);
}

Words frame(const Look& look) {
    return paintedText(look, static_cast<const Frame&>(look.control).text);
}

Words pushButton(const Look& look) {
    return paintedText(look, static_cast<const PushButton&>(look.control).text);
}

struct KindLook {
    Kind kind;
    Words (*differs)(const Look& look);
};

constexpr KindLook kKinds[] = {
    {Kind::Label, label},           {Kind::TextBox, textBox},     {Kind::Combo, combo},
    {Kind::ListBox, list},          {Kind::Check, check},         {Kind::Option, option},
    {Kind::ListView, list},         {Kind::FlatButton, button},   {Kind::FormButton, button},
    {Kind::boardButton, button},    {Kind::switchButton, button}, {Kind::midButton, button},
    {Kind::PushButton, pushButton}, {Kind::Picture, pictureBox},  {Kind::Frame, frame},
    {Kind::Slider, range},          {Kind::UpDown, range},        {Kind::DriveList, combo},
    {Kind::FolderList, list},       {Kind::FileList, list},       {Kind::Progress, progress},
};

Words ofKind(const Look& look) {
    for (const auto& row : kKinds) {
        if (row.kind == look.control.kind) return row.differs(look);
    }
    return std::nullopt;
}

/// Where a view draws: itself, or the table inside of it.
QWidget& canvasOf(window::View& view) {
    auto* table = view.widget()->findChild<QTreeView*>();
    return table == nullptr ? *view.widget() : *table->viewport();
}

} // namespace

Words difference(window::Desk& desk, const Control& control) {
    window::ScreenWindow& window = desk.window(*control.screen);
    window::View* view = window.isVisible() ? window.view(control) : nullptr;
    if (view == nullptr) return std::nullopt;
    QWidget& widget = *view->widget();
    const std::string name = control.fullName() + ": ";
    if (auto words = unequal("visible", !widget.isHidden(), control.visible)) return name + *words;
    if (!widget.isVisible() || window.isMinimized()) return std::nullopt;
    const Look look{desk, control, *view, paintOf(window, widget, canvasOf(*view))};
    if (auto words = ofKind(look)) return name + *words;
    if (look.painted.stale) return name + "the screen shows an old paint";
    return std::nullopt;
}

Words difference(window::Desk& desk, const Screen& screen) {
    window::ScreenWindow& window = desk.window(screen);
    const std::string name = screen.name + ": ";
    if (auto words = unequal("visible", window.isVisible(), screen.visible)) return name + *words;
    if (!screen.visible || window.isMinimized()) return std::nullopt;
    if (auto words = unequal("enabled", window.isEnabled(), screen.enabled)) return name + *words;
    const window::Zoom& zoom = desk.skin().zoom();
    const QPoint at(zoom.edge(screen.left), zoom.edge(screen.top));
    if (auto words = unequal("left", window.x(), at.x())) return name + *words;
    if (auto words = unequal("top", window.y(), at.y())) return name + *words;
    if (auto words = unequal("width", window.width(), zoom.edge(screen.designWidth))) return name + *words;
    if (auto words = unequal("height", window.height(), zoom.edge(screen.designHeight))) return name + *words;
    return std::nullopt;
}

} // namespace gatewise::gtwindow
