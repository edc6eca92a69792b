#include "platform/qt/model_view.h"

#include <utility>

void ModelView::Changed(Property property) {
    if (!changes_.Any()) events_.Note(*this);
    changes_.Add(property);
    if (property == Property::Text) events_.NoteText();
}

void ModelView::Agree() {
    if (const Changes changes = std::exchange(changes_, {}); changes.Any()) Show(changes);
}
