#include "platform/qt/look.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleFactory>
#include <QStyleOptionSlider>
#include <QSvgRenderer>
#include <QToolTip>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/window.h"

namespace {
constexpr double kPlainPoints = 9;
constexpr int kLargestHandle = 34;  // pixels, of a slider

// A slider is drawn in the size of its window: the groove runs from end to end, the handle is as large as there is room across.
int Across(const QStyleOptionSlider& slider) {
    return std::min({slider.rect.width(), slider.rect.height(), kLargestHandle});
}

QRect SliderHandle(const QStyleOptionSlider& slider) {
    const bool lies = slider.orientation == Qt::Horizontal;
    const int size = Across(slider);
    const int way = (lies ? slider.rect.width() : slider.rect.height()) - size;
    const int along = QStyle::sliderPositionFromValue(slider.minimum, slider.maximum, slider.sliderPosition, way, slider.upsideDown);
    QRect handle(0, 0, size, size);
    handle.moveCenter(slider.rect.center());
    if (lies)
        handle.moveLeft(slider.rect.left() + along);
    else
        handle.moveTop(slider.rect.top() + along);
    return handle;
}

void PaintSlider(QPainter& painter, const QStyleOptionSlider& slider) {
    const bool lies = slider.orientation == Qt::Horizontal;
    const double half = Across(slider) / 2.0, thick = std::max(3.0, half / 3);
    const QRectF box = slider.rect;
    QRectF groove(0, 0, lies ? box.width() - 2 * half : thick, lies ? thick : box.height() - 2 * half);
    groove.moveCenter(box.center());
    const bool enabled = slider.state & QStyle::State_Enabled;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kOutline);
    painter.drawRoundedRect(groove, thick / 2, thick / 2);
    const double rim = std::max(1.5, half / 6);
    painter.setPen(QPen(enabled ? kAccent : kRestingWords, rim));
    painter.setBrush(slider.state & QStyle::State_Sunken ? kAccent : kButtonFace);
    painter.drawEllipse(QRectF(SliderHandle(slider)).adjusted(rim, rim, -rim, -rim));
}

class Look : public QProxyStyle {
public:
    Look() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const override {
        switch (hint) {
            case SH_MenuBar_AltKeyNavigation:  // Alt can be a counter key
            case SH_DialogButtonBox_ButtonsHaveIcons:
            case SH_EtchDisabledText:  // a second, light word behind each that rests
                return 0;
            case SH_ToolTip_WakeUpDelay:
                return 400;
            default:
                return QProxyStyle::styleHint(hint, option, widget, data);
        }
    }

    // The arrows of a scroll bar are as large as there is room across.
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_ScrollBarExtent && IsScaled(widget) ? std::max(usual, std::min(widget->width(), widget->height())) : usual;
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const override {
        const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control != CC_Slider || !slider || !IsScaled(widget)) return QProxyStyle::subControlRect(control, option, part, widget);
        return part == SC_SliderHandle ? SliderHandle(*slider) : slider->rect;
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control == CC_Slider && slider && IsScaled(widget))
            PaintSlider(*painter, *slider);
        else
            QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

private:
    static bool IsScaled(const QWidget* widget) { return widget && widget->objectName() == kScaledRange; }
};

QPalette LightPalette() {
    QPalette palette(ToQt(kFormColour));  // edges and shades too: those of a dark desktop would be ghosts behind the words
    const auto set = [&palette](QPalette::ColorRole role, QColor colour) { palette.setColor(role, colour); };
    set(QPalette::Window, ToQt(kFormColour));
    set(QPalette::WindowText, Qt::black);
    set(QPalette::Base, Qt::white);
    set(QPalette::AlternateBase, QColor(0xf4, 0xf6, 0xf8));
    set(QPalette::Text, Qt::black);
    set(QPalette::PlaceholderText, kRestingWords);
    set(QPalette::Button, ToQt(kFormColour));
    set(QPalette::ButtonText, Qt::black);
    set(QPalette::BrightText, Qt::white);
    set(QPalette::ToolTipBase, QColor(0xff, 0xff, 0xf0));
    set(QPalette::ToolTipText, Qt::black);
    set(QPalette::Highlight, kAccent);
    set(QPalette::HighlightedText, Qt::white);
    set(QPalette::Link, kAccent);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText}) palette.setColor(QPalette::Disabled, role, kRestingWords);
    palette.setColor(QPalette::Disabled, QPalette::Text, kRestingWords);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, kOutline);
    return palette;
}

