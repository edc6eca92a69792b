#include "platform/qt/qt_hands.h"

#include <QAbstractSlider>
#include <QApplication>
#include <QMenu>
#include <QPixmap>
#include <algorithm>

#include "events/program.h"
#include "platform/control.h"
#include "platform/qt/box_views.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/desktop.h"
#include "platform/qt/key_filter.h"
#include "platform/qt/look.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/mouse.h"
#include "platform/qt/renderer.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/style.h"
#include "platform/qt/tab_view.h"
#include "platform/qt/text_editors.h"
#include "platform/qt/virtual_key.h"
#include "platform/qt/window_widget.h"
#include "platform/text.h"
#include "platform/user.h"

namespace {
void PasteInto(QWidget* editor, const QString& text) {
    if (auto* const line = dynamic_cast<TextLine*>(editor)) line->insert(text);
    if (auto* const area = dynamic_cast<TextArea*>(editor)) area->insertPlainText(text);
}

void SelectAll(QWidget* editor) {
    if (auto* const line = dynamic_cast<TextLine*>(editor)) line->selectAll();
    if (auto* const area = dynamic_cast<TextArea*>(editor)) area->selectAll();
}

void SendKey(QWidget& widget, QEvent::Type type, int code, const QString& text, KeyActs acts) {
    QKeyEvent event = MadeKeyEvent(type, code, text, acts);
    QApplication::sendEvent(&widget, &event);
}

// What an editor would not hold whole goes straight to the program, as it does without windows.
bool GoesIn(const TextHolder& box, std::size_t characters) {
    return characters <= MostOf(box);
}

// Opens the menus on the way to an item, each from the one before. false: one of them does not open.
bool OpenMenusTo(MenuView& menus, const MenuItem& item) {
    const MenuItem* const menu = item.Menu();
    if (!menu) return true;
    QMenu* const popup = menus.MenuOf(*menu);
    if (popup && popup->isVisible()) return true;
    QAction* const action = menus.ActionOf(*menu);
    if (!action || !action->isEnabled() || !OpenMenusTo(menus, *menu)) return false;
    if (const MenuItem* const outer = menu->Menu())
        menus.MenuOf(*outer)->setActiveAction(action);
    else
        menus.Bar().setActiveAction(action);
    return popup && popup->isVisible();
}

// The menus of a popup stay open until one of its items is clicked.
bool IsInPopup(const MenuItem& item) {
    const Control* outermost = &item;
    while (outermost->container) outermost = outermost->container;
    return !outermost->Visible();
}

class QtHands : public Hands {
public:
    QtHands(int& argc, char** argv, std::function<bool()> has_ended) : application_(argc, argv), renderer_(std::move(has_ended)) {
        ApplyLook(application_);
        services.popups = &popups_;
    }

    void Start() override {
        renderer_.Run(StartProgram);
        Rest();
    }

    void KeyDown(int code) override { Key(QEvent::KeyPress, code, {}, KeyActs::No); }
    void KeyUp(int code) override { Key(QEvent::KeyRelease, code, {}, KeyActs::No); }
    void Press(int code, const std::string& character) override {
        const bool acts = code == kBackspaceKey || code == kDeleteKey || code == kEnterKey || code == kEscapeKey;
        Key(QEvent::KeyPress, code, acts ? QString() : ToQt(character), acts ? KeyActs::Yes : KeyActs::No);
        KeyUp(code);
    }

    void FocusBox(Control& box) override { Click(box); }
    void SetBox(Control& box, const std::string& text) override {
        FocusBox(box);
        ControlWidget* const widget = ViewOf(box);
        TextHolder* const holder = box.AsTextHolder();
        if (!widget || !holder || EditorInFocus() != widget->FocusWidget()) return;
        if (GoesIn(*holder, std::max(Length(holder->Text()), Length(text)))) {
            SelectAll(widget->FocusWidget());
            PasteInto(widget->FocusWidget(), Shown(text));
        } else {
            renderer_.Run([&] {
                holder->Select(0, static_cast<int>(Length(holder->Text())));
                InsertText(box, text);
            });
        }
        Rest();
    }
    void Paste(const std::string& text) override {
        TextHolder* const holder = BoxInFocus();
        if (!holder || GoesIn(*holder, Length(holder->Text()) + Length(text)))
            PasteInto(EditorInFocus(), Shown(text));
        else
            renderer_.Run([&] { InsertText(*holder, text); });
        Rest();
    }

