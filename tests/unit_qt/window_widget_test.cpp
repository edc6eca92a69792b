// Where windows come up, and how large.
#include "platform/qt/window_widget.h"

#include <QScreen>

#include "unit_qt/on_screen_test.h"
#include "windows/main_window.h"
#include "windows/picture_window.h"

namespace {
class WindowWidgetTest : public OnScreenTest {
protected:
    explicit WindowWidgetTest(double density = 1) : OnScreenTest(density) {}

    WindowWidget& Widget(const Window& window) const { return *renderer_.WidgetOf(window); }
};

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
