// A held key belongs to the window it was pressed in. Key events come to the window of the screen, as the desktop sends them.
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <string>

#include "keys/first_run.h"
#include "platform/qt/box_views.h"
#include "platform/qt/key_filter.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit_qt/on_screen_test.h"
#include "windows/diagram_window.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace {
constexpr quint32 kPlaceOfQ = 24;

class HeldKeysTest : public OnScreenTest {
protected:
    void SendQ(QWidget& widget, QEvent::Type type, bool repeats) {
        QKeyEvent event(type, Qt::Key_Q, Qt::NoModifier, kPlaceOfQ, 0, 0, "q", repeats);
        QApplication::sendEvent(widget.windowHandle(), &event);
        QApplication::processEvents();
    }
    void PressQ(QWidget& widget, bool repeats = false) { SendQ(widget, QEvent::KeyPress, repeats); }
    void PressQ(Window& window, bool repeats = false) { PressQ(*renderer_.WidgetOf(window), repeats); }
    void ReleaseQ(QWidget& widget, bool repeats = false) { SendQ(widget, QEvent::KeyRelease, repeats); }
    void ReleaseQ(Window& window, bool repeats = false) { ReleaseQ(*renderer_.WidgetOf(window), repeats); }
    void BeginCounting() {
        Do([] { CloseWindow(frmNext); });
        renderer_.WidgetOf(frmMain)->activateWindow();
        QApplication::processEvents();
    }

    void NameSample(const char* name) {
        Do([] { ClickControl(frmNext.Text1); });
        Do([name] { InsertText(frmNext.Text1, name); });
        Do([] { ClickControl(frmNext.Command1); });
    }
    void BeginFirstSample() {
        Do([] { ClickControl(frmNext.Command4); });
        NameSample("10");
    }
    void BeginNextSample() {
        Do([] { ClickControl(frmMain.Command5[1]); });
        NameSample("20");
    }

    QString WordOfEnter(const Message& message);

    KeyFilter keys_{renderer_};
};

TEST_F(HeldKeysTest, ACounterKeyCountsAtEachRepeat) {
    BeginCounting();
    PressQ(frmMain);
    for (int repeat = 0; repeat < 3; ++repeat) {
        ReleaseQ(frmMain, true);
        PressQ(frmMain, true);
    }
    ReleaseQ(frmMain);
    EXPECT_EQ(Counts[1][1], 4);
}

// A menu hands the arrow to the bar it hangs from.
TEST_F(HeldKeysTest, AnArrowInAMenuOpensTheNextOneAndCountsNothing) {
    constexpr int kRight = 39;
    BeginCounting();
    KeySettings[1][kKeyCode] = kRight;
    MenuView& menus = renderer_.WidgetOf(frmMain)->Menus();
    ASSERT_TRUE(menus.OpenByAccessKey(u'T'));
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent arrow(type, Qt::Key_Right, Qt::NoModifier);
        QApplication::sendEvent(QApplication::activePopupWidget()->windowHandle(), &arrow);
    }
    EXPECT_EQ(QApplication::activePopupWidget(), menus.MenuOf(frmMain.mnuDiagram));
    EXPECT_EQ(Counts[1][1], 0);
    while (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
}

TEST_F(HeldKeysTest, ARepeatReachesNobodyInAnotherWindow) {
    PressQ(frmNext);
    BeginCounting();
    PressQ(frmMain, true);
    EXPECT_EQ(Counts[1][1], 0);
    ReleaseQ(frmMain);
    PressQ(frmMain);
    EXPECT_EQ(Counts[1][1], 1);
}

// A program that is late hears of keys that went to a window before it closed that.
TEST_F(HeldKeysTest, ARepeatOnItsWayToAClosedWindowReachesNobody) {
    PressQ(frmNext);
    BeginCounting();
    PressQ(frmNext, true);
    EXPECT_EQ(Counts[1][1], 0);
    ReleaseQ(frmNext);
    PressQ(frmNext);
    PressQ(frmMain, true);
    EXPECT_EQ(Counts[1][1], 2);
}

TEST_F(HeldKeysTest, ARepeatOnItsWayToADisabledWindowReachesNobody) {
    Do([] { ClickControl(frmNext.Command4); });
    PressQ(frmNext);
    Do([] { ClickControl(frmNext.Command5[1]); });
    ASSERT_EQ(ActiveWindow(), &frmParaName);
    PressQ(frmNext, true);
    EXPECT_EQ(frmParaName.Text1.Text(), "Additional info-1");
}

