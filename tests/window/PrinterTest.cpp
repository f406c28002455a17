#include "window/StageTest.h"

#include "window/PrintedPages.h"
#include "window/PrintedPicture.h"

#include <QFile>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>

// What comes out of the printer, read back by another program.

namespace gatewise::test {

namespace {

using window::printPages;
using window::sheetsOf;
using window::titleOf;

struct Word {
    int page = 0;
    double left = 0, top = 0, right = 0, bottom = 0; // points from the corner of the sheet
    QString text;
};

QString run(const char* program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

std::vector<Word> wordsOf(const QString& pdf, QSizeF* sheet = nullptr) {
    static const QRegularExpression kLine(
        R"re(<(page width="([\d.]+)" height="([\d.]+)"|word xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="([-\d.]+)" yMax="([-\d.]+)">([^<]*)<))re");
    std::vector<Word> words;
    int page = 0;
    auto at = kLine.globalMatch(run("pdftotext", {"-bbox", pdf, "-"}));
    while (at.hasNext()) {
        const auto match = at.next();
        if (!match.captured(2).isEmpty()) {
            ++page;
            if (sheet != nullptr) *sheet = {match.captured(2).toDouble(), match.captured(3).toDouble()};
        } else {
            words.push_back({page, match.captured(4).toDouble(), match.captured(5).toDouble(),
                             match.captured(6).toDouble(), match.captured(7).toDouble(), match.captured(8)});
        }
    }
    return words;
}

QStringList linesOf(const QString& pdf) {
    QStringList out;
    const auto all = run("pdftotext", {"-layout", pdf, "-"}).split(QRegularExpression("[\n\f]"));
    for (const QString& line : all) {
        if (!line.trimmed().isEmpty()) out << line.trimmed().simplified();
    }
    return out;
}

class Printed : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
        makeStage(GATEWISE_PROGRAM_DIR, stage::Time::Real);
    }
    QString pdf(int number = 1) const {
        return QString::fromStdString(
                   (folder() / "Printouts" / ("Printout " + std::to_string(number))).string()) +
               ".pdf";
    }
    QStringList filed(int number = 1) const {
        QString name = pdf(number);
        QFile file(name.replace(".pdf", ".txt"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromLatin1(file.readAll()).split("\r\n");
    }
};

/// A release with a route that no line holds and many points.
QString longRelease(int points) {
    QString text =
        "15JUN\nPART 01 OF NS1482/KATL DEPARTURE TIME - 0845\n\nROUTE KATL to KSLC\tFL 350\tETE 03:40\n";
    for (int i = 0; i < 40; ++i) text += QString("FIX%1 J%2 ").arg(i).arg(100 + i);
    text += "\n\n";
    for (int i = 0; i < points; ++i) {
        text += QString("P%1 first line of the point\nP%1 second line of the point\n\n")
                    .arg(i, 3, 10, QChar('0'));
    }
    return text + "PLAN VALID";
}

} // namespace

TEST(PrintedSheets, ALongLineGoesOnBelowUnderItsOwnBeginning) {
    const auto sheets = sheetsOf("  alpha beta gamma", 12, 10);
    ASSERT_EQ(sheets.size(), 1U);
    EXPECT_EQ(sheets[0], QStringList({"  alpha beta", "  gamma"}));
    EXPECT_EQ(sheetsOf("abcdefghij", 4, 10)[0], QStringList({"abcd", "efgh", "ij"}));
    EXPECT_EQ(sheetsOf("", 4, 10)[0].join(""), "");
}

TEST(PrintedSheets, TabsGoToEveryEighthColumn) {
    EXPECT_EQ(sheetsOf("ab\tc\td", 40, 10)[0], QStringList({"ab      c       d"}));
    EXPECT_EQ(sheetsOf("12345678\tx", 40, 10)[0], QStringList({"12345678        x"}));
}

TEST(PrintedSheets, LinesThatBelongTogetherStayOnOneSheet) {
    const auto sheets = sheetsOf("a1\na2\n\nb1\nb2\n\nc1\nc2", 40, 4);
    ASSERT_EQ(sheets.size(), 3U);
    EXPECT_EQ(sheets[0], QStringList({"a1", "a2", ""}));
    EXPECT_EQ(sheets[1], QStringList({"b1", "b2", ""}));
    EXPECT_EQ(sheets[2], QStringList({"c1", "c2"}));
}

TEST(PrintedSheets, ABlockThatNoSheetHoldsIsCutWhereTheSheetEnds) {
    const auto sheets = sheetsOf("1\n2\n3\n4\n5", 40, 2);
    ASSERT_EQ(sheets.size(), 3U);
    EXPECT_EQ(sheets[2], QStringList({"5"}));
}

TEST(PrintedSheets, TheTitleIsTheFlightElseTheFirstLine) {
    EXPECT_EQ(titleOf(longRelease(1)), "NS1482");
    EXPECT_EQ(titleOf("PILOT'S LOG BOOK\nPilot: A"), "PILOT'S LOG BOOK");
    EXPECT_EQ(titleOf(""), "");
}

TEST(PrintedCharts, ThoseWithAnAspectKeepIt) {
    Drawing wide, open;
    wide.aspect = 2;
    // 100 wide is 50 high; what is left of 200 without two gaps of 10 is for the other.
    const auto both = window::chartBoxes({wide, open}, {100, 200}, 10);
    EXPECT_EQ(both[0], QRectF(0, 0, 100, 50));
    EXPECT_EQ(both[1], QRectF(0, 60, 100, 130));
    // Two of them have 40 each where 50 were wanted.
    const auto tight = window::chartBoxes({wide, wide}, {100, 100}, 10);
    EXPECT_EQ(tight[0], QRectF(10, 0, 80, 40));
    EXPECT_EQ(tight[1], QRectF(10, 50, 80, 40));
    EXPECT_EQ(window::chartBoxes({open, open}, {100, 100}, 10)[1], QRectF(0, 50, 100, 40));
    EXPECT_TRUE(window::chartBoxes({}, {100, 100}, 10).empty());
}

TEST(PrintedCharts, APictureIsWhiteAndAsSharpAsPaper) {
    Drawing bar;
    bar.aspect = 2;
    bar.lines.push_back({{{0.4, 0.5}, {0.6, 0.5}}, Tone::Route, 8});
    const QImage image = window::pictureOf(QFont("Liberation Mono", 10), "First line\nlast line", {bar});
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.width(), 2480);
    EXPECT_EQ(qRound(image.dotsPerMeterX() * 0.0254), 300);
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::white));
    // The drawing is 2130 by 1065 within margins of 175.
    EXPECT_NE(image.pixelColor(1240, 175 + 532), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(300, 175 + 532), QColor(Qt::white));
    int dark = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 175 + 1065 + 20; y < image.height(); ++y)
            dark += image.pixelColor(x, y).lightness() < 100;
    EXPECT_GT(dark, 500) << "the listing stands below";
}

