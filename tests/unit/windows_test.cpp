// All windows as data: nothing sticks out, nothing covers its neighbour, and no button is dead.
#include <algorithm>
#include <set>

#include "platform/control.h"
#include "platform/focus_walk.h"
#include "platform/text.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/next_window.h"
#include "windows/picture_window.h"

namespace {
std::string NameOf(const Control& control) {
    const std::string name = control.window->name + "." + control.name;
    return control.index < 0 ? name : name + "[" + std::to_string(control.index) + "]";
}

bool IsOneOf(const Control& control, const std::set<std::string>& names) {
    return names.count(control.window->name + "." + control.name) > 0;
}

// Controls that are meant to lie behind their neighbours.
const std::set<std::string> kGrounds = {"frmMain.Picture1", "frmMain.Frame3"};

// Below the lower edge of the start face: the window grows down to them.
const std::set<std::string> kBelowTheEdge = {"frmNext.Command1", "frmNext.Command3"};

// What stands on a menu, from its first item to its last: a word each, with a dash before the name of a separator.
std::string ItemsOf(const Control* menu) {
    std::string items;
    for (const Control* control : frmMain.Controls()) {
        if (control->kind() != Kind::MenuItem || control->container != menu || !control->Visible()) continue;
        const bool separator = static_cast<const MenuItem*>(control)->Caption() == "-";
        items += (items.empty() ? "" : " ") + std::string(separator ? "-" : "") + control->name;
    }
    return items;
}

// Does nothing: its window is left by OK alone.
const std::set<std::string> kIdleButtons = {"frmSiteName.Command3"};

// Of an analysis that has no content.
const std::set<std::string> kIdleItems = {"frmDiagram.mnuECC", "frmDiagram.mnuCopyEOF"};

bool HoldsItems(const Control& menu) {
    return std::ranges::any_of(menu.window->Controls(), [&menu](const Control* item) { return item->container == &menu; });
}

// A letter that is taken with Ctrl is there to do nothing.
bool MustBeJoined(const MenuItem& item) {
    return item.Caption() != "-" && item.control_letter == 0 && !HoldsItems(item) && !IsOneOf(item, kIdleItems);
}

bool HasAPlace(const Control& control) {
    return control.kind() != Kind::MenuItem && control.Visible() && control.Width() > 0 && control.Height() > 0;
}

Box Ground(const Control& control) {
    if (control.container) return {0, 0, control.container->Width(), control.container->Height()};
    return {0, 0, control.window->Width(), control.window->Height()};
}

bool LiesInside(const Control& control) {
    const Box ground = Ground(control);
    return control.Left() >= 0 && control.Top() >= 0 && control.Left() + control.Width() <= ground.width &&
           control.Top() + control.Height() <= ground.height;
}

bool Overlap(const Control& one, const Control& other) {
    return one.Left() < other.Left() + other.Width() && other.Left() < one.Left() + one.Width() &&
           one.Top() < other.Top() + other.Height() && other.Top() < one.Top() + one.Height();
}

bool CanBeSeenTogether(const Control& one, const Control& other) {
    return one.container == other.container && (one.page < 0 || other.page < 0 || one.page == other.page);
}

std::vector<Control*> Placed(const Window& window) {
    std::vector<Control*> placed;
    std::copy_if(window.Controls().begin(), window.Controls().end(), std::back_inserter(placed),
                 [](Control* control) { return HasAPlace(*control); });
    return placed;
}

Texts SticksOut(const Window& window) {
    Texts faults;
    for (const Control* control : Placed(window))
        if (!LiesInside(*control)) faults.push_back(NameOf(*control));
    return faults;
}

Texts Covers(const Window& window) {
    Texts faults;
    const std::vector<Control*> placed = Placed(window);
    for (auto one = placed.begin(); one != placed.end(); ++one)
        for (auto other = one + 1; other != placed.end(); ++other)
            if (CanBeSeenTogether(**one, **other) && Overlap(**one, **other) && !IsOneOf(**one, kGrounds) && !IsOneOf(**other, kGrounds))
                faults.push_back(NameOf(**one) + " and " + NameOf(**other));
    return faults;
}

// Where Tab leads, all the way round.
std::vector<Control*> Round(Window& window, bool back) {
    std::vector<Control*> round;
    WalkFocus(window, back);
    do {
        round.push_back(window.Focus());
        WalkFocus(window, back);
    } while (window.Focus() != round.front() && round.size() < window.Controls().size());
    return round;
}

// The same, from the stop that the window has first.
std::vector<Control*> FromTheFirst(const Window& window, std::vector<Control*> round) {
    const auto place = [&window](Control* stop) { return std::ranges::find(window.Controls(), stop); };
    std::rotate(round.begin(), std::ranges::min_element(round, {}, place), round.end());
    return round;
}

// Boxes that stand as the keys of the pad do and are walked by their numbers; and the slider beside the diagram, which comes after what
// lies below it.
const std::set<std::string> kNotAsRead = {"frmSubtotal.Check1", "frmKeyCode.Text3", "frmDiagram.Slider1"};

// Down a column, along a row, to the top of the next column.
bool IsReadAfter(const Control& next, const Control& last) {
    if (next.container != last.container || IsOneOf(next, kNotAsRead)) return true;
    const bool is_above = next.Top() + next.Height() <= last.Top();
    const bool is_below = last.Top() + last.Height() <= next.Top();
    return is_below || (is_above ? next.Left() >= last.Left() + last.Width() : next.Left() > last.Left());
}

class WindowsTest : public SheetTest {
protected:
    static std::vector<Window*> Windows() {
        std::vector<Window*> windows;
        std::copy_if(AllWindows().begin(), AllWindows().end(), std::back_inserter(windows),
                     [](const Window* window) { return window->name.starts_with("frm"); });
        return windows;
    }

