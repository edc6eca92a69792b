#include "platform/user.h"

#include <gtest/gtest.h>

#include "platform/headless/headless_services.h"
#include "unit/test_window.h"

namespace {
using Log = std::vector<std::string>;

class UserTest : public testing::Test {
protected:
    UserTest() { window_a.Show(); }
    ~UserTest() override { ForgetTestWindows(); }

    template <class... Args>
    void Note(Event<Args...>& event, const char* what) {
        event.Calls([this, what](Args...) { log_.push_back(what); });
    }
    Log Take() { return std::exchange(log_, {}); }

    HeadlessServices services_{"/program"};
    Log log_;
};

TEST_F(UserTest, AControlIsReachedOnlyInAShownAndEnabledWindow) {
    EXPECT_TRUE(CanReach(window_a.ok));
    window_a.SetEnabled(false);
    EXPECT_FALSE(CanReach(window_a.ok));
    window_a.SetEnabled(true);
    window_a.Hide();
    EXPECT_FALSE(CanReach(window_a.ok));
    EXPECT_FALSE(CanReach(window_b.ok));
}

TEST_F(UserTest, HiddenAndDisabledGoForAllThatIsInside) {
    EXPECT_TRUE(CanReach(window_a.tick));
    window_a.group.SetEnabled(false);
    EXPECT_FALSE(CanReach(window_a.tick));
    window_a.group.SetEnabled(true);
    window_a.group.SetVisible(false);
    EXPECT_FALSE(CanReach(window_a.tick));
    window_a.group.SetVisible(true);
    window_a.tick.SetEnabled(false);
    EXPECT_FALSE(CanReach(window_a.tick));
}

TEST_F(UserTest, OnlyTheTabInFrontIsReached) {
    EXPECT_TRUE(CanReach(window_a.on_tab[0]));
    EXPECT_FALSE(CanReach(window_a.on_tab[1]));
    PressTab(window_a.tabs, 1);
    EXPECT_FALSE(CanReach(window_a.on_tab[0]));
    EXPECT_TRUE(CanReach(window_a.on_tab[1]));
    EXPECT_EQ(window_a.Focus(), &window_a.tabs);
}

TEST_F(UserTest, AMenuItemNeedsEveryMenuOnItsWay) {
    EXPECT_TRUE(CanReach(window_a.deep));
    for (MenuItem* menu : {&window_a.file, &window_a.more, &window_a.deep}) {
        menu->SetEnabled(false);
        EXPECT_FALSE(CanReach(window_a.deep));
        menu->SetEnabled(true);
        menu->SetVisible(false);
        EXPECT_FALSE(CanReach(window_a.deep));
        menu->SetVisible(true);
    }
}

TEST_F(UserTest, AClickOnAMenuItemOpensTheMenusOnItsWayFirst) {
    Note(window_a.file.Click, "file");
    Note(window_a.more.Click, "more");
    Note(window_a.deep.Click, "deep");
    ClickControl(window_a.deep);
    EXPECT_EQ(Take(), (Log{"file", "more", "deep"}));
    window_a.file.Click.Calls([] { window_a.deep.SetEnabled(false); });
    ClickControl(window_a.deep);
    EXPECT_EQ(Take(), Log{"more"}) << "the opening has switched it off";
}

TEST_F(UserTest, APopupIsReachedFromItsOpeningToItsFirstClick) {
    Note(window_a.copy.Click, "copy");
    ClickControl(window_a.copy);
    EXPECT_EQ(Take(), Log{});
    OpenPopup(window_a.popup);
    EXPECT_TRUE(CanReach(window_a.copy));
    EXPECT_FALSE(CanReach(window_a.popup)) << "it stands nowhere on the bar";
    ClickControl(window_a.copy);
    ClickControl(window_a.copy);
    EXPECT_EQ(Take(), Log{"copy"});
}

TEST_F(UserTest, AnotherWindowOrAMenuOfTheBarClosesAPopup) {
    OpenPopup(window_a.popup);
    window_b.Show();
    window_b.Hide();
    EXPECT_FALSE(CanReach(window_a.copy));
    OpenPopup(window_a.popup);
    ClickControl(window_a.file);
    EXPECT_FALSE(CanReach(window_a.copy));
}

TEST_F(UserTest, ADisabledItemOfAPopupStaysOutOfReach) {
    window_a.copy.SetEnabled(false);
    OpenPopup(window_a.popup);
    EXPECT_FALSE(CanReach(window_a.copy));
    window_a.copy.SetEnabled(true);
    ClickControl(window_a.copy);
}

TEST_F(UserTest, AClickIsAPressARleaseAndWhatTheKindDoes) {
    Note(window_a.ok.MouseDown, "down");
    Note(window_a.ok.MouseUp, "up");
    Note(window_a.ok.Click, "click");
    ClickControl(window_a.ok);
    EXPECT_EQ(Take(), (Log{"down", "up", "click"}));
    EXPECT_EQ(window_a.Focus(), &window_a.ok);
    window_a.ok.SetEnabled(false);
    ClickControl(window_a.ok);
    EXPECT_EQ(Take(), Log{});
}

TEST_F(UserTest, AButtonThatIsSwitchedOffByItsPressIsNotClicked) {
    window_a.ok.MouseDown.Calls([](Mouse) { window_a.ok.SetEnabled(false); });
    Note(window_a.ok.MouseUp, "up");
    Note(window_a.ok.Click, "click");
    ClickControl(window_a.ok);
    EXPECT_EQ(Take(), Log{"up"}) << "the release still reaches what was pressed";
}

TEST_F(UserTest, AReleaseReachesOnlyWhatWasPressed) {
    Note(window_a.ok.MouseUp, "up");
    ReleaseMouse(window_a.ok, {});
    EXPECT_EQ(Take(), Log{});
    PressMouse(window_a.note, {});
    ReleaseMouse(window_a.ok, {});
    EXPECT_EQ(Take(), Log{});
}

TEST_F(UserTest, ADragIsFollowedEvenWhereItsControlIsDisabledMeanwhile) {
    Note(window_a.picture.MouseMove, "move");
    PressMouse(window_a.picture, {});
    window_a.picture.SetEnabled(false);
    MoveMouse(window_a.picture, {});
    EXPECT_EQ(Take(), Log{"move"});
    ReleaseMouse(window_a.picture, {});
    MoveMouse(window_a.picture, {});
    EXPECT_EQ(Take(), Log{});
}

TEST_F(UserTest, OptionsAndBoxesChangeByAClick) {
    ClickControl(window_a.first);
    ClickControl(window_a.second);
    EXPECT_FALSE(window_a.first.Value());
    EXPECT_TRUE(window_a.second.Value());
    ClickControl(window_a.tick);
    EXPECT_EQ(window_a.tick.Value(), 1);
    ClickControl(window_a.tick);
    EXPECT_EQ(window_a.tick.Value(), 0);
}

TEST_F(UserTest, ADoubleClickIsAClickAndThenTheDoubleClick) {
    Note(window_a.note.MouseDown, "down");
    Note(window_a.note.Click, "click");
    Note(window_a.note.DoubleClick, "double");
    ClickControl(window_a.note);
    FinishDoubleClick(window_a.note);
    EXPECT_EQ(Take(), (Log{"down", "click", "double"}));
}

TEST_F(UserTest, ThePressOfAKeyReachesTheWindowBeforeItsFocus) {
    Note(window_a.KeyDown, "window down");
    Note(window_a.KeyUp, "window up");
    Note(window_a.entry.KeyDown, "box down");
    Note(window_a.entry.KeyUp, "box up");
    PressKey(65);
    ReleaseKey(65);
    EXPECT_EQ(Take(), (Log{"window down", "box down", "window up", "box up"}));
    window_a.key_preview = false;
    PressKey(65);
    EXPECT_EQ(Take(), Log{"box down"});
    window_a.key_preview = true;
}

TEST_F(UserTest, AKeyThatBringsUpAnotherWindowEndsThere) {
    window_a.KeyDown.Calls([](int) { window_b.Show(); });
    Note(window_a.entry.KeyDown, "a");
    Note(window_b.entry.KeyDown, "b");
    PressKey(65);
    EXPECT_EQ(Take(), Log{});
}

class AnswerTest : public UserTest {
protected:
    AnswerTest() {
        window_a.key_preview = false;
        window_a.confirm = window_a.dismiss = &window_a.ok;
        Note(window_a.ok.Click, "ok");
        ClickControl(window_a.entry);
    }
    ~AnswerTest() override {
        window_a.key_preview = true;
        window_a.confirm = window_a.dismiss = nullptr;
        window_a.entry.takes_keys = window_a.entry.multiline = false;
    }
};

TEST_F(AnswerTest, EnterAndEscClickTheButtonsThatTheWindowNames) {
    EXPECT_TRUE(PressAnswer(13));
    EXPECT_TRUE(PressAnswer(27));
    EXPECT_FALSE(PressAnswer(32));
    EXPECT_EQ(Take(), (Log{"ok", "ok"}));
    ClickControl(window_a.entry);  // the click has taken the focus
    window_a.confirm = window_a.dismiss = nullptr;
    EXPECT_FALSE(PressAnswer(13) || PressAnswer(27));
}

TEST_F(AnswerTest, ABoxOfSeveralLinesKeepsEnterAndOneThatTakesKeysBoth) {
    window_a.entry.multiline = true;
    EXPECT_FALSE(PressAnswer(13));
    EXPECT_TRUE(PressAnswer(27));
    Take();
    ClickControl(window_a.entry);
    window_a.entry.takes_keys = true;
    EXPECT_FALSE(PressAnswer(13) || PressAnswer(27));
    EXPECT_EQ(Take(), Log{});
}

TEST_F(AnswerTest, EnterIsForTheButtonInFocusUnlessTheWindowHearsKeysFirst) {
    window_a.confirm = nullptr;
    ClickControl(window_a.ok);
    Take();
    EXPECT_TRUE(PressAnswer(13));
    EXPECT_EQ(Take(), Log{"ok"});
    window_a.key_preview = true;
    EXPECT_FALSE(PressAnswer(13));
}

TEST_F(AnswerTest, AButtonOutOfReachOrBelowTheEdgeIsNotClicked) {
    window_a.ok.SetEnabled(false);
    EXPECT_FALSE(PressAnswer(13));
    window_a.ok.SetEnabled(true);
    window_a.SetSize(6000, window_a.ok.Top());
    EXPECT_FALSE(PressAnswer(13));
    window_a.SetSize(6000, window_a.ok.Top() + 1);
    EXPECT_TRUE(PressAnswer(13));
}

TEST_F(UserTest, WithoutAnActiveWindowKeysGoNowhere) {
    window_a.Hide();
    Note(window_a.KeyDown, "down");
    PressKey(65);
    ReleaseKey(65);
    EXPECT_EQ(Take(), Log{});
}

TEST_F(UserTest, TextIsPutInAtTheCaretInPlaceOfTheSelection) {
    TextBox& box = window_a.entry;
    InsertText(box, "a\u00e9c");
    EXPECT_EQ(box.SelStart(), 3);
    box.SetSelStart(1);
    InsertText(box, "x");
    EXPECT_EQ(box.Text(), "ax\u00e9c");
    box.Select(1, 2);
    int changes = 0;
    box.Change.Calls([&changes] { ++changes; });
    InsertText(box, "-");
    EXPECT_EQ(box.Text(), "a-c");
    EXPECT_EQ(box.SelStart(), 2);
    EXPECT_EQ(changes, 1);
}

TEST_F(UserTest, DeletingTakesTheSelectionOrOneCharacter) {
    TextBox& box = window_a.entry;
    InsertText(box, "a\u00e9cd");
    box.SetSelStart(2);
    DeleteBackward(box);
    EXPECT_EQ(box.Text(), "acd");
    EXPECT_EQ(box.SelStart(), 1);
    DeleteForward(box);
    EXPECT_EQ(box.Text(), "ad");
    box.Select(0, 2);
    DeleteForward(box);
    EXPECT_EQ(box.Text(), "");
    DeleteBackward(box);
    DeleteForward(box);
    EXPECT_EQ(box.Text(), "");
    InsertText(box, "abc");
    box.Select(1, 2);
    DeleteBackward(box);
    EXPECT_EQ(box.Text(), "a");
    EXPECT_EQ(box.SelStart(), 1);
}

TEST_F(UserTest, DeletingTakesALineBreakWhole) {
    TextBox& box = window_a.entry;
    InsertText(box, "a\r\nb\r\nc");
    box.SetSelStart(6);
    DeleteBackward(box);
    DeleteBackward(box);
    EXPECT_EQ(box.Text(), "a\r\nc");
    EXPECT_EQ(box.SelStart(), 3);
    box.SetSelStart(1);
    DeleteForward(box);
    EXPECT_EQ(box.Text(), "ac");
    EXPECT_EQ(box.SelStart(), 1);
}

TEST_F(UserTest, TextGoesOnlyWhereTheFocusIsAndIsTaken) {
    InsertText(window_a.note, "x");
    EXPECT_EQ(window_a.note.Text(), "");
    window_a.entry.takes_text = false;
    InsertText(window_a.entry, "x");
    EXPECT_EQ(window_a.entry.Text(), "");
    window_a.entry.takes_text = true;
    window_a.entry.SetEnabled(false);
    InsertText(window_a.entry, "x");
    EXPECT_EQ(window_a.entry.Text(), "");
    ClickControl(window_a.list);
    InsertText(window_a.list, "typed");
    EXPECT_EQ(window_a.list.Text(), "typed");
}

TEST_F(UserTest, AnItemIsChosenBetweenPressAndRelease) {
    Note(window_a.list.MouseUp, "up");
    Note(window_a.list.Click, "click");
    ChooseItem(window_a.list, 1);
    EXPECT_EQ(window_a.list.Text(), "two");
    EXPECT_EQ(Take(), (Log{"up", "click"}));
    window_a.list.SetEnabled(false);
    ChooseItem(window_a.list, 0);
    EXPECT_EQ(window_a.list.Text(), "two");
}

TEST_F(UserTest, SlidersAndArrowsMoveOnlyWhileTheyAreReached) {
    SlideTo(window_a.slider, 7);
    EXPECT_EQ(window_a.slider.Value(), 7);
    EXPECT_EQ(window_a.Focus(), &window_a.slider);
    SlideTo(window_a.scroll, 7);
    EXPECT_EQ(window_a.Focus(), &window_a.slider) << "a scroll bar takes no focus";
    window_a.slider.SetEnabled(false);
    SlideTo(window_a.slider, 8);
    EXPECT_EQ(window_a.slider.Value(), 7);
    Note(window_a.arrows.UpClick, "up");
    Note(window_a.arrows.DownClick, "down");
    Spin(window_a.arrows, true);
    Spin(window_a.arrows, false);
    window_a.arrows.SetVisible(false);
    Spin(window_a.arrows, true);
    EXPECT_EQ(Take(), (Log{"up", "down"}));
}

TEST_F(UserTest, ClosingByTheFrameUnloadsUnlessTheWindowHasItsOwnWay) {
    Note(window_a.FrameClosed, "closed");
    CloseWindow(window_a);
    EXPECT_EQ(Take(), Log{"closed"});
    EXPECT_TRUE(window_a.Visible());
    window_a.FrameClosed.Calls({});
    window_a.SetEnabled(false);
    CloseWindow(window_a);
    EXPECT_TRUE(window_a.IsLoaded()) << "a disabled window cannot be closed";
    window_a.SetEnabled(true);
    CloseWindow(window_a);
    EXPECT_FALSE(window_a.IsLoaded());
}

TEST_F(UserTest, ADisabledOrHiddenWindowSeesNoMouseAndNoNewSize) {
    Note(window_a.MouseMove, "move");
    Note(window_a.MouseDown, "down");
    MoveMouseOverWindow(window_a, {});
    PressMouseOnWindow(window_a, {});
    EXPECT_EQ(Take(), (Log{"move", "down"}));
    window_a.SetEnabled(false);
    MoveMouseOverWindow(window_a, {});
    PressMouseOnWindow(window_a, {});
    ResizeWindow(window_a, 1, 1);
    EXPECT_EQ(Take(), Log{});
    EXPECT_EQ(window_a.Width(), 6000);
}

TEST_F(UserTest, APressBringsItsWindowToTheFront) {
    window_b.Show();
    EXPECT_EQ(ActiveWindow(), &window_b);
    ClickControl(window_a.ok);
    EXPECT_EQ(ActiveWindow(), &window_a);
    EXPECT_EQ(window_a.Focus(), &window_a.ok);
}
}  // namespace
