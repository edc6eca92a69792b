// The small curve of taxa seen against grains counted, in frmMain.Picture2.
#pragma once
#include <cstdint>
#include <vector>

extern std::int16_t TaxaSeen;                     // taxa of the sample on show whose count is not 0
extern std::int16_t DiversityLength;              // the total of the sample on show: last index of the curve
extern std::vector<std::int16_t> DiversityCurve;  // [total]: ten times the taxa seen when it was passed; 0 where it was not seen

void FollowTotal();         // Text3[0] has changed: a curve, or an empty picture while nothing is counted
void DrawDiversityCurve();  // records the point of this total and draws; no total disturbs it
