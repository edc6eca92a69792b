#include "platform/qt/key_filter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <utility>
#include <vector>

#include "platform/control.h"
#include "platform/controls.h"
#include "platform/focus_walk.h"
#include "platform/qt/box_views.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/renderer.h"
#include "platform/qt/text_editors.h"
#include "platform/qt/virtual_key.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"

namespace {
#ifdef Q_OS_MACOS
constexpr Qt::KeyboardModifier kPhysicalControl = Qt::MetaModifier;
#else
constexpr Qt::KeyboardModifier kPhysicalControl = Qt::ControlModifier;
#endif

bool IsLetterKey(const QKeyEvent& key) {
    return key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z;
}

// AltGr, which types characters, is Ctrl and Alt on some systems.
bool IsControlChord(const QKeyEvent& key) {
    return (key.modifiers() & kPhysicalControl) && !(key.modifiers() & Qt::AltModifier) && IsLetterKey(key);
}

bool IsClipboardKey(const QKeyEvent& key) {
    return key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Cut) || key.matches(QKeySequence::Paste) ||
           key.matches(QKeySequence::SelectAll);
}

bool IsSink(const Control& control) {
    return control.AsTextHolder() && !TakesText(control);
}

std::vector<Control*> Siblings(const Control& option) {
    std::vector<Control*> options;
    for (Control* other : option.window->Controls())
        if (other->kind() == Kind::OptionButton && other->container == option.container && CanReach(*other)) options.push_back(other);
    return options;
}

// By what the key is: one that a script only holds down is neither.
int AnswerCode(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return kEnterKey;
    return key.key() == Qt::Key_Escape ? kEscapeKey : 0;
}

bool SelectSibling(UserEvents& events, Control& option, int step) {
    Control* const next = NextInRound(Siblings(option), &option, step);
    if (next && next != &option) events.Run([next] { ClickControl(*next); });
    return true;
}

// Tab or Shift+Tab.
bool IsWalk(const QKeyEvent& key) {
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) && !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

// In the order of the window's controls, past those that cannot be reached.
void WalkFocus(UserEvents& events, Window& window, const QKeyEvent& key) {
    const bool back = key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::ShiftModifier);
    events.Run([&] { ::WalkFocus(window, back); });
}

// The space bar and Enter press a button, arrows walk among options. true: the key pressed something.
bool PressFocused(UserEvents& events, Control& focus, const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Space:
            if (focus.kind() != Kind::Button && focus.kind() != Kind::CheckBox && focus.kind() != Kind::OptionButton) return false;
            break;
        case Qt::Key_Up:
        case Qt::Key_Left:
            return focus.kind() == Kind::OptionButton && SelectSibling(events, focus, -1);
        case Qt::Key_Down:
        case Qt::Key_Right:
            return focus.kind() == Kind::OptionButton && SelectSibling(events, focus, 1);
        default:
            return false;
    }
    events.Run([&focus] { ClickControl(focus); });
    return true;
}

// Enter or Esc.
bool IsAnswer(const QKeyEvent& key) {
    return AnswerCode(key) != 0;
}

// Enter or Esc in a dialog.
bool PressAnswer(UserEvents& events, const QKeyEvent& key) {
    bool pressed = false;
    if (const int code = AnswerCode(key); code != 0) events.Run([&] { pressed = ::PressAnswer(code); });
    return pressed;
}
}  // namespace

KeyFilter::KeyFilter(Renderer& renderer) : renderer_(renderer), held_(renderer) {
    qApp->installEventFilter(this);
    renderer_.WhenEventIsOver([this] { HearLate(); });
}

KeyFilter::~KeyFilter() {
    renderer_.WhenEventIsOver([] {});
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::ShortcutOverride) return false;
    if (event == passing_ || !watched->isWidgetType()) return false;
    auto& key = *static_cast<QKeyEvent*>(event);
    if (QApplication::activeModalWidget()) return IsAnswer(key) && IsRepeat(key);
    auto* const top = static_cast<QWidget*>(watched)->window();
    const bool is_popup = top->windowType() == Qt::Popup;
    if (is_popup && top->isVisible()) return HearInPopup(*top, key);
    if (QApplication::activePopupWidget() && qobject_cast<QMenuBar*>(watched)) return false;  // of a menu that goes on to the next one
    auto* const widget = dynamic_cast<WindowWidget*>(top);
    if (!widget && !is_popup) return !top->isVisible() && KeepLate(key);
    key.accept();
    if (type == QEvent::KeyPress && widget && widget->isVisible()) renderer_.UserActivates(widget->window());
    if (type == QEvent::KeyPress) Press(key);
    if (type == QEvent::KeyRelease) Release(key);
    return true;  // an overridden shortcut comes back as an ordinary press
}

