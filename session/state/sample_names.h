#pragma once

// SampleNamesAreText: True if any name of the samples 1..SampleCount is not just a number.
void CheckSampleNames();
