#include "platform/qt/fitted_text.h"

#include <QFontMetricsF>
#include <QWidget>
#include <algorithm>
#include <limits>
#include <utility>

namespace {
constexpr double kLittleLess = 0.85;  // of the font, before lines are broken where there is room for two
constexpr double kLeast = 0.7;        // of the font, before they are broken where there is not
constexpr double kSmall = 0.55;       // of the font, before words are
constexpr int kNarrow[] = {85, 70};   // percent of their width, for letters that would else be too small
constexpr int kSmallestPixels = 6;    // smaller letters cannot be read
constexpr int kSmallestInGroup = 10;  // pixels of the toolkit: at arm's length
constexpr int kBeyondAnyLine = 400;   // characters, in a script whose letters have a width
constexpr double kTight = 0.86;       // several lines stand closer than single ones where they must

// How many characters go in a line; a long text is not measured beyond it. Measuring thousands of marks without a width takes long.
qsizetype CharactersThatFit(const QString& text, const QFontMetricsF& metrics, double width) {
    const auto fit = [&](qsizetype count) { return metrics.horizontalAdvance(text.left(count)) <= width; };
    const qsizetype most = std::min<qsizetype>(text.size(), kBeyondAnyLine);
    qsizetype fits = 0, beyond = 16;
    while (beyond <= most && fit(beyond)) {
        fits = beyond;
        beyond *= 2;
    }
    beyond = std::min(beyond, most + 1);
    while (beyond - fits > 1) {
        const qsizetype middle = (fits + beyond) / 2;
        (fit(middle) ? fits : beyond) = middle;
    }
    return fits;
}

// How much of `text` goes in one line, broken between words if that is possible. 0: its first word is too long. A break at a blank is
// taken before a later one behind a hyphen, if the rest then goes in the next line.
qsizetype WordsThatFit(const QString& text, const QFontMetricsF& metrics, double width) {
    const qsizetype fits = CharactersThatFit(text, metrics, width);
    if (fits == text.size()) return fits;
    const auto rest_fits = [&](qsizetype end) { return CharactersThatFit(text.mid(end), metrics, width) == text.size() - end; };
    qsizetype behind_hyphen = 0;
    for (qsizetype end = fits; end > 0; --end) {
        if (text[end] == u' ' && (behind_hyphen == 0 || rest_fits(end + 1))) return end;
        if (behind_hyphen == 0 && (text[end - 1] == u'-' || text[end - 1] == u'/') && text[end].isLetter()) behind_hyphen = end;
    }
    return behind_hyphen;
}

double Pitch(const QFontMetricsF& metrics, qsizetype lines) {
    return (metrics.ascent() + metrics.descent()) * (lines > 1 ? kTight : 1);
}

double HeightOf(const QFontMetricsF& metrics, qsizetype lines) {
    return Pitch(metrics, lines) * static_cast<double>(lines - 1) + Pitch(metrics, 1);
}

// A single line may stand over: it is the height of the box that is meant for it.
bool IsTooHigh(const QFontMetricsF& metrics, qsizetype lines, double height) {
    return lines > 1 && HeightOf(metrics, lines) > height;
}
}  // namespace

bool FittedText::FitAt(const Question& question, int pixels, Break where, Layout& layout, int stretch) {
    QFont font = question.font;
    font.setPixelSize(pixels);
    font.setStretch(stretch);
    const QFontMetricsF metrics(font);
    const double width = question.room.width();
    const int most = where == Break::Never ? 1 : question.most_lines;
    QStringList lines;
    for (QString rest : question.text.split(u'\n')) do {
            qsizetype length = WordsThatFit(rest, metrics, width);
            if (length == 0 && !rest.isEmpty() && where != Break::Anywhere) return false;
            if (length == 0) length = std::max<qsizetype>(CharactersThatFit(rest, metrics, width), 1);
            lines << rest.left(length).trimmed();
            if (lines.size() > most || IsTooHigh(metrics, lines.size(), question.room.height())) return false;
            rest = rest.mid(length).trimmed();
        } while (!rest.isEmpty());
    const double loose = Pitch(metrics, 1), count = static_cast<double>(lines.size());
    const double pitch = loose * count <= question.room.height() ? loose : Pitch(metrics, lines.size());
    layout = {std::move(lines), font, pitch};
    return true;
}

// In letters as wide as they are if that is possible.
bool FittedText::FitWords(const Question& question, int pixels, int narrowest, Layout& layout) {
    for (const int stretch : {100, kNarrow[0], kNarrow[1]})
        for (const Break where : {Break::Never, Break::BetweenWords})
            if (stretch >= narrowest && FitAt(question, pixels, where, layout, stretch)) return true;
    return false;
}

bool FittedText::FitLines(const Question& question, int largest, int smallest, Break where, Layout& layout, int stretch) {
    for (int pixels = largest; pixels >= smallest; --pixels)
        if (FitAt(question, pixels, where, layout, stretch)) return true;
    return false;
}

bool FittedText::FitNarrow(const Question& question, int largest, int smallest, Layout& layout) {
    for (const int stretch : kNarrow)
        for (const Break where : {Break::BetweenWords, Break::Never})
            if (FitLines(question, largest, smallest, where, layout, stretch)) return true;
    return false;
}

