// The editor of a long text holds its head; whatever is done to that, the rest of the text stays as it is.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

#include "platform/qt/qt_hands.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/shared_state.h"
#include "unit_qt/on_screen_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr int kMost = 100'000;     // characters of a note
constexpr int kMostOfName = 1000;  // of a box of one line

std::string Letters(int letters) {
    return std::string(static_cast<std::size_t>(letters), 'a');
}

class EditedHeadTest : public OnScreenTest {
protected:
    EditedHeadTest() {
        Do([] { CloseWindow(frmNext); });
        Do([] { ClickControl(frmMain.Command3[0]); });  // Modify mode: the note has the focus
    }
    ~EditedHeadTest() override {
        renderer_.Run([] { ClickControl(frmMain.Command3[1]); });
    }

    QPlainTextEdit& Note() { return *qobject_cast<QPlainTextEdit*>(Shown(frmMain.Text4).Widget()); }
    QLineEdit& Name() { return *qobject_cast<QLineEdit*>(Shown(frmMain.Text1[3]).Widget()); }
    QString Held() { return Note().toPlainText(); }
    void Set(const std::string& note) {
        Do([&note] { frmMain.Text4.SetText(note); });
    }
    void PutCaret(int place) {
        QTextCursor caret = Note().textCursor();
        caret.setPosition(place);
        Note().setTextCursor(caret);
    }
    void Paste(const std::string& text) {
        QApplication::clipboard()->setText(QString::fromStdString(text));
        Note().paste();
    }
    QAccessibleInterface* Found(const Control& control) { return QAccessible::queryAccessibleInterface(Shown(control).Widget()); }
    QString Told(const Control& control) { return Found(control)->text(QAccessible::Description); }
};

TEST_F(EditedHeadTest, ANoteUpToTheLimitIsHeldWhole) {
    Set(Letters(kMost));
    EXPECT_EQ(Held().size(), kMost);
    EXPECT_EQ(Told(frmMain.Text4), "");
}

TEST_F(EditedHeadTest, OfALongerOneTheFirstCharactersAreHeldAndTheRestIsTold) {
    Set(Letters(kMost) + "b");
    EXPECT_TRUE(Held() == Letters(kMost).c_str());
    EXPECT_EQ(Told(frmMain.Text4), "There is more, not shown here: 1 character");
    Set(Letters(kMost) + std::string(7'900'000, 'b'));
    EXPECT_TRUE(Held() == Letters(kMost).c_str());
    EXPECT_EQ(Told(frmMain.Text4), "There is more, not shown here: 7,900,000 characters");
    EXPECT_EQ(Shown(frmMain.Text4).Widget()->toolTip(), Told(frmMain.Text4));
}

TEST_F(EditedHeadTest, AStripBelowTheNoteTellsOfTheRest) {
    const QRect whole = Note().viewport()->geometry();
    Set(Letters(kMost + 1));
    const QRect text = Note().viewport()->geometry();
    const QRect below(text.left(), text.bottom() + 1, text.width(), whole.bottom() - text.bottom());
    EXPECT_FALSE(below.isEmpty());
    const QImage note = Note().grab(below).toImage();
    EXPECT_TRUE(std::any_of(note.constBits(), note.constBits() + note.sizeInBytes(), [](uchar part) { return part < 0x60; })) << "no word";
    Set("short");
    EXPECT_EQ(Note().viewport()->geometry(), whole);
}

TEST_F(EditedHeadTest, WhatIsTypedAnywhereInItLeavesTheRest) {
    const std::string rest = "the rest\rof \r\n\r\nit\n\u00E9\U0001F33F";
    Set(Letters(kMost) + rest);
    Note().insertPlainText("x");
    EXPECT_TRUE(frmMain.Text4.Text() == "x" + Letters(kMost) + rest);
    PutCaret(10);
    Note().insertPlainText("\n");
    EXPECT_TRUE(frmMain.Text4.Text() == "x" + Letters(9) + "\r\n" + Letters(kMost - 9) + rest);
    EXPECT_TRUE(SampleNotes[CurrentSample] == frmMain.Text4.Text());
    PutCaret(static_cast<int>(Held().size()));
    for (const char* letter : {"1", "2", "3"}) Note().insertPlainText(letter);
    EXPECT_TRUE(frmMain.Text4.Text() == "x" + Letters(9) + "\r\n" + Letters(kMost - 9) + "123" + rest) << "one behind the other";
    Note().textCursor().deletePreviousChar();
    EXPECT_TRUE(frmMain.Text4.Text() == "x" + Letters(9) + "\r\n" + Letters(kMost - 9) + "12" + rest);
}

