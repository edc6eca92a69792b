// The small curve of taxa seen against grains counted, in the main window.
#pragma once
#include <cstdint>
#include <vector>

void FollowTotal();         // Text3[0] has changed: a curve, or an empty picture while nothing is counted
void DrawDiversityCurve();  // records the point of this total and draws; no total disturbs it
