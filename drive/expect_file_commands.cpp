// The commands that say what must lie on the disk.
#include <algorithm>
#include <filesystem>
#include <optional>

#include "drive/commands.h"
#include "drive/script.h"
#include "platform/encoding.h"
#include "platform/headless/files.h"

namespace drive {

namespace {

namespace fs = std::filesystem;

// The text of a file as scripts compare it; nothing if there is no such file.
std::optional<std::string> FileText(const Stage& stage, const std::string& path) {
    const std::string real = stage.folders.Real(path);
    if (!fs::is_regular_file(DiskPath(real))) return std::nullopt;
    return stage.folders.Shown(DecodeFile(DiskFiles().ReadAll(real)));
}

// Lines with the line ends that they have; nothing stands behind the last of them.
std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size() - 1) + 1;
        lines.push_back(text.substr(from, end - from));
        from = end;
    }
    return lines;
}

std::string WithoutEnd(std::string line) {
    if (line.ends_with('\n')) line.pop_back();
    if (line.ends_with('\r')) line.pop_back();
    return line;
}

std::string LineOrEnd(const std::vector<std::string>& lines, std::size_t place) {
    return place < lines.size() ? lines[place] : "(end of file)";
}

}  // namespace

void ExpectFile(Stage& stage, const Command& command) {
    const std::string& path = command.words[1];
    const auto text = FileText(stage, path);
    if (!text) return stage.report.Check(false, path, "(a file)", "(no file)");
    std::vector<std::string> expected = command.lines;
    for (std::string& line : expected) line += "\r\n";
    const std::vector<std::string> got = LinesOf(*text);
    const std::size_t longest = std::max(expected.size(), got.size());
    std::size_t place = 0;
    while (place < longest && LineOrEnd(expected, place) == LineOrEnd(got, place)) ++place;
    if (place == longest) return stage.report.Check(true, path, "", "");
    const std::string wanted = LineOrEnd(expected, place), found = LineOrEnd(got, place);
    const bool only_ends_differ = WithoutEnd(wanted) == WithoutEnd(found);
    stage.report.Check(false, path + " line " + std::to_string(place + 1), only_ends_differ ? wanted : WithoutEnd(wanted),
                       only_ends_differ ? found : WithoutEnd(found));
}

void ExpectLine(Stage& stage, const Command& command) {
    const std::string& path = command.words[1];
    const auto number = AsWhole(command.words[2]);
    if (!number || *number == 0) throw ScriptFault(command.words[2] + " is no number of a line (1, 2 ... or -1, -2 ... from the end)");
    const std::string name = path + " line " + command.words[2];
    const auto text = FileText(stage, path);
    if (!text) return stage.report.Check(false, name, command.words[3], "(no file)");
    const std::vector<std::string> lines = LinesOf(*text);
    const int place = *number > 0 ? *number - 1 : static_cast<int>(lines.size()) + *number;
    if (place < 0 || place >= static_cast<int>(lines.size())) return stage.report.Check(false, name, command.words[3], "(no such line)");
    stage.report.CheckEqual(name, command.words[3], WithoutEnd(lines[place]));
}

void ExpectNoFile(Stage& stage, const Command& command) {
    const bool is_there = fs::exists(DiskPath(stage.folders.Real(command.words[1])));
    stage.report.Check(!is_there, command.words[1], "(no file)", "(a file)");
}

}  // namespace drive
