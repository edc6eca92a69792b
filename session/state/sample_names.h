#pragma once

constexpr const char* kUnnamed = "-9999";  // the first sample, until its user gives it a name

// SampleNamesAreText: True if any name of the samples 1..SampleCount is not just a number.
void CheckSampleNames();