TEST_F(HeldKeysTest, AKeyOnItsWayToAClosedMenuCounts) {
    BeginCounting();
    auto* const menu = renderer_.WidgetOf(frmMain)->Menus().Bar().actions().front()->menu();
    menu->popup({});
    PressQ(*menu);
    EXPECT_EQ(Counts[1][1], 0);
    menu->close();
    PressQ(*menu, true);
    EXPECT_EQ(Counts[1][1], 0);
    ReleaseQ(*menu);
    PressQ(*menu);
    PressQ(frmMain, true);
    EXPECT_EQ(Counts[1][1], 2);
}

TEST_F(HeldKeysTest, AKeyOverAnOpenListClosesItAndCounts) {
    BeginCounting();
    for (const ComboBox* box : {&frmMain.Combo1, &frmMain.Combo2}) {
        ComboList& list = dynamic_cast<ComboBoxView&>(Shown(*box)).OpenList();
        const int before = Counts[1][1];
        ASSERT_TRUE(list.isVisible()) << box->name;
        PressQ(list);
        EXPECT_FALSE(list.isVisible()) << box->name;
        PressQ(frmMain, true);
        ReleaseQ(frmMain);
        EXPECT_EQ(Counts[1][1], before + 2) << box->name;
    }
}

TEST_F(HeldKeysTest, AKeyThatWasPressedInAnotherProgramReachesNobody) {
    BeginCounting();
    PressQ(frmMain, true);
    EXPECT_EQ(Counts[1][1], 0);
}

// The key that closes a message is heard while the program still waits for the answer; those behind it count when it is done with that.
TEST_F(HeldKeysTest, KeysOnTheirWayToAClosedMessageCountWhenItsEventIsOver) {
    BeginCounting();
    PressQ(frmMain);
    QTimer::singleShot(0, [this] {
        QWidget* const box = QApplication::activeModalWidget();
        ReleaseQ(*box);  // over the message: the program goes on holding it
        box->close();
        for (int key = 0; key < 3; ++key) {
            PressQ(*box);
            ReleaseQ(*box);
        }
        EXPECT_EQ(Counts[1][1], 1) << "the event goes on";
    });
    Do([this] { QtMessageBoxes(renderer_).Show({"Caution!", "Do you proceed?", Icon::None, Buttons::YesNo}); });
    EXPECT_EQ(Counts[1][1], 4);
}

TEST_F(HeldKeysTest, KeysOnTheirWayToTheMessageThatRefusesATextAreTyped) {
    constexpr quint32 kPlaceOf2 = 11;
    QtMessageBoxes messages(renderer_);
    services.messages = &messages;
    BeginCounting();
    Do([] { ClickControl(frmMain.Command3[0]); });  // Modify mode
    Do([] { frmMain.Text1[5].SetFocus(); });
    QTimer::singleShot(0, [this] {
        QWidget* const box = QApplication::activeModalWidget();
        ASSERT_TRUE(box);
        box->close();
        PressQ(*box);
        ReleaseQ(*box);
    });
    QKeyEvent event(QEvent::KeyPress, Qt::Key_At, Qt::ShiftModifier, kPlaceOf2, 0, 0, "@");
    QApplication::sendEvent(renderer_.WidgetOf(frmMain)->windowHandle(), &event);
    EXPECT_EQ(frmMain.Text1[5].Text(), "q---");
    services.messages = &services_.messages;
}

// A desktop may send the first key to a window before it calls that active.
TEST_F(HeldKeysTest, AKeyBringsTheWindowThatHasItToTheFront) {
    BeginFirstSample();
    PressQ(frmMain);
    ReleaseQ(frmMain);
    BeginNextSample();
    Do([] { ClickControl(frmMain.mnuBar); });
    ASSERT_EQ(ActiveWindow(), &frmDiagram);
    PressQ(frmMain);
    EXPECT_EQ(ActiveWindow(), &frmMain);
    EXPECT_EQ(Counts[1][CurrentSample], 1);
}

