#include "platform/qt/model_view.h"

#include <utility>

void ModelView::Changed(Property property) {
    if (!changes_.Any()) events_.SyncLater(*this);
    changes_.Add(property);
    if (property == Property::Text) events_.TextChanged();
}

void ModelView::Sync() {
    if (const Changes changes = std::exchange(changes_, {}); changes.Any()) Show(changes);
}
