#pragma once

#include "forms/MainForm.h"

#include <QString>

#include <map>

namespace gatewise::window {

/// "0445" of the board on a screen: "departure time 04:45", or "arrival time 04:45" while it shows arrivals.
QString boardTime(const Screen& screen, const QString& text);

/// What the status board has to tell someone who does not look at it: that it was turned, and what became of
/// the flights on it. What changes by itself every second or minute is no news.
class BoardSpeech {
public:
    /// The news since the last look, empty when there is none.
    QString look(const forms::MainForm& form);

private:
    QString heading_; // page, board and airline of the last look; empty when the board was not up
    std::map<QString, QString> statuses_; // by flight
};

} // namespace gatewise::window