TEST_F(HeldKeysTest, ABoxThatTakesEveryKeyHasAHeldOneOnce) {
    Do([] {
        for (int row = 51; row <= 62; ++row) KeySettings[row][kKeyCode] = 999;
        CloseWindow(frmNext);
        frmInitial.Show();
    });
    Do([] { frmInitial.Text1[0].SetFocus(); });
    PressQ(frmInitial);
    for (int repeat = 0; repeat < 3; ++repeat) PressQ(frmInitial, true);
    EXPECT_EQ(frmInitial.Text1[0].Text(), "81");
    EXPECT_EQ(frmInitial.Text1[1].Text(), "");
    ReleaseQ(frmInitial);
    PressQ(frmInitial);
    EXPECT_EQ(frmInitial.Text1[1].Text(), "81");
}

// The words of the button that Enter presses in the box of this message.
QString HeldKeysTest::WordOfEnter(const Message& message) {
    QString word;
    QTimer::singleShot(0, [&word] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        if (box->defaultButton()) word = box->defaultButton()->text();
        box->close();
    });
    QtMessageBoxes(renderer_).Show(message);
    return word.remove('&');
}

// What was on its way to the counter when the message came up: letters, repeats, anything in its first moment.
TEST_F(HeldKeysTest, KeysOfOneWhoTypesOnAnswerNoMessage) {
    constexpr int kDeafMs = 250;
    const auto send = [](QWidget& box, Qt::Key key, const char* text, bool repeats) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text, repeats);
        QApplication::sendEvent(box.windowHandle(), &event);
    };
    bool is_answered_by_them = false;
    QTimer typing;
    typing.callOnTimeout([&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        send(*box, Qt::Key_Y, "y", false);
        is_answered_by_them |= box->button(QMessageBox::Yes)->isDown();
        send(*box, Qt::Key_Return, "\r", true);
        is_answered_by_them |= !box->isVisible();
        send(*box, Qt::Key_Return, "\r", false);
    });
    typing.start(0);
    QElapsedTimer up;
    up.start();
    const Answer answer = QtMessageBoxes(renderer_).Show({"Caution!", "Do you proceed?", Icon::None, Buttons::YesNo, true});
    EXPECT_GE(up.elapsed(), kDeafMs) << "Enter has answered too early";
    EXPECT_FALSE(is_answered_by_them);
    EXPECT_EQ(answer, Answer::No);
}

TEST_F(HeldKeysTest, EnterAnswersNoWhereYesLosesWork) {
    EXPECT_EQ(WordOfEnter({"Caution!", "Do you proceed?", Icon::None, Buttons::YesNo, true}), "No");
    EXPECT_NE(WordOfEnter({"Warning!!", "Do you continue?", Icon::None, Buttons::YesNo}), "No");
}

#ifdef Q_OS_WIN
// Windows' own messages, as a keyboard makes them.
class DeadKeysTest : public HeldKeysTest {
protected:
    HWND Main() { return reinterpret_cast<HWND>(renderer_.WidgetOf(frmMain)->winId()); }
    // What Windows makes of the key is in the queue when the key is heard of.
    void Press(WPARAM code, UINT kind, const std::wstring& made) {
        const LPARAM place = 1 | MapVirtualKeyW(static_cast<UINT>(code), MAPVK_VK_TO_VSC) << 16;
        for (const wchar_t character : made) PostMessageW(Main(), kind, character, place);
        SendMessageW(Main(), WM_KEYDOWN, code, place);
        SendMessageW(Main(), WM_KEYUP, code, place | 0xC0000000);
        QApplication::processEvents();
    }
};

TEST_F(DeadKeysTest, ADeadKeyIsAKeyLikeAnyOther) {
    BeginCounting();
    Press('Q', WM_DEADCHAR, L"^");
    EXPECT_EQ(AllTotal, 1);
    Press('W', WM_CHAR, L"w");
    EXPECT_EQ(AllTotal, 2);
}

TEST_F(DeadKeysTest, AKeyThatMakesTwoCharactersCountsOnce) {
    BeginCounting();
    Press('Q', WM_CHAR, L"^q");
    EXPECT_EQ(AllTotal, 1);
}

TEST_F(DeadKeysTest, ACharacterWithoutItsKeyCountsNothing) {
    BeginCounting();
    SendMessageW(Main(), WM_CHAR, 'Q', 1);
    QApplication::processEvents();
    EXPECT_EQ(AllTotal, 0);
}
#endif
}  // namespace
