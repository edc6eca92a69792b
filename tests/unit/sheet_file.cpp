#include "unit/sheet_file.h"

#include "session/state/sheet_state.h"

namespace {
template <class Cell>
Row WithCells(Row labels, int samples, Cell cell) {
    for (int sample = 1; sample <= samples; ++sample) labels.push_back(cell(sample));
    return labels;
}

Row SumRow(const std::string& label, int samples) {
    return WithCells({"\"---\"", "\"---\"", "\"---\"", Quoted(label)}, samples, [](int) { return "0"; });
}
}  // namespace

Rows DataSheet(int samples) {
    using std::to_string;
    Rows rows;
    rows.push_back(WithCells({"\"/old/place.csv\"", "\"Last saved (dd/mm/yyyy):\"", "\"13/11/2026_(09:00:00)\"", "\"Serial No.\""}, samples,
                             [](int sample) { return to_string(sample); }));
    rows.push_back(WithCells({"\"Key index\"", "\"Trees\"", "\"Herbs\"", "\"Sample name\""}, samples,
                             [](int sample) { return Quoted(to_string(10 * sample)); }));
    for (int row = 1; row <= kSlots; ++row)
        rows.push_back(WithCells({to_string(row), to_string(row % 2), to_string(row % 3 == 0), Quoted("Taxon " + to_string(row))}, samples,
                                 [row](int sample) { return to_string((row + sample) % 100); }));
    for (int p = 1; p <= kParams; ++p)
        rows.push_back(WithCells({"\"---\"", "\"---\"", "\"---\"", Quoted("Info " + to_string(p))}, samples,
                                 [p](int sample) { return Quoted(to_string(p) + "/" + to_string(sample)); }));
    rows.push_back(WithCells({"\"---\"", "\"---\"", "\"---\"", "\"Note: \""}, samples,
                             [](int sample) { return Quoted("Note " + to_string(sample)); }));
    for (const char* label : {"Trees", "Herbs", "All total"}) rows.push_back(SumRow(label, samples));
    return rows;
}

Rows TemplateFile() {
    return DataSheet(0);
}

Rows OlderSheet(int samples) {
    Rows rows = DataSheet(samples);
    rows[0][1] = "\"Saved:\"";
    rows[0].insert(rows[0].begin() + 3, "\"by hand\"");
    rows.erase(rows.begin() + kSumRow, rows.end());
    rows.erase(rows.begin() + kParamRow, rows.begin() + kNoteRow);
    return rows;
}

std::string Quoted(const std::string& text) {
    return '"' + text + '"';
}

std::string Joined(const Rows& rows, const std::string& separator, const std::string& line_end) {
    std::string text;
    for (const Row& row : rows) {
        for (std::size_t cell = 0; cell < row.size(); ++cell) text += (cell > 0 ? separator : "") + row[cell];
        text += line_end;
    }
    return text;
}

Rows Unquoted(Rows rows) {
    for (Row& row : rows)
        for (std::string& cell : row)
            if (cell.starts_with('"') && cell.find_first_of(",\r\n") == std::string::npos) cell = cell.substr(1, cell.size() - 2);
    return rows;
}
