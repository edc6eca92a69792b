// The list of merges as a small table, the root first:
//
//     "Depth from","Depth to","Sum square"
//     15,30,2.5
//     10,20,2
//
// The first two columns hold positions on the scale of the diagram, 10 at the first sample; the third is the height of the merge.
#pragma once

void SaveMergeList();  // asks for the file; silent if the user cancels or the file cannot be written
