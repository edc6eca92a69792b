// Puts lines, areas and letters on a page.
#pragma once
#include <string>
#include <vector>

#include "platform/page.h"

constexpr double kHairline = 0.4;    // points, as all widths
constexpr double kNameSize = 8;      // of letters: names and titles
constexpr double kNumberSize = 6.5;  // numbers along the axes, and what is small
constexpr Colour kGrey{110, 110, 110};

class Pen {
public:
    Pen(Page& page, const FontMetrics& metrics) : page_(page), metrics_(metrics) {}  // both must outlive it
    void Line(PagePoint from, PagePoint to, double width = kHairline, Colour colour = kBlack) { Lines({from, to}, width, colour); }
    void Lines(std::vector<PagePoint> points, double width, Colour colour);  // less than two draw nothing
    void DashedLine(PagePoint from, PagePoint to);
    void Area(Outline outline, Colour fill);              // less than three points draw nothing
    void Areas(std::vector<Outline> parts, Colour fill);  // as one; no part draws nothing
    void Rectangle(double left, double top, double right, double bottom, Colour fill);
    void Dot(PagePoint centre, double radius, Colour fill);
    void Write(PageText text);
    double WidthOf(const std::string& text, const Lettering& letters) const { return metrics_.WidthOf(text, letters); }

private:
    Page& page_;
    const FontMetrics& metrics_;
};
