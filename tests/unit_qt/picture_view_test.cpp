// The diagram on the screen, of which a key repaints a row alone, against the diagram painted anew.
#include <QPaintEvent>
#include <functional>
#include <random>
#include <utility>

#include "diagram/draw_diagram.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/sheet_file.h"
#include "unit_qt/on_screen_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr unsigned kSeed = 20261121;
constexpr const char* kSheet = "/sheet.csv";

// Its parameter is the density of the screen.
class PictureViewTest : public OnScreenTest, public testing::WithParamInterface<double> {
protected:
    PictureViewTest() : OnScreenTest(GetParam()) {
        Do([] { CloseWindow(frmNext); });
    }

    // Thirty samples, of which `last` makes the last one.
    void Open(const std::function<std::string(const Row& row)>& last) {
        Rows rows = DataSheet(30);
        for (int row = kTaxonRow; row < kParamRow; ++row) rows[row].back() = last(rows[row]);
        files_.bytes[kSheet] = Joined(rows);
        services_.messages.answers = {Answer::Yes};
        services_.dialogs.answers = {kSheet};
        Do([] { ClickControl(frmMain.mnuOpen); });
        Do([] { BringToFront(frmMain); });
    }

    void Press(int code) {
        Do([] { BringToFront(frmMain); });
        Do([code] { PressKey(code); });
        Do([code] { ReleaseKey(code); });
    }
    QImage Seen(const PictureBox& picture) { return Shown(picture).Widget()->grab().toImage(); }
    // As it lies in a window: its corner may be in the middle of a pixel of the screen.
    static QImage SeenAPixelDown(QWidget& widget) {
        const double density = widget.devicePixelRatioF();
        QImage image((QSizeF(widget.size()) * density).toSize() + QSize(0, 8), QImage::Format_RGB32);
        image.fill(Qt::white);
        image.setDevicePixelRatio(density);
        widget.render(&image, QPoint(0, 1));
        return image;
    }
    QImage PaintedAnew(const PictureBox& picture) {
        Shown(picture).Rescale();
        return Seen(picture);
    }
    void ExpectSeenAsItIs(const std::string& after) {
        for (PictureBox* picture : {&frmDiagram.Picture1, &frmDiagram.Picture2, &frmMain.Picture2}) {
            if (!picture->Visible()) continue;
            const QImage seen = Seen(*picture);
            ASSERT_EQ(seen, PaintedAnew(*picture)) << picture->window->name << "." << picture->name << " after " << after;
        }
    }
};

TEST_P(PictureViewTest, AfterEveryKeyTheDiagramIsWhatItWouldBePaintedAnew) {
    Open([](const Row&) { return "0"; });
    std::mt19937 random(kSeed);
    for (MenuItem* style : {&frmMain.mnuBar, &frmMain.mnuCurve}) {
        Do([style] { ClickControl(*style); });
        Do([] { ResizeWindow(frmDiagram, 14'000, 11'000); });
        if (style == &frmMain.mnuCurve) Do([] { ClickControl(frmDiagram.nmuConiss); });
        const QImage before = Seen(frmDiagram.Picture1);
        for (int key = 0; key < 20; ++key) {
            const int code = std::uniform_int_distribution<int>('A', 'Z')(random);
            Press(code);
            ExpectSeenAsItIs("key " + std::to_string(code));
        }
        EXPECT_NE(Seen(frmDiagram.Picture1), before) << "the keys count";
        for (const int sample : {3, 29, 30, 1}) {
            Do([sample] { SlideTo(frmDiagram.Slider1, sample); });
            ExpectSeenAsItIs("sample " + std::to_string(sample));
        }
        Do([] { SlideTo(frmDiagram.Slider2, 8); });
        ExpectSeenAsItIs("a change of scale");
        Do([] { CloseWindow(frmDiagram); });
    }
}

TEST_P(PictureViewTest, TheLineOfTheSampleHidesItsBars) {
    Open([](const Row& row) { return row[row.size() - 10]; });
    Do([] { ClickControl(frmMain.mnuBar); });
    Do([] { ClickControl(frmDiagram.Check1); });
    QWidget& canvas = *Shown(frmDiagram.Picture1).Widget();
    for (const int sample : {2, 11, 17, 29}) {
        Do([sample] { SlideTo(frmDiagram.Slider1, sample); });
        const QImage seen = SeenAPixelDown(canvas);
        const auto has = [&seen](int row, QColor colour) {
            for (int x = 0; row >= 0 && row < seen.height() && x < seen.width(); ++x)
                if (seen.pixelColor(x, row) == colour) return true;
            return false;
        };
        int line = 0;
        while (line < seen.height() && !has(line, Qt::blue)) ++line;
        ASSERT_LT(line, seen.height());
        for (int row = line - 3; row < line + 5; ++row)
            EXPECT_FALSE(!has(row, Qt::blue) && has(row, QColor(0, 128, 0))) << "sample " << sample << ": line " << line << ", bar " << row;
    }
}

// Gathers what a widget repaints while it lives.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget* widget) { widget->installEventFilter(this); }
    QRegion Take() { return std::exchange(repainted_, QRegion()); }

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) repainted_ += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion repainted_;
};

// The last sample repeats another one: no taxon is more frequent there than elsewhere, and a few counts move no column.
TEST_P(PictureViewTest, ACountThatMovesNoColumnRepaintsItsRowAndNoMore) {
    Open([](const Row& row) { return row[row.size() - 10]; });
    Do([] { ClickControl(frmMain.mnuBar); });
    Press('A');
    QWidget* const canvas = Shown(frmDiagram.Picture1).Widget();
    PaintWatch watch(canvas);
    int changed = 0;
    for (int key = 0; key < 40; ++key) {
        const QImage before = Seen(frmDiagram.Picture1);
        watch.Take();  // the picture taken
        Press('A');
        const QRegion repainted = watch.Take();
        if (key < 5) {
            EXPECT_LT(repainted.boundingRect().height(), canvas->height() / 6);
        }
        const QImage after = Seen(frmDiagram.Picture1);
        for (int y = 0; y < after.height(); ++y)
            for (int x = 0; x < after.width(); ++x)
                if (after.pixel(x, y) != before.pixel(x, y)) {
                    ++changed;
                    ASSERT_TRUE(repainted.contains(QPoint(static_cast<int>(x / GetParam()), static_cast<int>(y / GetParam()))));
                }
    }
    EXPECT_GT(changed, 0);
    ExpectSeenAsItIs("the counts");
}

// On a slow machine the bar moves while the diagram is drawn. What is not finished yet is not shown.
TEST_P(PictureViewTest, ABarThatMovesMeanwhileShowsNoHalfPicture) {
    static constexpr int kMostMoves = 100'000'000;
    Open([](const Row& row) { return row[row.size() - 10]; });
    Do([] { ClickControl(frmMain.mnuBar); });
    PaintWatch picture(Shown(frmDiagram.Picture1).Widget());
    PaintWatch bar(Shown(frmMain.ProgressBar1).Widget());
    Do([&bar] {
        Whiten(frmDiagram.Picture1);
        const Busy busy(kMostMoves);
        int moves = 0;
        while (moves < kMostMoves && bar.Take().isEmpty()) frmMain.ProgressBar1.SetValue(++moves);
        EXPECT_LT(moves, kMostMoves) << "the bar has been painted";
        DrawDiagram();
    });
    EXPECT_TRUE(picture.Take().isEmpty()) << "it is the same as before";
}

INSTANTIATE_TEST_SUITE_P(Densities, PictureViewTest, testing::Values(1, 1.25, 1.5, 2));
}  // namespace
