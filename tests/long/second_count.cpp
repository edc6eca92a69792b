#include "long/second_count.h"

int InSubtotal(int slot, int subtotal) {
    return slot % (subtotal + 1) == 0;
}

int TotalOf(const Sample& sample) {
    int total = 0;
    for (const int count : sample.counts) total += count;
    return total;
}

int SubtotalOf(const Sample& sample, int subtotal) {
    int total = 0;
    for (int slot = 1; slot <= kSlots; ++slot) total += sample.counts[slot] * InSubtotal(slot, subtotal);
    return total;
}

namespace {
template <class Cell>
std::string Line(std::string labels, const Sheet& sheet, Cell cell) {
    for (const Sample& sample : sheet.samples) labels.append(",").append(cell(sample));
    return labels + "\r\n";
}

std::string LinesUpToTheNotes(const Sheet& sheet, const std::string& label) {
    using std::to_string;
    std::string text = Line("\"" + sheet.path + "\",\"" + label + "\",\"14/11/2026_(" + sheet.time + ")\",\"Serial No.\"", sheet,
                            [](const Sample& sample) { return to_string(sample.serial); });
    text += Line("\"Key index\",\"Subtotal-1\",\"Subtotal-2\",\"Sample name\"", sheet,
                 [](const Sample& sample) { return "\"" + sample.name + "\""; });
    for (int slot = 1; slot <= kSlots; ++slot)
        text += Line(to_string(slot) + "," + to_string(InSubtotal(slot, 1)) + "," + to_string(InSubtotal(slot, 2)) + ",\"---\"", sheet,
                     [slot](const Sample& sample) { return to_string(sample.counts[slot]); });
    for (int p = 1; p <= kParams; ++p)
        text += Line("\"---\",\"---\",\"---\",\"Additional info-" + to_string(p) + "\"", sheet, [](const Sample&) { return "\"---\""; });
    return text + Line("\"---\",\"---\",\"---\",\"Note: \"", sheet, [](const Sample& sample) { return "\"" + sample.note + "\""; });
}

// A file has one byte for each letter.
std::string InBytes(std::string text) {
    for (std::size_t at = 0; (at = text.find("ö", at)) != std::string::npos;) text.replace(at, 2, "\xF6");
    return text;
}
}  // namespace

std::string BackUpOf(const Sheet& sheet) {
    return InBytes(LinesUpToTheNotes(sheet, "Backed up (dd/mm/yyyy):"));
}

std::string FileOf(const Sheet& sheet) {
    using std::to_string;
    return InBytes(
        LinesUpToTheNotes(sheet, "Last saved (dd/mm/yyyy):") +
        Line("\"---\",\"---\",\"---\",\"Subtotal-1\"", sheet, [](const Sample& sample) { return to_string(SubtotalOf(sample, 1)); }) +
        Line("\"---\",\"---\",\"---\",\"Subtotal-2\"", sheet, [](const Sample& sample) { return to_string(SubtotalOf(sample, 2)); }) +
        Line("\"---\",\"---\",\"---\",\"All total\"", sheet, [](const Sample& sample) { return to_string(TotalOf(sample)); }));
}
