// Tables of keys behind VirtualKey.
#pragma once
#include <Qt>
#include <QtGlobal>

constexpr int kFirstSilentLetter = 193;  // the code of the letter place A when it types no letter

int CodeOfNamedKey(int key, quint32 scan_code);              // function, editing and modifier keys; 0: none of them
int CodeOfKeypad(int key, Qt::KeyboardModifiers modifiers);  // 0: not on the keypad, or a named key (without NumLock)
int CodeOfXkbPlace(quint32 keycode);                         // the code of the US key there; 0: unknown
int CodeOfMacPlace(quint32 kvk);
int CodeOfUsCharacter(int key);        // of the key that types it on a US board; 0: none
bool IsForeignSymbol(quint32 symbol);  // an X keysym of another script's letter
int KeyOfCode(int code);               // the Qt key that the code stands for; Key_unknown: none
