#include "window/StageTest.h"

#include "window/ChartView.h"
#include "window/QtText.h"
#include "window/Tone.h"

#include <QApplication>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

// The second skin as it is seen: no ground of the night is left, every text stands out from what is behind
// it.

namespace gatewise::test {

namespace {

using window::SkinChoice;
using window::View;

double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

/// 1 to 21, as guides for readable texts count it.
double contrast(QRgb one, QRgb other) {
    const auto light = [](QRgb c) {
        return 0.2126 * linear(qRed(c) / 255.0) + 0.7152 * linear(qGreen(c) / 255.0) +
               0.0722 * linear(qBlue(c) / 255.0);
    };
    const double a = light(one), b = light(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

std::map<QRgb, int> countsOf(const QImage& picture, const QRect& part) {
    std::map<QRgb, int> counts;
    const QRect box = part & picture.rect();
    QRgb last = 0;
    int* same = nullptr; // most pixels are like the one before
    for (int y = box.top(); y <= box.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = box.left(); x <= box.right(); ++x) {
            if (same == nullptr || line[x] != last) {
                last = line[x];
                same = &counts[last | 0xFF000000];
            }
            ++*same;
        }
    }
    return counts;
}

/// How far the strongest pixel stands out from the most frequent one.
double standsOut(const std::map<QRgb, int>& counts) {
    QRgb ground = 0;
    int most = 0;
    for (const auto& [color, count] : counts) {
        if (count > most) ground = color, most = count;
    }
    double best = 1;
    for (const auto& [color, count] : counts) best = std::max(best, contrast(color, ground));
    return best;
}

/// A drawing upon a ground of one colour; `point` as drawDrawing takes it.
QImage pictureOf(const Drawing& drawing, const QSize& size, const QColor& ground, double point) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(ground);
    QPainter painter(&picture);
    window::drawDrawing(painter, picture.rect(), drawing, QFont(), point);
    painter.end();
    return picture;
}

/// The widgets that were painted while it looked.
struct Painted : QObject {
    std::set<const QObject*> all;
    /// A list or a field with several lines is covered by a part of itself.
    [[nodiscard]] bool has(const QWidget& widget) const {
        const auto parts = widget.findChildren<QWidget*>();
        return all.contains(&widget) || std::any_of(parts.begin(), parts.end(), [this](const QWidget* part) {
                   return all.contains(part);
               });
    }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint) all.insert(object);
        return false;
    }
};

class Contrast : public StageTest {
protected:
    QImage seen(const Screen& screen) {
        auto& window = stage().desk().window(screen);
        window.sync();
        return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    /// Pixels of a screen in one of the skin's dark grounds and edges.
    int nightPixels(const Screen& screen) {
        constexpr const char* kNight[] = {"menu.back",  "list.back",  "list.head",        "list.stripe",
                                          "list.rim",   "key.face",   "list.scrollTrack", "list.scrollThumb",
                                          "key.rim",    "glass.back", "slider.groove",    "frame.border",
                                          "check.back", "well.rim",   "check.border"};
        const QImage picture = seen(screen);
        const auto counts = countsOf(picture, picture.rect());
        int found = 0;
        for (const char* key : kNight) {
            const auto at = counts.find(stage().desk().skin().style(key).rgb());
            if (at != counts.end()) found += at->second;
        }
        return found;
    }
};

} // namespace

