// What a key press costs: texts are turned into numbers where they change, not where they are read.
#include <string>
#include <string_view>

#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
int val_calls = 0;
}

// The linker hands each call of Val to CountedVal and knows Val itself as RealVal (tests/CMakeLists.txt).
double RealVal(std::string_view text) __asm__("__real__Z3ValSt17basic_string_viewIcSt11char_traitsIcEE");
double CountedVal(std::string_view text) __asm__("__wrap__Z3ValSt17basic_string_viewIcSt11char_traitsIcEE");

double CountedVal(std::string_view text) {
    ++val_calls;
    return RealVal(text);
}

namespace {
class KeyCostTest : public SheetTest {
protected:
    // A sample whose cells all hold a count, all in both subtotals: every total changes with each key.
    KeyCostTest() {
        Begin("10");
        for (int slot = 1; slot <= kSlots; ++slot) {
            TaxonTable[slot][kTaxonSubtotal1] = TaxonTable[slot][kTaxonSubtotal2] = 1;
            frmMain.Text2[slot].SetText(std::to_string(slot));
        }
        KeyNumber(1);
    }

    template <class Act>
    static int ValCallsOf(const Act& act) {
        val_calls = 0;
        act();
        return val_calls;
    }
};

TEST_F(KeyCostTest, AKeyReadsTheNumbersOfFewTexts) {
    const int calls = ValCallsOf([this] { KeyNumber(7); });
    EXPECT_EQ(frmMain.Text2[7].Text(), "8");
    EXPECT_GT(calls, 0) << "the calls are counted";
    EXPECT_LE(calls, 10);
}

TEST_F(KeyCostTest, AnUndoReadsTheNumbersOfFewTexts) {
    const int calls = ValCallsOf([this] { Key(kUndo); });
    EXPECT_EQ(frmMain.Text2[1].Text(), "1");
    EXPECT_GT(calls, 0);
    EXPECT_LE(calls, 10);
}
}  // namespace
