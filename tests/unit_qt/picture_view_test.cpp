// The diagram on the screen, of which a key repaints a row alone, against the diagram painted anew.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintEvent>
#include <functional>
#include <random>
#include <utility>

#include "events/program.h"
#include "platform/headless/headless_services.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/look.h"
#include "platform/qt/renderer.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"
#include "session/sheet_state.h"
#include "unit/memory_files.h"
#include "unit/sheet_file.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr unsigned kSeed = 20261121;
constexpr const char* kFolder = "/program";
constexpr const char* kSheet = "/sheet.csv";

class PictureViewTest : public testing::Test {
protected:
    PictureViewTest() {
        ApplyLook(application_);
        ::services.files = &files_;
        files_.LayDownProgram(kFolder);
        renderer_.Run(StartProgram);
        renderer_.Run([] { CloseWindow(frmNext); });
    }
    ~PictureViewTest() override {
        for (Window* window : AllWindows()) window->Unload();
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

    void Do(const std::function<void()>& act) {
        renderer_.Run(act);
        QApplication::processEvents();
    }
    void Press(int code) {
        Do([] { BringToFront(frmMain); });
        Do([code] { PressKey(code); });
        Do([code] { ReleaseKey(code); });
    }
    static ControlWidget& Shown(const PictureBox& picture) { return *TheRenderer().WidgetOf(*picture.window)->Find(picture); }
    static QImage Seen(const PictureBox& picture) { return Shown(picture).Widget()->grab().toImage(); }
    static QImage PaintedAnew(const PictureBox& picture) {
        Shown(picture).Rescale();
        return Seen(picture);
    }
    static void ExpectSeenAsItIs(const std::string& after) {
        for (PictureBox* picture : {&frmDiagram.Picture1, &frmDiagram.Picture2, &frmMain.Picture2}) {
            if (!picture->Visible()) continue;
            const QImage seen = Seen(*picture);
            ASSERT_EQ(seen, PaintedAnew(*picture)) << picture->window->name << "." << picture->name << " after " << after;
        }
    }

    char name_[5] = "test";
    char* arguments_[1] = {name_};
    int count_ = 1;
    QApplication application_{count_, arguments_};
    HeadlessServices services_{kFolder};
    MemoryFiles files_;
    Renderer renderer_;
};

TEST_F(PictureViewTest, AfterEveryKeyTheDiagramIsWhatItWouldBePaintedAnew) {
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

// Of a widget while it lives.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget* widget) { widget->installEventFilter(this); }
    int TakeHeight() { return std::exchange(repainted_, QRegion()).boundingRect().height(); }

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) repainted_ += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion repainted_;
};

// The last sample repeats another one: no taxon is more frequent there than elsewhere, and a few counts move no column.
TEST_F(PictureViewTest, ACountThatMovesNoColumnRepaintsARow) {
    Open([](const Row& row) { return row.end()[-10]; });
    Do([] { ClickControl(frmMain.mnuBar); });
    Press('A');
    QWidget* const canvas = Shown(frmDiagram.Picture1).Widget();
    PaintWatch watch(canvas);
    for (int key = 0; key < 5; ++key) {
        Press('A');
        const int height = watch.TakeHeight();
        EXPECT_GT(height, 0);
        EXPECT_LT(height, canvas->height() / 6);
    }
    ExpectSeenAsItIs("a few counts");
}
}  // namespace
