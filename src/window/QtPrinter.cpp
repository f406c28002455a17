#include "platform/Files.h"
#include "platform/Text.h"
#include "window/PrintedPages.h"
#include "window/PrintedPicture.h"
#include "window/QtMachine.h"
#include "window/QtText.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QLocale>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include <filesystem>

namespace gatewise::window {

namespace {

/// Whether all characters are of one width. A face of figures alone counts as such, but has points of none.
bool isPitched(const QFont& font) {
    const QFontMetricsF metrics(font);
    return QFontInfo(font).fixedPitch() && metrics.horizontalAdvance('.') == metrics.horizontalAdvance('M');
}

/// The named font, else that of the system, else the one that the program brings along.
QFont pitchedFont(const std::string& name, int size) {
    QFont font;
    for (const QString& family : {toQt(name), QFontDatabase::systemFont(QFontDatabase::FixedFont).family(),
                                  QString("Gatewise OCR B")}) {
        font = QFont(family, size);
        font.setStyleHint(QFont::TypeWriter);
        font.setFixedPitch(true);
        if (isPitched(font)) break;
    }
    return font;
}

constexpr double kMargin = 42; // points, on all sides: 80 columns of ten points fit on either paper

void setMargins(QPrinter& printer) {
    printer.setPageMargins({kMargin, kMargin, kMargin, kMargin}, QPageLayout::Point);
}

/// The paper of the country where there is no printer that has its own.
QPageSize usualPaper() {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
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
        setMargins(printer);
        if (printPages(printer, face, toQt(text), drawings)) return {};
    }
    const std::string folder = folder_ + "\\Printouts";
    std::error_code error;
    std::filesystem::create_directories(files::target(folder), error);
    if (error) return error;
    const std::string name = freeName(folder);
    error = files::replace(name + ".txt", replaceAll(replaceAll(text, "\r\n", "\n"), "\n", "\r\n"));
    if (error) return error;
    QPrinter pages(QPrinter::HighResolution);
    pages.setOutputFormat(QPrinter::PdfFormat);
    pages.setOutputFileName(nativePath(name + ".pdf"));
    pages.setDocName(titleOf(toQt(text)));
    pages.setPageSize(usualPaper());
    setMargins(pages);
    const bool drawn = printPages(pages, face, toQt(text), drawings);
    const std::string shown = drawn ? name + ".pdf" : name + ".txt";
    desktop_.notifyFile((info.isNull() ? "There is no printer" : "The printer took nothing") +
                            std::string(". The pages lie in ") + fromQt(nativePath(shown)),
                        shown);
    return {};
}

std::error_code QtPrinter::save(const std::string& path, const std::string& font, int size,
                                const std::string& text, const std::vector<Drawing>& drawings) {
    const QFont face = pitchedFont(font, size);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    bool made = false;
    if (lowerCase(path).ends_with(".png")) {
        made = pictureOf(face, toQt(text), drawings).save(&buffer, "PNG");
    } else {
        QPdfWriter pages(&buffer);
        pages.setTitle(titleOf(toQt(text)));
        pages.setPageSize(usualPaper());
        pages.setPageMargins({kMargin, kMargin, kMargin, kMargin}, QPageLayout::Point);
        made = printPages(pages, face, toQt(text), drawings);
    }
    if (!made) return std::make_error_code(std::errc::not_enough_memory);
    return files::replace(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

} // namespace gatewise::window
