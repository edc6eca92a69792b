// The richness of a core's samples.
#include "figure/results/diversity.h"

#include <gtest/gtest.h>

#include "figure/small_core.h"

namespace {
TEST(DiversityTest, SamplesAreRarefiedToTheSmallestSum) {
    const Diversity trees = DiversityOf(SmallCore(), kBasisSubtotal1, "");
    EXPECT_EQ(trees.size, 40);
    EXPECT_EQ(trees.samples[0].taxa, 2);
    EXPECT_NEAR(trees.samples[0].rarefied.value(), 2, 1e-12);
    EXPECT_EQ(trees.samples[2].sum, 50);
    EXPECT_NEAR(trees.samples[2].rarefied.value(), 1, 1e-12);
    EXPECT_NEAR(trees.samples[0].simpson, 1 - (0.75 * 0.75 + 0.25 * 0.25), 1e-12);
}

TEST(DiversityTest, TheMarkerIsNoTaxonOfTheSample) {
    EXPECT_EQ(DiversityOf(SmallCore(), kBasisAll, "Lycopodium").samples[0].sum, 50);
    EXPECT_EQ(DiversityOf(SmallCore(), kBasisAll, "Lycopodium").samples[0].taxa, 3);
    EXPECT_EQ(DiversityOf(SmallCore(), kBasisAll, "").samples[0].taxa, 4);
}

TEST(DiversityTest, AnEmptySampleDoesNotMakeTheOthersOnesOfNothing) {
    const Diversity herbs = DiversityOf(SmallCore(), kBasisSubtotal2, "");
    EXPECT_EQ(herbs.size, 10);
    EXPECT_TRUE(herbs.samples[0].rarefied);
    EXPECT_FALSE(herbs.samples[1].rarefied);
}

TEST(DiversityTest, ASampleOfOneGrainIsNotEmpty) {
    Core core = SmallCore();
    core.samples[1].counts[2] = 1;
    const Diversity herbs = DiversityOf(core, kBasisSubtotal2, "");
    EXPECT_EQ(herbs.size, 1);
    EXPECT_EQ(herbs.samples[1].rarefied, 1);
}
}  // namespace
