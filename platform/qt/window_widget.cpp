#include "platform/qt/window_widget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QMetaObject>
#include <QMimeData>
#include <QPainter>
#include <QScreen>
#include <QUrl>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/look.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/views.h"
#include "platform/qt/window_system.h"
#include "platform/user.h"

namespace {
constexpr double kSmallest = 0.4;  // of the size that a window comes up with
constexpr QSize kSmallestOfUser{240, 160};
constexpr int kTitleBar = 30;          // an estimate until the desktop has made it
constexpr int kWaitForFrontMs = 1000;  // a desktop that has not brought a window to the front by then never will

QSize Pixels(QSize twips, double factor) {
    return Scaled({0, 0, twips.width(), twips.height()}, factor).size();
}
}  // namespace

// Lies over a window that takes no input: its words stay readable, it is plainly not the one to work in, and no mouse gets through. A
// press brings up the window that waits for an answer.
class Veil : public QWidget {
public:
    Veil(QWidget* parent, Window& window, UserEvents& events) : QWidget(parent), window_(window), events_(events) { hide(); }

protected:
    void paintEvent(QPaintEvent*) override {
        QColor mist = ToQt(kFormColour);
        mist.setAlpha(120);
        QPainter(this).fillRect(rect(), mist);
    }
    void showEvent(QShowEvent*) override { raise(); }
    void mousePressEvent(QMouseEvent*) override { events_.UserActivates(window_); }

private:
    Window& window_;
    UserEvents& events_;
};

WindowWidget::WindowWidget(Window& window, UserEvents& events)
    : window_(window), events_(events), frame_(0, kTitleBar, 0, 0), ground_(new QWidget(this)), veil_(new Veil(this, window, events)) {
    menus_ = std::make_unique<MenuView>(window, *this, events);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setAcceptDrops(window_.FileDropped.IsJoined());
    ground_->setMouseTracking(true);
    ground_->installEventFilter(this);
    resize_soon_.setSingleShot(true);
    connect(&resize_soon_, &QTimer::timeout, this, &WindowWidget::TellUserSize);
    waits_.setSingleShot(true);
    connect(&waits_, &QTimer::timeout, this, &WindowWidget::GiveUpWaiting);
    for (Control* control : window_.Controls()) Build(*control);
}

WindowWidget::~WindowWidget() = default;

ControlWidget* WindowWidget::Build(Control& control) {
    if (control.kind() == Kind::MenuItem) return nullptr;
    if (const auto made = controls_.find(&control); made != controls_.end()) return made->second.get();
    ControlWidget* const owner = control.container ? Build(*control.container) : nullptr;
    return (controls_[&control] = MakeControlWidget(control, *this, owner)).get();
}

ControlWidget* WindowWidget::Find(const Control& control) const {
    const auto found = controls_.find(&control);
    return found == controls_.end() ? nullptr : found->second.get();
}

QWidget* WindowWidget::WidgetOf(const Control& control) const {
    const ControlWidget* const shown = Find(control);
    return shown ? shown->Widget() : nullptr;
}

SizeGroup* WindowWidget::GroupOf(const Control& control) {
    return control.size_group == 0 ? nullptr : &groups_[control.size_group];
}

ControlWidget* WindowWidget::ShownBy(const QWidget& widget) const {
    for (const auto& [control, shown] : controls_)
        if (shown && shown->Widget() == &widget) return shown.get();
    return nullptr;
}

void WindowWidget::NoteChange(WindowProperty property) {
    if (property == WindowProperty::Title) title_changed_ = true;
    if (property == WindowProperty::Place) size_changed_ = true;
    if (property == WindowProperty::BackColor) update();
}

void WindowWidget::Sync() {
    if (std::exchange(title_changed_, false)) setWindowTitle(Brief(window_.Title()));
    if (std::exchange(size_changed_, false)) ChooseSize();
    if (window_.Enabled() && !veil_->isHidden()) NoteUserSize();  // while it took no input it took no size either
    veil_->setVisible(!window_.Enabled());
}

// ---- Size ----

QRect WindowWidget::Client() const {
    const int top = menus_->Bar().isHidden() ? 0 : menus_->Bar().heightForWidth(width());
    return rect().adjusted(0, std::max(top, 0), 0, 0);
}

QSize WindowWidget::ClientSize(double factor) const {
    return Pixels({window_.Width(), window_.Height()}, factor);
}

