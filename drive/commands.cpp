#include "drive/commands.h"

#include <algorithm>
#include <iterator>

#include "drive/script.h"

namespace drive {

namespace {

constexpr std::size_t kAny = 1000;
enum class Lines { None, Wanted };

struct Row {
    const char* form;          // its first word is the command
    std::size_t fewest, most;  // words after the first
    Lines lines;
    void (*run)(Stage&, const Command&);
};

constexpr Row kRows[] = {
    {"folder fresh|empty", 1, 1, Lines::None, SetFolder},
    {"delete PATH", 1, 1, Lines::None, DeletePath},
    {"write PATH <<END", 1, 1, Lines::Wanted, WriteLines},
    {"copy PATH PATH", 2, 2, Lines::None, CopyFile},
    {"lock PATH", 1, 1, Lines::None, LockFile},
    {"unlock PATH", 1, 1, Lines::None, UnlockFile},
    {"limit PATH N|none", 2, 2, Lines::None, LimitFile},
    {"clock DATE TIME", 2, 2, Lines::None, SetClock},
    {"answer WORD...", 1, kAny, Lines::None, QueueAnswers},
    {"file PATH|cancel", 1, 1, Lines::None, QueueFile},
    {"start", 0, 0, Lines::None, Start},
    {"begin NAME", 1, 1, Lines::None, Begin},

    {"keydown CODE", 1, 1, Lines::None, PressDown},
    {"keyup CODE", 1, 1, Lines::None, LetGo},
    {"key CODE...", 1, kAny, Lines::None, PressKeys},
    {"press CODE \"c\"", 2, 2, Lines::None, PressWithCharacter},
    {"type \"text\"", 1, 1, Lines::None, TypeText},
    {"set NAME \"text\"", 2, 2, Lines::None, SetText},
    {"paste \"text\"", 1, 1, Lines::None, PasteText},
    {"focus NAME", 1, 1, Lines::None, FocusBox},
    {"click NAME", 1, 1, Lines::None, Click},
    {"dblclick NAME", 1, 1, Lines::None, DoubleClick},
    {"rightclick NAME", 1, 1, Lines::None, RightClick},
    {"choose NAME \"item\"", 2, 2, Lines::None, ChooseItem},
    {"tab NAME N", 2, 2, Lines::None, PressTab},
    {"slide NAME N", 2, 2, Lines::None, Slide},
    {"spin NAME up|down", 2, 2, Lines::None, Spin},
    {"mousedown NAME left|right X Y", 4, 4, Lines::None, MouseDown},
    {"mouseup NAME left|right X Y", 4, 4, Lines::None, MouseUp},
    {"mousemove NAME X Y", 3, 3, Lines::None, MouseMove},
    {"resize WINDOW W H", 3, 3, Lines::None, ResizeWindow},
    {"close WINDOW", 1, 1, Lines::None, CloseWindow},

    {"expect NAME VALUE", 2, 2, Lines::None, ExpectValue},
    {"expect-message TITLE TEXT [ICON]", 2, 3, Lines::None, ExpectMessage},
    {"expect-no-message", 0, 0, Lines::None, ExpectNoMessage},
    {"expect-dialog open|save PROPOSED", 2, 2, Lines::None, ExpectDialog},
    {"expect-sounds NAME...", 0, kAny, Lines::None, ExpectSounds},
    {"expect-file PATH <<END", 1, 1, Lines::Wanted, ExpectFile},
    {"expect-line PATH N TEXT", 3, 3, Lines::None, ExpectLine},
    {"expect-no-file PATH", 1, 1, Lines::None, ExpectNoFile},
    {"expect-history TEXT...", 1, kAny, Lines::None, ExpectHistory},
    {"expect-drawn NAME \"OP\"", 2, 2, Lines::None, ExpectDrawn},
    {"expect-not-drawn NAME \"OP\"", 2, 2, Lines::None, ExpectNotDrawn},
    {"expect-scale NAME L T W H", 5, 5, Lines::None, ExpectScale},
    {"expect-count NAME KIND N", 3, 3, Lines::None, ExpectCount},
    {"expect-focus NAME", 1, 1, Lines::None, ExpectFocus},
    {"expect-clipboard NAME", 1, 1, Lines::None, ExpectClipboard},
    {"expect-ended", 0, 0, Lines::None, ExpectEnded},
    {"expect-failure WORD", 1, 1, Lines::None, ExpectFailure},

    {"show NAME...", 1, kAny, Lines::None, Show},
    {"forget", 0, 0, Lines::None, Forget},
    {"dump sheet|window|NAME", 1, 1, Lines::None, Dump},
    {"image NAME PATH", 2, 2, Lines::None, SaveImage},
};

bool IsFor(const Row& row, const std::string& word) {
    const std::string form = row.form;
    return form.substr(0, form.find(' ')) == word;
}

void StopIfUnanswered(const HeadlessServices& services) {
    if (!services.messages.unanswered.empty()) throw ScriptFault("unanswered " + services.messages.unanswered);
    if (!services.dialogs.unanswered.empty()) throw ScriptFault("unanswered " + services.dialogs.unanswered);
}

}  // namespace

void RunCommand(Stage& stage, const Command& command) {
    const std::string& word = command.words[0];
    const auto row = std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& known) { return IsFor(known, word); });
    if (row == std::end(kRows)) throw ScriptFault("unknown command " + word);
    const std::size_t words = command.words.size() - 1;
    const bool fits = words >= row->fewest && words <= row->most && command.has_lines == (row->lines == Lines::Wanted);
    if (!fits) throw ScriptFault(word + " has another form: " + row->form);
    row->run(stage, command);
    StopIfUnanswered(stage.services);
}

}  // namespace drive