    // Of each control in each window: whether it can be seen and used, and its text.
    static Texts Shown() {
        Texts shown;
        for (const Window* window : Windows())
            for (const Control* control : window->Controls()) {
                const Properties& now = control->State();
                shown.push_back(NameOf(*control) + " " + std::to_string(now.visible) + std::to_string(now.enabled) + " " + now.text);
            }
        return shown;
    }
};

TEST_F(WindowsTest, EveryControlLiesInsideItsContainer) {
    for (const Window* window : Windows()) {
        Texts faults = SticksOut(*window);
        std::erase_if(faults, [](const std::string& name) { return kBelowTheEdge.count(name) > 0; });
        EXPECT_EQ(faults, Texts{}) << window->name;
    }
}

TEST_F(WindowsTest, NoControlCoversItsNeighbour) {
    for (const Window* window : Windows()) EXPECT_EQ(Covers(*window), Texts{}) << window->name;
}

TEST_F(WindowsTest, TheButtonsBelowTheStartFaceAreWhollyOutOfView) {
    for (const Control* control : {&frmNext.Command1, &frmNext.Command3}) EXPECT_GE(control->Top(), frmNext.Height()) << NameOf(*control);
}

TEST_F(WindowsTest, BothSampleFacesAreInOrderToo) {
    Start();
    ClickControl(frmNext.Command4);
    EXPECT_EQ(SticksOut(frmNext), Texts{});
    EXPECT_EQ(Covers(frmNext), Texts{});
    ClickControl(frmNext.Command1);
    KeyNumber(1);
    ClickControl(frmMain.Command5[1]);
    EXPECT_EQ(SticksOut(frmNext), Texts{});
    EXPECT_EQ(Covers(frmNext), Texts{});
}

TEST_F(WindowsTest, TheMainWindowIsInOrderInBothModes) {
    Begin("10");
    EXPECT_EQ(SticksOut(frmMain), Texts{});
    EXPECT_EQ(Covers(frmMain), Texts{});
    ClickControl(frmMain.Command3[0]);
    EXPECT_EQ(SticksOut(frmMain), Texts{});
    EXPECT_EQ(Covers(frmMain), Texts{});
}

TEST_F(WindowsTest, EveryButtonIsJoined) {
    Start();
    for (const Window* window : Windows())
        for (const Control* control : window->Controls()) {
            if (control->kind() != Kind::Button || !control->Visible() || IsOneOf(*control, kIdleButtons)) continue;
            EXPECT_TRUE(control->Click.IsJoined() || control->MouseDown.IsJoined()) << NameOf(*control);
        }
}

TEST_F(WindowsTest, EveryMenuItemIsJoined) {
    Start();
    int items = 0;
    for (const Window* window : Windows())
        for (const Control* control : window->Controls()) {
            if (control->kind() != Kind::MenuItem || !MustBeJoined(static_cast<const MenuItem&>(*control))) continue;
            ++items;
            EXPECT_TRUE(control->Click.IsJoined()) << NameOf(*control);
        }
    EXPECT_GT(items, 150);
}

TEST_F(WindowsTest, TheEmptyProceduresChangeNothing) {
    Begin("10");
    KeyNumber(1);
    const Texts before = Shown();
    frmMain.Amend();
    frmDiagram.SaveEOF();
    frmDiagram.SaveAllEOF();
    EXPECT_EQ(Shown(), before);
}

TEST_F(WindowsTest, TabGoesThroughADialogAsItIsReadAndTheSameWayBack) {
    Begin("10");
    for (Window* window : Windows()) {
        if (window == &frmMain || window == &frmPicture) continue;  // the keyboard is the counter's in one, nobody's in the other
        window->Show();
        const std::vector<Control*> round = FromTheFirst(*window, Round(*window, false));
        EXPECT_EQ(std::set<Control*>(round.begin(), round.end()).size(), round.size()) << window->name;
        for (std::size_t at = 1; at < round.size(); ++at) EXPECT_TRUE(IsReadAfter(*round[at], *round[at - 1])) << NameOf(*round[at]);
        std::vector<Control*> back = Round(*window, true);
        std::ranges::reverse(back);
        EXPECT_EQ(FromTheFirst(*window, back), round) << window->name;
        window->Unload();
    }
}

TEST_F(WindowsTest, EveryBoxKnowsTheNumberOfItsText) {
    const auto expect_numbers = [](const std::string& when) {
        for (Window* window : AllWindows())
            for (Control* control : window->Controls()) {
                const TextHolder* const box = control->AsTextHolder();
                if (!box) continue;
                EXPECT_EQ(box->Number(), Val(box->Text())) << window->name << "." << box->name << " " << when;
            }
    };
    expect_numbers("at the start");
    Begin("10");
    expect_numbers("when counting");
    for (Window* window : AllWindows()) window->Unload();
    expect_numbers("as designed");
}

TEST_F(WindowsTest, NoNameStandsTwiceInAWindow) {
    for (const Window* window : Windows()) {
        std::set<std::string> names;
        for (const Control* control : window->Controls()) EXPECT_TRUE(names.insert(NameOf(*control)).second) << NameOf(*control);
    }
}

TEST_F(WindowsTest, ATabIsAPageOfATabControlThatHasIt) {
    for (const Window* window : Windows())
        for (const Control* control : window->Controls()) {
            if (control->page < 0) continue;
            ASSERT_TRUE(control->container && control->container->kind() == Kind::TabControl) << NameOf(*control);
            EXPECT_LT(control->page, static_cast<int>(static_cast<const TabControl*>(control->container)->TabCaptions().size()))
                << NameOf(*control);
        }
}

TEST_F(WindowsTest, EveryFieldAndListThatShowsAValueHasAnAccessibleName) {
    for (const Window* window : Windows()) {
        for (const Control* control : Placed(*window)) {
            if (control->kind() != Kind::TextBox && control->kind() != Kind::ComboBox) continue;
            EXPECT_NE(SpokenName(*control), "") << NameOf(*control);
        }
    }
}

TEST_F(WindowsTest, TheMenusOfTheMainWindowHaveTheirItemsInThisOrder) {
    struct {
        const Control* menu;  // nullptr: the bar
        const char* items;
    } cases[] = {
        {nullptr, "mnuFile mnuEdit mnuTool mnuDiagram mnuAbout nmuRefresh"},
        {&frmMain.mnuFile,
         "mnuNew mnuOpen -break7 mnuNext -break5 mnuSave mnuSaveAs mnuSaveCopy -break99 mnuTemplate -break4 mnuSaveHistory -Brake2 "
         "mnuPercent -break999 mnuQuit"},
        {&frmMain.mnuPercent, "mnuPercentSub1 mnuPercentSub2 mnuPercentAll"},
        {&frmMain.mnuEdit, "mnuUndo mnuReset -break6 mnuStartAmend mnuFinishAmend"},
        {&frmMain.mnuTool, "mnuItalic -break8 mnuKeyCodeReader mnuSubtotal -break3 mnuInitial"},
        {&frmMain.mnuDiagram, "mnuBar mnuArea mnuDot -Break10 mnuCurve mnuDotCurve"},
        {&frmMain.mnuAbout, "mnuAboutMB1 mnuAboutDX1"},
        {&frmMain.nmuRefresh, "mnuCoffee mnuBeach mnuFavorite"},
    };
    for (const auto& each : cases) EXPECT_EQ(ItemsOf(each.menu), each.items);
}

TEST_F(WindowsTest, EveryLetterWithCtrlIsTakenByAnItemThatNobodyReachesAndThatDoesNothing) {
    Begin("10");
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const auto* item = static_cast<MenuItem*>(frmMain.Find(std::string("mnu") + letter, -1));
        ASSERT_NE(item, nullptr) << letter;
        EXPECT_EQ(item->Caption(), std::string(1, letter));
        EXPECT_EQ(item->control_letter, letter);
        EXPECT_EQ(item->container, &frmMain.mnuByPass) << letter;
        EXPECT_TRUE(item->Enabled()) << letter;
        EXPECT_FALSE(CanReach(*item)) << letter;
        EXPECT_FALSE(item->Click.IsJoined()) << letter;
    }
}
}  // namespace
