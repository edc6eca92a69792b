#include "diagram/taxon_names.h"

#include "diagram/data/italics.h"
#include "diagram/data/percentages.h"
#include "diagram/draw_diagram.h"
#include "platform/number.h"
#include "platform/services.h"
#include "platform/text.h"
#include "windows/diagram_window.h"

namespace {
bool HasName(int row) {
    return !DiagramNames[row].empty() && DiagramNames[row] != kEmpty;
}

std::int32_t BaseLine() {
    constexpr double kPixelsPerTwip = 0.0667;
    return ToInt32(frmDiagram.NameStrip.Height() * kPixelsPerTwip - 8);
}
}  // namespace

void DrawTaxonNames() {
    const double scale = HorizontalScale();
    const std::int32_t y = BaseLine();
    const Italics italic = ItalicRows();
    frmDiagram.NameStrip.Clear();
    for (int row = 1; row <= kSlots; ++row) {
        const double left = static_cast<double>(ColumnOffset[row]) - frmDiagram.ColumnScroll.Value();
        const auto x = static_cast<float>(left * scale);
        if (x < 0 || x >= frmDiagram.Diagram.ScaleWidth()) continue;
        const bool has_name = HasName(row);
        frmDiagram.NameStrip.Name(ToInt32(left * 0.99 * scale), y, has_name && italic[row], has_name ? DiagramNames[row] : kEmpty);
    }
}

void CopyTaxonNames() {
    frmDiagram.NameStrip.SetBackColor(kWhite);
    DrawTaxonNames();
    services.clipboard->PutImage(frmDiagram.NameStrip);
    frmDiagram.NameStrip.SetBackColor(kFormColour);
    DrawTaxonNames();
}
