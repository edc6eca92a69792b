#include "platform/qt/box_editing.h"

#include "platform/qt/look.h"
#include "platform/qt/text_places.h"
#include "platform/user.h"

namespace {
constexpr double kMarginTwips = 40;
}  // namespace

void TellText(TextHolder& box, ModelView& view, const QString& shown, int caret) {
    view.Changed(Property::Text);  // a procedure may have refused it
    view.Events().Run([&] { EnterText(box, Unshown(shown), CharactersBefore(shown, caret)); });
}

void TellSelection(TextHolder& box, const QString& shown, int start, int length) {
    const int before = CharactersBefore(shown, start);
    const int selected = CharactersBefore(shown, start + length) - before;
    box.Select(before, selected);
}

int BoxMargin(double factor) {
    return static_cast<int>(kMarginTwips * factor);
}

// An input method would keep dead keys to itself.
void PrepareEditor(QWidget& editor, const TextHolder& box) {
    editor.setFocusPolicy(Qt::NoFocus);
    editor.setContextMenuPolicy(Qt::PreventContextMenu);
    editor.setAcceptDrops(false);
    if (box.TakesKeysAsInput()) editor.setAttribute(Qt::WA_InputMethodEnabled, false);
}

QPalette EditorPalette(const TextHolder& box) {
    QPalette palette;
    palette.setColor(QPalette::Base, BoxGround(box.State()));
    palette.setColor(QPalette::Text, ToQt(box.ForeColor()));
    return palette;
}

void PaintAtRest(QPainter& painter, const QRectF& room, const TextHolder& box, const QFont& font, double factor, FittedText& fitted,
                 int most_lines) {
    painter.fillRect(room, BoxGround(box.State()));
    PaintBoxOutline(painter, room, false);
    painter.setPen(ToQt(box.ForeColor()));
    const int margin = BoxMargin(factor);
    const bool one_line = most_lines <= 2;
    const Qt::Alignment across = box.IsCentred() ? Qt::AlignHCenter : Qt::AlignLeft;
    const Qt::Alignment down = one_line ? Qt::AlignVCenter : Qt::AlignTop;
    const int above = one_line ? 1 : margin;
    fitted.Paint(painter, room.adjusted(margin, above, -margin, -above), Shown(box.Text()), font, across | down, most_lines);
}

void PaintBoxOutline(QPainter& painter, const QRectF& room, bool in_focus) {
    PaintOutline(painter, room, in_focus ? kAccent : kOutline, in_focus ? 2 : 1, 0);
}