// As many lines as there is room for; dots stand for the rest.
FittedText::Layout FittedText::Cut(const Question& question, int pixels) {
    QFont font = question.font;
    font.setPixelSize(pixels);
    const QFontMetricsF metrics(font);
    const double width = question.room.width();
    int rows = question.most_lines;
    while (rows > 1 && IsTooHigh(metrics, rows, question.room.height())) --rows;
    QStringList lines;
    QString rest = question.text;
    while (!rest.isEmpty() && lines.size() < rows - 1) {
        const QString line = rest.section(u'\n', 0, 0);
        qsizetype length = WordsThatFit(line, metrics, width);
        if (length == 0 && !line.isEmpty()) length = std::max<qsizetype>(CharactersThatFit(line, metrics, width), 1);
        lines << line.left(length).trimmed();
        rest = length == line.size() ? rest.mid(length + 1) : rest.mid(length).trimmed();
    }
    rest.replace(u'\n', u' ');
    if (!rest.isEmpty()) lines << metrics.elidedText(rest.left(kBeyondAnyLine), Qt::ElideRight, width);
    return {lines, font, Pitch(metrics, lines.size()), !rest.isEmpty() && lines.back() != rest};
}

FittedText::Layout FittedText::FitInGroup(const Question& question) {
    Layout layout;
    if (FitWords(question, question.pixels, kNarrow[1], layout)) return layout;
    for (const int stretch : kNarrow)
        if (FitAt(question, question.pixels, Break::Anywhere, layout, stretch)) return layout;
    return Cut(question, question.pixels);
}

FittedText::Layout FittedText::Fit(const Question& question) {
    if (question.pixels > 0) return FitInGroup(question);
    const int full = question.font.pixelSize();
    const auto part = [full](double of_full) { return std::max(std::min(full, kSmallestPixels), static_cast<int>(full * of_full)); };
    const QFontMetricsF metrics(question.font);
    const bool has_room_for_two = question.most_lines > 1 && HeightOf(metrics, 2) <= question.room.height();
    const bool is_for_reading =
        question.most_lines > 2 && HeightOf(metrics, 3) <= question.room.height();  // a note is cut before it gets tiny
    Layout layout;
    if (FitLines(question, full, part(has_room_for_two ? kLittleLess : kLeast), Break::Never, layout) ||
        FitLines(question, full, part(kLeast), Break::BetweenWords, layout) ||
        FitLines(question, full, part(kLeast), Break::Never, layout) || FitNarrow(question, full, part(kLeast), layout) ||
        (!is_for_reading && FitLines(question, full, part(kSmall), Break::BetweenWords, layout)) ||
        FitLines(question, full, is_for_reading ? part(kLeast) : std::min(full, kSmallestPixels), Break::Anywhere, layout))
        return layout;
    return Cut(question, part(kLeast));
}

// ---- One size for several ----

void SizeGroup::Forget() {
    if (std::exchange(pixels_, 0) == 0) return;
    for (FittedText* text : texts_) text->PaintAgain();
}

int SizeGroup::Pixels(double density) {
    if (pixels_ > 0 && density == density_) return pixels_;
    pixels_ = std::numeric_limits<int>::max();
    density_ = density;
    for (FittedText* text : texts_) pixels_ = std::min(pixels_, text->LargestPixels(density));
    return pixels_;
}

void FittedText::Join(SizeGroup& group, QWidget& shown_on, std::function<Words()> words) {
    group_ = &group;
    shown_on_ = &shown_on;
    words_ = std::move(words);
    group.Join(*this);
}

// A name gets bold when it is counted: as if it were that already, so that no key changes the size of a bank.
void FittedText::Follow() {
    if (!group_) return;
    Words words = words_();
    words.font.setBold(true);
    if (words == in_group_) return;
    in_group_ = std::move(words);
    largest_ = 0;
    group_->Forget();
}

void FittedText::PaintAgain() {
    shown_on_->update();
}

// Letters narrower than those beside them stand out, so all get somewhat smaller first.
int FittedText::LargestPixels(double density) {
    if (largest_ > 0 && density == of_density_) return largest_;
    const Question question = Ask(in_group_, density);
    const int full = question.font.pixelSize(), floor = std::min(full, static_cast<int>(kSmallestInGroup * density));
    const auto fits = [&](int pixels) {
        Layout layout;
        const int narrowest = pixels > full * kLittleLess ? 100 : pixels > full * kLeast ? kNarrow[0] : kNarrow[1];
        return FitWords(question, pixels, narrowest, layout);
    };
    largest_ = full;
    of_density_ = density;
    while (largest_ > floor && !fits(largest_)) --largest_;
    return largest_;
}

// ---- Painting ----

// In the pixels of the screen: on a dense one sizes between two whole pixels can be had.
FittedText::Question FittedText::Ask(const Words& words, double density) {
    QFont dense = words.font;
    dense.setPixelSize(static_cast<int>(dense.pixelSize() * density));
    return {words.text.trimmed(), dense, words.room.size() * density, words.most_lines};
}

void FittedText::Paint(QPainter& painter, const Words& words, Qt::Alignment alignment) {
    const double density = painter.device()->devicePixelRatioF();
    Question question = Ask(words, density);
    if (question.text.isEmpty() || question.room.isEmpty()) {
        layout_.is_cut = false;
        return;
    }
    if (group_) question.pixels = group_->Pixels(density);
    if (question != question_) {
        question_ = std::move(question);
        layout_ = Fit(question_);
    }
    painter.save();
    painter.scale(1 / density, 1 / density);
    PaintLayout(painter, {words.room.topLeft() * density, question_.room}, alignment);
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
