// The commands that look and show.
#include "drive/commands.h"
#include "drive/drawn.h"
#include "drive/dumps.h"
#include "drive/names.h"
#include "drive/script.h"
#include "windows/main_window.h"

namespace drive {

void Show(Stage& stage, const Command& command) {
    for (std::size_t place = 1; place < command.words.size(); ++place) {
        const std::string& name = command.words[place];
        const std::string value = stage.Shown(name);
        stage.out << name << " = " << OnOneLine(value) << "\n";
    }
}

void Forget(Stage& stage, const Command&) {
    stage.messages_seen = stage.services.messages.shown.size();
    stage.dialogs_seen = stage.services.dialogs.asked.size();
    stage.sounds_seen = stage.services.sounds.played.size();
}

void Dump(Stage& stage, const Command& command) {
    const std::string& what = command.words[1];
    const auto value_of = [&](const std::string& name) { return OnOneLine(stage.Shown(name)); };
    if (what == "sheet") return DumpSheet(stage.out, value_of);
    if (what == "window") return DumpWindow(stage.out, frmMain, value_of);
    for (const std::string& line : PictureLines(ControlOf<PictureBox>(what, "picture"))) stage.out << line << "\n";
}

void SaveImage(Stage& stage, const Command& command) {
    const std::string& name = command.words[1];
    Control* const control = IsWindowName(name) ? nullptr : &ControlOf(name);
    Window& window = control ? *control->window : WindowOf(name);
    if (!stage.hands.SaveImage(window, control, stage.folders.Real(command.words[2])))
        throw ScriptFault("no image of " + name + ": there are no windows to show it (run with --windows)");
}

}  // namespace drive
