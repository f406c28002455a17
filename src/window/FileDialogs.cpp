#include "window/FileDialogs.h"

#include "window/Sheets.h"

#include <QApplication>
#include <QFileDialog>
#include <QScreen>

namespace gatewise::window {

namespace {

constexpr QSize kSize(640, 420); // pixels of the layout
constexpr const char* kAllFiles = "All files (*)";

/// One kind in words: "CSV files (*.csv)".
QString kindOf(const QString& ending) {
    return ending.toUpper() + " files (*." + ending + ")";
}

void dress(QFileDialog& dialog, const Skin& skin) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setPalette(dialogPalette(skin, dialog.palette()));
    dialog.setFont(skin.widgetFont("data"));
    dialog.setStyleSheet(dialogSheet(skin));
    const QSize room = dialog.screen()->availableGeometry().size();
    dialog.resize(skin.zoom().size(kSize).boundedTo(room));
}

/// The dialog at a file, shown until it is answered.
QString answerOf(QFileDialog& dialog, const Skin& skin, const QFileInfo& at) {
    dress(dialog, skin);
    dialog.setDirectory(at.absolutePath());
    dialog.selectFile(at.fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString askNewFile(const Skin& skin, const QString& title, const QString& proposal) {
    QFileDialog dialog(QApplication::activeWindow(), title);
    const QFileInfo at(proposal);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    if (const QString ending = at.suffix(); !ending.isEmpty()) {
        dialog.setNameFilters({kindOf(ending), kAllFiles});
        dialog.setDefaultSuffix(ending);
    }
    return answerOf(dialog, skin, at);
}

QString askFile(const Skin& skin, const QString& title, const QString& proposal) {
    QFileDialog dialog(QApplication::activeWindow(), title);
    const QFileInfo at(proposal);
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (const QString ending = at.suffix(); !ending.isEmpty())
        dialog.setNameFilters({kAllFiles, kindOf(ending)});
    return answerOf(dialog, skin, at);
}

QString askFolder(const Skin& skin, const QString& title, const QString& proposal) {
    QFileDialog dialog(QApplication::activeWindow(), title);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return answerOf(dialog, skin, QFileInfo(proposal));
}

} // namespace gatewise::window
