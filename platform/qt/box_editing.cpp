#include "platform/qt/box_editing.h"

#include "platform/controls.h"
#include "platform/qt/look.h"
#include "platform/qt/renderer.h"
#include "platform/qt/text_places.h"
#include "platform/user.h"

namespace {
constexpr double kMarginTwips = 40;

bool IsCentred(const Control& box) {
    return box.kind() == Kind::TextBox && static_cast<const TextBox&>(box).centred;
}
}  // namespace

void TellText(Control& box, ModelView& view, const QString& shown, int caret) {
    view.Changed(Property::Text);  // a procedure may have refused it
    TheRenderer().Run([&] { EnterText(box, Unshown(shown), CharactersBefore(shown, caret)); });
}

void TellSelection(Control& box, const QString& shown, int start, int length) {
    const int before = CharactersBefore(shown, start);
    const int selected = CharactersBefore(shown, start + length) - before;
    static_cast<TextHolder&>(box).Select(before, selected);
}

int BoxMargin(double factor) {
    return static_cast<int>(kMarginTwips * factor);
}

bool HoldsFocus(const Control& box) {
    return box.window == ActiveWindow() && box.window->Focus() == &box && CanReach(box);
}

// An input method would keep dead keys to itself.
void PrepareEditor(QWidget& editor, const Control& box) {
    editor.setFocusPolicy(Qt::NoFocus);
    editor.setContextMenuPolicy(Qt::PreventContextMenu);
    editor.setAcceptDrops(false);
    if (TakesKeysAsInput(box)) editor.setAttribute(Qt::WA_InputMethodEnabled, false);
}

QPalette EditorPalette(const Control& box) {
    QPalette palette;
    palette.setColor(QPalette::Base, BoxGround(box.State()));
    palette.setColor(QPalette::Text, ToQt(box.ForeColor()));
    return palette;
}

void PaintAtRest(QPainter& painter, const QRectF& room, const Control& box, const QFont& font, double factor, FittedText& fitted,
                 int most_lines) {
    painter.fillRect(room, BoxGround(box.State()));
    PaintBoxOutline(painter, room, false);
    painter.setPen(ToQt(box.ForeColor()));
    const int margin = BoxMargin(factor);
    const bool one_line = most_lines <= 2;
    const Qt::Alignment across = IsCentred(box) ? Qt::AlignHCenter : Qt::AlignLeft;
    const Qt::Alignment down = one_line ? Qt::AlignVCenter : Qt::AlignTop;
    const int above = one_line ? 1 : margin;
    fitted.Paint(painter, room.adjusted(margin, above, -margin, -above), Shown(box.State().text), font, across | down, most_lines);
}

void PaintBoxOutline(QPainter& painter, const QRectF& room, bool in_focus) {
    PaintOutline(painter, room, in_focus ? kAccent : kOutline, in_focus ? 2 : 1, 0);
}
