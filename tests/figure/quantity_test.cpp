// Numbers that a user names.
#include "figure/results/quantity.h"

#include <gtest/gtest.h>

#include "figure/fault_of.h"
#include "figure/small_core.h"

namespace {
TEST(QuantityTest, IsARowOfAdditionalInfoOrOneNumberForAll) {
    EXPECT_EQ(QuantityOf(SmallCore(), "Volume (cm3)"), (Quantity{0.5, 2, std::nullopt}));
    EXPECT_EQ(QuantityOf(SmallCore(), "1.5"), (Quantity{1.5, 1.5, 1.5}));
}

TEST(QuantityTest, WhatIsNeitherIsAFault) {
    EXPECT_EQ(FaultOf([] { QuantityOf(SmallCore(), "Volume"); }), "\"Volume\" is neither a row of Additional info nor a number");
    EXPECT_EQ(FaultOf([] { QuantityOf(SmallCore(), "Lithology"); }), "\"peat\" in the row \"Lithology\" of sample 10 is no number");
}
}  // namespace
