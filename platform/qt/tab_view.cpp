#include "platform/qt/tab_view.h"

#include <algorithm>
#include <vector>

#include "platform/qt/look.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/views.h"
#include "platform/user.h"
#include "platform/window.h"

namespace {
constexpr int kLowest = 240;
constexpr int kHighest = 420;
constexpr int kGap = 20;
constexpr double kWidestToHeight = 7;
}  // namespace

int TabBarTwips(const TabControl& tabs) {
    int height = kHighest;
    for (const Control* control : tabs.window->Controls())
        if (control->container == &tabs && control->Height() > 0) height = std::min(height, control->Top() - kGap);
    return std::max(height, kLowest);
}

QRectF TabBarPlace(const TabControl& tabs, int tab, double width, double height) {
    const double each =
        std::min(width / static_cast<double>(std::max<std::size_t>(tabs.TabCaptions().size(), 1)), height * kWidestToHeight);
    return {each * tab, 0, each, height};
}

namespace {
// The bar with the captions lies above the uppermost control; each page is a ground of its own, so that a change of tab shows and
// hides one widget, not a hundred.
class TabView : public ControlWidget {
public:
    TabView(TabControl& tabs, ViewHost& window, ControlWidget* owner) : ControlWidget(tabs, window, owner), tabs_(tabs) {
        whole_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        Adopt(whole_);
    }

    QWidget* Ground(int page) override {
        if (page < 0) return whole_;
        const auto place = static_cast<std::size_t>(page);
        if (pages_.size() <= place) pages_.resize(place + 1);
        if (!pages_[place]) {
            pages_[place] = new QWidget(whole_);
            WatchMouse(pages_[place]);
        }
        return pages_[place];
    }
    QPoint GroundOrigin(int page) const override { return page < 0 ? QPoint() : QPoint(0, BarHeight()); }

private:
    int BarHeight() const { return static_cast<int>(TabBarTwips(tabs_) * Factor()); }
    QRectF TabRect(int tab) const { return TabBarPlace(tabs_, tab, whole_->width(), BarHeight()); }

    void ShowContent(Changes changes) override {
        for (std::size_t page = 0; page < pages_.size(); ++page) {
            if (!pages_[page]) continue;
            if (changes.Has(Property::Place)) pages_[page]->setGeometry(whole_->rect().adjusted(0, BarHeight(), 0, 0));
            pages_[page]->setVisible(static_cast<int>(page) == tabs_.Tab());
        }
    }

    void Press(const Mouse& mouse, QPointF at) override {
        for (int tab = 0; tab < static_cast<int>(tabs_.TabCaptions().size()); ++tab)
            if (mouse.button == MouseButton::Left && TabRect(tab).contains(at)) return PressTab(tabs_, tab);
        ControlWidget::Press(mouse, at);
    }

    bool UseKey(QKeyEvent& key) override {
        const int step = key.key() == Qt::Key_Right ? 1 : key.key() == Qt::Key_Left ? -1 : 0;
        const int next = tabs_.Tab() + step;
        if (step == 0 || next < 0 || next >= static_cast<int>(tabs_.TabCaptions().size())) return false;
        Events().Run([&] { PressTab(tabs_, next); });
        return true;
    }

    void Paint(QPainter& painter) {
        const QRectF page = QRectF(whole_->rect()).adjusted(0, BarHeight() - 1, 0, 0);
        painter.fillRect(page, ToQt(tabs_.BackColor()));
        PaintOutline(painter, page, kOutline, 1, 0);
        painter.setFont(Font());
        for (int tab = 0; tab < static_cast<int>(tabs_.TabCaptions().size()); ++tab) PaintTab(painter, tab);
    }

    void PaintTab(QPainter& painter, int tab) {
        const bool front = tab == tabs_.Tab();
        const QRectF place = TabRect(tab).adjusted(0, front ? 0 : 2, 0, 0);
        painter.fillRect(place, front ? ToQt(tabs_.BackColor()) : ToQt(tabs_.BackColor()).darker(kTabBehind));
        painter.fillRect(QRectF(place.left(), place.top(), place.width(), 1), kOutline);
        painter.fillRect(QRectF(place.left(), place.top(), 1, place.height()), kOutline);
        painter.fillRect(QRectF(place.right() - 1, place.top(), 1, place.height()), kOutline);
        if (front) painter.fillRect(QRectF(place.left(), place.top(), place.width(), std::max(3.0, 40 * Factor())), kAccent);
        painter.setPen(ToQt(tabs_.ForeColor()));
        const QString caption = Brief(tabs_.TabCaptions()[static_cast<std::size_t>(tab)]);
        painter.drawText(place, Qt::AlignCenter,
                         painter.fontMetrics().elidedText(caption, Qt::ElideRight, static_cast<int>(place.width()) - 4));
    }

    TabControl& tabs_;
    QWidget* whole_;
    std::vector<QWidget*> pages_;  // nullptr: nothing lies on it
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(TabControl& tabs, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<TabView>(tabs, window, owner);
}