QIcon ProgramIcon() {
    QSvgRenderer drawing(QStringLiteral(":/icon.svg"));
    QIcon icon;
    for (const int size : {16, 32, 48, 128}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

// Where Windows lacks its own letters the next ones of any kind would be taken, slabs and all.
void PreferSans() {
#ifdef Q_OS_WIN
    QFont font = QApplication::font();
    font.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Tahoma"), QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                      QStringLiteral("DejaVu Sans")});
    QApplication::setFont(font);
#endif
}

QFont FontOfSize(double points, double factor) {
    QFont font = QApplication::font();
    font.setPixelSize(std::max(1, static_cast<int>(points * kTwipsPerPoint * factor + 0.25)));
    return font;
}
}  // namespace

void ApplyLook(QApplication& application) {
    application.setStyle(new Look);
    application.setPalette(LightPalette());
    application.setWindowIcon(ProgramIcon());
    PreferSans();
    const QFont plain = PlainFont(CommonFactor(*QGuiApplication::primaryScreen()));
    QApplication::setFont(plain);
    QToolTip::setFont(plain);
}

QColor ToQt(Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string FromQt(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    return {utf8.constData(), static_cast<std::size_t>(utf8.size())};
}

QFont ControlFont(const Properties& control, double factor) {
    QFont font = FontOfSize(control.font_size, factor);
    font.setBold(control.bold);
    font.setItalic(control.italic);
    font.setUnderline(control.underline);
    return font;
}

QFont PlainFont(double factor) {
    return FontOfSize(kPlainPoints, factor);
}

QColor BoxGround(const Properties& control) {
    return !control.enabled && control.back == kWhite ? kRestingBox : ToQt(control.back);
}

void PaintOutline(QPainter& painter, const QRectF& box, const QColor& colour, double width, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, radius > 0);
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2;
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius, radius);
    painter.restore();
}

// ---- Size ----

namespace {
constexpr double kComfortable = 0.97;  // of the screen, by the window that is worked in
constexpr int kFramePixels = 36;       // title bar and edges
constexpr int kMenuBarTwips = 330;

double LargestFactor(QSizeF room, QSize twips) {
    return std::min(room.width() / twips.width(), room.height() / (twips.height() + kMenuBarTwips));
}

double ComfortableFactor(const QScreen& screen, QSize twips) {
    const QSizeF room = screen.availableGeometry().size();
    return LargestFactor(room * kComfortable - QSizeF(0, kFramePixels), twips);
}
}  // namespace

double CommonFactor(const QScreen& screen) {
    QSize largest(1, 1);
    for (const Window* window : AllWindows()) {
        const QSize size(window->Width(), window->Height());
        if (window->covers_screen) continue;
        if (window->key_preview) return ComfortableFactor(screen, size);
        if (!window->resizable && size.width() * size.height() > largest.width() * largest.height()) largest = size;
    }
    return ComfortableFactor(screen, largest);
}

double FactorThatFits(QSize room, QSize twips, double wanted) {
    return std::min(wanted, LargestFactor(room, twips));
}

QRect Scaled(const Box& box, double factor) {
    const auto pixel = [factor](int twips) { return static_cast<int>(std::lround(twips * factor)); };
    const int left = pixel(box.left), top = pixel(box.top);
    return {left, top, pixel(box.left + box.width) - left, pixel(box.top + box.height) - top};
}
