#include "platform/window.h"

#include <gtest/gtest.h>

#include "platform/user.h"
#include "platform/window_table.h"
#include "unit/test_window.h"

namespace {
using Log = std::vector<std::string>;

class WindowTest : public testing::Test {
protected:
    WindowTest() {
        for (TestWindow* window : {&window_a, &window_b, &window_c}) {
            Note(window->Loaded, *window, "loaded");
            Note(window->Unloading, *window, "unloading");
            Note(window->Activated, *window, "active");
            Note(window->entry.GotFocus, *window, "got");
            Note(window->entry.LostFocus, *window, "lost");
            Note(window->Resized, *window, "resized");
        }
    }
    ~WindowTest() override { ForgetTestWindows(); }

    void Note(Event<>& event, Window& window, const char* what) {
        event.Calls([this, what, &window] { log_.push_back(window.name.substr(3) + " " + what); });
    }
    Log Take() { return std::exchange(log_, {}); }

    Log log_;
};

struct LaidWindow : Window {
    LaidWindow() : Window("tstLaid", "Laid", 3000, 2000) {
        Lay({
            {words, "words", nullptr, {10, 20, 30, 40}, "Name:"},
            {ground, "ground", nullptr, {50, 60, 70, 80}, "", {.back = kBlack, .visible = false}},
            {box[1],
             {"box", 1},
             &ground,
             {1, 2, 3, 4},
             "---",
             {.points = 7, .bold = true, .fore = kWhite, .enabled = false},
             "Name",
             &words},
        });
        LayMenus({
            {menu, "menu", nullptr, "&Menu", kHidden},
            {item, {"item", 5}, &menu, "Item"},
        });
        KeepDesign();
    }
    Label words;
    Frame ground;
    TextBox box[2];
    MenuItem menu, item;
} laid;

TEST_F(WindowTest, TheControlsStandInTheOrderOfTheirRows) {
    EXPECT_EQ(laid.Controls(), (std::vector<Control*>{&laid.words, &laid.ground, &laid.box[1], &laid.menu, &laid.item}));
    for (const Control* control : laid.Controls()) EXPECT_EQ(control->window, &laid);
}

TEST_F(WindowTest, ARowTellsAllOfItsControl) {
    const TextBox& box = laid.box[1];
    const Box place = box.State().box;
    EXPECT_EQ(laid.Find("box", 1), &box);
    EXPECT_EQ(box.container, &laid.ground);
    EXPECT_EQ((std::vector{place.left, place.top, place.width, place.height}), (std::vector{1, 2, 3, 4}));
    EXPECT_EQ(box.Text(), "---");
    EXPECT_EQ(box.FontSize(), 7);
    EXPECT_TRUE(box.Bold());
    EXPECT_EQ(box.ForeColor(), kWhite);
    EXPECT_FALSE(box.Enabled());
    EXPECT_EQ(box.accessible_name, "Name");
    EXPECT_EQ(box.named_by, &laid.words);
}

TEST_F(WindowTest, WhatARowLeavesOutIsAsItsKindHasIt) {
    EXPECT_EQ(laid.words.Caption(), "Name:");
    EXPECT_EQ(laid.words.index, -1);
    EXPECT_EQ(laid.words.container, nullptr);
    EXPECT_EQ(laid.words.FontSize(), 9);
    EXPECT_EQ(laid.words.BackColor(), kFormColour);
    EXPECT_EQ(laid.box[1].BackColor(), kWhite);
    EXPECT_TRUE(laid.words.Visible() && laid.words.Enabled() && laid.words.tab_stop);
    EXPECT_EQ(laid.ground.BackColor(), kBlack);
    EXPECT_FALSE(laid.ground.Visible());
}

TEST_F(WindowTest, AMenuRowStandsInItsMenu) {
    EXPECT_EQ(laid.menu.Caption(), "&Menu");
    EXPECT_FALSE(laid.menu.Visible());
    EXPECT_EQ(laid.item.container, &laid.menu);
    EXPECT_EQ(laid.Find("item", 5), &laid.item);
}

TEST_F(WindowTest, ShowLoadsItOnceBringsItToTheFrontAndGivesItTheFocus) {
    EXPECT_FALSE(window_a.IsLoaded());
    window_a.Show();
    EXPECT_TRUE(window_a.IsLoaded() && window_a.Visible());
    EXPECT_EQ(ActiveWindow(), &window_a);
    EXPECT_EQ(window_a.Focus(), &window_a.entry);
    EXPECT_EQ(Take(), (Log{"A loaded", "A got", "A active"}));
    window_a.Show();
    EXPECT_EQ(Take(), Log{});
}

TEST_F(WindowTest, TheWindowInFrontTakesTheFocusFromTheOneBehindAndGivesItBack) {
    window_a.Show();
    Take();
    window_b.Show();
    EXPECT_EQ(ActiveWindow(), &window_b);
    EXPECT_EQ(Take(), (Log{"B loaded", "A lost", "B got", "B active"}));
    window_b.Hide();
    EXPECT_EQ(ActiveWindow(), &window_a);
    EXPECT_EQ(Take(), (Log{"B lost", "A got", "A active"}));
    EXPECT_TRUE(window_b.IsLoaded()) << "hidden, not gone";
}

TEST_F(WindowTest, ADisabledWindowIsPassedOver) {
    window_a.Show();
    window_b.Show();
    window_b.SetEnabled(false);
    EXPECT_EQ(ActiveWindow(), &window_a);
    window_c.SetEnabled(false);
    window_c.Show();
    EXPECT_EQ(ActiveWindow(), &window_a);
    window_b.SetEnabled(true);
    EXPECT_EQ(ActiveWindow(), &window_b) << "it stood in front all the time";
    window_a.SetEnabled(false);
    window_b.SetEnabled(false);
    EXPECT_EQ(ActiveWindow(), nullptr);
}

TEST_F(WindowTest, ShownWindowsStandInTheirOrder) {
    window_a.Show();
    window_b.Show();
    window_c.Show();
    window_a.Show();
    EXPECT_EQ(ShownWindows(), (std::vector<Window*>{&window_b, &window_c, &window_a}));
    window_c.Hide();
    EXPECT_EQ(ShownWindows(), (std::vector<Window*>{&window_b, &window_a}));
}

TEST_F(WindowTest, LoadWithoutShowIsUnseen) {
    window_a.Load();
    window_a.Load();
    EXPECT_EQ(Take(), Log{"A loaded"});
    EXPECT_FALSE(window_a.Visible());
    EXPECT_EQ(ActiveWindow(), nullptr);
}

TEST_F(WindowTest, AWindowThatHidesItselfWhileItLoadsStaysHidden) {
    window_a.Loaded.Calls([] { window_a.Hide(); });
    window_a.Show();
    EXPECT_TRUE(window_a.IsLoaded());
    EXPECT_FALSE(window_a.Visible());
    window_a.Show();
    EXPECT_TRUE(window_a.Visible()) << "only that time";
}

TEST_F(WindowTest, AWindowThatShowsAnotherWhileItBecomesActiveStandsBehindIt) {
    window_a.entry.GotFocus.Calls([] { window_b.Show(); });
    window_a.Show();
    EXPECT_EQ(ActiveWindow(), &window_b);
    EXPECT_EQ(ShownWindows(), (std::vector<Window*>{&window_a, &window_b}));
}

TEST_F(WindowTest, AWindowThatIsLeftMayBringUpAnother) {
    window_a.Show();
    window_a.entry.LostFocus.Calls([] { window_c.Show(); });
    Take();
    window_b.Show();
    EXPECT_EQ(ActiveWindow(), &window_c);
    EXPECT_EQ(Take(), (Log{"B loaded", "C loaded", "C got", "C active"})) << "B was never in front";
}

TEST_F(WindowTest, UnloadBringsTheDesignBack) {
    window_a.Show();
    window_a.SetTitle("other");
    window_a.SetSize(100, 200);
    window_a.SetPlace(3, 4);
    window_a.entry.SetText("typed");
    window_a.note.SetVisible(false);
    window_a.list.Clear();
    window_a.SetFocus(window_a.ok);
    window_a.SetEnabled(false);
    Take();
    window_a.Unload();
    EXPECT_EQ(Take(), Log{"A unloading"});
    EXPECT_FALSE(window_a.IsLoaded() || window_a.Visible());
    EXPECT_TRUE(window_a.Enabled());
    EXPECT_EQ(window_a.Title(), "tstA");
    EXPECT_EQ(window_a.Width(), 6000);
    EXPECT_EQ(window_a.Height(), 4000);
    EXPECT_EQ(window_a.Left(), 0);
    EXPECT_EQ(window_a.entry.Text(), "");
    EXPECT_TRUE(window_a.note.Visible());
    EXPECT_EQ(window_a.list.ListCount(), 2);
    EXPECT_EQ(window_a.Focus(), nullptr);
    window_a.Unload();
    EXPECT_EQ(Take(), Log{}) << "it is not loaded any more";
    window_a.Show();
    EXPECT_EQ(Take(), (Log{"A loaded", "A got", "A active"}));
}

TEST_F(WindowTest, WhileItUnloadsItIsStillThere) {
    bool loaded = false;
    std::string text;
    window_a.Unloading.Calls([&] {
        loaded = window_a.IsLoaded();
        text = window_a.entry.Text();
    });
    window_a.Show();
    window_a.entry.SetText("typed");
    window_a.Unload();
    EXPECT_TRUE(loaded);
    EXPECT_EQ(text, "typed");
}

TEST_F(WindowTest, TheFocusMovesWithOneLossAndOneGain) {
    window_a.Show();
    Note(window_a.note.GotFocus, window_a, "note got");
    Take();
    window_a.note.SetFocus();
    EXPECT_EQ(Take(), (Log{"A lost", "A note got"}));
    window_a.note.SetFocus();
    EXPECT_EQ(Take(), Log{});
}

TEST_F(WindowTest, AFocusInAWindowBehindIsToldOfWhenItComesToTheFront) {
    window_a.Show();
    window_b.Show();
    Note(window_a.note.GotFocus, window_a, "note got");
    Take();
    window_a.note.SetFocus();
    EXPECT_EQ(window_a.Focus(), &window_a.note);
    EXPECT_EQ(Take(), Log{});
    window_b.Hide();
    EXPECT_EQ(Take(), (Log{"B lost", "A note got", "A active"}));
}

TEST_F(WindowTest, WhatIsHiddenOrDisabledTakesNoFocus) {
    window_a.Show();
    window_a.note.SetEnabled(false);
    window_a.note.SetFocus();
    window_a.group.SetVisible(false);
    window_a.tick.SetFocus();
    window_a.on_tab[1].SetFocus();
    EXPECT_EQ(window_a.Focus(), &window_a.entry);
    window_a.on_tab[0].SetFocus();
    EXPECT_EQ(window_a.Focus(), &window_a.on_tab[0]);
}

TEST_F(WindowTest, TheProgramsSameSizeIsNoResizeTheUsersIs) {
    window_a.Show();
    Take();
    window_a.SetSize(6000, 4000);
    EXPECT_EQ(Take(), Log{});
    window_a.SetSize(6000, 4001);
    EXPECT_EQ(Take(), Log{"A resized"});
    ResizeWindow(window_a, 6000, 4001);
    EXPECT_EQ(Take(), Log{"A resized"});
    EXPECT_EQ(window_a.Height(), 4001);
}

TEST_F(WindowTest, AControlIsFoundByItsNameAndIndex) {
    EXPECT_EQ(window_a.Find("on_tab", 1), &window_a.on_tab[1]);
    EXPECT_EQ(window_a.Find("ok", -1), &window_a.ok);
    EXPECT_EQ(window_a.Find("ok", 0), nullptr);
    EXPECT_EQ(window_a.Find("nothing", -1), nullptr);
}
}  // namespace