    void Click(Control& control) override {
        if (auto* const item = dynamic_cast<MenuItem*>(&control)) return ClickItem(*item);
        const QPointF corner = Corner(control);
        MouseOn(control, QEvent::MouseButtonPress, MouseButton::Left, corner);
        MouseOn(control, QEvent::MouseButtonRelease, MouseButton::Left, corner);
    }
    void DoubleClick(Control& control) override {
        Click(control);
        const QPointF corner = Corner(control);
        if (!control.DoubleClick.IsJoined()) return;
        MouseOn(control, QEvent::MouseButtonDblClick, MouseButton::Left, corner);
        MouseOn(control, QEvent::MouseButtonRelease, MouseButton::Left, corner);
    }
    void RightClick(Control& control) override {
        const QPointF corner = Corner(control);
        MouseOn(control, QEvent::MouseButtonPress, MouseButton::Right, corner);
        MouseOn(control, QEvent::MouseButtonRelease, MouseButton::Right, corner);
    }

    void Choose(ComboBox& box, int item) override {
        auto* const view = static_cast<ComboBoxView*>(ViewOf(box));
        if (!view || !CanReach(box)) return;
        ComboList& list = view->OpenList();
        list.setCurrentIndex(list.model()->index(item, 0));
        SendKey(list, QEvent::KeyPress, kEnterKey, {}, KeyActs::Yes);
        Rest();
    }
    void PressTab(TabControl& tabs, int tab) override {
        const ControlWidget* const widget = ViewOf(tabs);
        if (!widget) return;
        const double height = TabBarTwips(tabs) * renderer_.WidgetOf(*tabs.window)->Factor();
        const QPointF place = TabBarPlace(tabs, tab, widget->Widget()->width(), height).center();
        MouseOn(tabs, QEvent::MouseButtonPress, MouseButton::Left, place);
        MouseOn(tabs, QEvent::MouseButtonRelease, MouseButton::Left, place);
    }
    void Slide(RangeControl& range, int value) override {
        const ControlWidget* const widget = ViewOf(range);
        auto* const slider = widget ? qobject_cast<QAbstractSlider*>(widget->Widget()) : nullptr;
        if (!slider || !CanReach(range)) return;
        if (slider->value() == std::clamp(value, slider->minimum(), slider->maximum()))
            renderer_.Run([&] { SlideTo(range, value); });  // taken hold of and let go
        else
            slider->setValue(value);
        Rest();
    }
    void Spin(UpDown& arrows, bool up) override {
        const ControlWidget* const widget = ViewOf(arrows);
        if (!widget) return;
        const QRectF whole = widget->Widget()->rect();
        const QPointF place(up == (whole.height() < whole.width()) ? whole.right() : whole.left(), up ? whole.top() : whole.bottom());
        MouseOn(arrows, QEvent::MouseButtonPress, MouseButton::Left, place);
        MouseOn(arrows, QEvent::MouseButtonRelease, MouseButton::Left, place);
    }

    void MouseDown(Control& control, MouseButton button, double x, double y) override {
        if (const ControlWidget* const widget = ViewOf(control)) MouseOn(control, QEvent::MouseButtonPress, button, widget->PlaceOf(x, y));
    }
    void MouseUp(Control& control, MouseButton button, double x, double y) override {
        if (const ControlWidget* const widget = ViewOf(control))
            MouseOn(control, QEvent::MouseButtonRelease, button, widget->PlaceOf(x, y));
    }
    void MouseMove(Control& control, double x, double y) override {
        if (const ControlWidget* const widget = ViewOf(control))
            MouseOn(control, QEvent::MouseMove, MouseButton::None, widget->PlaceOf(x, y));
    }
    void MouseDownOnWindow(Window& window, MouseButton button, double x, double y) override {
        MouseOnGround(window, QEvent::MouseButtonPress, button, x, y);
    }
    void MouseUpOnWindow(Window& window, MouseButton button, double x, double y) override {
        MouseOnGround(window, QEvent::MouseButtonRelease, button, x, y);
    }
    void MouseMoveOverWindow(Window& window, double x, double y) override {
        MouseOnGround(window, QEvent::MouseMove, MouseButton::None, x, y);
    }

