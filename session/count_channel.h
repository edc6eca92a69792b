#pragma once

// The change of Text0. A slot number written to it as a text of two or three digits adds one to the slot's cell, or takes one off
// while ReverseCount; the totals are summed anew, and Counts follows the cells. The field is empty again afterwards.
void CountSlotInChannel();
