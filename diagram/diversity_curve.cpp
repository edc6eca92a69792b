#include "diagram/diversity_curve.h"

#include <cmath>
#include <string>

#include "platform/number.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
constexpr Colour kCurve{255, 0, 0};
constexpr Colour kAxis{100, 100, 100};
constexpr double kLongestCurve = 32767;  // past it the curve stands still, and counting goes on

void RecordPoint(double total) {
    TaxaSeen = 0;
    for (int slot = 1; slot <= kSlots; ++slot)
        if (frmMain.TaxonCounts[slot].Number() != 0) ++TaxaSeen;
    if (std::abs(total) <= kLongestCurve) DiversityLength = ToInt16(total);
    if (DiversityLength < 0) return;  // reverse counts alone: there is nothing to hold
    DiversityCurve.resize(static_cast<std::size_t>(DiversityLength) + 1);
    DiversityCurve[0] = 0;
    // The first count after a start or a change of sample has not passed the old-sample test yet: it leaves a gap (docs/quirks.md).
    if (!WarnOldSample) DiversityCurve[DiversityLength] = ToInt16(TaxaSeen * 10);
}

// The data fill the right and upper part, both axes from 0 to ten times their largest value; the rest is room for the labels.
void SetScale(PictureBox& picture) {
    if (TaxaSeen > 0) {
        picture.SetScaleTop(TaxaSeen * 11.7);
        picture.SetScaleHeight(TaxaSeen * -14.0);
    }
    if (DiversityLength > 0) {
        picture.SetScaleLeft(DiversityLength * -1.2);
        picture.SetScaleWidth(DiversityLength * 12.0);
    }
}

void DrawLabels(PictureBox& picture) {
    const double taxa = TaxaSeen;
    const double total = DiversityLength;
    const std::string taxa_text = NumberText(taxa);
    const std::string total_text = NumberText(total);
    const auto digits = [](const std::string& text) { return static_cast<double>(Length(text)); };
    const auto print_below = [&](double x, const std::string& text) { picture.Print(x, taxa * -0.2, 7, text, kAxis); };
    const auto print_beside = [&](double x, double y, const std::string& text) { picture.PrintBefore(0, x, y, 7, text, kAxis); };
    print_below(0, "0");
    print_below((9.9 - 0.2 * digits(total_text)) * total, total_text);
    print_beside(total * -0.43, taxa * 0.9, "0");
    print_beside((-0.35 - 0.33 * digits(taxa_text)) * total, taxa * 10.9, taxa_text);
}

// The least total that has a point. In a sheet that was opened with thousands of grains it is far from 0: the way there is looked
// through in blocks, at each key.
int FirstPoint() {
    constexpr int kBlock = 64;
    const auto is_empty = [](const std::int16_t* begin) {
        std::int16_t any = 0;
        for (int i = 0; i < kBlock; ++i) any |= begin[i];
        return any == 0;
    };
    int first = 0;
    while (first + kBlock <= DiversityLength && is_empty(&DiversityCurve[first])) first += kBlock;
    return first;
}

// A gap in the record is a gap in the curve.
void DrawStretches(PictureBox& picture) {
    for (int n = FirstPoint(); n <= DiversityLength; ++n) {
        const int begin = n;
        while (n <= DiversityLength && DiversityCurve[n] != 0) ++n;
        if (n - begin > 1) picture.Curve(10.0 * begin, 10, {DiversityCurve.data() + begin, DiversityCurve.data() + n}, kCurve);
    }
}

void DrawCurve(PictureBox& picture, const std::string& total) {
    picture.Clear();
    if (total == "1") DiversityCurve[1] = 10;
    DrawStretches(picture);
    picture.Line(0, 0, 10.0 * DiversityLength, 0, kAxis);
    picture.Line(0, 0, 0, 10.0 * TaxaSeen, kAxis);
    DrawLabels(picture);
}
}  // namespace

void FollowTotal() {
    if (frmMain.AllTotal.Text() == "0")
        frmMain.DiversityPicture.Clear();
    else
        DrawDiversityCurve();
}

void BeginDiversityCurve() {
    frmMain.DiversityPicture.Clear();
    DiversityCurve.clear();
    const double total = frmMain.AllTotal.Number();
    if (total < 0 || total > kLongestCurve) return;
    DiversityCurve.resize(static_cast<std::size_t>(total) + 1);
    DiversityCurve[0] = ToInt16(total);
}

void DrawDiversityCurve() {
    PictureBox& picture = frmMain.DiversityPicture;
    const TextBox& total = frmMain.AllTotal;
    RecordPoint(total.Number());
    SetScale(picture);
    DrawCurve(picture, total.Text());
}
