#pragma once

// Keeps counts, taxa and Additional info as the state that Reset and Quit go back to. Nothing while there is no sample.
void SnapshotSheet();