    // To the very twip, which no mouse could.
    void Resize(Window& window, int width, int height) override {
        renderer_.Run([&] { ResizeWindow(window, width, height); });
        Rest();
    }
    void Close(Window& window) override {
        if (WindowWidget* const widget = renderer_.WidgetOf(window)) widget->close();
        Rest();
    }

    bool SaveImage(Window& window, Control* control, const std::string& path) override {
        WindowWidget* const widget = renderer_.WidgetOf(window);
        const ControlWidget* const part = widget && control ? widget->Find(*control) : nullptr;
        QWidget* const shown = part ? part->Widget() : widget;
        return shown && shown->grab().save(ToQt(path), "PNG");
    }

private:
    ControlWidget* ViewOf(const Control& control) const {
        WindowWidget* const window = renderer_.WidgetOf(*control.window);
        return window ? window->Find(control) : nullptr;
    }
    TextHolder* BoxInFocus() const {
        Control* const focus = ActiveWindow() ? ActiveWindow()->Focus() : nullptr;
        return focus && CanReach(*focus) ? focus->AsTextHolder() : nullptr;
    }
    QWidget* EditorInFocus() const {
        Control* const focus = ActiveWindow() ? ActiveWindow()->Focus() : nullptr;
        ControlWidget* const holder = focus && CanReach(*focus) ? ViewOf(*focus) : nullptr;
        return holder ? holder->FocusWidget() : nullptr;
    }

    // What waits for the end of an event, such as a window that changes its size, has its turn.
    void Rest() { QApplication::processEvents(); }

    void Key(QEvent::Type type, int code, const QString& text, KeyActs acts) {
        if (WindowWidget* const active = renderer_.ActiveWidget()) SendKey(*active, type, code, text, acts);
        Rest();
    }

    QPointF Corner(const Control& control) const {
        const ControlWidget* const widget = ViewOf(control);
        if (!widget || control.kind() != Kind::TabControl) return {};
        return {0, static_cast<double>(widget->Widget()->height() - 1)};  // its own corner is a tab
    }

    void MouseOn(Control& control, QEvent::Type type, MouseButton button, QPointF at) {
        ControlWidget* const widget = ViewOf(control);
        const bool is_release = type == QEvent::MouseButtonRelease;
        const bool drags = type == QEvent::MouseMove && mouse_.Holds();
        if (widget && (CanReach(control) || is_release || drags)) {
            QWidget* const part = widget->MouseWidget();
            mouse_.Send(*part, type, button, at - QPointF(part->mapTo(widget->Widget(), QPoint())));
        }
        Rest();
    }
    void MouseOnGround(Window& window, QEvent::Type type, MouseButton button, double x, double y) {
        if (WindowWidget* const widget = renderer_.WidgetOf(window); widget && window.Visible() && window.Enabled())
            mouse_.Send(*widget->Ground(), type, button, QPointF(x, y) * widget->Factor());
        Rest();
    }

    void ClickItem(MenuItem& item) {
        WindowWidget* const widget = renderer_.WidgetOf(*item.window);
        if (!widget || !CanReach(item)) return;
        renderer_.Run([&] { BringToFront(*item.window); });
        if (OpenMenusTo(widget->Menus(), item) && CanReach(item)) Choose(widget->Menus(), item);
        if (!IsInPopup(item)) CloseMenus();
        Rest();
    }
    void CloseMenus() {
        while (QWidget* const open = QApplication::activePopupWidget()) open->close();
    }
    void Choose(MenuView& menus, const MenuItem& item) {
        const MenuItem* const menu = item.Menu();
        if (!menu) return menus.ActionOf(item)->trigger();
        menus.MenuOf(*menu)->setActiveAction(menus.ActionOf(item));
        SendKey(*menus.MenuOf(*menu), QEvent::KeyPress, kEnterKey, {}, KeyActs::Yes);
    }

    QApplication application_;
    Renderer renderer_;
    KeyFilter keys_{renderer_};
    QtPopups popups_{renderer_};
    MadeMouse mouse_;
};
}  // namespace

std::unique_ptr<Hands> MakeQtHands(int& argc, char** argv, std::function<bool()> has_ended) {
    return std::make_unique<QtHands>(argc, argv, std::move(has_ended));
}
