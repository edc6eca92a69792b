// The totals of the sample on show, summed afresh from the count cells at every key: they cannot drift from what the analyst sees.
#pragma once
#include <cstdint>

#include "platform/controls.h"

// Sums the cells of slots 1..135 into AllTotal and TaxonTable[0][kTaxonSubtotal1..kTaxonSubtotal2], shows the sums in Text3[0..2], sets a
// cell bold where Counts (one count behind its cell) is not 0. `sample`: 1..SampleCount. Raises "Overflow" past 32 bits; Text3 then keeps
// the old sums.
void RecountTotals(std::int16_t sample);

// The change of `channel`, Text0. A slot number written to it as a text of two or three digits adds one to the slot's cell, or takes one
// off while ReverseCount; the totals are summed anew, and Counts follows the cells. The field is empty again afterwards.
void CountSlotInChannel(TextBox& channel);

void FollowChangedTotal(const TextBox& total);  // Text3[0] has changed: a sample with a count can be followed by the next
void ChooseBasis(int option);                   // Option1[option] was selected: underlines the members of its subtotal, arms the alarm;
                                                // an open diagram follows
void EnableDiagramItems(bool enabled);          // of the main window: the five styles
void OfferDiagram();                            // Label4 has changed: two samples make a diagram
void ShowZeroTotals();                          // of a sample in which nothing is counted yet
void ShowSubtotalNames();  // SheetHeader[kHeaderSubtotal1..kHeaderSubtotal2], in the labels of the totals and the entries of the percentage
                           // menu
