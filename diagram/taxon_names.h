// The names of the taxa, reading upward in frmDiagram.NameStrip, each over the left edge of its column.
#pragma once

// Only names whose left edge is in view are written.
void DrawTaxonNames();

void CopyTaxonNames();  // puts the strip on the clipboard, on a white ground
