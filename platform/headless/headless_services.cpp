#include "platform/headless/headless_services.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace {

bool Fits(Answer answer, Buttons buttons) {
    switch (answer) {
        case Answer::Ok:
            return buttons == Buttons::Ok;
        case Answer::Cancel:
            return buttons == Buttons::YesNoCancel;
        default:
            return buttons != Buttons::Ok;
    }
}

Answer AnswerOfClosing(Buttons buttons) {
    switch (buttons) {
        case Buttons::Ok:
            return Answer::Ok;
        case Buttons::YesNo:
            return Answer::No;
        default:
            return Answer::Cancel;
    }
}

const char* Name(Buttons buttons) {
    return buttons == Buttons::YesNo ? "Yes or No" : "Yes, No or Cancel";
}

}  // namespace

Answer ScriptedMessageBoxes::Show(const Message& message) {
    shown.push_back(message);
    if (!answers.empty() && Fits(answers.front(), message.buttons)) {
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    if (message.buttons != Buttons::Ok && unanswered.empty()) {
        const char* const fault = answers.empty() ? "no answer waits" : "the answer that waits does not fit";
        unanswered = "message box \"" + message.title + "\", \"" + message.text + "\": " + fault + " (" + Name(message.buttons) + ")";
    }
    return AnswerOfClosing(message.buttons);
}

std::optional<std::string> ScriptedFileDialogs::Ask(const FileQuestion& question) {
    asked.push_back(question);
    if (answers.empty()) {
        const bool saves = question.kind == FileQuestion::Kind::Save;
        if (unanswered.empty())
            unanswered = std::string(saves ? "save" : "open") + " dialog, proposed name \"" + question.proposed_name + "\": no file waits";
        return std::nullopt;
    }
    auto answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

bool RecordedHost::CanShow(const std::string& picture) {
    constexpr std::string_view kJpegPngGifBmp[] = {"\xFF\xD8\xFF", "\x89PNG", "GIF8", "BM"};
    return std::any_of(std::begin(kJpegPngGifBmp), std::end(kJpegPngGifBmp),
                       [&picture](std::string_view start) { return picture.starts_with(start); });
}
