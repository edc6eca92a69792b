// marlbrook-figure: from the sheet of a counted core to its figure and its tables.
#include <cstdlib>
#include <filesystem>
#include <future>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "figure/drawing/figure.h"
#include "figure/drawing/taxon_columns.h"
#include "figure/sheet/fault.h"
#include "figure/sheet/read_core.h"
#include "figure/tables/tables.h"
#include "platform/headless/files.h"
#include "platform/qt/figure/page_files.h"
#include "platform/services.h"
#include "program/figure_arguments.h"
#include "program/figure_files.h"
#include "program/figure_jobs.h"
#include "program/figure_shell.h"

namespace {
namespace fs = std::filesystem;
constexpr int kBadInput = 2;

// "/home/ann/core" of "/home/ann/core.csv", or in the folder that was named.
std::string Stem(const std::string& sheet, const std::string& folder) {
    std::string path = sheet.substr(0, sheet.size() - (sheet.ends_with(".csv") || sheet.ends_with(".CSV") ? 4 : 0));
    if (folder.empty()) return path;
    return folder + "/" + PathText(DiskPath(path).filename());
}

std::string TablePath(const std::string& stem, const std::string& name) {
    return stem + "_tables/" + name;
}

FileTexts FigureFiles(const std::string& stem, const Core& core, const FigureArguments& arguments, const PageFiles& toolkit) {
    FileTexts files;
    FigureOptions wide = arguments.figure;
    wide.one_page = true;
    const Page page = DrawFigure(core, wide, toolkit).front();
    const std::string& title = arguments.figure.title.empty() ? core.title : arguments.figure.title;
    files[stem + ".svg"] = toolkit.Svg(page, title);
    files[stem + ".pdf"] = toolkit.Pdf(DrawFigure(core, arguments.figure, toolkit), title);
    if (!arguments.png) return files;
    std::string png = toolkit.Png(page, *arguments.png);
    if (png.empty()) throw FigureFault("a picture of " + std::to_string(*arguments.png) + " dots per inch is too large; take less");
    files[stem + ".png"] = std::move(png);
    return files;
}

void TakeUpColumns(const std::vector<Column>& columns, ScriptOptions& scripts) {
    for (const Group group : kGroups) scripts.groups.push_back({ColourOf(group), {}});
    for (const Column& column : columns) {
        scripts.taxa.push_back(column.name);
        if (column.italic) scripts.italic.push_back(column.name);
        scripts.groups[static_cast<std::size_t>(*column.group)].taxa.push_back(column.name);
    }
}

Tables TablesFor(const Core& core, const FigureArguments& arguments) {
    TableOptions options = arguments.tables;
    TakeUpColumns(TaxonColumns(core, arguments.figure), options.scripts);
    return TablesOf(core, options);
}

// Tables of an earlier call that this one does not make, beside new ones that may be of another marker. Scripts stay: their users change
// them.
std::vector<std::string> OutdatedTables(const FileTexts& files, const std::string& stem) {
    std::vector<std::string> outdated;
    for (const char* name : {"concentrations.csv", "influx.csv"})
        if (!files.contains(TablePath(stem, name))) outdated.push_back(TablePath(stem, name));
    return outdated;
}

int Complain(const std::string& sheet, const std::string& fault, int status) {
    TellFault(sheet + ": " + fault);
    return status;
}

int DrawSheet(const std::string& sheet, const FigureArguments& arguments) {
    try {
        const Core core = ReadCore(sheet);
        const std::string stem = Stem(sheet, arguments.folder);
        const PageFiles toolkit(arguments.font);  // sets up the process, so it comes before the thread
        std::future<Tables> reckoned;
        if (arguments.has_tables) reckoned = std::async([&] { return TablesFor(core, arguments); });
        FileTexts files = FigureFiles(stem, core, arguments, toolkit);
        Tables tables;
        if (reckoned.valid()) tables = reckoned.get();
        for (NamedText& table : tables.files) files[TablePath(stem, table.name)] = std::move(table.text);
        WriteTogether(files, arguments.has_tables ? OutdatedTables(files, stem) : std::vector<std::string>());
        for (const std::string& remark : tables.remarks) TellFault(sheet + ": " + remark);
        return EXIT_SUCCESS;
    } catch (const FigureFault& fault) {
        return Complain(sheet, fault.what(), kBadInput);
    } catch (const WriteFault& fault) {
        return Complain(sheet, fault.what(), EXIT_FAILURE);
    }
}

// The same however the way to the folder is written.
fs::path UniquePath(const std::string& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(DiskPath(path), error);
    const fs::path folder = fs::weakly_canonical(absolute.parent_path(), error);
    return error ? absolute : folder / absolute.filename();
}

// Two that would write the same files; "" if there are none.
std::string Rivals(const FigureArguments& arguments) {
    std::map<fs::path, std::string> sheets;
    for (const std::string& sheet : arguments.sheets)
        if (const auto [other, is_new] = sheets.emplace(UniquePath(Stem(sheet, arguments.folder)), sheet); !is_new)
            return sheet + ": its figure would take the place of that of " + other->second;
    return "";
}
}  // namespace

int main(int argc, char** argv) {
    const TerminalInUtf8 terminal;
    int status = EXIT_SUCCESS;
    const std::optional<FigureArguments> arguments = ReadFigureArguments(CommandLineWords(argc, argv), status);
    if (!arguments) return status;
    if (const std::string rivals = Rivals(*arguments); !rivals.empty()) {
        TellFault(rivals);
        return kBadInput;
    }
    DiskFiles files;
    services.files = &files;
    return RunJobs(arguments->sheets.size(), [&](std::size_t sheet) { return DrawSheet(arguments->sheets[sheet], *arguments); });
}
