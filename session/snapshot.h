#pragma once

// Keeps counts, taxa and Additional info as the state that Reset and Quit go back to. Nothing while there is no sample.
void SnapshotSheet();

void SnapshotParams();      // of these, Additional info alone: names and values
void SnapshotParamNames();  // as the screen has them
