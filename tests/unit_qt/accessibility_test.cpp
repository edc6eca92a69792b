// What a screen reader finds in the windows: everything that can be seen and used has a name that can be spoken.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>

#include "events/program.h"
#include "platform/headless/headless_services.h"
#include "platform/qt/look.h"
#include "platform/qt/renderer.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"
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

class AccessibilityTest : public testing::Test {
protected:
    AccessibilityTest() {
        ApplyLook(application_);
        renderer_.Run(StartProgram);
    }
    ~AccessibilityTest() override {
        for (Window* window : AllWindows()) window->Unload();
    }

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
        renderer_.Run([&] { window.Show(); });
        QApplication::processEvents();
        return Named(QAccessible::queryAccessibleInterface(renderer_.WidgetOf(window)), window.name);
    }

    char name_[5] = "test";
    char* arguments_[1] = {name_};
    int count_ = 1;
    QApplication application_{count_, arguments_};
    HeadlessServices services_{""};
    Renderer renderer_;
};

TEST_F(AccessibilityTest, EverythingThatCanBeUsedInAnyWindowCanBeSpoken) {
    for (Window* window : AllWindows()) NamedIn(*window);
    EXPECT_GT(NamedIn(frmMain), 90) << "45 cells of two boxes lie on the tab in front";
}

TEST_F(AccessibilityTest, ACellIsSpokenWithItsNumberAndItsText) {
    NamedIn(frmMain);
    renderer_.Run([] { frmMain.Text2[7].SetText("12"); });
    QApplication::processEvents();
    for (QWidget* widget : renderer_.WidgetOf(frmMain)->findChildren<QWidget*>())
        if (widget->accessibleName() == "Count of taxon 7") {
            EXPECT_EQ(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Value), "12");
            return;
        }
    FAIL() << "no widget of that name";
}
}  // namespace
