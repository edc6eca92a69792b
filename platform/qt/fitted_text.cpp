#include "platform/qt/fitted_text.h"

#include <QFontMetricsF>
#include <algorithm>

namespace {
constexpr double kLittleLess = 0.85;  // of the font, before lines are broken where there is room for two
constexpr double kLeast = 0.7;        // of the font, before they are broken where there is not
constexpr double kSmall = 0.55;       // of the font, before words are
constexpr int kSmallestPixels = 6;    // nobody reads less
constexpr double kTight = 0.9;        // several lines stand closer than single ones

// How much of `text` goes in one line, broken between words if that is possible. 0: its first word is too long. A break at a blank is
// taken before a later one behind a hyphen, if the rest then goes in the next line.
qsizetype WordsThatFit(const QString& text, const QFontMetricsF& metrics, double width) {
    qsizetype fits = 0;
    while (fits < text.size() && metrics.horizontalAdvance(text.left(fits + 1)) <= width) ++fits;
    if (fits == text.size()) return fits;
    qsizetype behind_hyphen = 0;
    for (qsizetype end = fits; end > 0; --end) {
        if (text[end] == u' ' && (behind_hyphen == 0 || metrics.horizontalAdvance(text.mid(end + 1)) <= width)) return end;
        if (behind_hyphen == 0 && text[end - 1] == u'-' && text[end].isLetter()) behind_hyphen = end;
    }
    return behind_hyphen;
}

qsizetype LettersThatFit(const QString& text, const QFontMetricsF& metrics, double width) {
    qsizetype fits = 1;
    while (fits < text.size() && metrics.horizontalAdvance(text.left(fits + 1)) <= width) ++fits;
    return fits;
}

double Pitch(const QFontMetricsF& metrics, qsizetype lines) {
    return (metrics.ascent() + metrics.descent()) * (lines > 1 ? kTight : 1);
}
}  // namespace

bool FittedText::FitAt(const Question& question, int pixels, Break where, Layout& layout) {
    QFont font = question.font;
    font.setPixelSize(pixels);
    const QFontMetricsF metrics(font);
    const double width = question.room.width();
    const int most = where == Break::Never ? 1 : question.most_lines;
    QStringList lines;
    for (QString rest : question.text.split(u'\n')) do {
            qsizetype length = WordsThatFit(rest, metrics, width);
            if (length == 0 && !rest.isEmpty() && where != Break::Anywhere) return false;
            if (length == 0) length = LettersThatFit(rest, metrics, width);
            lines << rest.left(length).trimmed();
            if (lines.size() > most) return false;
            rest = rest.mid(length).trimmed();
        } while (!rest.isEmpty());
    const double pitch = Pitch(metrics, lines.size());
    if (lines.size() > 1 && pitch * static_cast<double>(lines.size()) > question.room.height() + 1) return false;
    layout = {std::move(lines), font, pitch};
    return true;
}

bool FittedText::FitLines(const Question& question, int largest, int smallest, Break where, Layout& layout) {
    for (int pixels = largest; pixels >= smallest; --pixels)
        if (FitAt(question, pixels, where, layout)) return true;
    return false;
}

FittedText::Layout FittedText::Fit(const Question& question) {
    const int full = question.font.pixelSize();
    const auto part = [full](double of_full) { return std::max(std::min(full, kSmallestPixels), static_cast<int>(full * of_full)); };
    const bool has_room_for_two = question.most_lines > 1 && 2 * Pitch(QFontMetricsF(question.font), 2) <= question.room.height();
    Layout layout;
    if (FitLines(question, full, part(has_room_for_two ? kLittleLess : kLeast), Break::Never, layout) ||
        FitLines(question, full, part(kLeast), Break::BetweenWords, layout) ||
        FitLines(question, full, part(kLeast), Break::Never, layout) ||
        FitLines(question, full, part(kSmall), Break::BetweenWords, layout) ||
        FitLines(question, full, std::min(full, kSmallestPixels), Break::Anywhere, layout))
        return layout;
    QFont font = question.font;
    font.setPixelSize(part(kLeast));
    const QFontMetricsF small(font);
    const QString line = QString(question.text).replace(u'\n', u' ');
    return {{small.elidedText(line, Qt::ElideRight, question.room.width())}, font, Pitch(small, 1)};
}

// In the pixels of the screen: on a dense one sizes between two whole pixels can be had.
void FittedText::Paint(QPainter& painter, const QRectF& room, const QString& text, const QFont& font, Qt::Alignment alignment,
                       int most_lines) {
    const QString words = text.trimmed();
    if (words.isEmpty() || room.isEmpty()) return;
    const double density = painter.device()->devicePixelRatioF();
    const QRectF place(room.topLeft() * density, room.size() * density);
    QFont dense = font;
    dense.setPixelSize(static_cast<int>(font.pixelSize() * density));
    if (Question question{words, dense, place.size(), most_lines}; question != question_) {
        question_ = std::move(question);
        layout_ = Fit(question_);
    }
    painter.save();
    painter.scale(1 / density, 1 / density);
    PaintLayout(painter, place, alignment);
    painter.restore();
}

void FittedText::PaintLayout(QPainter& painter, const QRectF& place, Qt::Alignment alignment) const {
    painter.setFont(layout_.font);
    const QFontMetricsF metrics(layout_.font);
    const double height = layout_.pitch * static_cast<double>(layout_.lines.size());
    double top = place.top();
    if (alignment & Qt::AlignVCenter) top += (place.height() - height) / 2;
    double baseline = top + (layout_.pitch - metrics.height()) / 2 + metrics.ascent();
    for (const QString& line : layout_.lines) {
        const double spare = place.width() - metrics.horizontalAdvance(line);
        double left = place.left();
        if (alignment & Qt::AlignHCenter) left += spare / 2;
        if (alignment & Qt::AlignRight) left += spare;
        painter.drawText(QPointF(left, baseline), line);
        baseline += layout_.pitch;
    }
}
