// Where the lines of a note end: between its words, unless one is so long that the window would stand still over it.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>

#include "platform/user.h"
#include "unit_qt/on_screen_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr int kLongestWord = 1000;  // with the blank behind it

class TextAreaTest : public OnScreenTest {
protected:
    TextAreaTest() {
        Do([] { CloseWindow(frmNext); });
        Do([] { ClickControl(frmMain.Command3[0]); });  // Modify mode: the note has the focus
    }
    ~TextAreaTest() override {
        renderer_.Run([] { ClickControl(frmMain.Command3[1]); });
    }

    QPlainTextEdit& Note() { return *qobject_cast<QPlainTextEdit*>(Shown(frmMain.Text4).Widget()); }
    void Set(const std::string& note) {
        renderer_.Run([&note] { frmMain.Text4.SetText(note); });
        Note().grab();
    }
    void ActivateStranger() {
        stranger_.show();
        stranger_.activateWindow();
        QApplication::processEvents();
    }
    bool EndsLinesAnywhere() { return Note().wordWrapMode() == QTextOption::WrapAnywhere; }

private:
    QWidget stranger_;
};

std::string Word(int letters) {
    return std::string(static_cast<std::size_t>(letters), 'a');
}

TEST_F(TextAreaTest, AWordOfAMillionLettersIsShownWithAndWithoutTheFocus) {
    for (const int letters : {2 * kLongestWord, 1'000'000}) {
        ASSERT_TRUE(Note().hasFocus());
        Set("Note: " + Word(letters));
        ASSERT_TRUE(EndsLinesAnywhere());
        Note().clearFocus();
        Set("A line\r\n" + Word(letters));
        ASSERT_TRUE(EndsLinesAnywhere());
        EXPECT_EQ(Note().blockCount(), 2);
        Note().setFocus();
    }
}

TEST_F(TextAreaTest, APressOnWhatIsMarkedSetsTheCaretAndDragsNothingOut) {
    Set("Pinus");
    Note().selectAll();
    const QPointF on_text = QRectF(Note().cursorRect(QTextCursor(Note().document()))).center() + QPointF(8, 0);
    QMouseEvent press(QEvent::MouseButtonPress, on_text, Note().viewport()->mapToGlobal(on_text), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(Note().viewport(), &press);
    EXPECT_FALSE(Note().textCursor().hasSelection());
    EXPECT_EQ(frmMain.Text4.SelLength(), 0);
    QMouseEvent release(QEvent::MouseButtonRelease, on_text, Note().viewport()->mapToGlobal(on_text), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(Note().viewport(), &release);
    EXPECT_EQ(frmMain.Text4.Text(), "Pinus");
}

TEST_F(TextAreaTest, LinesEndBetweenWordsAgainOnceTheLongOneHasGone) {
    Set(Word(kLongestWord + 1));
    EXPECT_TRUE(EndsLinesAnywhere());
    Set("an ordinary note");
    EXPECT_FALSE(EndsLinesAnywhere());
}

TEST_F(TextAreaTest, OfManyWordsNoneIsLong) {
    std::string note;
    for (int word = 0; word < kLongestWord; ++word) note += "word ";
    Set(note + "\r\n" + Word(kLongestWord - 1) + "\r\n" + Word(kLongestWord));
    EXPECT_FALSE(EndsLinesAnywhere());
}

// A line never ends before an exclamation mark, blank or no blank.
TEST_F(TextAreaTest, WhatNoLineMayEndInIsOneWordWhateverItHolds) {
    for (const std::string mark : {"! ", " ", "\u00A0"}) {
        std::string note;
        for (int i = 0; i <= kLongestWord; ++i) note += mark;
        Set("x" + note);
        EXPECT_TRUE(EndsLinesAnywhere()) << '"' << mark << '"';
        Set("x");
    }
}

TEST_F(TextAreaTest, AWordThatGrowsUnderTheUsersHandsIsSeenToo) {
    Set("");
    Note().insertPlainText(QString(kLongestWord, 'a'));
    EXPECT_FALSE(EndsLinesAnywhere());
    Note().insertPlainText("a");
    EXPECT_TRUE(EndsLinesAnywhere());
    Note().textCursor().deletePreviousChar();
    EXPECT_FALSE(EndsLinesAnywhere());
    Note().textCursor().deletePreviousChar();
    Note().insertPlainText(" aa");
    EXPECT_FALSE(EndsLinesAnywhere());
    EXPECT_EQ(frmMain.Text4.Text(), Word(kLongestWord - 1) + " aa");
    QTextCursor blank = Note().textCursor();
    blank.movePosition(QTextCursor::Left);
    blank.movePosition(QTextCursor::Left);
    blank.deletePreviousChar();
    EXPECT_TRUE(EndsLinesAnywhere());
}

TEST_F(TextAreaTest, APastedWordIsSeenToo) {
    QApplication::clipboard()->setText(QString(1'000'000, 'a'));
    Set("");
    Note().paste();
    EXPECT_TRUE(EndsLinesAnywhere());
    EXPECT_EQ(frmMain.Text4.Text(), Word(1'000'000));
}
TEST_F(TextAreaTest, TheCaretFollowsTheProgramWhileTheKeyboardIsElsewhere) {
    Set("one\r\ntwo");
    ActivateStranger();
    renderer_.Run([] { frmMain.Text4.SetSelStart(5); });
    Note().insertPlainText("x");
    EXPECT_EQ(frmMain.Text4.Text(), "one\r\nxtwo");
    EXPECT_EQ(frmMain.Text4.SelStart(), 6);
}

TEST_F(TextAreaTest, SoItDoesInABoxOfOneLine) {
    Do([] { ClickControl(frmMain.Text1[3]); });
    auto& line = *qobject_cast<QLineEdit*>(Shown(frmMain.Text1[3]).Widget());
    ActivateStranger();
    ASSERT_FALSE(line.hasFocus());
    renderer_.Run([] { frmMain.Text1[3].SetText("Alnus"); });
    line.insert("c");
    line.insert("f");
    EXPECT_EQ(frmMain.Text1[3].Text(), "cfAlnus");
    line.selectAll();
    EXPECT_EQ(frmMain.Text1[3].SelLength(), 7);
}

TEST_F(TextAreaTest, ALetterThatIsTypedChangesNoOtherCharacter) {
    const std::string note = "12\u00a0\u00b0C, \u2028 and\r\nmore";
    Set(note);
    Note().moveCursor(QTextCursor::End);
    Do([] { InsertText(frmMain.Text4, "!"); });
    Note().insertPlainText("?");
    EXPECT_EQ(frmMain.Text4.Text().substr(0, note.size()), note);
}
}  // namespace
