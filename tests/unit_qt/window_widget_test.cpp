// Where windows come up, and how large.
#include "platform/qt/window_widget.h"

#include <QDir>
#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QUrl>

#include "diagram/open_diagram.h"
#include "platform/qt/look.h"
#include "platform/qt/menu_view.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/sheet_file.h"
#include "unit_qt/on_screen_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/next_window.h"
#include "windows/picture_window.h"
#include "windows/subtotal_window.h"

namespace {
class WindowWidgetTest : public OnScreenTest {
protected:
    explicit WindowWidgetTest(double density = 1) : OnScreenTest(density) {}

    WindowWidget& Widget(const Window& window) const { return *renderer_.WidgetOf(window); }
    static QRect Room(const QWidget& widget) { return widget.screen()->availableGeometry(); }

    // As its user does; what the window makes of it has then been done.
    void Place(WindowWidget& widget, const QRect& place) {
        widget.setGeometry(place);
        Do([] {});
    }
    void OpenDiagram() {
        Do([] { CloseWindow(frmNext); });
        SampleCount = 2;
        Do(LaunchDiagram);
    }
    void OpenDiagramAgain() {
        Do([] { CloseWindow(frmDiagram); });
        ASSERT_FALSE(Widget(frmDiagram).isVisible());
        OpenDiagram();
    }
    static QSize Pixels(const Window& window, double factor) { return Scaled({0, 0, window.Width(), window.Height()}, factor).size(); }
};

TEST_F(WindowWidgetTest, TheMenuBarIsAsHighAsItsLettersWhateverTheSizeOfTheWindow) {
    WindowWidget& main = Widget(frmMain);
    const QMenuBar& bar = main.Menus().Bar();
    for (int width = 300; width < 1500; width += 7) {
        Place(main, {0, 0, width, width * 3 / 4});
        ASSERT_EQ(bar.height(), bar.heightForWidth(width)) << "menus do not show in a lower one";
        ASSERT_LE(main.Ground()->geometry().bottom(), main.height()) << width;
        ASSERT_GE(main.Ground()->y(), bar.height() - 1) << width;
    }
}

TEST_F(WindowWidgetTest, TheDiagramComesUpAsItsUserHasLeftIt) {
    OpenDiagram();
    Place(Widget(frmDiagram), {31, 47, 743, 511});
    const int width = frmDiagram.Width();
    for (int time = 1; time <= 4; ++time) {
        OpenDiagramAgain();
        EXPECT_EQ(Widget(frmDiagram).geometry(), QRect(31, 47, 743, 511)) << time;
        EXPECT_EQ(frmDiagram.Width(), width) << time;
    }
}

TEST_F(WindowWidgetTest, TheSizeIsTakenEvenIfTheWindowIsClosedAtOnce) {
    OpenDiagram();
    WindowWidget& diagram = Widget(frmDiagram);
    diagram.resize(743, 511);
    diagram.close();
    ASSERT_FALSE(diagram.isVisible());
    OpenDiagram();
    EXPECT_EQ(diagram.size(), QSize(743, 511));
    EXPECT_EQ(Pixels(frmDiagram, diagram.Factor()), diagram.Ground()->size());
}

TEST_F(WindowWidgetTest, ASizeGivenWhileTheWindowTakesNoInputIsTakenAfterwards) {
    OpenDiagram();
    WindowWidget& diagram = Widget(frmDiagram);
    Do([] { frmDiagram.SetEnabled(false); });
    Place(diagram, {31, 47, 743, 511});
    Do([] { frmDiagram.SetEnabled(true); });
    Do([] {});
    EXPECT_EQ(Pixels(frmDiagram, diagram.Factor()), diagram.Ground()->size());
}

TEST_F(WindowWidgetTest, ADiagramThatFilledTheScreenFillsItAgain) {
    OpenDiagram();
    WindowWidget& diagram = Widget(frmDiagram);
    diagram.showMaximized();
    const auto fills_it = [&] {
        return frmDiagram.Width() > kDiagramWidth && Pixels(frmDiagram, diagram.Factor()) == diagram.Ground()->size();
    };
    for (int time = 0; time < 1000 && !fills_it(); ++time) Do([] {});
    ASSERT_TRUE(fills_it());
    const QSize twips(frmDiagram.Width(), frmDiagram.Height());
    for (int time = 1; time <= 3; ++time) {
        OpenDiagramAgain();
        EXPECT_TRUE(diagram.isMaximized()) << time;
        EXPECT_EQ(QSize(frmDiagram.Width(), frmDiagram.Height()), twips) << time;
        EXPECT_EQ(Pixels(frmDiagram, diagram.Factor()), diagram.Ground()->size()) << time;
        EXPECT_TRUE(Room(diagram).contains(diagram.geometry())) << time;
    }
}

TEST_F(WindowWidgetTest, WhatHasBeenLeftHalfOutsideComesUpInside) {
    OpenDiagram();
    Place(Widget(frmDiagram), {600, 700, 500, 400});
    OpenDiagramAgain();
    EXPECT_EQ(Widget(frmDiagram).size(), QSize(500, 400));
    EXPECT_TRUE(Room(Widget(frmDiagram)).contains(Widget(frmDiagram).frameGeometry()));
}

TEST_F(WindowWidgetTest, ADiagramTooLargeForTheScreenIsShownSmallerAndKeepsItsSize) {
    OpenDiagram();
    const double usual = Widget(frmDiagram).Factor();
    Do([] { ResizeWindow(frmDiagram, 20000, 9000); });
    EXPECT_EQ(frmDiagram.Width(), 20000);
    EXPECT_EQ(frmDiagram.Height(), 9000);
    EXPECT_TRUE(Room(Widget(frmDiagram)).contains(Widget(frmDiagram).frameGeometry()));
    EXPECT_EQ(Pixels(frmDiagram, Widget(frmDiagram).Factor()), Widget(frmDiagram).Ground()->size());
    Do([] { ResizeWindow(frmDiagram, kDiagramWidth, kDiagramHeight); });
    EXPECT_EQ(Widget(frmDiagram).Factor(), usual);
}

TEST_F(WindowWidgetTest, ASheetThatIsDroppedIsOpened) {
    const QString mere = QDir::toNativeSeparators("/sheets/mere.csv"), bog = QDir::toNativeSeparators("/sheets/bog.csv");
    files_.bytes[FromQt(mere)] = Joined(DataSheet(2));
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(mere)});
    const auto drop = [&](Window& window) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&Widget(window), &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent let_go(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton, Qt::ShiftModifier);
        let_go.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(&Widget(window), &let_go);
        EXPECT_EQ(let_go.dropAction(), Qt::CopyAction) << "where it lay it stays";
        Do([] {});
        return true;
    };
    EXPECT_FALSE(drop(frmMain)) << "the start face waits";
    ASSERT_TRUE(drop(frmNext));
    EXPECT_EQ(SheetPath, FromQt(mere));
    EXPECT_EQ(SampleCount, 2);
    files_.bytes[FromQt(bog)] = Joined(DataSheet(3));
    dragged.setUrls({QUrl::fromLocalFile(bog)});
    ASSERT_TRUE(drop(frmMain));
    EXPECT_EQ(SampleCount, 3);
    Do([] { ClickControl(frmMain.Command3[0]); });
    dragged.setUrls({QUrl::fromLocalFile(mere)});
    drop(frmMain);
    EXPECT_EQ(SampleCount, 3) << "Modify takes no other sheet, nor does its Open";
    dragged.setUrls({QUrl("https://marlbrook.example/a.csv")});
    EXPECT_FALSE(drop(frmMain));
    dragged.setUrls({QUrl::fromLocalFile(mere), QUrl::fromLocalFile(bog)});
    EXPECT_FALSE(drop(frmMain));
}

