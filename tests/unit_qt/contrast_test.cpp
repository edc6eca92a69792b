// Every pair of colours that lie beside each other, by the contrast ratio of WCAG 2: words 4.5 at least, those that rest 4, edges and
// signs 3.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "platform/qt/look.h"

namespace {
double Light(double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Light(colour.redF()) + 0.7152 * Light(colour.greenF()) + 0.0722 * Light(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

struct Pair {
    const char* what;
    QColor colour, ground;
    double least;
};

const QColor kForm = ToQt(kFormColour), kSheet = Qt::white;
const QColor kBlock{250, 251, 252}, kCountedCell{255, 255, 110}, kUndoneCell{255, 255, 135}, kModifyGround{200, 100, 100};

TEST(ContrastTest, BlackOnWhiteIs21) {
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
}

TEST(ContrastTest, WordsAndEdgesStandOutFromTheirGround) {
    const Pair pairs[] = {
        {"words on the form", Qt::black, kForm, 7},
        {"quiet words on the form", ToQt(Colour{90, 98, 106}), kForm, 4.5},
        {"resting words on the form", kRestingWords, kForm, 4},
        {"words of a counted cell", Qt::black, kCountedCell, 7},
        {"words of an undone cell", Qt::black, kUndoneCell, 7},
        {"words in a resting box", Qt::black, kRestingBox, 7},
        {"words on the ground of Modify", Qt::black, kModifyGround, 4.5},
        {"a button that is pressed", Qt::white, kAccent, 4.5},
        {"what is chosen in a menu", Qt::white, kAccent, 4.5},
        {"the program's title in About", QColor(0, 0, 128), kForm, 7},
        {"dark red in About", QColor(150, 0, 0), kForm, 4.5},
        {"dark green in About", QColor(0, 100, 0), kForm, 4.5},
        {"the curve of taxa", Qt::red, kSheet, 3},
        {"bars of the diagram", QColor(0, 128, 0), kSheet, 4.5},
        {"the line of the sample", QColor(0, 0, 255), kSheet, 4.5},
        {"the edge of a box on the form", kBoxEdge, kForm, 3},
        {"the edge of a box on a block of the pad", kBoxEdge, kBlock, 3},
        {"the edge of a box on its white", kBoxEdge, kSheet, 3},
        {"the edge of a box on a counted cell", kBoxEdge, kCountedCell, 3},
        {"the edge in focus", kAccent, kForm, 3},
    };
    for (const Pair& pair : pairs) EXPECT_GE(Contrast(pair.colour, pair.ground), pair.least) << pair.what;
}
}  // namespace