TEST_F(EditedHeadTest, NoCharacterAndNoLineBreakIsParted) {
    const std::string rest = "bcd";
    const auto note = [&rest](const std::string& end) { return Letters(kMost - 1) + end + rest; };
    for (const std::string last : {"\U0001F33F", "\u00E9", "\r\n", "\r", "\n"}) {
        Set(note(last));
        EXPECT_EQ(Told(frmMain.Text4), "There is more, not shown here: 3 characters") << last;
        PutCaret(static_cast<int>(Held().size()));
        Note().insertPlainText("x");
        const bool breaks = last == "\r" || last == "\n";
        EXPECT_TRUE(frmMain.Text4.Text() == note((breaks ? "\r\n" : last) + "x")) << last;
    }
    Set(Letters(kMost - 1) + "\U0001F33F" + rest);
    EXPECT_TRUE(Held().endsWith(QString("\U0001F33F")));
}

TEST_F(EditedHeadTest, WhatComesUpBehindADeletedHeadIsTheNextPart) {
    const std::string next(kMost, 'b'), rest(10, 'c');
    Set(Letters(kMost) + next + rest);
    Note().selectAll();
    Note().insertPlainText("x");
    EXPECT_TRUE(frmMain.Text4.Text() == "x" + next + rest);
    EXPECT_TRUE(Held() == ("x" + next.substr(1)).c_str());
    Note().insertPlainText("y");
    EXPECT_TRUE(frmMain.Text4.Text() == "xy" + next + rest);
}

TEST_F(EditedHeadTest, APasteThatMakesItLongerIsKeptWholeAndTheHeadIsCutAnew) {
    const std::string pasted = Letters(60'000) + "\r\n" + std::string(60'000, 'p'), rest = "the rest";
    Set("");
    Paste(pasted);
    EXPECT_TRUE(frmMain.Text4.Text() == pasted);
    EXPECT_LE(Held().size(), kMost);
    EXPECT_EQ(frmMain.Text4.SelStart(), static_cast<int>(pasted.size()));
    Set(std::string(kMost, 'h') + rest);
    PutCaret(5);
    Paste(pasted);
    EXPECT_TRUE(frmMain.Text4.Text() == "hhhhh" + pasted + std::string(kMost - 5, 'h') + rest);
    EXPECT_LE(Held().size(), kMost);
    PutCaret(5);
    Note().insertPlainText("x");
    EXPECT_TRUE(frmMain.Text4.Text() == "hhhhhx" + pasted + std::string(kMost - 5, 'h') + rest);
}

TEST_F(EditedHeadTest, OfATextWithThousandsOfMarksOnALetterLessIsHeld) {
    std::string text = "e";
    for (int mark = 0; mark < kMost; ++mark) text += "\u0301";
    Set(text);
    EXPECT_EQ(Held().size(), kMostOfName);
    PutCaret(0);
    Note().insertPlainText("x");
    EXPECT_TRUE(frmMain.Text4.Text() == "x" + text);
    Set(Letters(kMost + 1));
    EXPECT_EQ(Held().size(), kMost);
}

TEST_F(EditedHeadTest, APasteTakesThePlaceOfWhatIsSelected) {
    Set("one two");
    QTextCursor caret = Note().textCursor();
    caret.setPosition(4);
    caret.setPosition(7, QTextCursor::KeepAnchor);
    Note().setTextCursor(caret);
    Paste(Letters(kMost));
    EXPECT_TRUE(frmMain.Text4.Text() == "one " + Letters(kMost));
}

TEST_F(EditedHeadTest, AfterTheProgramHasChangedTheTextAnEditLeavesTheNewRest) {
    const std::string head = Letters(kMost);
    Set(head + "old");
    Set(head + "old and new");
    PutCaret(0);
    Note().insertPlainText("x");
    EXPECT_TRUE(frmMain.Text4.Text() == "x" + head + "old and new");
    Set("short");
    EXPECT_EQ(Told(frmMain.Text4), "");
    Note().insertPlainText("x");
    EXPECT_EQ(frmMain.Text4.Text(), "xshort");
    Set(head + "\u00E9\u00E9\u00E9");
    Set("b" + head + "\u00E9");
    Note().insertPlainText("x");
    EXPECT_TRUE(frmMain.Text4.Text() == "xb" + head + "\u00E9");
}

