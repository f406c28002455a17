#include "platform/Files.h"
#include "platform/Text.h"
#include "window/ChartView.h"
#include "window/QtMachine.h"
#include "window/QtText.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <filesystem>

namespace gatewise::window {

namespace {

/// The named font, or the nearest with a fixed pitch.
QFont pitchedFont(const std::string& name, int size) {
    QFont font(toQt(name), size);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    if (!QFontInfo(font).fixedPitch()) {
        font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        font.setPointSize(size);
    }
    return font;
}

/// Lines down the page, page after page. False when the device takes nothing.
/// The drawings stand on a page of their own, one below the other.
bool printAll(QPrinter& printer, const QFont& font, const QString& text,
              const std::vector<Drawing>& drawings) {
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    painter.setFont(font);
    const QFontMetricsF metrics(font, &printer);
    const QRectF page(QPointF(0, 0), QSizeF(printer.pageRect(QPrinter::DevicePixel).size()));
    double y = 0;
    QString lines = text;
    lines.replace("\r\n", "\n");
    const auto all = lines.split('\n');
    for (const QString& line : all) {
        if (y + metrics.height() > page.height()) {
            printer.newPage();
            y = 0;
        }
        painter.drawText(QRectF(0, y, page.width(), metrics.height() + 1),
                         Qt::TextExpandTabs | Qt::TextSingleLine, line);
        y += metrics.lineSpacing();
    }
    if (!drawings.empty()) printer.newPage();
    const double height = page.height() / static_cast<double>(std::max<std::size_t>(drawings.size(), 1));
    double top = 0;
    for (const Drawing& drawing : drawings) {
        drawDrawing(painter, QRectF(0, top, page.width(), height - metrics.height()), drawing, font, true);
        top += height;
    }
    return painter.end();
}

/// First name "Printout 1", "Printout 2" ... for which the folder holds no file.
std::string freeName(const std::string& folder) {
    for (int i = 1;; ++i) {
        const std::string name = folder + "\\Printout " + std::to_string(i);
        if (!files::fileExists(name + ".pdf") && !files::fileExists(name + ".txt")) return name;
    }
}

} // namespace

std::error_code QtPrinter::print(const std::string& font, int size, const std::string& text,
                                 const std::vector<Drawing>& drawings) {
    const QFont face = pitchedFont(font, size);
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (!info.isNull()) {
        QPrinter printer(info, QPrinter::HighResolution);
        printer.setDocName("Gatewise Terminal");
        if (printAll(printer, face, toQt(text), drawings)) return {};
    }
    const std::string folder = folder_ + "\\Printouts";
    std::error_code error;
    std::filesystem::create_directories(files::resolve(folder), error);
    if (error) return error;
    const std::string name = freeName(folder);
    error = files::replace(name + ".txt", replaceAll(replaceAll(text, "\r\n", "\n"), "\n", "\r\n"));
    if (error) return error;
    QPrinter pages(QPrinter::HighResolution);
    pages.setOutputFormat(QPrinter::PdfFormat);
    pages.setOutputFileName(nativePath(name + ".pdf"));
    const bool drawn = printAll(pages, face, toQt(text), drawings);
    const std::string shown = drawn ? name + ".pdf" : name + ".txt";
    desktop_.notify((info.isNull() ? "There is no printer" : "The printer took nothing") +
                    std::string(". The pages lie in ") + fromQt(nativePath(shown)));
    return {};
}

} // namespace gatewise::window
