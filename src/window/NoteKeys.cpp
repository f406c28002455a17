#include "window/NoteKeys.h"

#include "window/Buttons.h"
#include "window/Drawing.h"
#include "window/Skin.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QUrl>

namespace gatewise::window {

namespace {

constexpr QSize kKey(118, 26);

/// A key that looks like those of the screens.
class OpenKey : public QPushButton {
public:
    OpenKey(const QString& words, const QString& path, const Skin& skin, QWidget* parent)
        : QPushButton(words, parent), skin_(skin) {
        setFixedSize(skin.zoom().size(kKey));
        setAttribute(Qt::WA_Hover);
        connect(this, &QPushButton::clicked, this,
                [path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    }

protected:
    void paintEvent(QPaintEvent*) override {
        ViewPainter painter(*this, skin_.zoom());
        drawKey(painter, painter.whole(), text(), skin_, underMouse() || isDown() || hasFocus(), true);
    }

private:
    const Skin& skin_;
};

} // namespace

QWidget* makeOpenKeys(const QString& file, int width, const Skin& skin, QWidget* parent) {
    if (file.isEmpty()) return nullptr;
    auto* row = new QWidget(parent);
    row->setStyleSheet("background:transparent");
    auto* keys = new QHBoxLayout(row);
    keys->setContentsMargins(0, 0, 0, 0);
    keys->addStretch();
    if (file.endsWith(".pdf", Qt::CaseInsensitive)) keys->addWidget(new OpenKey("Open", file, skin, row));
    keys->addWidget(new OpenKey("Open Folder", QFileInfo(file).absolutePath(), skin, row));
    row->setFixedSize(width, skin.zoom().edge(kKey.height()));
    return row;
}

} // namespace gatewise::window
