// Where windows come up, and how large.
#include "platform/qt/window_widget.h"

#include <QMenuBar>
#include <QScreen>

#include "platform/qt/menu_view.h"
#include "unit_qt/on_screen_test.h"
#include "windows/main_window.h"
#include "windows/picture_window.h"

namespace {
class WindowWidgetTest : public OnScreenTest {
protected:
    explicit WindowWidgetTest(double density = 1) : OnScreenTest(density) {}

    WindowWidget& Widget(const Window& window) const { return *renderer_.WidgetOf(window); }

    // As its user does; what the window makes of it has then been done.
    void Place(WindowWidget& widget, const QRect& place) {
        widget.setGeometry(place);
        Do([] {});
    }
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

// The screen has fewer of the toolkit's pixels than the main window has by design.
class DenseScreenTest : public WindowWidgetTest {
protected:
    DenseScreenTest() : WindowWidgetTest(2) {}
};

TEST_F(DenseScreenTest, TheMainWindowKeepsItsFrameOnAScreenThatIsTooSmallForItsScale) {
    const WindowWidget& main = Widget(frmMain);
    EXPECT_FALSE(main.isFullScreen());
    EXPECT_GT(main.screen()->availableGeometry().height(), main.height()) << "room for the frame";
    EXPECT_GT(main.screen()->availableGeometry().width(), main.width());
}

TEST_F(DenseScreenTest, TheRestPictureCoversTheScreen) {
    Do([] { frmPicture.Show(); });
    EXPECT_TRUE(Widget(frmPicture).isFullScreen());
    EXPECT_EQ(Widget(frmPicture).size(), Widget(frmPicture).screen()->size());
}
}  // namespace
