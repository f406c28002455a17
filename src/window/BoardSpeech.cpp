#include "window/BoardSpeech.h"

#include "pages/MainBoard.h"
#include "window/QtText.h"

#include <QRegularExpression>
#include <QStringList>

namespace gatewise::window {

namespace {

QString textOf(const Label& label) {
    return toQt(label.text).simplified();
}

/// What a turn of the board changes in its heading: neither the time nor how many pages there are.
QString headingOf(const forms::MainForm& form) {
    static const QRegularExpression passing("\\d\\d:\\d\\d(:\\d\\d)?| of \\d+");
    return textOf(form.header_LABEL).remove(passing) + textOf(form.city_LABEL(kHeadingRow));
}

/// "Departures, page 2 of 4, 20 flights"
QString turned(const forms::MainForm& form, std::size_t flights) {
    static const QRegularExpression page("Page \\d+ of \\d+");
    QStringList words{textOf(form.city_LABEL(kHeadingRow)).contains("ARRIV") ? "Arrivals" : "Departures"};
    const auto found = page.match(textOf(form.header_LABEL));
    if (found.hasMatch()) words << found.captured().toLower();
    words << (flights == 1 ? QString("1 flight") : QString::number(flights) + " flights");
    return words.join(", ");
}

} // namespace

QString boardTime(const Screen& screen, const QString& text) {
    const auto* head = static_cast<const Label*>(screen.find("city_LABEL", kHeadingRow));
    const bool arrives = head != nullptr && textOf(*head).contains("ARRIV");
    QString time = text;
    if (time.size() == 4) time.insert(2, ':');
    return (arrives ? "arrival time " : "departure time ") + time;
}

QString BoardSpeech::look(const forms::MainForm& form) {
    if (!form.visible || !form.status_pic.visible) {
        heading_.clear();
        return {};
    }
    std::map<QString, QString> now;
    QStringList news;
    for (int line = 0; line < kRowsOnPage; ++line) {
        const QString flight = textOf(form.fltnum_LABEL(line));
        if (flight.isEmpty()) continue;
        const QString status = textOf(form.status_LABEL(line));
        const QString name = flight + ' ' + textOf(form.city_LABEL(line));
        const auto before = statuses_.find(name + textOf(form.time_LABEL(line)));
        if (before != statuses_.end() && before->second != status) news << name + ": " + status;
        now[name + textOf(form.time_LABEL(line))] = status;
    }
    const QString heading = headingOf(form);
    const bool turn = heading != heading_ && !heading_.isEmpty();
    const bool fresh = heading_.isEmpty();
    heading_ = heading;
    statuses_ = std::move(now);
    if (turn) return turned(form, statuses_.size());
    return fresh ? QString() : news.join(". ");
}

} // namespace gatewise::window
