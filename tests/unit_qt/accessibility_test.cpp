// What a screen reader finds in the windows, and what it can do there. tests/windows walks the same tree over D-Bus.
#include <QAccessible>

#include "platform/qt/menu_view.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"
#include "unit_qt/on_screen_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/next_window.h"
#include "windows/subtotal_window.h"

namespace {
using Actions = QAccessibleActionInterface;

class AccessibilityTest : public OnScreenTest {
protected:
    void Show(Window& window) {
        Do([&] { window.Show(); });
    }
    void Begin() {  // from the start face to the main window
        Do([] { ClickControl(frmNext.Command4); });
        Do([] { frmNext.Text1.SetText("12.5"); });
        Do([] { ClickControl(frmNext.Command1); });
        ASSERT_EQ(ActiveWindow(), &frmMain);
    }
    QAccessibleInterface* Found(const Control& control) { return QAccessible::queryAccessibleInterface(Shown(control).Widget()); }
    QString Name(const Control& control) { return Found(control)->text(QAccessible::Name); }
    void Act(QAccessibleInterface* item, const QString& action) {
        item->actionInterface()->doAction(action);
        QApplication::processEvents();
    }

    // How many items there are on show; each that a reader could make nothing of fails the test.
    int LookOver(QAccessibleInterface* item, const std::string& window) {
        if (!item || item->state().invisible) return 0;
        const QString name = item->text(QAccessible::Name);
        EXPECT_NE(item->role(), QAccessible::Client) << window << ": " << name.toStdString();
        const bool may_be_silent = item->role() == QAccessible::StaticText || item->role() == QAccessible::MenuBar;
        EXPECT_TRUE(may_be_silent || !name.trimmed().isEmpty()) << window << ": role " << item->role();
        int items = 1;
        for (int place = 0; place < item->childCount(); ++place) {
            EXPECT_EQ(item->indexOfChild(item->child(place)), place);
            items += LookOver(item->child(place), window);
        }
        return items;
    }
};

TEST_F(AccessibilityTest, EverythingInAnyWindowHasARoleAndCanBeSpoken) {
    for (Window* window : AllWindows()) {
        Show(*window);
        EXPECT_GT(LookOver(QAccessible::queryAccessibleInterface(renderer_.WidgetOf(*window)), window->name), 1);
    }
}

TEST_F(AccessibilityTest, EveryControlIsAChildOfWhatContainsIt) {
    for (Window* window : AllWindows()) {
        Show(*window);
        for (const Control* control : window->Controls()) {
            if (!renderer_.WidgetOf(*window)->Find(*control)) continue;
            QAccessibleInterface* const item = Found(*control);
            EXPECT_GE(item->parent()->indexOfChild(item), 0) << window->name << "." << control->name;
        }
    }
}

TEST_F(AccessibilityTest, EachKindHasItsRole) {
    for (Window* window : {static_cast<Window*>(&frmMain), static_cast<Window*>(&frmDiagram), static_cast<Window*>(&frmSubtotal)})
        Show(*window);
    const struct {
        const Control& control;
        QAccessible::Role role;
    } cases[] = {
        {frmMain.Text1[1], QAccessible::EditableText},  {frmMain.Label6, QAccessible::StaticText},
        {frmMain.Command5[0], QAccessible::Button},     {frmMain.Option1[1], QAccessible::RadioButton},
        {frmSubtotal.Check1[1], QAccessible::CheckBox}, {frmMain.Combo1, QAccessible::ComboBox},
        {frmMain.Frame2, QAccessible::Grouping},        {frmMain.SSTab1, QAccessible::PageTabList},
        {frmMain.Picture2, QAccessible::Graphic},       {frmMain.ProgressBar1, QAccessible::ProgressBar},
        {frmDiagram.Slider1, QAccessible::Slider},      {frmDiagram.HScroll1, QAccessible::ScrollBar},
        {frmDiagram.UpDown1, QAccessible::SpinBox},     {frmDiagram.StatusBar1, QAccessible::StatusBar},
    };
    for (const auto& each : cases) EXPECT_EQ(Found(each.control)->role(), each.role) << each.control.name;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(renderer_.WidgetOf(frmMain))->role(), QAccessible::Window);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(renderer_.WidgetOf(frmSubtotal))->role(), QAccessible::Dialog);
}

TEST_F(AccessibilityTest, NamesFollowTheLabels) {
    Show(frmMain);
    Do([] {
        frmMain.Label2[1].SetCaption("Trees:");
        frmMain.Label10[2].SetCaption("Tablets:");
        frmMain.Label10[2].SetVisible(false);
        frmMain.Text1[7].SetText("Pinus");
    });
    EXPECT_EQ(Name(frmMain.Text3[1]), "Trees");
    EXPECT_EQ(Name(frmMain.Option1[1]), "Set alarm: Trees");
    EXPECT_EQ(Name(frmMain.Text5[2]), "Tablets");
    EXPECT_EQ(Name(frmMain.Text2[7]), "Count of taxon 7: Pinus");
    EXPECT_EQ(Name(frmMain.Text2[8]), "Count of taxon 8");
}