/// On both papers nothing stands outside of the margins, no point is torn apart, every sheet has its number.
TEST(PrintedSheets, AReleaseFitsOnBothPapers) {
    const QTemporaryDir scratch;
    for (const auto size : {QPageSize::A4, QPageSize::Letter}) {
        const QString file = scratch.filePath("release.pdf");
        {
            QPdfWriter writer(file);
            writer.setPageSize(QPageSize(size));
            writer.setPageMargins({42, 42, 42, 42}, QPageLayout::Point);
            QFont font("Liberation Mono", 10);
            font.setStyleHint(QFont::TypeWriter);
            ASSERT_TRUE(printPages(writer, font, longRelease(60), {}));
        }
        QSizeF sheet;
        const auto words = wordsOf(file, &sheet);
        EXPECT_EQ(sheet.toSize(), QPageSize(size).sizePoints());
        std::map<QString, int> pageOfPoint;
        int pages = 0;
        for (const Word& word : words) {
            EXPECT_GE(word.left, 41) << word.text.toStdString();
            EXPECT_LE(word.right, sheet.width() - 41) << word.text.toStdString();
            EXPECT_LE(word.bottom, sheet.height() - 40) << word.text.toStdString();
            pages = word.page;
            if (!QRegularExpression("^P\\d\\d\\d$").match(word.text).hasMatch()) continue;
            const auto known = pageOfPoint.try_emplace(word.text, word.page).first;
            EXPECT_EQ(known->second, word.page) << word.text.toStdString() << " is torn apart";
        }
        EXPECT_EQ(pageOfPoint.size(), 60U);
        EXPECT_GT(pages, 2);
        const QStringList lines = linesOf(file);
        for (int i = 1; i <= pages; ++i) {
            EXPECT_TRUE(lines.contains(QString("NS1482 Page %1 of %2").arg(i).arg(pages)));
        }
        EXPECT_TRUE(lines.join(' ').contains("FIX39 J139")) << "the end of the route is lost";
    }
}

