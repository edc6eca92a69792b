#include "unit/program_test.h"

#include "events/program.h"
#include "platform/user.h"
#include "unit/shared_state.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

ProgramTest::ProgramTest() {
    WipeSharedState();
    services.files = &files_;
    files_.LayDownProgram(kFolder);
}

ProgramTest::~ProgramTest() {
    for (Window* window : AllWindows()) window->Unload();
    for (Window* window : AllWindows()) {  // a test may have changed one that it had not loaded
        window->Loaded.Calls({});
        window->Unloading.Calls({});
        window->Load();
        window->Unload();
    }
}

void ProgramTest::Start() {
    StartProgram();
}

void ProgramTest::Begin(const std::string& name) {
    Start();
    ClickControl(frmNext.Command4);
    InsertText(frmNext.Text1, name);
    ClickControl(frmNext.Command1);
}

void ProgramTest::Key(int code) {
    PressKey(code);
    ReleaseKey(code);
}

void ProgramTest::KeyNumber(int key, int times) {
    for (int i = 0; i < times; ++i) Key(static_cast<int>(KeySettings[key][kKeyCode].Number()));
}
