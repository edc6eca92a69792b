#pragma once

// Moves sample MoveFrom to place MoveTo; the samples between shift by one. The sheet then counts as changed, an open diagram and its
// tree are drawn anew. Nothing if they are equal.
void MoveSampleColumn();

void MoveSampleColumnUnseen();  // the same, for a caller that draws the diagram itself