TEST_F(AccessibilityTest, TheTotalHasItsNumberAsAValue) {
    Show(frmMain);
    Do([] { frmMain.Text3[0].SetText("12"); });
    EXPECT_EQ(Found(frmMain.Text3[0])->text(QAccessible::Value), "12");
    ASSERT_TRUE(Found(frmMain.Text3[0])->valueInterface());
    EXPECT_EQ(Found(frmMain.Text3[0])->valueInterface()->currentValue(), 12.0);
    EXPECT_FALSE(Found(frmMain.Text1[7])->valueInterface()) << "a name is no number";
}

TEST_F(AccessibilityTest, WhatTakesTheFocusAtAClickCanBeGivenIt) {
    Begin();
    EXPECT_TRUE(Found(frmMain.Command3[0])->state().focusable);
    EXPECT_FALSE(Found(frmMain.Label6)->state().focusable);
    Do([] { frmMain.Command3[0].SetEnabled(false); });
    EXPECT_FALSE(Found(frmMain.Command3[0])->state().focusable);
    Act(Found(frmMain.Command4[0]), Actions::setFocusAction());
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99) << "while counting nothing keeps it";
    Show(frmSubtotal);
    Act(Found(frmSubtotal.Command3), Actions::setFocusAction());
    EXPECT_EQ(frmSubtotal.Focus(), &frmSubtotal.Command3);
    EXPECT_TRUE(Found(frmSubtotal.Command3)->state().focused);
}

TEST_F(AccessibilityTest, WhileCountingNothingKeepsTheFocusAndAllCanBePressed) {
    Begin();
    for (Control* control : std::initializer_list<Control*>{&frmMain.Command4[0], &frmMain.Option1[1], &frmMain.Command6, &frmMain.SSTab1,
                                                            &frmMain.Picture2}) {
        Act(Found(*control), Actions::setFocusAction());
        EXPECT_EQ(frmMain.Focus(), &frmMain.Text99) << control->name;
        EXPECT_FALSE(Shown(*control).Widget()->hasFocus()) << control->name;
    }
    Act(Found(frmMain.Option1[1]), Actions::pressAction());
    EXPECT_TRUE(frmMain.Option1[1].Value());
    Do([] { ClickControl(frmMain.Command3[0]); });  // Modify
    Act(Found(frmMain.Option1[2]), Actions::setFocusAction());
    EXPECT_EQ(frmMain.Focus(), &frmMain.Option1[2]);
}

TEST_F(AccessibilityTest, WhileCountingNoBoxKeepsTheFocusAndNoneIsEdited) {
    Begin();
    QAccessibleInterface* const name = Found(frmMain.Text1[0]);
    Act(name, Actions::setFocusAction());
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99);
    name->editableTextInterface()->insertText(0, "7");
    QApplication::processEvents();
    EXPECT_EQ(frmMain.Text1[0].Text(), "12.5");
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(renderer_.WidgetOf(frmMain))->state().focused);
    Do([] { ClickControl(frmMain.Command3[0]); });  // Modify
    name->editableTextInterface()->insertText(0, "7");
    QApplication::processEvents();
    EXPECT_EQ(frmMain.Text1[0].Text(), "712.5");
}

TEST_F(AccessibilityTest, AnEditThatWouldBringInAQuotationMarkIsRefusedWithABeep) {
    Begin();
    Do([] { ClickControl(frmMain.Command3[0]); });  // Modify
    QAccessibleInterface* const editors[] = {Found(frmMain.Text1[0]), Found(frmMain.Text1[7]), Found(frmMain.Text4),
                                             Found(frmMain.Text5[1]), Found(frmMain.Combo2)->child(0)};
    for (QAccessibleInterface* const editor : editors) {
        const QString before = editor->text(QAccessible::Value);
        services_.sounds.played.clear();
        editor->editableTextInterface()->replaceText(0, editor->textInterface()->characterCount(), "a\"b");
        editor->editableTextInterface()->insertText(0, "\"");
        QApplication::processEvents();
        EXPECT_EQ(editor->text(QAccessible::Value), before);
        EXPECT_EQ(services_.sounds.played, (std::vector<std::string>{"Beep", "Beep"})) << before.toStdString();
        editor->editableTextInterface()->insertText(0, "ab");
        QApplication::processEvents();
        EXPECT_TRUE(editor->text(QAccessible::Value).startsWith("ab"));
    }
}

