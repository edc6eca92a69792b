#include "platform/qt/style.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionSlider>
#include <QSvgRenderer>
#include <QToolTip>
#include <QWidget>
#include <algorithm>

#include "platform/qt/look.h"

namespace {
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

QIcon DrawnIcon(const QString& path) {
    QSvgRenderer drawing(path);
    QIcon icon;
    for (const int size : {16, 20, 24, 32, 48, 64, 96, 128}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

// The toolkit's own signs are pictures of one size.
struct Sign {
    QStyle::StandardPixmap which;
    const char* drawing;
};
constexpr Sign kSigns[] = {
    {QStyle::SP_MessageBoxInformation, "sign_information"},
    {QStyle::SP_MessageBoxWarning, "sign_warning"},
    {QStyle::SP_MessageBoxQuestion, "sign_question"},
    {QStyle::SP_ArrowBack, "back"},
    {QStyle::SP_ArrowForward, "forward"},
    {QStyle::SP_FileDialogToParent, "up"},
    {QStyle::SP_FileDialogNewFolder, "new_folder"},
    {QStyle::SP_FileDialogListView, "list"},
    {QStyle::SP_FileDialogDetailedView, "details"},
    {QStyle::SP_DirIcon, "folder"},
    {QStyle::SP_DirHomeIcon, "folder"},
    {QStyle::SP_DirLinkIcon, "folder"},
    {QStyle::SP_FileIcon, "file"},
    {QStyle::SP_FileLinkIcon, "file"},
    {QStyle::SP_ComputerIcon, "computer"},
    {QStyle::SP_DriveHDIcon, "drive"},
};

constexpr double kRounded = 4;  // pixels: the corners of a button in a dialog

ButtonState StateOf(const QStyleOption& option) {
    const auto is = [&option](QStyle::StateFlag flag) { return option.state.testFlag(flag); };
    return {is(QStyle::State_Enabled), is(QStyle::State_Sunken), is(QStyle::State_MouseOver), is(QStyle::State_HasFocus)};
}

// The parts of message boxes and file dialogs look as those of the program's windows do.
void PaintArrowBox(QPainter& painter, const QStyleOption& option, const QRect& arrow) {
    const QRectF box = option.rect;
    const ButtonState state = StateOf(option);
    painter.fillRect(box, state.enabled ? QColor(Qt::white) : kRestingBox);
    PaintArrowButton(painter, QRectF(arrow.left(), box.top(), box.right() - arrow.left(), box.height()), state.enabled, 1.5);
    PaintOutline(painter, box, state.in_focus ? kAccent : kBoxEdge, state.in_focus ? 2 : 1, 0);
}

void PaintHeading(QPainter& painter, const QRect& box) {
    painter.fillRect(box, ToQt(kFormColour));
    painter.fillRect(QRect(box.left(), box.bottom(), box.width(), 1), kOutline);
    painter.fillRect(QRect(box.right(), box.top(), 1, box.height()), kOutline);
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

    QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
        for (const Sign& sign : kSigns)
            if (sign.which == which) return DrawnIcon(QStringLiteral(":/pictures/%1.svg").arg(sign.drawing));
        return QProxyStyle::standardIcon(which, option, widget);
    }

    // The arrows of a scroll bar are as large as there is room across.
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        if (metric == PM_MessageBoxIconSize && widget) return 2 * widget->fontMetrics().height();
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
        else if (control == CC_ScrollBar && slider)
            PaintScrollBar(*painter, *slider, widget);
        else if (control == CC_ComboBox)
            PaintArrowBox(*painter, *option, subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget));
        else
            QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override {
        const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (element == CE_PushButton && button)
            PaintPushButton(*painter, *button, widget);
        else if (element == CE_HeaderSection)
            PaintHeading(*painter, option->rect);
        else
            QProxyStyle::drawControl(element, option, painter, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override {
        const ButtonState state = StateOf(*option);
        const bool is_on = option->state.testFlag(State_On);
        if (element == PE_FrameLineEdit) {
            PaintOutline(*painter, option->rect, state.in_focus ? kAccent : kBoxEdge, state.in_focus ? 2 : 1, 0);
        } else if (element == PE_PanelButtonTool) {
            if (is_on || state.down || (state.hovered && state.enabled))
                PaintButton(*painter, option->rect, is_on || state.down ? kRestingBox : kButtonFace, {.enabled = state.enabled}, kRounded);
        } else {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }

private:
    void PaintPushButton(QPainter& painter, const QStyleOptionButton& button, const QWidget* widget) const {
        PaintButton(painter, button.rect, kButtonFace, StateOf(button), kRounded);
        QStyleOptionButton words = button;
        words.rect = subElementRect(SE_PushButtonContents, &button, widget);
        if (button.state & State_Sunken) words.palette.setColor(QPalette::ButtonText, Qt::white);
        drawControl(CE_PushButtonLabel, &words, &painter, widget);
    }

    void PaintScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QWidget* widget) const {
        const bool lies = bar.orientation == Qt::Horizontal, is_enabled = bar.state.testFlag(State_Enabled);
        const auto place = [&](SubControl part) { return QRectF(subControlRect(CC_ScrollBar, &bar, part, widget)); };
        const auto is_down = [&](SubControl part) { return bar.state.testFlag(State_Sunken) && bar.activeSubControls.testFlag(part); };
        painter.fillRect(bar.rect, ToQt(kFormColour));
        PaintOutline(painter, bar.rect, kOutline, 1, 0);
        for (const SubControl part : {SC_ScrollBarSubLine, SC_ScrollBarAddLine}) {
            const bool is_back = part == SC_ScrollBarSubLine;
            const Qt::ArrowType arrow = lies ? (is_back ? Qt::LeftArrow : Qt::RightArrow) : (is_back ? Qt::UpArrow : Qt::DownArrow);
            PaintStepButton(painter, place(part), arrow, is_enabled, is_down(part));
        }
        if (bar.minimum == bar.maximum) return;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(is_down(SC_ScrollBarSlider) ? kAccent : is_enabled ? kBoxEdge : kOutline);
        painter.drawRoundedRect(place(SC_ScrollBarSlider).adjusted(3, 3, -3, -3), kRounded, kRounded);
    }

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

// Where Windows lacks its own letters the next ones of any kind would be taken, slabs and all.
void PreferSans() {
#ifdef Q_OS_WIN
    QFont font = QApplication::font();
    font.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Tahoma"), QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                      QStringLiteral("DejaVu Sans")});
    QApplication::setFont(font);
#endif
}
}  // namespace

void ApplyLook(QApplication& application) {
    application.setStyle(new Look);
    application.setPalette(LightPalette());
    application.setWindowIcon(DrawnIcon(QStringLiteral(":/icon.svg")));
    PreferSans();
    const QFont plain = PlainFont(CommonFactor(*QGuiApplication::primaryScreen()));
    QApplication::setFont(plain);
    QToolTip::setFont(plain);
}
