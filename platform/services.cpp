#include "platform/services.h"

Services services;
int MousePointer = kPointerDefault;

namespace {
constexpr const char* kSheetFilter = "DataFile(*.csv)|*.csv";
}

std::string ProgramFile(const std::string& parts) {
    return services.host->Folder() + "/" + parts;
}

bool CommonDialog::Ask(FileQuestion::Kind kind) {
    const bool opens = kind == FileQuestion::Kind::Open;
    const FileQuestion question{kind, kSheetFilter, FileName, !opens, opens ? first_folder : ""};
    const auto path = services.dialogs->Ask(question);
    if (path) FileName = *path;
    if (path && opens) first_folder.clear();
    return path.has_value();
}

bool CommonDialog::AskForSaving() {
    return Ask(FileQuestion::Kind::Save);
}
bool CommonDialog::AskForOpening() {
    return Ask(FileQuestion::Kind::Open);
}
