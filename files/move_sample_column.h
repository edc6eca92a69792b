#pragma once

// Moves sample MoveFrom to place MoveTo; the samples between shift by one. The sheet then counts as changed. Nothing if they are equal.
void MoveSampleColumn();
