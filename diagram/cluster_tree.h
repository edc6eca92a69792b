#pragma once

// Draws the merges of the last ComputeConiss in frmDiagram.ClusterTree, on the vertical scale of the diagram: leaves at the left, each
// junction a bracket open to the left; then the line of the selected sample.
void DrawClusterTree();
