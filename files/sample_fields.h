#pragma once
#include <cstdint>

#include "platform/controls.h"
#include "session/state/sheet_state.h"

// Takes note, names and values of the Additional info from a window's boxes into the sheet, as those of `sample`, and shows them in
// the main window. An empty value becomes "---".
void TakeSampleFields(std::int16_t sample, const TextBox& note, const Label (&names)[kParams + 1], const TextBox (&values)[kParams + 1]);
