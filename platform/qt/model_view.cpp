#include "platform/qt/model_view.h"

#include <utility>

#include "platform/qt/renderer.h"

void ModelView::Changed(Property property) {
    if (!changes_.Any()) TheRenderer().Note(*this);
    changes_.Add(property);
    if (property == Property::Text) TheRenderer().NoteText();
}

void ModelView::Agree() {
    if (const Changes changes = std::exchange(changes_, {}); changes.Any()) Show(changes);
}