TEST_F(AccessibilityTest, NothingInAWindowThatTakesNoInputCanBeUsed) {
    Begin();
    Do([] { frmMain.SetEnabled(false); });
    EXPECT_TRUE(Found(frmMain.Option1[1])->state().disabled);
    Act(Found(frmMain.Option1[1]), Actions::pressAction());
    EXPECT_FALSE(frmMain.Option1[1].Value());
    Do([] { frmMain.SetEnabled(true); });
}

TEST_F(AccessibilityTest, TabsHoldTheirPages) {
    Begin();
    Do([] { ClickControl(frmMain.Command3[0]); });  // Modify: while counting, the keys choose the tab
    QAccessibleInterface* const neutral = Found(frmMain.SSTab1)->child(0);
    QAccessibleInterface* const shifted = Found(frmMain.SSTab1)->child(1);
    EXPECT_EQ(neutral->role(), QAccessible::PageTab);
    EXPECT_EQ(shifted->text(QAccessible::Name), "Shift 1 or 2");
    EXPECT_EQ(Found(frmMain.Text2[46])->parent(), shifted);
    EXPECT_TRUE(neutral->state().selected);
    EXPECT_TRUE(Found(frmMain.Text2[46])->state().invisible);
    Act(shifted, Actions::pressAction());
    EXPECT_EQ(frmMain.SSTab1.Tab(), 1);
    EXPECT_TRUE(shifted->state().selected);
    EXPECT_FALSE(Found(frmMain.Text2[46])->state().invisible);
}

TEST_F(AccessibilityTest, ATextIsEditedInUnitsOfTheWidget) {
    Do([] { ClickControl(frmNext.Command4); });
    QAccessibleInterface* const note = Found(frmNext.Text2);
    note->editableTextInterface()->replaceText(0, note->textInterface()->characterCount(), "one\ntwo \U0001F33F end");
    QApplication::processEvents();
    EXPECT_EQ(frmNext.Text2.Text(), "one\r\ntwo \U0001F33F end");
    EXPECT_EQ(note->textInterface()->text(4, 7), "two");
    note->editableTextInterface()->insertText(10, "green ");
    QApplication::processEvents();
    EXPECT_EQ(frmNext.Text2.Text(), "one\r\ntwo \U0001F33Fgreen  end");
    EXPECT_EQ(note->textInterface()->cursorPosition(), 16) << "behind what was put in";
    note->textInterface()->setSelection(0, 4, 7);
    QApplication::processEvents();
    int start = 0, end = 0;
    note->textInterface()->selection(0, &start, &end);
    EXPECT_EQ(start, 4);
    EXPECT_EQ(end, 7);
}

TEST_F(AccessibilityTest, AListIsOpenedAndALineChosen) {
    Begin();
    Do([] {
        frmMain.Combo1.Clear();
        for (const char* line : {"first", "second", "third"}) frmMain.Combo1.AddItem(line);
    });
    QAccessibleInterface* const combo = Found(frmMain.Combo1);
    EXPECT_EQ(combo->childCount(), 1) << "the editor";
    Act(combo, Actions::showMenuAction());
    EXPECT_TRUE(combo->state().expanded);
    QAccessibleInterface* const list = combo->child(1);
    ASSERT_TRUE(list);
    ASSERT_EQ(list->childCount(), 3);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), "second");
    Act(list->child(1), Actions::pressAction());
    EXPECT_EQ(frmMain.Combo1.Text(), "second");
    EXPECT_TRUE(combo->state().collapsed);
}

TEST_F(AccessibilityTest, ValuesAreSetAndStepped) {
    Show(frmDiagram);
    Do([] { frmDiagram.Slider2.SetValue(5); });
    QAccessibleInterface* const scale = Found(frmDiagram.Slider2);
    EXPECT_EQ(scale->valueInterface()->maximumValue(), 10);
    scale->valueInterface()->setCurrentValue(7);
    QApplication::processEvents();
    EXPECT_EQ(frmDiagram.Slider2.Value(), 7);
    Act(scale, Actions::increaseAction());
    EXPECT_EQ(frmDiagram.Slider2.Value(), 8);
}

TEST_F(AccessibilityTest, AMenuItemIsClickedAsIfItsMenuHadBeenOpened) {
    Begin();
    QAccessibleInterface* const bar = QAccessible::queryAccessibleInterface(&renderer_.WidgetOf(frmMain)->Menus().Bar());
    QAccessibleInterface* const tools = bar->child(2);
    EXPECT_EQ(tools->role(), QAccessible::MenuItem);
    EXPECT_EQ(tools->text(QAccessible::Name), "Tools");
    QAccessibleInterface* const italics = tools->child(0)->child(0);
    EXPECT_EQ(italics->text(QAccessible::Name), "Italicise genera");
    EXPECT_TRUE(italics->state().checked);
    Act(italics, Actions::pressAction());
    EXPECT_FALSE(frmMain.mnuItalic.Checked());
    EXPECT_FALSE(italics->state().checked);
}
}  // namespace
