#include "window/Narrowing.h"

namespace gatewise::window {

namespace {

constexpr int kHeight = 22;

bool isLetter(const QKeyEvent& event) {
    const auto held = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return held == Qt::NoModifier && event.text().size() == 1 && event.text().at(0).isPrint();
}

} // namespace

Narrowing::Narrowing(QTreeView& list, const Skin& skin) : list_(list), skin_(skin), sign_(new QLabel(&list)) {
    sign_->setTextFormat(Qt::PlainText);
    sign_->setAttribute(Qt::WA_TransparentForMouseEvents);
    sign_->setStyleSheet(QString("background:%1;color:%2;padding:0 8px")
                             .arg(skin.style("tooltip.back").name(), skin.style("tooltip.text").name()));
    sign_->hide();
}

bool Narrowing::matches(int row, const QString& typed) const {
    const QAbstractItemModel* model = list_.model();
    return model->index(row, 0).data().toString().contains(typed, Qt::CaseInsensitive);
}

int Narrowing::firstMatch(const QString& typed) const {
    const int rows = list_.model()->rowCount();
    for (int row = 0; row < rows; ++row) {
        if (matches(row, typed)) return row;
    }
    return -1;
}

void Narrowing::reset() {
    typed_.clear();
    show({});
}

void Narrowing::show(const QString& refused) {
    const int rows = list_.model()->rowCount();
    for (int row = 0; row < rows; ++row) list_.setRowHidden(row, {}, !matches(row, typed_));
    const QString none = "No line has \"" + refused + "\".";
    const QString help = refused.isEmpty() ? "Esc shows all lines." : none;
    sign_->setText(typed_.isEmpty() ? help : "Only: " + typed_ + "  " + help);
    sign_->setFont(skin_.widgetFont("data"));
    const int height = skin_.zoom().edge(kHeight);
    sign_->setGeometry(0, list_.height() - height, list_.width(), height);
    sign_->setVisible(!typed_.isEmpty() || !refused.isEmpty());
    sign_->raise();
}

void Narrowing::narrow(const QString& typed, const std::function<void(int)>& choose) {
    const int first = firstMatch(typed);
    const bool refused = first < 0;
    if (!refused) typed_ = typed;
    show(refused ? typed : QString());
    const int now = list_.currentIndex().row();
    if (!refused && (now < 0 || list_.isRowHidden(now, {}))) choose(first);
    if (list_.currentIndex().isValid()) list_.scrollTo(list_.currentIndex());
}

bool Narrowing::key(const QKeyEvent& event, const std::function<void(int)>& choose) {
    if (list_.model()->rowCount() == 0) return false;
    if (event.key() == Qt::Key_Escape && !typed_.isEmpty()) {
        reset();
        return true;
    }
    if (event.key() == Qt::Key_Backspace && !typed_.isEmpty()) {
        narrow(typed_.chopped(1), choose);
        return true;
    }
    // A blank at the beginning presses what the list has for it.
    if (!isLetter(event) || (typed_.isEmpty() && event.text() == " ")) return false;
    narrow(typed_ + event.text(), choose);
    return true;
}

} // namespace gatewise::window
