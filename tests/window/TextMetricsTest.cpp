#include "window/LabelText.h"
#include "window/Skin.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

// The check of the layout measures texts by the tables of the typefaces and breaks them by its own rule, the
// window by the toolkit, which moves some pairs of letters nearer. What the one finds to fit has to fit on
// the screen.

namespace gatewise::test {

#ifdef GATEWISE_TEXTS

namespace {

constexpr double kWider = 1.5;     // pixels that a line may take more than the check says
constexpr double kNarrowest = 0.9; // share of it that it takes at least

QJsonArray measuredTexts() {
    QFile file(GATEWISE_TEXTS);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).array() : QJsonArray();
}

} // namespace

TEST(TextMetrics, TheWindowBreaksAndMeasuresTextsAsTheLayoutsCheckDoes) {
    const window::Skin skin(GATEWISE_PROGRAM_DIR);
    const QJsonArray rows = measuredTexts();
    EXPECT_GT(rows.size(), 500);
    for (const auto& value : rows) {
        const QJsonObject row = value.toObject();
        const std::string text = row["text"].toString().toStdString();
        window::TextStyle style = skin.text(row["role"].toString().toStdString());
        style.wrap = row["wraps"].toBool();
        const QStringList lines =
            linesOf(QString(row["text"].toString()).remove('\r'), style, row["width"].toDouble());
        const QJsonArray wanted = row["lines"].toArray();
        const std::string who = row["who"].toString().toStdString() + ": " + text;
        EXPECT_EQ(lines.size(), wanted.size()) << who;
        for (qsizetype i = 0; i < wanted.size(); ++i) {
            const double width = row["widths"].toArray()[i].toDouble();
            const double shown = advance(wanted[i].toString(), style);
            EXPECT_LE(shown, width + kWider) << who;
            EXPECT_GE(shown, width * kNarrowest) << who;
        }
    }
}

#endif

} // namespace gatewise::test