TEST_F(Contrast, NoGroundOrEdgeOfTheNightIsLeftOnAnyScreen) {
    then([&] {
        int before = 0;
        for (const Screen* screen : forms().all()) before += nightPixels(*screen);
        EXPECT_GT(before, 100'000) << "else this looks for nothing";
        stage().window.display.chooseSkin(SkinChoice::HighContrast);
        // The softened edges of a picture meet one of these colours here and there.
        for (const Screen* screen : forms().all()) EXPECT_LT(nightPixels(*screen), 40) << screen->name;
    });
    play();
}

TEST_F(Contrast, EveryTextStandsOutFromWhatIsBehindIt) {
    then([&] {
        stage().window.display.chooseSkin(SkinChoice::HighContrast);
        for (const Screen* screen : forms().all()) {
            const QImage picture = seen(*screen);
            for (View* view : stage().desk().window(*screen).views()) {
                const Control* control = view->control;
                if (control == nullptr || control->kind != Kind::Label || !control->enabled) continue;
                const QWidget& widget = *view->widget();
                const QString text = window::toQt(static_cast<const Label*>(control)->text).trimmed();
                if (text.isEmpty() || widget.isHidden() || !widget.isVisibleTo(widget.window())) continue;
                const QRect box(widget.mapTo(widget.window(), QPoint(0, 0)), widget.size());
                EXPECT_GE(standsOut(countsOf(picture, box)), 4.5)
                    << control->fullName() << " " << text.toStdString();
            }
        }
    });
    play();
}

TEST_F(Contrast, AllThatIsSeenIsPaintedAnewWhenItIsChosen) {
    then([&] { stage().click(forms().MainForm.FlatButton(1)); });
    then([&] {
        QCoreApplication::processEvents();
        Painted painted;
        qApp->installEventFilter(&painted);
        stage().window.display.chooseSkin(SkinChoice::HighContrast);
        QCoreApplication::processEvents();
        int seenViews = 0;
        for (const Screen* screen : {static_cast<const Screen*>(&forms().MainForm),
                                     static_cast<const Screen*>(&forms().SettingsForm)}) {
            for (View* view : stage().desk().window(*screen).views()) {
                if (view->widget()->visibleRegion().isEmpty()) continue;
                ++seenViews;
                EXPECT_TRUE(painted.has(*view->widget()))
                    << screen->name << "." << view->place.name << " keeps the colours of before";
            }
        }
        EXPECT_GT(seenViews, 100);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Contrast, AKeyUnderTheMouseStillLooksLit) {
    then([&] {
        stage().window.display.chooseSkin(SkinChoice::HighContrast);
        stage().click(forms().MainForm.FlatButton(1));
    });
    then([&] {
        auto& key = forms().SettingsForm.pathButton;
        stage().hover(forms().SettingsForm.BG);
        const QImage before = stage().widget(key).grab().toImage();
        stage().hover(key);
        EXPECT_NE(stage().widget(key).grab().toImage(), before);
        stage().key(Qt::Key_Escape);
    });
    play();
}

/// A map whose coasts cover it all: its word has a dark rim in high contrast, and is on paper what it was.
TEST_F(Contrast, AWordOfAMapStandsOutFromTheLinesBelow) {
    then([&] {
        Drawing drawing;
        drawing.worded = true;
        for (int i = 0; i <= 40; ++i) {
            const double y = i / 40.0;
            drawing.lines.push_back({{{0, y}, {1, y}}, Tone::Coast, 3});
        }
        drawing.texts.push_back({{0.5, 0.5}, "KATL", false, Tone::Airport});
        const auto painted = [&](double point) {
            const QImage picture = pictureOf(drawing, QSize(80, 40), Qt::gray, point);
            return countsOf(picture, picture.rect());
        };
        const auto ground = [&] { return painted(0)[qRgb(0, 0, 0)]; };
        const auto paper = painted(1);
        EXPECT_EQ(ground(), 0);
        stage().window.display.chooseSkin(SkinChoice::HighContrast);
        EXPECT_GT(ground(), 40) << "as much as letters have edges";
        EXPECT_EQ(painted(1), paper);
    });
    play();
}

TEST_F(Contrast, ChartsHaveStrongerColoursOnTheScreenAndTheSamePaper) {
    then([&] {
        DrawingLine line;
        line.points = {{0.1, 0.5}, {0.9, 0.5}};
        line.tone = Tone::Coast;
        line.width = 9;
        Drawing drawing;
        drawing.lines.push_back(line);
        const auto drawn = [&](double point) {
            return pictureOf(drawing, QSize(100, 100), point > 0 ? Qt::white : Qt::black, point);
        };
        const QImage paper = drawn(1);
        EXPECT_LT(contrast(drawn(0).pixel(50, 50), qRgb(0, 0, 0)), 4.5);
        stage().window.display.chooseSkin(SkinChoice::HighContrast);
        EXPECT_GT(contrast(drawn(0).pixel(50, 50), qRgb(0, 0, 0)), 7);
        EXPECT_EQ(drawn(1), paper);
    });
    play();
}

TEST_F(Contrast, WordsOnAMapStandOnAGroundOfTheirOwn) {
    then([&] {
        Drawing drawing;
        DrawingLine coast; // all of the ground as bright as a coast
        coast.points = {{0, 0.5}, {1, 0.5}};
        coast.tone = Tone::Coast;
        coast.width = 300;
        drawing.lines.push_back(coast);
        drawing.worded = true;
        DrawingText word;
        word.text = "KATL";
        word.at = {0.5, 0.5};
        word.tone = Tone::Fix;
        drawing.texts.push_back(word);
        const auto blackOf = [&](double point) {
            const QImage picture = pictureOf(drawing, QSize(100, 100), Qt::white, point);
            return countsOf(picture, picture.rect())[qRgb(0, 0, 0)];
        };
        EXPECT_EQ(blackOf(0), 0);
        stage().window.display.chooseSkin(SkinChoice::HighContrast);
        EXPECT_GT(blackOf(0), 20) << "around the letters";
        EXPECT_EQ(blackOf(1), 0) << "paper has its own colours";
    });
    play();
}

} // namespace gatewise::test
