#pragma once

#include <QLabel>

namespace gatewise::window {

class ScreenWindow;
class Skin;

/// A line of news in a window. It lies as far down as it covers no key, takes no input but a click on itself,
/// and goes by that click, after a while, or with its window.
class Note : public QLabel {
    Q_OBJECT
public:
    Note(const QString& text, const QString& file, ScreenWindow& window, const Skin& skin);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
};

} // namespace gatewise::window
