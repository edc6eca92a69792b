// Around every message box and file dialog: what has happened so far is on show before it opens, and the pointer is a plain one.
#pragma once
#include <QFont>
#include <QWidget>

#include "platform/qt/pointer.h"

class Renderer;

class BoxOpens {
public:
    explicit BoxOpens(Renderer& renderer);
    QWidget* Parent() const { return parent_; }  // the active window; nullptr: there is none
    const QFont& Font() const { return font_; }  // in the size of that window's words

private:
    PlainPointer pointer_;
    QWidget* parent_ = nullptr;
    QFont font_;
};
