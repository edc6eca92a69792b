#include "platform/qt/menu_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>

#include "platform/qt/look.h"
#include "platform/qt/shown_text.h"
#include "platform/user.h"

// One item: its action, and the menu that it opens if it has items of its own.
class MenuItemView : public ModelView {
public:
    MenuItemView(MenuItem& item, UserEvents& events, QAction* action, QMenu* menu)
        : ModelView(item, events), item_(item), action_(action), menu_(menu) {
        Show(Changes::All());
        if (menu_) return;
        QObject::connect(action_, &QAction::triggered, action_, [this] {
            Changed(Property::Checked);  // the action has turned its own mark over
            Events().Run([this] { ClickOpenMenuItem(item_); });
        });
    }

    MenuItem& Item() const { return item_; }
    QAction* Action() const { return action_; }
    QMenu* Menu() const { return menu_; }

private:
    void Show(Changes) override {
        const bool is_separator = item_.Caption() == "-";
        action_->setSeparator(is_separator);
        if (!is_separator) action_->setText(Brief(item_.Caption()).trimmed() + Chord());
        action_->setCheckable(item_.Checked());
        action_->setChecked(item_.Checked());
        action_->setEnabled(item_.Enabled());
        action_->setVisible(item_.Visible());
    }
    QString Chord() const { return item_.control_letter ? QString("\tCtrl+") + QLatin1Char(item_.control_letter) : QString(); }

    MenuItem& item_;
    QAction* action_;
    QMenu* menu_;
};

namespace {
void SelectFirst(QMenu& menu) {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(&menu, &down);
}
}  // namespace

MenuView::MenuView(Window& window, QWidget& widget, UserEvents& events) : window_(window), events_(events), bar_(new QMenuBar(&widget)) {
#ifndef Q_OS_MACOS
    bar_->setNativeMenuBar(false);
#endif
    bar_->setFocusPolicy(Qt::NoFocus);
    bar_->setContextMenuPolicy(Qt::PreventContextMenu);
    for (MenuItem* menu : ItemsOf(nullptr))
        if (menu->Visible()) Make(*menu, *bar_);
    bar_->setVisible(!bar_->actions().isEmpty());
}

MenuView::~MenuView() = default;

std::vector<MenuItem*> MenuView::ItemsOf(const MenuItem* menu) const {
    std::vector<MenuItem*> items;
    for (Control* control : window_.Controls())
        if (auto* const item = dynamic_cast<MenuItem*>(control); item && item->Menu() == menu) items.push_back(item);
    return items;
}

void MenuView::Make(MenuItem& item, QWidget& place) {
    const std::vector<MenuItem*> inner = ItemsOf(&item);
    QMenu* const menu = inner.empty() ? nullptr : new QMenu(&place);
    QAction* const action = menu ? menu->menuAction() : new QAction(&place);
    place.addAction(action);
    items_[&item] = std::make_unique<MenuItemView>(item, events_, action, menu);
    if (!menu) return;
    menu->setFont(font_);
    const bool pops_up = !item.container && !item.Visible();
    if (!pops_up) QObject::connect(menu, &QMenu::aboutToShow, menu, [this, &item] { events_.Run([&item] { OpenMenu(item); }); });
    for (MenuItem* one : inner) Make(*one, *menu);
}

void MenuView::SetFont(const QFont& font) {
    font_ = font;
    bar_->setFont(font);
    for (const auto& [item, view] : items_)
        if (view->Menu()) view->Menu()->setFont(font);
}

// Popups are made at their first opening: one of them has an item for every slot.
void MenuView::OpenPopup(MenuItem& menu, QPoint at) {
    if (!items_.contains(&menu)) Make(menu, *bar_);
    MenuOf(menu)->popup(at);
}

bool MenuView::OpenByAccessKey(QChar letter) {
    if (bar_->isNativeMenuBar()) return false;
    for (QAction* action : bar_->actions()) {
        const QString text = action->text();
        const qsizetype mark = text.indexOf(u'&');
        if (!action->isVisible() || !action->isEnabled() || mark < 0 || mark + 1 >= text.size()) continue;
        if (text[mark + 1].toUpper() != letter.toUpper()) continue;
        bar_->setActiveAction(action);
        if (action->menu()) SelectFirst(*action->menu());
        return true;
    }
    return false;
}

QAction* MenuView::ActionOf(const MenuItem& item) {
    const auto found = items_.find(&item);
    return found == items_.end() ? nullptr : found->second->Action();
}

QMenu* MenuView::MenuOf(const MenuItem& item) {
    const auto found = items_.find(&item);
    return found == items_.end() ? nullptr : found->second->Menu();
}

MenuItem* MenuView::ItemOf(const QAction& action) const {
    for (const auto& [item, view] : items_)
        if (view->Action() == &action) return &view->Item();
    return nullptr;
}
