#include "platform/qt/unasked_end.h"

#include <QEvent>

#include "unit_qt/on_screen_test.h"
#include "windows/next_window.h"

namespace {
class UnaskedEndTest : public OnScreenTest {};

TEST_F(UnaskedEndTest, TheEndOfTheDesktopSessionClosesNoWindowAsItsUserWould) {
    int acts = 0;
    {
        const UnaskedEnd end([&acts] { ++acts; });
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        EXPECT_EQ(acts, 1);
        EXPECT_TRUE(frmNext.Visible());
    }
    EXPECT_EQ(acts, 1);
}
}  // namespace
