// The commands that say what a picture must show.
#include "drive/commands.h"
#include "drive/drawn.h"
#include "drive/names.h"
#include "drive/script.h"

namespace drive {

namespace {

const PictureBox& PictureNamed(const std::string& name) {
    return ControlOf<PictureBox>(name, "picture");
}

std::string HowMany(const PictureBox& picture) {
    return "(not among " + std::to_string(picture.Operations().size()) + " operations)";
}

}  // namespace

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
