// The commands that say what must be so: of values, messages, sounds and the end, of files on the disk, and of pictures.
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <optional>

#include "drive/commands.h"
#include "drive/drawn.h"
#include "drive/names.h"
#include "drive/script.h"
#include "platform/encoding.h"
#include "platform/failure.h"
#include "platform/headless/files.h"
#include "session/state/sheet_state.h"

namespace drive {

namespace {

namespace fs = std::filesystem;

constexpr const char* kIcons[] = {"none", "exclamation", "information", "question"};  // in the order of Icon
constexpr const char* kFailures[] = {kOverflow,     kDivisionByZero, kSubscriptOutOfRange, kTypeMismatch, kInvalidProcedureCall,
                                     kInputPastEnd, kFileError};
constexpr const char* kSounds[] = {"WaveKey1", "WaveKey2",  "WaveKey3",  "WaveOpening", "WaveUndo",
                                   "WaveSave", "WaveAlarm", "WaveError", "Beep"};

template <std::size_t kSize>
void MustBeOneOf(const char* const (&known)[kSize], const std::string& word, const char* what) {
    if (std::find(std::begin(known), std::end(known), word) == std::end(known))
        throw ScriptFault("unknown " + std::string(what) + " " + word);
}

// The words from `first` on.
std::vector<std::string> WordsFrom(const Command& command, std::size_t first) {
    return {command.words.begin() + static_cast<std::ptrdiff_t>(first), command.words.end()};
}

std::string Joined(const std::vector<std::string>& texts, const char* between) {
    std::string all;
    for (const std::string& text : texts) all += (all.empty() ? "" : between) + text;
    return all;
}

std::string TitleAndText(const Stage& stage, const Message& message) {
    return message.title + ": " + stage.folders.Shown(message.text);
}

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

const PictureBox& PictureNamed(const std::string& name) {
    return ControlOf<PictureBox>(name, "picture");
}

std::string HowMany(const PictureBox& picture) {
    return "(not among " + std::to_string(CountAll(picture)) + " operations)";
}

}  // namespace

void ExpectValue(Stage& stage, const Command& command) {
    stage.report.CheckEqual(command.words[1], command.words[2], stage.Shown(command.words[1]));
}

void ExpectMessage(Stage& stage, const Command& command) {
    const auto& words = command.words;
    const bool names_icon = words.size() > 3;
    if (names_icon) MustBeOneOf(kIcons, words[3], "icon");
    const auto& shown = stage.services.messages.shown;
    if (stage.messages_seen == shown.size()) return stage.report.Check(false, "message", words[1] + ": " + words[2], "(no message)");
    const Message& message = shown[stage.messages_seen++];
    const std::string icon = kIcons[static_cast<std::size_t>(message.icon)];
    if (message.title != words[1] || stage.folders.Shown(message.text) != words[2])
        return stage.report.Check(false, "message", words[1] + ": " + words[2], TitleAndText(stage, message));
    stage.report.CheckEqual("message icon", names_icon ? words[3] : icon, icon);
}

void ExpectNoMessage(Stage& stage, const Command&) {
    const auto& shown = stage.services.messages.shown;
    const bool none = stage.messages_seen == shown.size();
    stage.report.Check(none, "message", "(no message)", none ? "" : TitleAndText(stage, shown[stage.messages_seen]));
}

void ExpectDialog(Stage& stage, const Command& command) {
    const auto& words = command.words;
    if (words[1] != "open" && words[1] != "save") throw ScriptFault("unknown dialog " + words[1] + " (known: open, save)");
    const std::string expected = words[1] + " " + words[2];
    const auto& asked = stage.services.dialogs.asked;
    if (stage.dialogs_seen == asked.size()) return stage.report.Check(false, "dialog", expected, "(no dialog)");
    const FileQuestion& question = asked[stage.dialogs_seen++];
    const std::string kind = question.kind == FileQuestion::Kind::Open ? "open" : "save";
    stage.report.CheckEqual("dialog", expected, kind + " " + stage.folders.Shown(question.proposed_name));
}

void ExpectSounds(Stage& stage, const Command& command) {
    for (const std::string& name : WordsFrom(command, 1)) MustBeOneOf(kSounds, name, "sound");
    const auto& played = stage.services.sounds.played;
    const std::vector<std::string> heard(played.begin() + static_cast<std::ptrdiff_t>(stage.sounds_seen), played.end());
    stage.sounds_seen = played.size();
    stage.report.CheckEqual("sounds", Joined(WordsFrom(command, 1), " "), Joined(heard, " "));
}

void ExpectHistory(Stage& stage, const Command& command) {
    const std::vector<std::string> expected = WordsFrom(command, 1);
    const std::size_t count = std::min(expected.size(), HistoryLog.size());
    std::vector<std::string> last(HistoryLog.end() - static_cast<std::ptrdiff_t>(count), HistoryLog.end());
    for (std::string& line : last) line = stage.folders.Shown(line);
    stage.report.Check(last == expected, "HistoryLog", Joined(expected, " | "), Joined(last, " | "));
}

void ExpectFocus(Stage& stage, const Command& command) {
    const Control& wanted = ControlOf(command.words[1]);
    const Control* const focus = ActiveWindow() ? ActiveWindow()->Focus() : nullptr;
    stage.report.Check(focus == &wanted, "focus", FullName(wanted), focus ? FullName(*focus) : "(nowhere)");
}

void ExpectClipboard(Stage& stage, const Command& command) {
    const Control& wanted = ControlOf<PictureBox>(command.words[1], "picture");
    const PictureBox* const copied = stage.services.clipboard.picture;
    stage.report.Check(copied == &wanted, "clipboard", FullName(wanted), copied ? FullName(*copied) : "(nothing)");
}

void ExpectEnded(Stage& stage, const Command&) {
    stage.report.Check(stage.services.host.ended, "program", "ended", "running");
}

void ExpectFailure(Stage& stage, const Command& command) {
    MustBeOneOf(kFailures, command.words[1], "failure");
    const std::string& failure = stage.services.host.failure;
    stage.report.Check(failure == command.words[1], "failure", command.words[1], failure.empty() ? "(none)" : failure);
}

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

void ExpectDrawn(Stage& stage, const Command& command) {
    const PictureBox& picture = PictureNamed(command.words[1]);
    const int found = CountDrawn(picture, command.words[2]);
    stage.report.Check(found > 0, command.words[1], command.words[2], HowMany(picture));
}

void ExpectNotDrawn(Stage& stage, const Command& command) {
    const int found = CountDrawn(PictureNamed(command.words[1]), command.words[2]);
    stage.report.Check(found == 0, command.words[1], "(not drawn) " + command.words[2], "(drawn " + std::to_string(found) + " times)");
}

void ExpectScale(Stage& stage, const Command& command) {
    const PictureBox& picture = PictureNamed(command.words[1]);
    const std::vector<std::string> wanted(command.words.begin() + 2, command.words.end());
    const std::string expected = wanted[0] + " " + wanted[1] + " " + wanted[2] + " " + wanted[3];
    stage.report.Check(ScaleIs(picture, wanted), command.words[1] + " scale", expected, ScaleText(picture));
}

void ExpectCount(Stage& stage, const Command& command) {
    const PictureBox& picture = PictureNamed(command.words[1]);
    const auto wanted = AsWhole(command.words[3]);
    if (!wanted || *wanted < 0) throw ScriptFault(command.words[3] + " is no count");
    stage.report.CheckEqual(command.words[1] + " " + command.words[2], std::to_string(*wanted),
                            std::to_string(CountKind(picture, command.words[2])));
}

}  // namespace drive