// A window that grows where it is could grow off the screen. Where none can move itself it has its full height from the beginning.
QSize WindowWidget::RoomWanted() const {
    return {window_.Width(), OnWayland() ? std::max(window_.Height(), window_.unfolds_to) : window_.Height()};
}

// While it is hidden the desktop knows of no frame, and for a moment after that the toolkit takes it for smaller than what is in it.
void WindowWidget::MeasureFrame() {
    const QRect inside = geometry(), whole = frameGeometry();
    if (!whole.contains(inside)) return;
    frame_ = {inside.left() - whole.left(), inside.top() - whole.top(), whole.right() - inside.right(), whole.bottom() - inside.bottom()};
}

QRect WindowWidget::Room() const {
    return screen()->availableGeometry().marginsRemoved(frame_);
}

// Its size is what the program wants, and no screen has become too small for it while it was hidden.
bool WindowWidget::IsAsUserLeftIt() const {
    const bool fits = isVisible() || size().boundedTo(Room().size()) == size();
    return window_.resizable && fits && Client().size() == ClientSize(factor_);
}

// The first size is the common one; after that the window keeps the factor that its user has given it, as far as the screen allows.
void WindowWidget::ChooseSize() {
    if (isVisible()) MeasureFrame();
    if (isMaximized()) return Fit();
    if (IsAsUserLeftIt()) return;
    const double wanted = sized_ && !window_.resizable ? factor_ : CommonFactor(*screen());
    const QPoint middle = geometry().center();
    sized_ = false;  // the steps on the way to the new size are not its user's
    factor_ = FactorThatFits(Room().size(), RoomWanted(), wanted);
    menus_->SetFont(PlainFont(factor_));
    setMinimumSize(window_.resizable ? kSmallestOfUser : Pixels(RoomWanted(), factor_ * kSmallest));
    QSize size = window_.covers_screen ? screen()->size() : Pixels(RoomWanted(), factor_);
    if (!menus_->Bar().isHidden()) size.rheight() += menus_->Bar().heightForWidth(size.width());
    if (size != this->size()) {
        resize(size);
        if (isVisible()) MoveAround(middle);
    }
    sized_ = true;
    Fit();
}

void WindowWidget::Fit() {
    if (!sized_) return;
    if (!window_.resizable) Enlarge();
    LayOut();
}

// Larger letters make the menu bar higher, which leaves less room for the rest.
void WindowWidget::Enlarge() {
    const QSize client = Client().size();
    factor_ = FactorThatFills(client);
    menus_->SetFont(PlainFont(factor_));
    if (Client().height() < client.height()) factor_ = FactorThatFills(Client().size());
}

double WindowWidget::FactorThatFills(QSize client) const {
    const QSize wanted = RoomWanted();
    return std::min(static_cast<double>(client.width()) / wanted.width(), static_cast<double>(client.height()) / wanted.height());
}

void WindowWidget::LayOut() {
    menus_->SetFont(PlainFont(factor_));
    const QRect client = Client();
    menus_->Bar().setGeometry(0, 0, width(), client.top());
    QRect ground(QPoint(), window_.resizable ? client.size() : ClientSize(factor_));
    ground.moveCenter(client.center());
    ground_->setGeometry(ground);
    veil_->setGeometry(rect());
    for (const auto& [control, widget] : controls_)
        if (widget) widget->Rescale();
}

void WindowWidget::resizeEvent(QResizeEvent*) {
    Fit();
    NoteUserSize();
}

void WindowWidget::NoteUserSize() {
    if (window_.resizable && isVisible() && Client().size() != ClientSize(factor_)) resize_soon_.start(0);
}

void WindowWidget::TellUserSize() {
    resize_soon_.stop();
    const QSize client = Client().size();
    const auto twips = [this](int pixels) { return static_cast<int>(std::lround(pixels / factor_)); };
    events_.Run([&] { ResizeWindow(window_, twips(client.width()), twips(client.height())); });
}

// ---- Front and focus ----

void WindowWidget::ShowAbove(WindowWidget* below) {
    winId();  // the desktop is told what it belongs to before it comes up
    windowHandle()->setTransientParent(below ? below->windowHandle() : nullptr);
    if (below) setScreen(below->screen());
    setWindowState(windowState().setFlag(Qt::WindowMaximized, maximized_));
    Sync();
    PlaceAbove(below);
    shown_ = true;
    show();
}

