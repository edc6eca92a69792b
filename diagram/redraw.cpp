#include "diagram/redraw.h"

#include "diagram/data/percentages.h"
#include "diagram/draw_diagram.h"
#include "diagram/taxon_names.h"
#include "session/state/sheet_state.h"

void RedrawDiagram() {
    if (!DiagramOpen) return;
    ComputeDiagramData();
    DrawDiagram();
    DrawTaxonNames();
}
