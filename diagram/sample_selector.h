// The selected sample: frmDiagram.SampleSlider holds it, the group of Frame3 names it and stands beside its line.
#pragma once

// Lays the line of the selected sample over the diagram and an open tree, if the pointer is on it or its box is ticked, and takes all
// other overlays away. Red while a sample is being moved, else blue.
void DrawSampleMarker();

void PlaceSampleSelector();  // Frame3 and UpDown1 go to the height of the sample, Check1 and Combo2 take its name

void FollowSampleSlider();  // Slider1 has moved: SelectedSample, the line and the group follow
void SelectNextSample();    // after the last comes the first
void SelectPreviousSample();
void SelectChosenSample();  // picked from Combo2; of two with the same name it is the right-hand one

void FillSampleList();  // Combo2 of the diagram: the names in column order
