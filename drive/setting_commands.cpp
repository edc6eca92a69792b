// The commands that set the stage: folders, files, the clock, answers, and the start itself.
#include <filesystem>
#include <fstream>
#include <optional>

#include "drive/commands.h"
#include "drive/names.h"
#include "drive/script.h"
#include "platform/encoding.h"
#include "platform/headless/files.h"

namespace drive {

namespace {

namespace fs = std::filesystem;

fs::path RealPath(const Stage& stage, const std::string& word) {
    return DiskPath(stage.folders.Real(word));
}

void WriteFile(const fs::path& path, const std::string& bytes, const std::string& word) {
    std::error_code ignored;
    fs::create_directories(path.parent_path(), ignored);
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    file.close();
    if (!file) throw ScriptFault("cannot write " + word);
}

Answer AnswerNamed(const std::string& word) {
    if (word == "Yes") return Answer::Yes;
    if (word == "No") return Answer::No;
    if (word == "Cancel") return Answer::Cancel;
    if (word == "OK") return Answer::Ok;
    throw ScriptFault("unknown answer " + word + " (known: Yes, No, Cancel, OK)");
}

void StartOnce(Stage& stage) {
    if (stage.started) throw ScriptFault("the program has been started already");
    stage.started = true;
    stage.hands.Start();
}

}  // namespace

void SetFolder(Stage& stage, const Command& command) {
    const std::string& state = command.words[1];
    if (state != "fresh" && state != "empty") throw ScriptFault("unknown folder " + state + " (known: fresh, empty)");
    if (state == "fresh")
        stage.folders.LayFresh();
    else
        stage.folders.LayEmpty();
}

void DeletePath(Stage& stage, const Command& command) {
    std::error_code error;
    fs::remove_all(RealPath(stage, command.words[1]), error);
    if (error) throw ScriptFault("cannot delete " + command.words[1]);
}

void WriteLines(Stage& stage, const Command& command) {
    std::string text;
    for (const std::string& line : command.lines) text += line + "\r\n";
    WriteFile(RealPath(stage, command.words[1]), EncodeFile(text), command.words[1]);
}

void CopyFile(Stage& stage, const Command& command) {
    const fs::path from = RealPath(stage, command.words[1]);
    if (!fs::is_regular_file(from)) throw ScriptFault("there is no file " + command.words[1]);
    WriteFile(RealPath(stage, command.words[2]), DiskFiles().ReadAll(PathText(from)), command.words[2]);
}

void LockFile(Stage& stage, const Command& command) {
    stage.services.files.Lock(stage.folders.Real(command.words[1]));
}

void UnlockFile(Stage& stage, const Command& command) {
    stage.services.files.Unlock(stage.folders.Real(command.words[1]));
}

void LimitFile(Stage& stage, const Command& command) {
    const std::string path = stage.folders.Real(command.words[1]);
    if (command.words[2] == "none") return stage.services.files.LiftLimit(path);
    const auto bytes = AsWhole(command.words[2]);
    if (!bytes || *bytes < 0) throw ScriptFault(command.words[2] + " is no number of bytes");
    stage.services.files.Limit(path, static_cast<std::size_t>(*bytes));
}

void SetClock(Stage& stage, const Command& command) {
    stage.services.clock.date = command.words[1];
    stage.services.clock.time = command.words[2];
}

void QueueAnswers(Stage& stage, const Command& command) {
    for (std::size_t place = 1; place < command.words.size(); ++place)
        stage.services.messages.answers.push_back(AnswerNamed(command.words[place]));
}

void QueueFile(Stage& stage, const Command& command) {
    if (command.words[1] == "cancel")
        stage.services.dialogs.answers.push_back(std::nullopt);
    else
        stage.services.dialogs.answers.push_back(stage.folders.Real(command.words[1]));
}

void Start(Stage& stage, const Command&) {
    StartOnce(stage);
}

void Begin(Stage& stage, const Command& command) {
    StartOnce(stage);
    stage.Act([&] { stage.hands.Click(ControlOf("frmNext.Command4")); });
    stage.Act([&] { stage.hands.SetBox(ControlOf("frmNext.Text1"), command.words[1]); });
    stage.Act([&] { stage.hands.Click(ControlOf("frmNext.Command1")); });
}

}  // namespace drive
