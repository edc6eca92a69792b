// Message boxes and file dialogs that nobody sees: the answers are laid down beforehand, and what was asked is kept.
//
// A question that finds no answer, or one that does not fit it, is noted in `unanswered` and goes on as if its box had been closed;
// whoever runs the program looks there after each event and stops.
#pragma once
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/services.h"

class ScriptedMessageBoxes : public MessageBoxes {
public:
    std::deque<Answer> answers;  // to the next boxes, the first at the front; a box with OK alone needs none, but takes an OK that waits
    std::vector<Message> shown;  // every box so far
    std::string unanswered;      // the first question without an answer, in words; empty: none

    Answer Show(const Message& message) override;
};

class ScriptedFileDialogs : public FileDialogs {
public:
    std::deque<std::optional<std::string>> answers;  // a path, or nothing for Cancel
    std::vector<FileQuestion> asked;
    std::string unanswered;

    std::optional<std::string> Ask(const FileQuestion& question) override;
};
