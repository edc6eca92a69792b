#include "drive/drawn.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <variant>

#include "drive/script.h"
#include "drive/values.h"
#include "platform/number.h"

namespace drive {

namespace {

using Shape = DrawOperation::Shape;

struct Quotable {
    std::string text;
};
// A word of the line of an operation: a number, a colour, a word from a list, or a text.
using Field = std::variant<double, Colour, std::string, Quotable>;

struct KindRow {
    const char* name;
    Shape shape;
    std::size_t fields;
};
constexpr KindRow kKinds[] = {
    {"line", Shape::Line, 5}, {"rect", Shape::Rectangle, 5}, {"circle", Shape::Circle, 5},
    {"text", Shape::Text, 4}, {"name", Shape::Name, 4},
};

const KindRow& KindNamed(const std::string& name) {
    const auto kind = std::find_if(std::begin(kKinds), std::end(kKinds), [&](const KindRow& row) { return name == row.name; });
    if (kind == std::end(kKinds)) throw ScriptFault("nothing drawn is called " + Quoted(name) + " (known: line, rect, circle, text, name)");
    return *kind;
}

const char* KindName(Shape shape) {
    return std::find_if(std::begin(kKinds), std::end(kKinds), [&](const KindRow& row) { return row.shape == shape; })->name;
}

// A scale without width is taken for one of width 1, as in drawing.
double OnScale(double start, double length, double fraction) {
    return start + fraction * (length == 0 ? 1 : length);
}

std::vector<Field> FieldsOf(const PictureBox& picture, const DrawOperation& drawn) {
    const auto x = [&](double fraction) { return OnScale(picture.ScaleLeft(), picture.ScaleWidth(), fraction); };
    const auto y = [&](double fraction) { return OnScale(picture.ScaleTop(), picture.ScaleHeight(), fraction); };
    switch (drawn.shape) {
        case Shape::Line:
            return {x(drawn.x1), y(drawn.y1), x(drawn.x2), y(drawn.y2), drawn.rim};
        case Shape::Rectangle:
            return {x(drawn.x1), y(drawn.y1), x(drawn.x2), y(drawn.y2), drawn.fill};
        case Shape::Circle:
            return {x(drawn.x1), y(drawn.y1), std::abs(OnScale(0, picture.ScaleWidth(), drawn.radius)), drawn.rim, drawn.fill};
        case Shape::Text:
            return {x(drawn.x1), y(drawn.y1), drawn.size, Quotable{drawn.text}};
        case Shape::Name:
        case Shape::Curve:
            break;
    }
    return {drawn.x1, drawn.y1, std::string(drawn.italic ? "italic" : "upright"), Quotable{drawn.text}};
}

// A curve is seen as the lines that it is made of.
template <class Visit>
void VisitDrawn(const DrawOperation& drawn, Visit visit) {
    if (drawn.shape != Shape::Curve) return visit(drawn);
    DrawOperation line;
    line.rim = drawn.rim;
    for (std::size_t i = 1; i < drawn.heights.size(); ++i) {
        const PicturePoint from = drawn.PointOf(i - 1), to = drawn.PointOf(i);
        line.x1 = from.x;
        line.y1 = from.y;
        line.x2 = to.x;
        line.y2 = to.y;
        visit(line);
    }
}

template <class Is>
int CountWhere(const PictureBox& picture, Is is) {
    int count = 0;
    for (const DrawOperation& drawn : picture.Operations())
        VisitDrawn(drawn, [&](const DrawOperation& each) { count += is(each) ? 1 : 0; });
    return count;
}

// Six decimals: what lies beyond is the rounding of the scale.
std::string NumberWord(double number) {
    return std::isfinite(number) ? ValueText(RoundHalfEven(number, 6)) : ValueText(number);
}

std::string FieldText(const Field& field) {
    if (const auto* number = std::get_if<double>(&field)) return NumberWord(*number);
    if (const auto* colour = std::get_if<Colour>(&field)) return ValueText(*colour);
    if (const auto* word = std::get_if<std::string>(&field)) return *word;
    return Quoted(std::get<Quotable>(field).text);
}

bool IsNumber(const std::string& word, double number) {
    constexpr double kSlack = 0.001;
    if (word == "*") return true;
    const auto wanted = AsDecimal(word);
    if (!wanted) throw ScriptFault(Quoted(word) + " is not a number");
    return std::abs(*wanted - number) <= kSlack * (1 + 1e-9);
}

bool IsColour(const std::string& word, Colour colour) {
    const int parts[] = {colour.red, colour.green, colour.blue};
    std::size_t from = 0;
    bool same = true;
    for (const int part : parts) {
        if (from > word.size()) throw ScriptFault(Quoted(word) + " is not a colour: R,G,B");
        const std::size_t comma = std::min(word.find(',', from), word.size());
        same = IsNumber(word.substr(from, comma - from), part) && same;
        from = comma + 1;
    }
    if (from <= word.size()) throw ScriptFault(Quoted(word) + " is not a colour: R,G,B");
    return same;
}

bool IsField(const std::string& word, const Field& field) {
    if (const auto* number = std::get_if<double>(&field)) return IsNumber(word, *number);
    if (const auto* colour = std::get_if<Colour>(&field)) return IsColour(word, *colour);
    if (const auto* text = std::get_if<Quotable>(&field)) return word == text->text;
    return word == FieldText(field);
}

bool IsDrawnAs(const std::vector<std::string>& words, const std::vector<Field>& fields) {
    bool same = true;
    for (std::size_t place = 0; place < fields.size(); ++place)  // looks at all of them, so that a faulty word is always found
        same = IsField(words[place + 1], fields[place]) && same;
    return same;
}

std::string LineOf(const PictureBox& picture, const DrawOperation& drawn) {
    std::string line = KindName(drawn.shape);
    for (const Field& field : FieldsOf(picture, drawn)) line.append(" ").append(FieldText(field));
    return line;
}

}  // namespace

std::vector<std::string> PictureLines(const PictureBox& picture) {
    std::vector<std::string> lines = {"scale " + ScaleText(picture)};
    const auto& operations = picture.Operations();
    for (std::size_t place = 0; place <= operations.size(); ++place) {
        if (picture.IsPersistent() && place == picture.PersistentCount()) lines.push_back("persist");
        if (place == operations.size()) break;
        VisitDrawn(operations[place], [&](const DrawOperation& drawn) { lines.push_back(LineOf(picture, drawn)); });
    }
    return lines;
}

int CountDrawn(const PictureBox& picture, const std::string& line) {
    const std::vector<std::string> words = SplitWords(line);
    if (words.empty()) throw ScriptFault("an empty text says nothing of what is drawn");
    const KindRow& kind = KindNamed(words[0]);
    if (words.size() != kind.fields + 1)
        throw ScriptFault("a " + words[0] + " has " + std::to_string(kind.fields) + " values, not " + std::to_string(words.size() - 1));
    DrawOperation any;
    any.shape = kind.shape;
    IsDrawnAs(words, FieldsOf(picture, any));  // finds a faulty word even if nothing is drawn
    return CountWhere(picture,
                      [&](const DrawOperation& drawn) { return drawn.shape == kind.shape && IsDrawnAs(words, FieldsOf(picture, drawn)); });
}

int CountKind(const PictureBox& picture, const std::string& kind) {
    const Shape shape = KindNamed(kind).shape;
    return CountWhere(picture, [shape](const DrawOperation& drawn) { return drawn.shape == shape; });
}

int CountAll(const PictureBox& picture) {
    return CountWhere(picture, [](const DrawOperation&) { return true; });
}

bool ScaleIs(const PictureBox& picture, const std::vector<std::string>& left_top_width_height) {
    const double now[] = {picture.ScaleLeft(), picture.ScaleTop(), picture.ScaleWidth(), picture.ScaleHeight()};
    bool same = true;
    for (std::size_t place = 0; place < std::size(now); ++place) same = IsNumber(left_top_width_height.at(place), now[place]) && same;
    return same;
}

std::string ScaleText(const PictureBox& picture) {
    return NumberWord(picture.ScaleLeft()) + " " + NumberWord(picture.ScaleTop()) + " " + NumberWord(picture.ScaleWidth()) + " " +
           NumberWord(picture.ScaleHeight());
}

}  // namespace drive
