#include "platform/qt/fitted_text.h"

#include <QFontMetricsF>
#include <algorithm>

namespace {
constexpr double kLeast = 0.7;      // of the font, before a line is broken
constexpr int kSmallestPixels = 6;  // nobody reads less
constexpr double kTight = 0.9;      // several lines stand closer than single ones

// How much of `text` goes in one line: up to a blank or behind a hyphen if there is one to break at.
qsizetype LineLength(const QString& text, const QFontMetricsF& metrics, double width) {
    if (metrics.horizontalAdvance(text) <= width) return text.size();
    qsizetype fits = 0;
    while (fits < text.size() && metrics.horizontalAdvance(text.left(fits + 1)) <= width) ++fits;
    for (qsizetype end = fits; end > 0; --end)
        if (text[end] == u' ' || text[end - 1] == u' ' || text[end - 1] == u'-') return end;
    return std::max<qsizetype>(fits, 1);
}

QStringList BrokenLines(const QString& text, const QFontMetricsF& metrics, double width, int most_lines) {
    QStringList lines;
    for (QString rest : text.split(u'\n')) {
        do {
            const qsizetype length = LineLength(rest, metrics, width);
            lines << rest.left(length).trimmed();
            rest = rest.mid(length).trimmed();
        } while (!rest.isEmpty() && lines.size() <= most_lines);
        if (lines.size() > most_lines) break;
    }
    return lines;
}

double Pitch(const QFontMetricsF& metrics, qsizetype lines) {
    return (metrics.ascent() + metrics.descent()) * (lines > 1 ? kTight : 1);
}
}  // namespace

bool FittedText::FitLines(const Question& question, int pixels, int most_lines, Layout& layout) {
    QFont font = question.font;
    font.setPixelSize(pixels);
    const QFontMetricsF metrics(font);
    QStringList lines = BrokenLines(question.text, metrics, question.room.width(), most_lines);
    const double pitch = Pitch(metrics, lines.size());
    if (lines.size() > most_lines) return false;
    if (lines.size() > 1 && pitch * static_cast<double>(lines.size()) > question.room.height() + 1) return false;
    layout = {std::move(lines), font, pitch};
    return true;
}

FittedText::Layout FittedText::Fit(const Question& question) {
    const int full = question.font.pixelSize();
    const int least = std::max(std::min(full, kSmallestPixels), static_cast<int>(full * kLeast));
    const QFontMetricsF metrics(question.font);
    const bool breaks_first = question.most_lines > 1 && 2 * Pitch(metrics, 2) <= question.room.height();
    Layout layout;
    if (!breaks_first)
        for (int pixels = full; pixels >= least; --pixels)
            if (FitLines(question, pixels, 1, layout)) return layout;
    for (int pixels = full; pixels >= kSmallestPixels; --pixels)
        if (FitLines(question, pixels, question.most_lines, layout)) return layout;
    QFont font = question.font;
    font.setPixelSize(least);
    const QFontMetricsF small(font);
    const QString line = QString(question.text).replace(u'\n', u' ');
    return {{small.elidedText(line, Qt::ElideRight, question.room.width())}, font, Pitch(small, 1)};
}

void FittedText::Paint(QPainter& painter, const QRectF& room, const QString& text, const QFont& font, Qt::Alignment alignment,
                       int most_lines) {
    if (text.isEmpty() || room.isEmpty()) return;
    if (Question question{text, font, room.size(), most_lines}; question != question_) {
        question_ = std::move(question);
        layout_ = Fit(question_);
    }
    painter.setFont(layout_.font);
    const QFontMetricsF metrics(layout_.font);
    const double height = layout_.pitch * static_cast<double>(layout_.lines.size());
    double top = room.top();
    if (alignment & Qt::AlignVCenter) top += (room.height() - height) / 2;
    double baseline = top + (layout_.pitch - metrics.height()) / 2 + metrics.ascent();
    for (const QString& line : layout_.lines) {
        const double spare = room.width() - metrics.horizontalAdvance(line);
        double left = room.left();
        if (alignment & Qt::AlignHCenter) left += spare / 2;
        if (alignment & Qt::AlignRight) left += spare;
        painter.drawText(QPointF(left, baseline), line);
        baseline += layout_.pitch;
    }
}