TEST_F(Printed, PagesAreSavedUnderTheNameThatThePilotGave) {
    then([&] {
        Drawing map;
        map.aspect = 1.5;
        map.texts.push_back({{0.5, 0.5}, "Quillmark"});
        auto& printer = stage().window.program.machine.printer;
        const std::string pdfFile = files::textOf(folder() / "My career.pdf");
        EXPECT_FALSE(printer.save(pdfFile, "Courier New", 10, "CAREER\n\nFlights 3", {map}));
        const QString words = linesOf(QString::fromStdString(pdfFile)).join(' ');
        EXPECT_TRUE(words.contains("Flights 3")) << words.toStdString();
        EXPECT_TRUE(words.contains("Quillmark")) << words.toStdString();
        const std::string pngFile = files::textOf(folder() / "My career.PNG");
        EXPECT_FALSE(printer.save(pngFile, "Courier New", 10, "CAREER\n\nFlights 3", {map}));
        EXPECT_EQ(QImage(QString::fromStdString(pngFile), "PNG").width(), 2480);
        const std::string nowhere = files::textOf(folder() / "missing" / "My career.pdf");
        EXPECT_EQ(printer.save(nowhere, "Courier New", 10, "CAREER", {}),
                  std::errc::no_such_file_or_directory);
    });
    play();
}

/// The way that ships, from the key to the sheet: what was handed over stands on the paper, line by line.
TEST_F(Printed, ThePlanAndItsChartsComeOutWhole) {
    then([&] { stage().doubleClick(forms().MainForm.city_LABEL(3)); });
    then([&] { stage().click(forms().MainForm.viewButton); });
    then([&] { stage().click(forms().ViewPlan.chartsButton); });
    then([&] { stage().click(forms().ViewPlan.printButton); });
    then([&] {
        const QStringList printed = linesOf(pdf());
        const auto text = filed();
        const QString all = printed.join(' ');
        for (const QString& line : text) {
            EXPECT_TRUE(all.contains(line.simplified())) << line.toStdString();
        }
        const QString fonts = run("pdffonts", {pdf()});
        EXPECT_TRUE(fonts.contains(QRegularExpression("(Courier|Mono).* yes (yes|no) +yes")))
            << fonts.toStdString();
        for (const auto& mark : forms().PlanCharts.mapChart.drawing.marks) {
            if (mark.tone != Tone::Airport) continue;
            EXPECT_TRUE(all.contains(QString::fromStdString(mark.label)));
        }
        // A label of ten points is ten points high on the last sheet, not a tenth of a millimetre.
        const auto words = wordsOf(pdf());
        for (const Word& word : words) {
            if (word.page != words.back().page) continue;
            EXPECT_NEAR(word.bottom - word.top, 11, 3) << word.text.toStdString();
        }
        stage().key(Qt::Key_Escape);
    });
    then([&] { stage().key(Qt::Key_Escape); });
    play();
}

} // namespace gatewise::test
