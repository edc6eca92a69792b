#include "figure/drawing/pen.h"

#include <utility>

void Pen::Lines(std::vector<PagePoint> points, double width, Colour colour) {
    if (points.size() >= 2) page_.items.push_back(PageLine{std::move(points), width, colour});
}

void Pen::DashedLine(PagePoint from, PagePoint to) {
    constexpr double kWidth = 0.6;
    page_.items.push_back(PageLine{{from, to}, kWidth, kGrey, true});
}

void Pen::Area(Outline outline, Colour fill) {
    if (outline.size() >= 3) page_.items.push_back(PageArea{{std::move(outline)}, fill});
}

void Pen::Areas(std::vector<Outline> parts, Colour fill) {
    if (!parts.empty()) page_.items.push_back(PageArea{std::move(parts), fill});
}

void Pen::Rectangle(double left, double top, double right, double bottom, Colour fill) {
    Area({{left, top}, {right, top}, {right, bottom}, {left, bottom}}, fill);
}

void Pen::Dot(PagePoint centre, double radius, Colour fill) {
    page_.items.push_back(PageDot{centre, radius, fill});
}

void Pen::Write(PageText text) {
    if (!text.text.empty()) page_.items.push_back(std::move(text));
}