// A window that stands for itself stays where its user has left it, as far as the screen allows.
void WindowWidget::PlaceAbove(const WindowWidget* below) {
    if (isMaximized()) return;
    if (window_.covers_screen) return CoverScreen();
    if (!below && shown_) return MoveAround(geometry().center());
    MoveAround((below && below->isVisible() ? below->geometry() : Room()).center());
}

void WindowWidget::CoverScreen() {
    setGeometry(screen()->geometry());
    setWindowState(Qt::WindowFullScreen);
}

void WindowWidget::MoveAround(QPoint middle) {
    const QRect room = Room();
    QRect place(QPoint(), size());
    place.moveCenter(middle);
    place.moveLeft(std::clamp(place.left(), room.left(), std::max(room.left(), room.right() - place.width() + 1)));
    place.moveTop(std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() - place.height() + 1)));
    setGeometry(place);
}

// The desktop forgets these of a hidden window.
void WindowWidget::PutAway() {
    MeasureFrame();
    maximized_ = isMaximized();
    hide();
}

void WindowWidget::BringToFront() {
    waits_.start(kWaitForFrontMs);
    if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

bool WindowWidget::StopsWaiting() {
    const bool waited = waits_.isActive();
    waits_.stop();
    return waited;
}

// The desktop has not answered in time: the window that it has in front is the one that the user sees.
void WindowWidget::GiveUpWaiting() {
    if (const auto* const front = dynamic_cast<WindowWidget*>(QApplication::activeWindow())) events_.UserActivates(front->window());
}

void WindowWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow()) return;
    waits_.stop();
    events_.UserActivates(window_);
}

void WindowWidget::SyncFocus() {
    const Control* const focus = window_.Focus();
    ControlWidget* const holder = focus && focus->IsUsable() ? Find(*focus) : nullptr;
    QWidget* const wanted = holder ? holder->FocusWidget() : this;
    if (focusWidget() != wanted || !wanted->hasFocus()) wanted->setFocus(Qt::OtherFocusReason);
}

void WindowWidget::OpenPopup(MenuItem& menu) {
    menus_->OpenPopup(menu, QCursor::pos());
}

// ---- The user ----

void WindowWidget::closeEvent(QCloseEvent* event) {
    event->ignore();
    events_.Run([this] { CloseWindow(window_); });
}

bool WindowWidget::eventFilter(QObject* watched, QEvent* event) {
    const bool presses = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (watched != ground_ || !(presses || event->type() == QEvent::MouseMove)) return QWidget::eventFilter(watched, event);
    const auto& mouse = *static_cast<const QMouseEvent*>(event);
    const Qt::MouseButtons buttons = presses ? Qt::MouseButtons(mouse.button()) : mouse.buttons();
    const MouseButton button = buttons & Qt::LeftButton    ? MouseButton::Left
                               : buttons & Qt::RightButton ? MouseButton::Right
                                                           : MouseButton::None;
    const Mouse at{button, mouse.position().x() / factor_, mouse.position().y() / factor_};
    events_.Run([&] {
        if (presses)
            PressMouseOnWindow(window_, at);
        else
            MoveMouseOverWindow(window_, at);
    });
    return true;
}

#ifdef Q_OS_WIN
bool WindowWidget::nativeEvent(const QByteArray&, void* message, qintptr*) {
    const QWidget* const focus = QApplication::focusWidget();
    const bool is_typing = focus && focus->testAttribute(Qt::WA_InputMethodEnabled);
    return !is_typing && dead_keys_.IsStrayCharacter(*static_cast<tagMSG*>(message));
}
#endif

namespace {
// The one file of this computer that is dragged; empty: it is something else.
std::string FileDragged(const QMimeData& dragged) {
    const QList<QUrl> urls = dragged.urls();
    return urls.size() == 1 ? ProgramPath(urls.front().toLocalFile()) : std::string();
}

// Whatever the user held down: where a file is moved the other program deletes it.
void Copy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}
}  // namespace

void WindowWidget::dragEnterEvent(QDragEnterEvent* event) {
    if (window_.Enabled() && !FileDragged(*event->mimeData()).empty()) Copy(*event);
}

// When the drop is over: a question that comes up in it would hold up the program that the file comes from.
void WindowWidget::dropEvent(QDropEvent* event) {
    Copy(*event);
    const auto tell = [this, path = FileDragged(*event->mimeData())] { events_.Run([&] { DropFile(window_, path); }); };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void WindowWidget::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), ToQt(window_.BackColor()));
}
