// A page of print as a display list, in points (1/72 inch) from its upper left corner: what comes later lies above. Tests read the list; a
// platform writes it to files.
#pragma once
#include <string>
#include <variant>
#include <vector>

#include "platform/control.h"

struct PagePoint {
    double x = 0, y = 0;
    bool operator==(const PagePoint&) const = default;
};

struct PageLine {
    std::vector<PagePoint> points;  // two at least
    double width = 0.5;
    Colour colour = kBlack;
    bool dashed = false;
};

using Outline = std::vector<PagePoint>;  // three at least, closed by itself

struct PageArea {
    std::vector<Outline> parts;  // that may lie apart and overlap; without a rim
    Colour fill = kBlack;
};

struct PageDot {
    PagePoint centre;
    double radius = 1;
    Colour fill = kBlack;
};

struct Lettering {
    double size = 8;
    bool italic = false;
    bool bold = false;
};

struct PageText {
    enum class Anchor { Start, Middle, End };
    PagePoint at;  // of the anchor, on the base line
    std::string text;
    Lettering letters;
    Anchor anchor = Anchor::Start;
    double angle = 0;  // degrees, against the clock: 90 reads upward
    Colour colour = kBlack;
};

using PageItem = std::variant<PageLine, PageArea, PageDot, PageText>;

struct Page {
    double width = 0, height = 0;
    std::vector<PageItem> items;
};

// How wide the letters are that a platform writes.
class FontMetrics {
public:
    virtual ~FontMetrics() = default;
    virtual double WidthOf(const std::string& text, const Lettering& letters) const = 0;  // in points
};
