// What a hand at the mouse or at Tab marks in a cell, as the widget shows it.
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <string>
#include <utility>
#include <vector>

#include "platform/qt/key_filter.h"
#include "platform/qt/mouse.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit_qt/on_screen_test.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"
#include "windows/subtotal_window.h"

namespace {
class TextLineTest : public OnScreenTest {
protected:
    TextLineTest() {
        Do([] { CloseWindow(frmNext); });
        Do([] { ClickControl(frmMain.Command3[0]); });  // Modify mode
    }
    ~TextLineTest() override {
        renderer_.Run([] { ClickControl(frmMain.Command3[1]); });
    }

    QLineEdit& Line(const Control& box) { return *qobject_cast<QLineEdit*>(Shown(box).FocusWidget()); }
    void Hand(const Control& box, QEvent::Type type, QPointF at) {
        const bool is_move = type == QEvent::MouseMove, is_release = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, Line(box).mapToGlobal(at), is_move ? Qt::NoButton : Qt::LeftButton,
                          is_release ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Line(box), &event);
    }
    // With the tremble of a hand between press and release.
    void ClickByHand(const Control& box) {
        const QPointF middle = QRectF(Line(box).rect()).center();
        Hand(box, QEvent::MouseButtonPress, middle);
        Hand(box, QEvent::MouseMove, middle + QPointF(3, 1));
        Hand(box, QEvent::MouseButtonRelease, middle + QPointF(3, 1));
    }
    void Press(const Control& box, Qt::Key key, const char* text = "", Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, text);
            QApplication::sendEvent(&Line(box), &event);
        }
    }
    void Type(const Control& box, const char* text) { Press(box, Qt::Key_P, text); }

private:
    KeyFilter keys_{renderer_};
};

TEST_F(TextLineTest, TheClickIntoAnUnnamedCellMarksItsDashes) {
    ClickByHand(frmMain.Text1[5]);
    EXPECT_EQ(Line(frmMain.Text1[5]).selectedText(), "---");
    EXPECT_EQ(frmMain.Text1[5].SelLength(), 3);
    Type(frmMain.Text1[5], "P");
    Type(frmMain.Text1[5], "i");
    EXPECT_EQ(frmMain.Text1[5].Text(), "Pi");
    EXPECT_EQ(TaxonTable[5][kTaxonName], "Pi");
}

TEST_F(TextLineTest, TheNextClickThereSetsTheCaret) {
    ClickByHand(frmMain.Text1[5]);
    ClickByHand(frmMain.Text1[5]);
    EXPECT_FALSE(Line(frmMain.Text1[5]).selectedText() == "---");
}

TEST_F(TextLineTest, AZeroIsMarkedAndACountIsNot) {
    Do([] { frmMain.Text2[6].Enter("12", 2); });
    ClickByHand(frmMain.Text2[5]);
    EXPECT_EQ(Line(frmMain.Text2[5]).selectedText(), "0");
    ClickByHand(frmMain.Text2[6]);
    EXPECT_FALSE(Line(frmMain.Text2[6]).selectedText() == "12");
}

TEST_F(TextLineTest, TheClickIntoTheNameOfASubtotalMarksItWhateverItIs) {
    for (const char* name : {"Subtotal-1", "Trees"}) {
        Do([] { ClickControl(frmMain.mnuSubtotal); });
        ClickByHand(frmSubtotal.Text1[1]);
        EXPECT_EQ(Line(frmSubtotal.Text1[1]).selectedText(), name);
        Type(frmSubtotal.Text1[1], "Trees");
        EXPECT_EQ(frmSubtotal.Text1[1].Text(), "Trees");
        ClickByHand(frmSubtotal.Text1[1]);
        EXPECT_FALSE(Line(frmSubtotal.Text1[1]).selectedText() == "Trees") << "the next click sets the caret";
        Do([] { ClickControl(frmSubtotal.Command1); });
    }
}

TEST_F(TextLineTest, TheClickIntoANameThatIsBeingTypedSetsTheCaret) {
    Do([] { ClickControl(frmMain.mnuSubtotal); });
    Do([] { frmSubtotal.Text1[1].SetFocus(); });  // by a key: no click has come into it
    Type(frmSubtotal.Text1[1], "Trees of ");
    ClickByHand(frmSubtotal.Text1[1]);
    EXPECT_FALSE(Line(frmSubtotal.Text1[1]).selectedText() == frmSubtotal.Text1[1].Text().c_str());
    Do([] { ClickControl(frmSubtotal.Command1); });
}

