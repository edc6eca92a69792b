// A text that is made to fit its box, so that no name is ever cut off: in one line, by a font down to seven tenths of its size; else
// on several lines, broken at blanks and behind hyphens; else the same with narrower letters, which read better than smaller ones; else
// broken anywhere, with the largest font that fits. Where two lines fit at full size, lines are broken before the font shrinks by much.
#pragma once
#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QStringList>

class FittedText {
public:
    // Paints in the painter's pen. The layout is kept for the next time that nothing has changed.
    void Paint(QPainter& painter, const QRectF& room, const QString& text, const QFont& font, Qt::Alignment alignment, int most_lines);

private:
    struct Question {
        QString text;
        QFont font;
        QSizeF room;
        int most_lines = 0;
        bool operator==(const Question&) const = default;
    };
    struct Layout {
        QStringList lines;
        QFont font;
        double pitch = 0;  // from line to line
    };
    void PaintLayout(QPainter& painter, const QRectF& place, Qt::Alignment alignment) const;
    static Layout Fit(const Question& question);
    enum class Break { Never, BetweenWords, Anywhere };
    // With the largest of the sizes that does; false: none does.
    static bool FitLines(const Question& question, int largest, int smallest, Break where, Layout& layout, int stretch = 100);
    static bool FitAt(const Question& question, int pixels, Break where, Layout& layout, int stretch);
    static Layout Cut(const Question& question, int pixels);
    static bool FitNarrow(const Question& question, int largest, int smallest, Layout& layout);

    Question question_;
    Layout layout_;
};
