// A text that is made to fit its box, so that no name is ever cut off: in one line, by a font down to seven tenths of its size; else
// on several lines, broken at blanks and behind hyphens; else the same with narrower letters, which read better than smaller ones; else
// broken anywhere, with the largest font that fits. Where two lines fit at full size, lines are broken before the font shrinks by much.
//
// Texts of a size group have letters of one size instead. Those that are too long for it have narrower letters or two lines; dots stand
// only for what then still does not go in.
#pragma once
#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class FittedText;

// Texts that stand side by side, in letters of the largest size at which each fits its room, but of 10 pixels at least. It is reckoned
// anew only after a text, a font or a room has changed.
class SizeGroup {
public:
    void Join(FittedText& text) { texts_.push_back(&text); }  // both live as long as their window
    void Forget();                                            // one of the texts has changed: all are to be painted anew
    int Pixels(double density);                               // of the letters, in pixels of the screen

private:
    std::vector<FittedText*> texts_;
    int pixels_ = 0;  // 0: to be reckoned
    double density_ = 0;
};

class FittedText {
public:
    struct Words {
        QString text;
        QFont font;  // its size is the largest that the letters have
        QRectF room;
        int most_lines = 1;
        bool operator==(const Words&) const = default;
    };

    // `words` tells what `shown_on` paints, whenever it is asked.
    void Join(SizeGroup& group, QWidget& shown_on, std::function<Words()> words);
    void Follow();      // of a group: what `words` tells may have changed
    void PaintAgain();  // soon

    // Paints in the painter's pen. The layout is kept for the next time that nothing has changed.
    void Paint(QPainter& painter, const Words& words, Qt::Alignment alignment);
    bool IsCut() const { return layout_.is_cut; }  // as it was last painted: dots stand for a part of it
    int LargestPixels(double density);             // of letters with which it fits, no matter if they are bold

private:
    struct Question {
        QString text;
        QFont font;
        QSizeF room;
        int most_lines = 0;
        int pixels = 0;  // 0: as it fits best
        bool operator==(const Question&) const = default;
    };
    struct Layout {
        QStringList lines;
        QFont font;
        double pitch = 0;  // from line to line
        bool is_cut = false;
    };
    static Question Ask(const Words& words, double density);
    void PaintLayout(QPainter& painter, const QRectF& place, Qt::Alignment alignment) const;
    static Layout Fit(const Question& question);
    static Layout FitInGroup(const Question& question);
    enum class Break { Never, BetweenWords, Anywhere };
    // With the largest of the sizes that does; false: none does.
    static bool FitLines(const Question& question, int largest, int smallest, Break where, Layout& layout, int stretch = 100);
    static bool FitAt(const Question& question, int pixels, Break where, Layout& layout, int stretch);
    static bool FitWords(const Question& question, int pixels, int narrowest, Layout& layout);  // `narrowest`: percent of their width
    static Layout Cut(const Question& question, int pixels);
    static bool FitNarrow(const Question& question, int largest, int smallest, Layout& layout);

    Question question_;
    Layout layout_;
    SizeGroup* group_ = nullptr;
    QWidget* shown_on_ = nullptr;
    std::function<Words()> words_;
    Words in_group_;         // as the group was last told of them, in bold letters
    int largest_ = 0;        // pixels for these; 0: to be reckoned
    double of_density_ = 0;  // and for this density
};
