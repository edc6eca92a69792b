// The shape of the mouse pointer. The program says it for all windows alike; while it says nothing, each widget has its own.
#pragma once

void ShowPointer();  // as the program wants it now

// While a message box or file dialog is open, the pointer is a plain one.
class PlainPointer {
public:
    PlainPointer();
    ~PlainPointer() { ShowPointer(); }
    PlainPointer(const PlainPointer&) = delete;
    PlainPointer& operator=(const PlainPointer&) = delete;
};
