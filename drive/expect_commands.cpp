// The commands that say what must be so of values, messages, sounds and the end.
#include <algorithm>
#include <iterator>

#include "drive/commands.h"
#include "drive/names.h"
#include "drive/script.h"
#include "platform/failure.h"
#include "session/state/sheet_state.h"

namespace drive {

namespace {

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

}  // namespace drive
