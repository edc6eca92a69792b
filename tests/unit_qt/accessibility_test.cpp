// What a screen reader finds in the windows: everything that can be seen and used has a name that can be spoken.
#include <QAccessible>

#include "platform/qt/window_widget.h"
#include "platform/user.h"
#include "unit_qt/on_screen_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
// Grounds and grips that only hold what is named.
bool NeedsName(const QAccessibleInterface& item) {
    switch (item.role()) {
        case QAccessible::EditableText:
        case QAccessible::Button:
        case QAccessible::CheckBox:
        case QAccessible::RadioButton:
        case QAccessible::ComboBox:
        case QAccessible::Slider:
        case QAccessible::ScrollBar:
        case QAccessible::ProgressBar:
        case QAccessible::MenuItem:
            return true;
        default:
            return false;
    }
}

class AccessibilityTest : public OnScreenTest {
protected:
    // How many of them have a name; each without one fails the test.
    int Named(QAccessibleInterface* item, const std::string& window) {
        if (!item || item->state().invisible) return 0;
        int named = 0;
        if (NeedsName(*item)) {
            const QString name = item->text(QAccessible::Name);
            EXPECT_FALSE(name.trimmed().isEmpty())
                << window << ": role " << item->role() << ", value " << item->text(QAccessible::Value).toStdString();
            named += !name.isEmpty();
        }
        for (int child = 0; child < item->childCount(); ++child) named += Named(item->child(child), window);
        return named;
    }
    int NamedIn(Window& window) {
        Do([&] { window.Show(); });
        return Named(QAccessible::queryAccessibleInterface(renderer_.WidgetOf(window)), window.name);
    }
};

TEST_F(AccessibilityTest, EverythingThatCanBeUsedInAnyWindowCanBeSpoken) {
    for (Window* window : AllWindows()) NamedIn(*window);
    EXPECT_GT(NamedIn(frmMain), 90) << "45 cells of two boxes lie on the tab in front";
}

TEST_F(AccessibilityTest, ACellIsSpokenWithItsNumberAndItsText) {
    NamedIn(frmMain);
    Do([] { frmMain.Text2[7].SetText("12"); });
    for (QWidget* widget : renderer_.WidgetOf(frmMain)->findChildren<QWidget*>())
        if (widget->accessibleName() == "Count of taxon 7") {
            EXPECT_EQ(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Value), "12");
            return;
        }
    FAIL() << "no widget of that name";
}
}  // namespace
