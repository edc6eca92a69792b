#pragma once

// Lays the line of the selected sample over the diagram and an open tree, if the pointer is on it or its box is ticked, and takes all
// other overlays away. Red while a sample is being moved, else blue.
void DrawSampleMarker();
