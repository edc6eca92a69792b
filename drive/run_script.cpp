#include "drive/run_script.h"

#include "drive/commands.h"
#include "drive/script.h"

namespace drive {

namespace {

// false if the script itself is wrong; the report then has its fault.
bool Play(Stage& stage, std::istream& text) {
    Script script(text);
    try {
        for (Command command; script.Next(command);) {
            stage.report.line = command.line;
            RunCommand(stage, command);
        }
        return true;
    } catch (const ScriptFault& fault) {
        stage.report.line = script.Line();
        stage.report.Fault(fault.what());
    } catch (const std::filesystem::filesystem_error& error) {
        stage.report.Fault(error.what());
    }
    return false;
}

}  // namespace

int RunScript(const RunOptions& options, std::istream& script, const MakeHands& make_hands, std::ostream& out, std::ostream& errors) {
    Folders folders(options.tree, options.script_folder);
    folders.keep = options.keep;
    folders.LayKnown();
    HeadlessServices headless(folders.Program());
    const auto hands = make_hands([&headless] { return headless.host.ended; });
    Report report(options.script_name, errors);
    Stage stage{folders, headless, *hands, report, out};
    const bool is_sound = Play(stage, script);
    if (options.keep) out << "$F = " << folders.Program() << "\n$W = " << folders.Work() << "\n";
    out << report.passed << " passed, " << report.failed << " failed\n";
    if (!is_sound) return kScriptWrong;
    return report.failed == 0 ? kAllHeld : kSomeMissed;
}

}  // namespace drive
