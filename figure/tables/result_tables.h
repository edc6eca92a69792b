// Tables of what follows from the counts of single samples.
#pragma once
#include <string>

#include "figure/results/concentrations.h"
#include "figure/results/diversity.h"
#include "figure/results/quantity.h"
#include "figure/tables/sample_cells.h"

// A row for each sample and taxon, and for each sample and sum: the concentration with its standard error, and what it is reckoned from.
// Empty where there is none; the error is empty too where nothing was counted.
std::string ConcentrationTable(const Core& core, const SampleCells& samples, const Concentrations& concentrations);

// The same times the rate at which the sediment was laid down; the error takes the rate as exact.
std::string InfluxTable(const Core& core, const SampleCells& samples, const Concentrations& concentrations, const Quantity& rates);

std::string DiversityTable(const SampleCells& samples, const Diversity& diversity);  // a row for each sample
