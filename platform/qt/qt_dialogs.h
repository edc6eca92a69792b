// Message boxes and file dialogs over the active window.
#pragma once
#include <QFont>
#include <QString>
#include <QWidget>

#include "platform/qt/mouse.h"
#include "platform/services.h"

class Renderer;

// Around every message box and file dialog: what has happened so far is on show before it opens, and the pointer is a plain one.
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

class QtMessageBoxes : public MessageBoxes {
public:
    explicit QtMessageBoxes(Renderer& renderer) : renderer_(renderer) {}
    Answer Show(const Message& message) override;

private:
    Renderer& renderer_;
};

// The dialogs that ask for a file to open or to save. They begin in the folder of the last use.
class QtFileDialogs : public FileDialogs {
public:
    explicit QtFileDialogs(Renderer& renderer) : renderer_(renderer) {}
    std::optional<std::string> Ask(const FileQuestion& question) override;

private:
    Renderer& renderer_;
    QString folder_;  // empty: the first use
};
