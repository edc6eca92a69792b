// A set that changes nothing says nothing; a set that changes something speaks once, at once.
#include "platform/controls.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "platform/picture_box.h"
#include "platform/text.h"
#include "unit/test_window.h"

namespace {
class ControlsTest : public testing::Test {
protected:
    ~ControlsTest() override { ForgetTestWindows(); }
    // Joins the event to a counter.
    void Count(Event<>& event) {
        event.Calls([this] { ++raised_; });
    }
    int Raised() { return std::exchange(raised_, 0); }

    ViewRecorder view_;

private:
    int raised_ = 0;
};

class KindsMet : private ControlVisitor {
public:
    void Meet(Control& control) { control.Accept(*this); }
    std::vector<Kind> kinds;

private:
    void Visit(TextBox&) override { kinds.push_back(Kind::TextBox); }
    void Visit(Label&) override { kinds.push_back(Kind::Label); }
    void Visit(Button&) override { kinds.push_back(Kind::Button); }
    void Visit(OptionButton&) override { kinds.push_back(Kind::OptionButton); }
    void Visit(CheckBox&) override { kinds.push_back(Kind::CheckBox); }
    void Visit(ComboBox&) override { kinds.push_back(Kind::ComboBox); }
    void Visit(Frame&) override { kinds.push_back(Kind::Frame); }
    void Visit(TabControl&) override { kinds.push_back(Kind::TabControl); }
    void Visit(PictureBox&) override { kinds.push_back(Kind::PictureBox); }
    void Visit(ProgressBar&) override { kinds.push_back(Kind::ProgressBar); }
    void Visit(Slider&) override { kinds.push_back(Kind::Slider); }
    void Visit(ScrollBar&) override { kinds.push_back(Kind::ScrollBar); }
    void Visit(UpDown&) override { kinds.push_back(Kind::UpDown); }
    void Visit(StatusBar&) override { kinds.push_back(Kind::StatusBar); }
    void Visit(MenuItem&) override { kinds.push_back(Kind::MenuItem); }
};

TEST_F(ControlsTest, AVisitorMeetsEachControlAsWhatItIs) {
    TextBox text;
    Label label;
    Button button;
    OptionButton option;
    CheckBox check;
    ComboBox combo;
    Frame frame;
    TabControl tabs;
    PictureBox picture;
    ProgressBar progress;
    Slider slider;
    ScrollBar scroll;
    UpDown arrows;
    StatusBar status;
    MenuItem item;
    for (Control* control : std::initializer_list<Control*>{&text, &label, &button, &option, &check, &combo, &frame, &tabs, &picture,
                                                            &progress, &slider, &scroll, &arrows, &status, &item}) {
        KindsMet met;
        met.Meet(*control);
        EXPECT_EQ(met.kinds, std::vector{control->kind()});
        EXPECT_EQ(control->IsPageInFront(7), control != &tabs) << "only tabs have pages";
    }
}

TEST_F(ControlsTest, ABoxTellsWhatIsTypedIntoIt) {
    TextBox box;
    ComboBox list;
    for (const TextHolder* holder : std::initializer_list<TextHolder*>{&box, &list}) {
        EXPECT_TRUE(holder->TakesText());
        EXPECT_FALSE(holder->TakesKeysAsInput() || holder->BreaksLines() || holder->IsCentred() || holder->IsTypedOver());
    }
    box.multiline = box.centred = box.takes_keys = box.marks_all = true;
    box.takes_text = false;
    box.SetText("Pinus");
    EXPECT_FALSE(box.TakesText());
    EXPECT_TRUE(box.TakesKeysAsInput() && box.BreaksLines() && box.IsCentred() && box.IsTypedOver());
}

TEST_F(ControlsTest, EveryPropertyIsToldOfOnceAndOnlyWhenItChanges) {
    Button button;
    button.BindView(&view_);
    const auto set_all = [&button](int step) {
        button.SetLeft(100 * step);
        button.SetTop(100 * step);
        button.SetWidth(100 * step);
        button.SetHeight(100 * step);
        button.SetEnabled(step % 2 == 0);
        button.SetVisible(step % 2 == 0);
        button.SetBold(step % 2 == 1);
        button.SetItalic(step % 2 == 1);
        button.SetUnderline(step % 2 == 1);
        button.SetFontSize(10 + step);
        button.SetBackColor({1, 2, static_cast<std::uint8_t>(step)});
        button.SetForeColor({1, 2, static_cast<std::uint8_t>(step)});
        button.SetToolTip(std::to_string(step));
        button.SetCaption(std::to_string(step));
    };
    set_all(1);
    EXPECT_EQ(view_.Take().size(), 14u);
    set_all(1);
    EXPECT_EQ(view_.Take().size(), 0u);
    set_all(2);
    EXPECT_EQ(view_.Take().size(), 14u);
}

TEST_F(ControlsTest, ATextThatIsSetAnewRaisesChangeInsideTheCall) {
    TextBox box;
    std::string seen;
    box.Change.Calls([&] { seen += box.Text() + ";"; });
    box.SetText("a");
    EXPECT_EQ(seen, "a;");
    box.SetText("a");
    EXPECT_EQ(seen, "a;");
    box.SetText("");
    EXPECT_EQ(seen, "a;;");
}

TEST_F(ControlsTest, TheViewHearsOfATextBeforeItsProcedure) {
    TextBox box;
    box.BindView(&view_);
    std::size_t told = 0;
    box.Change.Calls([&] { told = view_.told.size(); });
    box.SetText("a");
    EXPECT_EQ(told, 1u);
}

TEST_F(ControlsTest, AProcedureMaySetTheTextThatItIsToldOf) {
    TextBox box;
    int calls = 0;
    box.Change.Calls([&] {
        ++calls;
        if (box.Text() == "bad") box.SetText("good");
    });
    box.SetText("bad");
    EXPECT_EQ(box.Text(), "good");
    EXPECT_EQ(calls, 2);
}

TEST_F(ControlsTest, TheProgramsTextPutsTheCaretInFrontAndTheUsersBehindWhatHePutIn) {
    TextBox box;
    box.Enter("abc", 2);
    EXPECT_EQ(box.SelStart(), 2);
    box.SetText("abc");
    EXPECT_EQ(box.SelStart(), 2) << "the same text moves nothing";
    box.SetText("abcd");
    EXPECT_EQ(box.SelStart(), 0);
    ComboBox list;
    list.Enter("abc", 3);
    EXPECT_EQ(list.SelStart(), 3);
    list.SetText("x");
    EXPECT_EQ(list.SelStart(), 0);
}

TEST_F(ControlsTest, TheCaretStaysWithinTheTextCountedInCharacters) {
    TextBox box;
    box.SetText("\u00e9\u00e9\u00e9");
    for (const auto& [asked, caret] : {std::pair{-1, 0}, {0, 0}, {3, 3}, {4, 3}}) {
        box.SetSelStart(asked);
        EXPECT_EQ(box.SelStart(), caret) << asked;
    }
    box.Enter("\u00e9", 9);
    EXPECT_EQ(box.SelStart(), 1);
}

TEST_F(ControlsTest, ASelectionEndsWithTheTextAndWithTheNextMove) {
    TextBox box;
    box.SetText("abcdef");
    box.Select(2, 3);
    EXPECT_EQ(box.SelStart(), 2);
    EXPECT_EQ(box.SelLength(), 3);
    box.Select(4, 9);
    EXPECT_EQ(box.SelLength(), 2);
    box.SetSelStart(1);
    EXPECT_EQ(box.SelLength(), 0);
    box.Select(0, 2);
    box.SetText("xyz");
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(ControlsTest, ABoxKnowsTheNumberOfItsTextHoweverThatChanges) {
    TextBox box;
    EXPECT_EQ(box.Number(), 0);
    for (const char* text : {"12", "", "-3", "7 cf.", "1E2", "Pinus", ".5", "1e999"}) {
        box.SetText(text);
        EXPECT_EQ(box.Number(), Val(text)) << text;
    }
    box.Enter("41", 2);
    EXPECT_EQ(box.Number(), 41);
    double heard = 0;
    box.Change.Calls([&] { heard = box.Number(); });
    box.SetText("5");
    EXPECT_EQ(heard, 5) << "the number is there before the change is told";
    box.KeepDesign();
    box.SetText("6");
    box.ReturnToDesign();
    EXPECT_EQ(box.Number(), 5);
}

TEST_F(ControlsTest, AListKnowsTheNumberOfTheItemOnShow) {
    ComboBox list;
    list.AddItem("12.5");
    list.Choose(0);
    EXPECT_EQ(list.Number(), 12.5);
    list.Clear();
    EXPECT_EQ(list.Number(), 0);
}

TEST_F(ControlsTest, ACaptionOfALabelRaisesChange) {
    Label label;
    Count(label.Change);
    label.SetCaption("a");
    label.SetCaption("a");
    EXPECT_EQ(Raised(), 1);
}

TEST_F(ControlsTest, OneOptionOfAContainerIsSelectedAtATime) {
    Count(window_a.first.Click);
    window_a.first.SetValue(true);
    EXPECT_EQ(Raised(), 1);
    window_a.first.SetValue(true);
    EXPECT_EQ(Raised(), 0);
    window_a.third.SetValue(true);
    EXPECT_TRUE(window_a.first.Value()) << "the third stands in another frame";
    bool first_was_selected = true;
    window_a.second.Click.Calls([&] { first_was_selected = window_a.first.Value(); });
    window_a.second.SetValue(true);
    EXPECT_FALSE(first_was_selected) << "the other has let go before Click";
    EXPECT_FALSE(window_a.first.Value());
    EXPECT_TRUE(window_a.third.Value());
    EXPECT_EQ(Raised(), 0) << "letting go is no click";
    window_a.second.SetValue(false);
    EXPECT_FALSE(window_a.first.Value() || window_a.second.Value());
}

TEST_F(ControlsTest, ATickBoxSaysClickWhoeverSetsIt) {
    CheckBox box;
    Count(box.Click);
    box.SetValue(1);
    box.SetValue(1);
    box.SetValue(0);
    EXPECT_EQ(Raised(), 2);
}

TEST_F(ControlsTest, AnItemThatIsNotThereCannotBeSet) {
    ComboBox list;
    list.BindView(&view_);
    for (const int item : {-1, 0}) list.SetItem(item, "new");
    EXPECT_EQ(list.ListCount(), 0);
    list.AddItem("one");
    view_.Take();
    for (const int item : {-1, 1}) list.SetItem(item, "new");
    EXPECT_EQ(list.List(), std::vector<std::string>{"one"});
    EXPECT_EQ(view_.Take().size(), 0u);
    list.SetItem(0, "new");
    EXPECT_EQ(list.List(), std::vector<std::string>{"new"});
}

TEST_F(ControlsTest, AListTellsTypingFromTheProgramsText) {
    ComboBox list;
    Count(list.Edited);
    list.SetText("a");
    EXPECT_EQ(Raised(), 0);
    list.Enter("b", 1);
    EXPECT_EQ(Raised(), 1);
    list.Enter("b", 0);
    EXPECT_EQ(Raised(), 0) << "only the caret moved";
    Count(list.Change);
    list.Enter("c", 1);
    EXPECT_EQ(Raised(), 2) << "typing is a Change as well";
}

TEST_F(ControlsTest, ChoosingAnItemIsAClickEvenOfTheOneOnShow) {
    ComboBox list;
    list.AddItem("one");
    list.AddItem("two");
    Count(list.Click);
    Count(list.Edited);
    for (const int item : {1, 1, 0}) list.Choose(item);
    EXPECT_EQ(Raised(), 3);
    EXPECT_EQ(list.Text(), "one");
    for (const int item : {-1, 2}) list.Choose(item);
    EXPECT_EQ(Raised(), 0);
    EXPECT_EQ(list.Text(), "one");
}

TEST_F(ControlsTest, ClearingAListIsSilent) {
    ComboBox list;
    list.AddItem("one");
    list.SetText("one");
    for (Event<>* event : {&list.Change, &list.Click, &list.Edited}) Count(*event);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(Raised(), 0);
}

TEST_F(ControlsTest, ARangeKeepsItsValueWithinItsEnds) {
    Slider slider;
    slider.SetRange(1, 10);
    Count(slider.Change);
    for (const auto& [asked, value] : {std::pair{0, 1}, {1, 1}, {10, 10}, {11, 10}, {5, 5}}) {
        slider.SetValue(asked);
        EXPECT_EQ(slider.Value(), value) << asked;
    }
    EXPECT_EQ(Raised(), 2) << "from 1 to 10 and to 5";
    slider.SetRange(1, 3);
    EXPECT_EQ(slider.Value(), 3);
    slider.SetRange(7, 9);
    EXPECT_EQ(slider.Value(), 7);
    EXPECT_EQ(Raised(), 0) << "a range that moves its value says nothing";
    slider.SetRange(5, 2);
    slider.SetValue(4);
    EXPECT_EQ(slider.Value(), 5) << "ends the wrong way round leave the lower one";
}

TEST_F(ControlsTest, AProgressBarPastItsEndIsJustFull) {
    ProgressBar bar;
    bar.SetRange(0, 135);
    bar.SetValue(136);
    EXPECT_EQ(bar.Max(), 135);
}

TEST_F(ControlsTest, ATabComesToTheFrontWithOneChange) {
    TabControl tabs;
    Count(tabs.Change);
    tabs.SetTab(1);
    tabs.SetTab(1);
    EXPECT_EQ(Raised(), 1);
}

TEST_F(ControlsTest, TheDesignStateComesBackWholeAndTheViewHearsOfIt) {
    TextBox box;
    box.SetText("design");
    box.SetLeft(5);
    box.KeepDesign();
    box.SetText("other");
    box.SetLeft(6);
    box.SetBold(true);
    box.BindView(&view_);
    Count(box.Change);
    box.ReturnToDesign();
    EXPECT_EQ(box.Text(), "design");
    EXPECT_EQ(box.Left(), 5);
    EXPECT_FALSE(box.Bold());
    EXPECT_EQ(Raised(), 0);
    EXPECT_FALSE(view_.Take().empty());
}
}  // namespace
