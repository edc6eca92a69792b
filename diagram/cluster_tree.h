// The tree of the last ComputeConiss, and its merges as a file.
#pragma once

// Draws the merges in frmDiagram.ClusterTree, on the vertical scale of the diagram: leaves at the left, each junction a bracket open to
// the left; then the line of the selected sample.
void DrawClusterTree();

void ClusterAgain();  // computes and draws an open tree anew; nothing if it is closed

// Writes the merges as a small table, the root first:
//
//     "Depth from","Depth to","Sum square"
//     15,30,2.5
//     10,20,2
//
// The first two columns hold positions on the scale of the diagram, 10 at the first sample; the third is the height of the merge. Asks
// for the file; silent if the user cancels or the file cannot be written.
void SaveMergeList();
