// Every key of the keyboard as the number that Windows gives it, on every system: no two keys share one, whatever the layout.
//
// On Windows that is the native number. Elsewhere keypad, function, editing and modifier keys have it by what they are; a key that
// types a letter A..Z has that letter's code; every other key goes by its place on the board. The digit row is 48..57 whatever it types
// and punctuation has the codes of its US places. A letter place has its US letter's code when it types a letter of another script, and
// 193 plus that letter's place in the alphabet (0..25) when it types none.
#pragma once
#include <QKeyEvent>
#include <QString>
#include <optional>

std::optional<int> VirtualKey(const QKeyEvent& event);  // 1..255; none: a key that has no number

// A key event that no keyboard made: VirtualKey gives `code` (0..255) for it. It types `text` in a text box; if it `acts`, it does there
// what the key itself does: deletes, breaks the line, moves the caret.
enum class KeyActs { No, Yes };
QKeyEvent MadeKeyEvent(QEvent::Type type, int code, const QString& text, KeyActs acts);