TEST_F(TextLineTest, AScriptsClickLeavesTheCaretWhereItIs) {
    MadeMouse mouse;
    mouse.Send(Line(frmMain.Text1[5]), QEvent::MouseButtonPress, MouseButton::Left, {});
    mouse.Send(Line(frmMain.Text1[5]), QEvent::MouseButtonRelease, MouseButton::Left, {});
    ASSERT_TRUE(Line(frmMain.Text1[5]).hasFocus());
    EXPECT_FALSE(Line(frmMain.Text1[5]).hasSelectedText());
    EXPECT_EQ(Line(frmMain.Text1[5]).cursorPosition(), 0);
}

TEST_F(TextLineTest, ADoubleClickOnTheDashesLeavesModifyMode) {
    ClickByHand(frmMain.Text1[5]);
    Hand(frmMain.Text1[5], QEvent::MouseButtonDblClick, QRectF(Line(frmMain.Text1[5]).rect()).center());
    EXPECT_FALSE(AmendMode);
    EXPECT_EQ(TaxonTable[5][kTaxonName], "---");
}

TEST_F(TextLineTest, APastedMegabyteIsAllThere) {
    const std::string text = "Lake " + std::string(1'000'000, 'x');
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    for (TextHolder* box : std::initializer_list<TextHolder*>{&frmMain.Text1[5], &frmMain.Combo2}) {
        Do([box] { box->SetFocus(); });
        Press(*box, Qt::Key_A, "", Qt::ControlModifier);
        Press(*box, Qt::Key_V, "", Qt::ControlModifier);
        EXPECT_TRUE(box->Text() == text) << box->Text().size();
    }
    QGuiApplication::clipboard()->clear();
}

// A dead key and the space bar make the mark on many keyboards; no guard hears of them as keys.
TEST_F(TextLineTest, WhatDeadKeysMakeGoesInButForTheQuotationMark) {
    QPlainTextEdit& note = *dynamic_cast<QPlainTextEdit*>(Shown(frmMain.Text4).FocusWidget());
    const struct {
        TextHolder* box;
        QWidget* editor;
    } cases[] = {{&frmMain.Text1[5], &Line(frmMain.Text1[5])}, {&frmMain.Combo2, &Line(frmMain.Combo2)}, {&frmMain.Text4, &note}};
    for (const auto& each : cases) {
        TextHolder* const box = each.box;
        Do([box] { box->Enter("", 0); });
        Do([box] { box->SetFocus(); });
        services_.sounds.played.clear();
        for (const char* made : {"\u00FC", "\"", "a \"b\"", "c"}) {
            QInputMethodEvent event;
            event.setCommitString(made);
            QApplication::sendEvent(each.editor, &event);
        }
        EXPECT_EQ(box->Text(),
                  "\u00FC"
                  "a bc")
            << box->name;
        EXPECT_EQ(services_.sounds.played, (std::vector<std::string>{"Beep", "Beep"})) << box->name;
    }
}

TEST_F(TextLineTest, AStepWithTabShowsWhatItMarks) {
    ClickByHand(frmMain.Text1[1]);
    Press(frmMain.Text1[1], Qt::Key_Tab);
    ASSERT_TRUE(Line(frmMain.Text1[2]).hasFocus());
    EXPECT_EQ(Line(frmMain.Text1[2]).selectedText(), "---");
    Type(frmMain.Text1[2], "P");
    EXPECT_EQ(TaxonTable[2][kTaxonName], "P");
    EXPECT_FALSE(Line(frmMain.Text1[1]).hasSelectedText());
    Press(frmMain.Text1[2], Qt::Key_Backtab, "", Qt::ShiftModifier);
    EXPECT_TRUE(Line(frmMain.Text1[1]).hasFocus());
    EXPECT_EQ(frmMain.Combo2.Text(), "-9999") << "the sample keeps its name";
}

TEST_F(TextLineTest, ANameToBeChangedComesUpMarked) {
    Do([] { ClickControl(frmMain.Command7[1]); });
    EXPECT_EQ(Line(frmParaName.Text1).selectedText(), "Additional info-1");
    Type(frmParaName.Text1, "T");
    EXPECT_EQ(frmParaName.Text1.Text(), "T");
    Do([] { ClickControl(frmParaName.Command2); });
}
}  // namespace
