// Writes one small file of every kind that the reader knows, or takes for another, into a folder: where the fuzzer begins.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "unit/sheet_file.h"

namespace {
std::filesystem::path folder;

void Write(const char* name, const std::string& bytes) {
    std::ofstream(folder / name, std::ios::binary) << bytes;
}

// Changes one cell of a sheet of two samples.
std::string With(std::size_t row, std::size_t cell, const std::string& text) {
    Rows rows = DataSheet(2);
    rows[row][cell] = text;
    return Joined(rows);
}
}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_corpus FOLDER\n";
        return 2;
    }
    folder = argv[1];
    std::filesystem::create_directories(folder);
    const Rows sheet = DataSheet(2);
    Write("one_sample", Joined(DataSheet(1)));
    Write("two_samples", Joined(sheet));
    Write("template", Joined(TemplateFile()));
    Write("older", Joined(OlderSheet(2)));
    Write("back_up", Joined(Rows(sheet.begin(), sheet.begin() + kSumRow)));
    Write("percentages", With(kTaxonRow, 4, "12.3457"));
    Write("unquoted", Joined(Unquoted(sheet), ",", "\n"));
    Write("semicolons", Joined(sheet, ";"));
    Write("marked", "\xEF\xBB\xBF" + Joined(sheet));
    Write("windows_1252", With(kTaxonRow, 3, "\"B\xE9tula\""));
    Write("utf8", With(kTaxonRow, 3, "\"\u03b2\u82b1\""));
    Write("lines_in_note", With(kNoteRow, 5, "\"Created: \r\nNote: \r\nLast saved: 14/11/2026 (10:11:12)\""));
    Write("bare_value", With(kParamRow, 4, "14.50"));
    Write("repeated_key", With(kTaxonRow + 5, 0, "3"));
    Write("key_too_large", With(kTaxonRow + 5, 0, "136"));
    Write("key_0", With(kTaxonRow + 5, 0, "0"));
    Write("serial_too_large", With(0, 4, "256"));
    Write("large_counts", With(kTaxonRow, 5, "2147483647"));
    Write("cut", Joined(Rows(sheet.begin(), sheet.begin() + 50)));
    Write("empty", "");
    return 0;
}