TEST_F(WindowWidgetTest, TheStartFaceGrowsAroundItsMiddleAndStaysOnTheScreen) {
    WindowWidget& next = Widget(frmNext);
    const QPoint middle = Room(next).center();  // there is room on all sides
    QRect place = next.geometry();
    place.moveCenter(middle);
    Place(next, place);
    Do([] { ClickControl(frmNext.Command4); });
    EXPECT_LE((next.geometry().center() - middle).manhattanLength(), 1);
    next.move(100, 790 - next.height());
    Do([] { frmNext.SetSize(kNextWidth, 9000); });
    EXPECT_TRUE(Room(next).contains(next.frameGeometry()));
}

// To the right of the first screen there is another one, on which the user has put the main window.
class TwoScreensTest : private Screens, public WindowWidgetTest {
protected:
    TwoScreensTest() : Screens({{0, 0, 800, 600}, {800, 0, 800, 600}}) {}
};

TEST_F(TwoScreensTest, ADialogComesUpOnTheScreenOfTheWindowBelowIt) {
    Do([] { CloseWindow(frmNext); });
    WindowWidget& main = Widget(frmMain);
    Place(main, main.rect().translated(850, 40));
    ASSERT_EQ(main.screen()->name(), "screen 2");
    Do([] { ClickControl(frmMain.mnuSubtotal); });
    EXPECT_TRUE(main.screen()->geometry().contains(Widget(frmSubtotal).geometry()));
}

// The screen has fewer of the toolkit's pixels than the main window is drawn with.
class DenseScreenTest : public WindowWidgetTest {
protected:
    DenseScreenTest() : WindowWidgetTest(2) {}
};

TEST_F(DenseScreenTest, TheMainWindowKeepsItsFrameOnAScreenThatIsTooSmallForItsScale) {
    const WindowWidget& main = Widget(frmMain);
    EXPECT_FALSE(main.isFullScreen());
    EXPECT_GT(Room(main).height(), main.height()) << "room for the frame";
    EXPECT_GT(Room(main).width(), main.width());
}

TEST_F(DenseScreenTest, TheRestPictureCoversTheScreenEachTime) {
    for (int time = 1; time <= 2; ++time) {
        Do([] { frmPicture.Show(); });
        EXPECT_TRUE(Widget(frmPicture).isFullScreen()) << time;
        EXPECT_EQ(Widget(frmPicture).geometry(), Widget(frmPicture).screen()->geometry()) << time;
        Do([] { frmPicture.Hide(); });
    }
}
}  // namespace
