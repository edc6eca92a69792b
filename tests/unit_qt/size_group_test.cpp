// Names that stand side by side have letters of one size.
#include <QHelpEvent>
#include <set>
#include <span>

#include "diagram/open_diagram.h"
#include "platform/qt/look.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit_qt/on_screen_test.h"
#include "unit_qt/painted_words.h"
#include "windows/diagram_window.h"
#include "windows/information_windows.h"
#include "windows/main_window.h"
#include "windows/next_window.h"
#include "windows/subtotal_window.h"

namespace {
constexpr int kLeastPixels = 10;

// On the smallest screen that is promised, where names are longest for their cells.
class SizeGroupTest : private Screens, public OnScreenTest {
protected:
    SizeGroupTest() : Screens({{0, 0, 1024, 768}}) {
        Do([] { ClickControl(frmNext.Command4); });
        Do([] { ClickControl(frmNext.Command1); });
    }

    void Name(int slot, const std::string& name) {
        Do([&] { frmMain.Text1[slot].SetText(name); });
    }
    Words WordsOf(const Control& control) const { return Words(*Shown(control).Widget(), QWidget::DrawChildren); }
    std::set<int> SizesOf(std::initializer_list<const Control*> controls) const {
        std::set<int> sizes;
        for (const Control* control : controls) sizes.merge(WordsOf(*control).Sizes());
        return sizes;
    }
    std::set<int> SizesOfBank(int bank) const {
        std::set<int> sizes;
        for (int key = 1; key <= kKeys; ++key) sizes.merge(WordsOf(frmMain.Text1[bank * kKeys + key]).Sizes());
        return sizes;
    }
    std::string TipOf(const Control& control) const {
        QWidget& widget = *Shown(control).Widget();
        QHelpEvent event(QEvent::ToolTip, {}, {});
        QApplication::sendEvent(&widget, &event);
        return FromQt(widget.toolTip());
    }
};

TEST_F(SizeGroupTest, ALongNameMakesAllOfItsBankSmallerAndNoOther) {
    Name(1, "Pinus");
    const std::set<int> before = SizesOfBank(0);
    ASSERT_EQ(before.size(), 1u);
    for (const char* name : {"Cyperaceae", "Chenopodiaceae", "Lycopodium clavatum"}) Name(2, name);
    Name(3, "Chenopodiaceae");
    const std::set<int> after = SizesOfBank(0);
    EXPECT_EQ(after.size(), 1u);
    EXPECT_LT(*after.begin(), *before.begin());
    EXPECT_GE(*after.begin(), kLeastPixels);
    EXPECT_EQ(WordsOf(frmMain.Text1[2]).Text(), "Lycopodiumclavatum");
    EXPECT_EQ(WordsOf(frmMain.Text1[3]).Text(), "Chenopodiaceae");
    EXPECT_EQ(SizesOfBank(1), before);
    Name(2, "---");
    Name(3, "---");
    EXPECT_EQ(SizesOfBank(0), before) << "it has gone";
}

TEST_F(SizeGroupTest, ANameIsMadeToFitBeforeItIsBold) {
    Name(2, "Chenopodiaceae");
    const std::set<int> before = SizesOfBank(0);
    Do([] { frmMain.Text1[2].SetBold(true); });
    EXPECT_EQ(WordsOf(frmMain.Text1[2]).Text(), "Chenopodiaceae");
    EXPECT_EQ(SizesOfBank(0), before);
}

TEST_F(SizeGroupTest, ALargerWindowHasLargerLettersInAllNames) {
    Name(2, "Chenopodiaceae");
    const std::set<int> before = SizesOfBank(0);
    WindowWidget& window = *renderer_.WidgetOf(frmMain);
    Do([&] { window.resize(window.size() * 2); });
    const std::set<int> after = SizesOfBank(0);
    EXPECT_EQ(after.size(), 1u);
    EXPECT_GT(*after.begin(), *before.begin());
}

TEST_F(SizeGroupTest, DotsStandForWhatDoesNotGoInAndTheTipHasItAll) {
    const std::string longest = "Chenopodiaceae/Amaranthaceae sensu latissimo et incerto";
    Name(2, longest);
    EXPECT_EQ(SizesOfBank(0), std::set<int>{kLeastPixels});
    EXPECT_TRUE(WordsOf(frmMain.Text1[2]).Text().endsWith(u'\u2026'));
    EXPECT_EQ(TipOf(frmMain.Text1[2]), longest + "\n" + frmMain.Text1[2].ToolTip());
    Name(2, "Pinus");
    EXPECT_EQ(WordsOf(frmMain.Text1[2]).Text(), "Pinus");
    EXPECT_EQ(TipOf(frmMain.Text1[2]), frmMain.Text1[2].ToolTip());
}

TEST_F(SizeGroupTest, TotalsAndAdditionalInfoAreEachOfOneSize) {
    Do([] { frmMain.NameSubtotals("Bäume und Sträucher", "Kräuter"); });
    Do([] { frmMain.Label10[2].SetCaption("Magnetische Suszeptibilität (10-5 SI):"); });
    const std::set<int> totals = SizesOf({&frmMain.Label2[0], &frmMain.Label2[1], &frmMain.Label2[2]});
    EXPECT_EQ(totals.size(), 1u);
    EXPECT_GE(*totals.begin(), kLeastPixels);
    EXPECT_EQ(SizesOf({&frmMain.Label10[1], &frmMain.Label10[2], &frmMain.Label10[6]}).size(), 1u);
    EXPECT_EQ(SizesOf({&frmMain.Option1[0], &frmMain.Option1[1], &frmMain.Option1[2]}).size(), 1u);
}

TEST_F(SizeGroupTest, AllTaxaOfSubtotalSettingsAreOfOneSize) {
    Name(2, "Chenopodiaceae");
    Name(50, "Ophioglossum vulgatum");
    Do([] { ClickControl(frmMain.mnuSubtotal); });
    std::set<int> sizes;
    for (const CheckBox& member : std::span(frmSubtotal.Check1).subspan(1)) sizes.merge(WordsOf(member).Sizes());
    EXPECT_EQ(sizes.size(), 1u);
}

TEST_F(SizeGroupTest, SentencesOfAboutAreOfOneSize) {
    Do([] { ClickControl(frmMain.mnuAboutMB1); });
    const auto& about = frmAboutMB1;
    EXPECT_EQ(SizesOf({&about.Label2, &about.Label3[0], &about.Label3[1], &about.Label4, &about.Label5}).size(), 1u);
    Do([] { CloseWindow(frmAboutMB1); });
    Do([] { ClickControl(frmMain.mnuAboutDX1); });
    EXPECT_EQ(SizesOf({&frmAboutDX1.Label1[1], &frmAboutDX1.Label1[2]}).size(), 1u);
}

// Wide enough to be set smaller beside the arrow of a list alone.
constexpr const char* kWideSample = "Глубина 12,5";

TEST_F(SizeGroupTest, TheSampleAndTheListOfSamplesAreOfOneSize) {
    Do([] { frmMain.Text1[0].SetText(kWideSample); });
    Do([] { frmMain.Combo2.SetText(kWideSample); });
    const std::set<int> sizes = SizesOf({&frmMain.Text1[0], &frmMain.Combo2});
    EXPECT_EQ(sizes.size(), 1u);
    EXPECT_GE(*sizes.begin(), kLeastPixels);
    EXPECT_EQ(WordsOf(frmMain.Combo2).Text(), QString(kWideSample).remove(u' '));
}

TEST_F(SizeGroupTest, TheSampleBesideADiagramIsOfOneSize) {
    Do([] {
        SampleCount = 2;
        SampleTable[kSampleName][1] = Any(kWideSample);
    });
    Do(LaunchDiagram);
    EXPECT_EQ(frmDiagram.Combo2.Text(), kWideSample);
    EXPECT_EQ(frmDiagram.Check1.Caption(), kWideSample);
    EXPECT_EQ(SizesOf({&frmDiagram.Check1, &frmDiagram.Combo2}).size(), 1u);
}

class Repaints : public QObject {
public:
    explicit Repaints(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count;
        return false;
    }
};

TEST_F(SizeGroupTest, ACountedGrainPaintsNoOtherName) {
    Name(1, "Pinus");
    Name(2, "Chenopodiaceae");
    QApplication::processEvents();
    Repaints counted(*Shown(frmMain.Text1[1]).Widget()), other(*Shown(frmMain.Text1[2]).Widget());
    Do([] { PressKey(static_cast<int>(KeySettings[1][kKeyCode].Number())); });
    ASSERT_EQ(frmMain.Text2[1].Text(), "1");
    EXPECT_GT(counted.count, 0) << "it has become bold";
    EXPECT_EQ(other.count, 0);
    Name(1, "Pinus mugo");
    EXPECT_GT(other.count, 0) << "a name has changed";
}
}  // namespace
