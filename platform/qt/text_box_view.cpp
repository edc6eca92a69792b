#include <QCoreApplication>

#include "platform/qt/text_editors.h"
#include "platform/qt/views.h"
#include "platform/window.h"

namespace {
// `Editor` is TextLine or TextArea.
template <class Editor>
class TextBoxView : public ControlWidget {
public:
    TextBoxView(TextBox& box, ViewHost& window, ControlWidget* owner) : ControlWidget(box, window, owner), box_(box) {
        editor_ = new Editor(OwnerGround(), box, *this);
        Adopt(editor_);
        if (MouseWidget() != editor_) WatchMouse(MouseWidget());
    }

    QWidget* MouseWidget() override {
        if constexpr (std::is_same_v<Editor, TextArea>) return editor_->viewport();
        return editor_;
    }

private:
    void ShowContent(Changes) override {
        editor_->Sync(Font(), Factor());
        MouseWidget()->update();
    }
    bool PassesMouse() const override { return HoldsFocus(box_); }
    bool TakeKey(QKeyEvent& key) override {
        QCoreApplication::sendEvent(editor_, &key);
        return true;
    }

    TextBox& box_;
    Editor* editor_;
};
}  // namespace

// The box that holds the focus while nothing is to be typed is not there to be seen: the window itself has the keyboard then.
std::unique_ptr<ControlWidget> MakeView(TextBox& box, ViewHost& window, ControlWidget* owner) {
    if (!box.takes_text) return nullptr;
    if (box.multiline) return std::make_unique<TextBoxView<TextArea>>(box, window, owner);
    return std::make_unique<TextBoxView<TextLine>>(box, window, owner);
}
