#include "platform/qt/figure/page_files.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <cmath>
#include <functional>
#include <utility>

namespace {
constexpr double kPointsPerInch = 72;
constexpr double kInchesPerMetre = 1000 / 25.4;
constexpr int kPdfDotsPerInch = 1200;
constexpr int kMeasuredSize = 1000;  // letters are measured large: at their own size they would be fitted to the dots of a screen

QColor ColourOf(Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

#ifdef Q_OS_WIN
constexpr const char* kPlatform = "windows";  // without a screen the toolkit has no letters there
#else
constexpr const char* kPlatform = "offscreen";
#endif

enum class Letters { Real, Outlines };

// One page onto one device.
class PagePainter {
public:
    PagePainter(QPainter& painter, double dots_per_point, Letters letters, const PageFiles& metrics,
                std::function<QFont(const Lettering&)> font)
        : painter_(painter), scale_(dots_per_point), letters_(letters), metrics_(metrics), font_(std::move(font)) {
        painter_.setRenderHint(QPainter::Antialiasing);
    }

    void operator()(const PageLine& line) const {
        QPen pen(ColourOf(line.colour), line.width * scale_, line.dashed ? Qt::CustomDashLine : Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
        constexpr double kDash = 4;  // in widths of the line
        if (line.dashed) pen.setDashPattern({kDash, kDash});
        painter_.setPen(pen);
        painter_.setBrush(Qt::NoBrush);
        painter_.drawPolyline(Polygon(line.points));
    }
    void operator()(const PageArea& area) const {
        Fill(area.fill);
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);  // where two parts overlap there is no hole
        for (const Outline& part : area.parts) {
            path.addPolygon(Polygon(part));
            path.closeSubpath();
        }
        painter_.drawPath(path);
    }
    void operator()(const PageDot& dot) const {
        Fill(dot.fill);
        painter_.drawEllipse(Point(dot.centre), dot.radius * scale_, dot.radius * scale_);
    }
    void operator()(const PageText& text) const {
        painter_.save();
        painter_.translate(Point(text.at));
        painter_.rotate(-text.angle);
        const QPointF begin(-PartBeforeAnchor(text.anchor) * metrics_.WidthOf(text.text, text.letters) * scale_, 0);
        if (letters_ == Letters::Real)
            Write(text, begin);
        else
            FillOutlines(text, begin);
        painter_.restore();
    }

private:
    static double PartBeforeAnchor(PageText::Anchor anchor) {
        return anchor == PageText::Anchor::Start ? 0 : anchor == PageText::Anchor::Middle ? 0.5 : 1;
    }
    QPointF Point(PagePoint point) const { return {point.x * scale_, point.y * scale_}; }
    QPolygonF Polygon(const std::vector<PagePoint>& points) const {
        QPolygonF polygon;
        for (const PagePoint point : points) polygon << Point(point);
        return polygon;
    }
    void Write(const PageText& text, QPointF begin) const {
        painter_.setPen(ColourOf(text.colour));
        painter_.setFont(font_(text.letters));
        painter_.drawText(begin, QString::fromStdString(text.text));
    }
    // In a picture of dots each letter would take a whole number of them, and the text another width than its page has for it.
    void FillOutlines(const PageText& text, QPointF begin) const {
        QFont font = font_(text.letters);
        font.setPixelSize(kMeasuredSize);
        QPainterPath outlines;
        outlines.addText({}, font, QString::fromStdString(text.text));
        painter_.translate(begin);
        painter_.scale(scale_ * text.letters.size / kMeasuredSize, scale_ * text.letters.size / kMeasuredSize);
        painter_.fillPath(outlines, ColourOf(text.colour));
    }
    void Fill(Colour colour) const {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(ColourOf(colour));
    }

    QPainter& painter_;
    double scale_;
    Letters letters_;
    const PageFiles& metrics_;
    std::function<QFont(const Lettering&)> font_;
};

// Where a viewer does not have the font it then takes another of the kind.
QByteArray WithKindOfFont(QByteArray svg, const QString& family) {
    const QByteArray named = "font-family=\"" + family.toUtf8();
    return svg.replace(named + '"', named + ", sans-serif\"");
}

// Where there is no such font on Windows, the toolkit would take one of any kind.
QStringList FamiliesFor(const std::string& wanted) {
#ifdef Q_OS_WIN
    return {QString::fromStdString(wanted), QStringLiteral("Arial"), QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")};
#else
    return {QString::fromStdString(wanted)};
#endif
}

QSizeF SizeOf(const Page& page) {
    return {page.width, page.height};
}
}  // namespace

// No window is shown: the program runs where there is no screen.
PageFiles::PageFiles(const std::string& font_family) : families_(FamiliesFor(font_family)) {
    qputenv("QT_QPA_PLATFORM", kPlatform);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // the toolkit's remarks are not for users
    application_ = std::make_unique<QGuiApplication>(argument_count_, arguments_);
}

PageFiles::~PageFiles() = default;

QFont PageFiles::FontOf(const Lettering& letters) const {
    QFont font(families_);
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPointSizeF(letters.size);
    font.setItalic(letters.italic);
    font.setBold(letters.bold);
    return font;
}

double PageFiles::WidthOf(const std::string& text, const Lettering& letters) const {
    QFont font = FontOf(letters);
    font.setPixelSize(kMeasuredSize);
    return QFontMetricsF(font).horizontalAdvance(QString::fromStdString(text)) * letters.size / kMeasuredSize;
}

std::string PageFiles::Svg(const Page& page, const std::string& title) const {
    QBuffer bytes;
    QSvgGenerator generator;
    generator.setOutputDevice(&bytes);
    generator.setResolution(static_cast<int>(kPointsPerInch));
    generator.setSize(QSize(static_cast<int>(std::ceil(page.width)), static_cast<int>(std::ceil(page.height))));
    generator.setViewBox(QRectF(QPointF(), SizeOf(page)));
    generator.setTitle(QString::fromStdString(title));
    generator.setDescription("Drawn by Marlbrook");
    QPainter painter(&generator);
    painter.fillRect(QRectF(QPointF(), SizeOf(page)), Qt::white);  // else it is black on black where a viewer has a dark ground
    const PagePainter paint(painter, 1, Letters::Real, *this, [this](const Lettering& letters) { return FontOf(letters); });
    for (const PageItem& item : page.items) std::visit(paint, item);
    painter.end();
    return WithKindOfFont(bytes.data(), FontOf({}).family()).toStdString();
}

std::string PageFiles::Pdf(const std::vector<Page>& pages, const std::string& title) const {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setResolution(kPdfDotsPerInch);
    writer.setTitle(QString::fromStdString(title));
    writer.setCreator("Marlbrook");
    writer.setPageMargins(QMarginsF());
    const auto set_size = [&writer](const Page& page) {
        writer.setPageSize(QPageSize(SizeOf(page), QPageSize::Point, {}, QPageSize::ExactMatch));
    };
    set_size(pages.front());
    QPainter painter(&writer);
    const PagePainter paint(painter, kPdfDotsPerInch / kPointsPerInch, Letters::Real, *this,
                            [this](const Lettering& letters) { return FontOf(letters); });
    for (const Page& page : pages) {
        if (&page != &pages.front()) {
            set_size(page);
            writer.newPage();
        }
        for (const PageItem& item : page.items) std::visit(paint, item);
    }
    painter.end();
    return bytes.data().toStdString();
}

std::string PageFiles::Png(const Page& page, int dots_per_inch) const {
    const double scale = dots_per_inch / kPointsPerInch;
    QImage image((SizeOf(page) * scale).toSize(), QImage::Format_RGB32);
    if (image.isNull()) return "";
    const int dots_per_metre = qRound(dots_per_inch * kInchesPerMetre);
    image.setDotsPerMeterX(dots_per_metre);
    image.setDotsPerMeterY(dots_per_metre);
    image.fill(Qt::white);
    QPainter painter(&image);
    const PagePainter paint(painter, scale, Letters::Outlines, *this, [this](const Lettering& letters) { return FontOf(letters); });
    for (const PageItem& item : page.items) std::visit(paint, item);
    painter.end();
    QBuffer bytes;
    return image.save(&bytes, "PNG") ? bytes.data().toStdString() : "";
}
