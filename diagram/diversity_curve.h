// The small curve of taxa seen against grains counted, in the main window.
#pragma once
#include <cstdint>
#include <vector>

void FollowTotal();  // Text3[0] has changed: a curve, or an empty picture while nothing is counted

// A sheet was opened: an empty picture. The curve knows nothing of how the counts of the file were made; it only has room for them.
void BeginDiversityCurve();

void DrawDiversityCurve();  // records the point of this total and draws; no total disturbs it
