#include "session/stamps.h"

#include "platform/services.h"
#include "platform/text.h"

namespace {
std::string TimeInBrackets() {
    return "(" + Right(services.clock->TimeText(), 8) + ")";
}
}  // namespace

std::string NoteStamp() {
    return services.clock->DateText() + " " + TimeInBrackets();
}

std::string FileStamp() {
    return services.clock->DateText() + "_" + TimeInBrackets();
}

std::string FreshNote() {
    return "Created: " + NoteStamp() + "\r\nNote: ";
}
