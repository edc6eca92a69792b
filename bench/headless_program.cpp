#include "bench/headless_program.h"

#include "events/program.h"
#include "files/open_sheet.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/sheet_file.h"
#include "windows/next_window.h"

HeadlessProgram::HeadlessProgram() {
    ::services.files = &files;
    files.LayDownProgram(kFolder);
    StartProgram();
    ClickControl(frmNext.Command4);
    InsertText(frmNext.Text1, "10");
    ClickControl(frmNext.Command1);
}

void HeadlessProgram::Open(const std::string& path) {
    services.messages.answers = {Answer::Yes};
    services.dialogs.answers = {path};
    OpenSheet();
    services.messages.answers.clear();
}

HeadlessProgram& TheProgram() {
    static HeadlessProgram program;
    return program;
}

std::string SheetOf(int samples) {
    std::string path = "/sheets/" + std::to_string(samples) + ".csv";
    std::string& bytes = TheProgram().files.bytes[path];
    if (bytes.empty()) bytes = Joined(DataSheet(samples));
    return path;
}
