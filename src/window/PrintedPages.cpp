#include "window/PrintedPages.h"

#include "window/ChartView.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace gatewise::window {

namespace {

constexpr int kTab = 8;          // columns from one tab stop to the next
constexpr int kFootRows = 2;     // at the foot of a sheet: a free one and the title's
constexpr double kPoints = 72.0; // of an inch

QString withoutTabs(const QString& line) {
    QString out;
    for (const QChar c : line) {
        if (c != '\t')
            out += c;
        else
            out += QString(kTab - out.size() % kTab, ' ');
    }
    return out;
}

/// The line in pieces of at most `columns` characters.
QStringList folded(QString line, int columns) {
    qsizetype blanks = 0;
    while (blanks < line.size() && line[blanks] == ' ') ++blanks;
    const QString indent(blanks < columns / 2 ? blanks : 0, ' ');
    QStringList out;
    while (line.size() > columns) {
        qsizetype at = line.lastIndexOf(' ', columns);
        if (at <= indent.size()) at = columns; // one word without a blank
        out << line.left(at);
        qsizetype next = at;
        while (next < line.size() && line[next] == ' ') ++next;
        line = indent + line.mid(next);
    }
    return out << line;
}

/// The listing as blocks of lines that belong together; an empty line ends one and stands at its end.
std::vector<QStringList> blocksOf(const QString& text, int columns) {
    std::vector<QStringList> blocks(1);
    QString plain = text;
    plain.replace("\r\n", "\n");
    const auto lines = plain.split('\n');
    for (const QString& line : lines) {
        blocks.back() << folded(withoutTabs(line), columns);
        if (line.trimmed().isEmpty()) blocks.emplace_back();
    }
    return blocks;
}

class Sheets {
public:
    Sheets(QPagedPaintDevice& device, const QFont& font, QString title)
        : device_(device), title_(std::move(title)), metrics_(font, &device) {}

    bool begin(const QFont& font) {
        if (!painter_.begin(&device_)) return false;
        painter_.setFont(font);
        return true;
    }
    bool end() { return painter_.end(); }
    [[nodiscard]] int columns() const {
        return std::max(1, static_cast<int>(device_.width() / metrics_.horizontalAdvance('0')));
    }
    [[nodiscard]] int rows() const {
        return std::max(1, static_cast<int>(device_.height() / metrics_.lineSpacing()) - kFootRows);
    }

    /// The next sheet, of so many; false when the device has no more.
    bool next(int of) {
        if (number_ > 0 && !device_.newPage()) return false;
        const QString count = QString("Page %1 of %2").arg(++number_).arg(of);
        const double y = device_.height() - metrics_.descent();
        painter_.drawText(QPointF(0, y), title_);
        painter_.drawText(QPointF(device_.width() - metrics_.horizontalAdvance(count), y), count);
        return true;
    }
    void lines(const QStringList& all) {
        double y = metrics_.ascent();
        for (const QString& line : all) {
            painter_.drawText(QPointF(0, y), line);
            y += metrics_.lineSpacing();
        }
    }
    void charts(const std::vector<Drawing>& all, const QFont& font) {
        const double line = metrics_.lineSpacing();
        const QSizeF room(device_.width(), device_.height() - kFootRows * line);
        const auto boxes = chartBoxes(all, room, line);
        for (std::size_t i = 0; i < all.size(); ++i)
            drawDrawing(painter_, boxes[i], all[i], font, device_.logicalDpiX() / kPoints);
    }

private:
    QPagedPaintDevice& device_;
    QString title_;
    QFontMetricsF metrics_;
    QPainter painter_;
    int number_ = 0;
};

} // namespace

std::vector<QRectF> chartBoxes(const std::vector<Drawing>& drawings, const QSizeF& room, double gap) {
    double wanted = 0;
    int open = 0;
    for (const Drawing& drawing : drawings) {
        if (drawing.aspect > 0)
            wanted += room.width() / drawing.aspect;
        else
            ++open;
    }
    const double free = room.height() - gap * static_cast<double>(drawings.size());
    const double share = wanted > 0 ? std::min(1.0, (open > 0 ? free / 2 : free) / wanted) : 1;
    std::vector<QRectF> boxes;
    double top = 0;
    for (const Drawing& drawing : drawings) {
        const bool kept = drawing.aspect > 0;
        const double width = kept ? room.width() * share : room.width();
        const double height = kept ? width / drawing.aspect : (free - wanted * share) / open;
        boxes.emplace_back((room.width() - width) / 2, top, width, height);
        top += height + gap;
    }
    return boxes;
}

std::vector<QStringList> sheetsOf(const QString& text, int columns, int rows) {
    std::vector<QStringList> sheets(1);
    for (QStringList block : blocksOf(text, columns)) {
        qsizetype height = block.size();
        while (height > 0 && block[height - 1].trimmed().isEmpty()) --height;
        const bool fitsHere = sheets.back().size() + height <= rows;
        if (!fitsHere && height <= rows) sheets.emplace_back();
        for (const QString& line : block) {
            const bool free = line.trimmed().isEmpty();
            if (sheets.back().size() >= rows && !free) sheets.emplace_back();
            if (!free || (!sheets.back().isEmpty() && sheets.back().size() < rows)) sheets.back() << line;
        }
    }
    return sheets;
}

QString titleOf(const QString& text) {
    constexpr QStringView kRelease = u"PART 01 OF ";
    const auto lines = text.split('\n');
    for (const QString& line : lines) {
        if (line.startsWith(kRelease)) return line.mid(kRelease.size()).section('/', 0, 0).trimmed();
    }
    return lines.front().trimmed();
}

bool printPages(QPagedPaintDevice& device, const QFont& font, const QString& text,
                const std::vector<Drawing>& drawings) {
    Sheets sheets(device, font, titleOf(text));
    if (!sheets.begin(font)) return false;
    const auto all = sheetsOf(text, sheets.columns(), sheets.rows());
    const int count = static_cast<int>(all.size()) + (drawings.empty() ? 0 : 1);
    for (const QStringList& lines : all) {
        if (!sheets.next(count)) return false;
        sheets.lines(lines);
    }
    if (!drawings.empty()) {
        if (!sheets.next(count)) return false;
        sheets.charts(drawings, font);
    }
    return sheets.end();
}

} // namespace gatewise::window