TEST_F(EditedHeadTest, ABoxOfOneLineHoldsLessAndKeepsItsRestToo) {
    Do([] { ClickControl(frmMain.Text1[3]); });
    const std::string rest(1'000'000, 'b');
    Do([&] { frmMain.Text1[3].SetText(Letters(kMostOfName) + rest); });
    EXPECT_TRUE(Name().text() == Letters(kMostOfName).c_str());
    EXPECT_TRUE(Told(frmMain.Text1[3]).endsWith("\nThere is more, not shown here: 1,000,000 characters"));
    Name().insert("x");
    EXPECT_TRUE(frmMain.Text1[3].Text() == "x" + Letters(kMostOfName) + rest);
    EXPECT_TRUE(TaxonTable[3][kTaxonName] == "x" + Letters(kMostOfName) + rest);
    Name().undo();
    EXPECT_TRUE(frmMain.Text1[3].Text() == Letters(kMostOfName) + rest);
    Name().redo();
    EXPECT_TRUE(frmMain.Text1[3].Text() == "x" + Letters(kMostOfName) + rest);
    Name().insert(QString(5000, 'p'));
    EXPECT_TRUE(frmMain.Text1[3].Text() == "x" + std::string(5000, 'p') + Letters(kMostOfName) + rest);
    EXPECT_EQ(Name().text().size(), kMostOfName);
}

TEST_F(EditedHeadTest, AReaderReadsAndEditsWhatIsHeld) {
    const std::string rest = "\r\nthe rest";
    Set(Letters(kMost) + rest);
    QAccessibleInterface* const note = Found(frmMain.Text4);
    EXPECT_EQ(note->textInterface()->characterCount(), kMost);
    EXPECT_EQ(note->text(QAccessible::Value).size(), kMost);
    note->editableTextInterface()->insertText(2, "x");
    QApplication::processEvents();
    EXPECT_TRUE(frmMain.Text4.Text() == "aax" + Letters(kMost - 2) + rest);
    ASSERT_EQ(note->textInterface()->characterCount(), kMost);
    note->editableTextInterface()->deleteText(0, note->textInterface()->characterCount());
    QApplication::processEvents();
    EXPECT_TRUE(frmMain.Text4.Text() == "a" + rest);
    EXPECT_EQ(Told(frmMain.Text4), "");
    Set(Letters(kMost) + rest);
    note->editableTextInterface()->replaceText(0, note->textInterface()->characterCount(),
                                               QString::fromStdString(Letters(kMost) + "bb\nb"));
    QApplication::processEvents();
    EXPECT_TRUE(frmMain.Text4.Text() == Letters(kMost) + "bb\r\nb" + rest);
}

TEST_F(EditedHeadTest, ANumberThatIsNotShownToItsEndIsNoneForAReader) {
    Do([] { frmMain.Text1[3].SetText(std::string(kMostOfName - 1, '0') + "7"); });
    EXPECT_TRUE(Found(frmMain.Text1[3])->valueInterface());
    Do([] { frmMain.Text1[3].SetText(std::string(kMostOfName, '0') + "7"); });
    EXPECT_FALSE(Found(frmMain.Text1[3])->valueInterface());
}

// The hands of a script bring an application of their own.
class ScriptedHandsTest : public testing::Test {
protected:
    ~ScriptedHandsTest() override {
        for (Window* window : AllWindows()) window->Unload();
    }

    char name_[5] = "test";
    char* arguments_[1] = {name_};
    int count_ = 1;
    HeadlessServices services_{"/program"};
    MemoryFiles files_;
};

TEST_F(ScriptedHandsTest, ATextThatNoEditorHoldsArrivesWhole) {
    WipeSharedState();
    ::services.files = &files_;
    files_.LayDownProgram("/program");
    const auto hands = MakeQtHands(count_, arguments_, [] { return false; });
    hands->Start();
    hands->Close(frmNext);
    hands->Click(frmMain.Command3[0]);  // Modify mode
    hands->SetBox(frmMain.Text4, Letters(kMost + 10));
    EXPECT_TRUE(frmMain.Text4.Text() == Letters(kMost + 10));
    EXPECT_EQ(frmMain.Text4.SelStart(), kMost + 10);
    hands->Paste("b");
    EXPECT_TRUE(frmMain.Text4.Text() == Letters(kMost + 10) + "b");
    hands->SetBox(frmMain.Text4, "short");
    EXPECT_EQ(frmMain.Text4.Text(), "short");
    hands->SetBox(frmMain.Text1[3], Letters(kMostOfName * 40));
    EXPECT_TRUE(frmMain.Text1[3].Text() == Letters(kMostOfName * 40));
    hands->Click(frmMain.Command3[1]);
}
}  // namespace