// An open menu has the keyboard, but what is released then has been pressed before. A list that is open has only the keys that move in
// it: any other closes it, so that none is lost to a list left open.
bool KeyFilter::HearInPopup(QWidget& popup, QKeyEvent& key) {
    if (key.type() == QEvent::KeyRelease) Release(key);
    auto* const list = dynamic_cast<ComboList*>(&popup);
    if (!list || ComboList::IsNavigation(key.key())) return false;
    key.accept();
    if (key.type() != QEvent::KeyPress) return true;
    list->hide();
    if (WindowWidget* const below = renderer_.ActiveWidget()) held_.HandOn(key, below->windowHandle());
    Press(key);
    return true;
}

// A message or a dialog that has just been closed may have keys on their way to it, while the event that asked still waits for its answer.
// They are meant for the window below, and heard when that event is over.
bool KeyFilter::KeepLate(QKeyEvent& key) {
    key.accept();
    if (key.type() != QEvent::ShortcutOverride) late_.emplace_back(key.clone());
    return true;
}

void KeyFilter::HearLate() {
    for (const auto& key : std::exchange(late_, {})) key->type() == QEvent::KeyPress ? Press(*key) : Release(*key);
}

void KeyFilter::Release(const QKeyEvent& key) {
    if (const auto code = VirtualKey(key)) renderer_.Run([code] { ReleaseKey(*code); });
}

bool KeyFilter::OpensMenu(const QKeyEvent& key) {
    WindowWidget* const active = renderer_.ActiveWidget();
    return active && key.modifiers() == Qt::AltModifier && IsLetterKey(key) && active->Menus().OpenByAccessKey(QChar(key.key()));
}

// A box that takes each key as itself has it once, and moves on: the repeats would fill the next ones.
void KeyFilter::Press(QKeyEvent& key) {
    const Control* const focus = ActiveWindow() ? ActiveWindow()->Focus() : nullptr;
    if (IsRepeat(key) && focus && TakesKeysAsInput(*focus)) return;
    if (!OpensMenu(key)) Dispatch(key);
}

void KeyFilter::Dispatch(QKeyEvent& key) {
    Window* const window = ActiveWindow();
    Control* const focus = window ? window->Focus() : nullptr;
    const int text_changes = renderer_.TextChanges();
    if (const auto code = VirtualKey(key)) renderer_.Run([code] { PressKey(*code); });
    if (!window || window != ActiveWindow() || window->Focus() != focus) return;
    if (focus && (IsSink(*focus) || !CanReach(*focus))) return;
    const bool used_as_input = focus && (TakesKeysAsInput(*focus) || renderer_.TextChanges() != text_changes);
    if (IsWalk(key)) {
        if (!used_as_input && (!window->key_preview || (focus && TakesText(*focus)))) WalkFocus(renderer_, *window, key);
        return;
    }
    if (!used_as_input && !IsRepeat(key) && PressAnswer(renderer_, key)) return;
    if (focus) Finish(key, *focus);
}

// The widget may tell of a text that a message refuses, and other keys come meanwhile.
void KeyFilter::Pass(QKeyEvent& key, Control& focus) {
    const QEvent* const outer = std::exchange(passing_, &key);
    if (ControlWidget* const widget = renderer_.WidgetOf(*focus.window)->Find(focus)) widget->UseKey(key);
    passing_ = outer;
}

// A window that hears the keys first has its buttons for the mouse: a counter key is never also a click, nor does it move the focus to a
// box where the next one would be typed.
void KeyFilter::Finish(QKeyEvent& key, Control& focus) {
    if (IsControlChord(key) && (!TakesText(focus) || !IsClipboardKey(key))) return;
    if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) return;  // the program knows nothing of them
    if (!TakesText(focus) && focus.window->key_preview) return;
    if (!IsRepeat(key) && PressFocused(renderer_, focus, key)) return;
    Pass(key, focus);
}
