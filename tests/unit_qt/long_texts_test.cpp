// Texts of megabytes, as no analyst types but a file may bring: the windows show their beginning and go on answering, and the program's own
// text stays whole.
#include <QAccessible>
#include <QListView>
#include <ctime>
#include <vector>

#include "platform/qt/box_views.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"
#include "unit_qt/on_screen_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr std::size_t kMegabyte = 1'000'000;
constexpr int kCaption = 300;  // characters

std::string Repeated(const std::string& part, std::size_t bytes) {
    std::string all;
    while (all.size() < bytes) all += part;
    return all;
}

TEST(BriefTest, ATextUpToTheLimitIsShownWhole) {
    EXPECT_EQ(Brief("Pinus"), "Pinus");
    EXPECT_EQ(Brief(""), "");
    const std::string text(kCaption, 'a');
    EXPECT_EQ(Brief(text), text.c_str());
    EXPECT_EQ(Brief(text + "b"), QString(text.c_str()) + u'\u2026');
}

TEST(BriefTest, ItCountsCharactersAndPartsNone) {
    EXPECT_EQ(Brief("\u00E9\U0001F33Fx", 3), "\u00E9\U0001F33Fx");
    EXPECT_EQ(Brief("\u00E9\U0001F33Fx", 2), "\u00E9\U0001F33F\u2026");
    EXPECT_EQ(Brief("\u00E9\U0001F33Fx", 1), "\u00E9\u2026");
}

TEST(BriefTest, ItPartsNoLineBreak) {
    EXPECT_EQ(Head("ab\r\ncd", 2), "ab");
    EXPECT_EQ(Head("ab\r\ncd", 3), "ab\r\n");
    EXPECT_EQ(Head("ab\r\ncd", 4), "ab\r\n");
    EXPECT_EQ(Head("ab\rcd", 3), "ab\r");
    EXPECT_EQ(BriefLines("ab\r\ncd", 3), "ab\n\u2026");
}

class LongTextsTest : public OnScreenTest {
protected:
    LongTextsTest() {
        Do([] { CloseWindow(frmNext); });
    }

    QAccessibleInterface* Found(const Control& control) { return QAccessible::queryAccessibleInterface(Shown(control).Widget()); }
};

// As it is laid down, but with this text wherever one can stand.
void Fill(Control& control, const std::string& text) {
    Properties filled = control.State();
    filled.text = filled.tool_tip = text;
    for (std::string& item : filled.items) item = text;
    control.SetDesign(filled);
}

TEST_F(LongTextsTest, NoWindowStandsStillOverThem) {
    constexpr double kMostSeconds = 60;  // of the processor; under the sanitizers too
    std::vector<std::string> texts;
    for (const char* part : {"x", "word ", "a\r\n", "\u200B", "\u0301", "\u05D0a "}) texts.push_back(Repeated(part, kMegabyte / 5));
    std::size_t next = 0;
    const std::clock_t begin = std::clock();
    for (Window* window : AllWindows()) {
        Do([&] { window->Show(); });
        for (Control* control : window->Controls()) {
            if (control->kind() == Kind::MenuItem) continue;
            Fill(*control, texts[next++ % texts.size()]);
            if (ControlWidget* const shown = renderer_.WidgetOf(*window)->Find(*control)) shown->Rescale();
        }
        renderer_.WidgetOf(*window)->grab();
        ASSERT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, kMostSeconds) << window->name;
        Do([&] { window->Unload(); });
    }
}

TEST_F(LongTextsTest, ACaptionATipAndANameThatIsSpokenAreCutAndTheControlKeepsThem) {
    const std::string text = std::string(kMegabyte, 'x') + ":";
    Do([&] {
        frmMain.Label10[1].SetCaption(text);
        frmMain.Text5[1].SetToolTip(text);
    });
    const int most = kCaption + 1;  // with the dots
    EXPECT_EQ(Shown(frmMain.Text5[1]).Widget()->toolTip().size(), most);
    EXPECT_EQ(Found(frmMain.Label10[1])->text(QAccessible::Name).size(), most);
    EXPECT_EQ(Found(frmMain.Text5[1])->text(QAccessible::Name).size(), most);
    EXPECT_EQ(Found(frmMain.Text5[1])->text(QAccessible::Description).size(), most);
    EXPECT_TRUE(frmMain.Label10[1].Caption() == text);
    EXPECT_TRUE(frmMain.Text5[1].ToolTip() == text);
}

TEST_F(LongTextsTest, AnItemOfAMenuIsCut) {
    Do([] { frmMain.mnuPercentSub1.SetCaption(std::string(kMegabyte, 'x')); });
    EXPECT_EQ(renderer_.WidgetOf(frmMain)->Menus().ActionOf(frmMain.mnuPercentSub1)->text().size(), kCaption + 1);
}

TEST_F(LongTextsTest, ALineOfAListIsCutAndStillChosenWhole) {
    const std::string name(kMegabyte, 'x');
    Do([&] {
        frmMain.Combo1.Clear();
        frmMain.Combo1.AddItem(name);
    });
    auto& view = static_cast<ComboBoxView&>(Shown(frmMain.Combo1));
    ComboList& list = view.OpenList();
    EXPECT_EQ(list.model()->index(0, 0).data().toString().size(), kCaption + 1);
    Do([&] { list.ChooseRow(0); });
    EXPECT_TRUE(frmMain.Combo1.Text() == name);
}
}  // namespace
