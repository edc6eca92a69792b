// What a key takes of the memory for good, on real widgets.
#include "long/memory_in_use.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit_qt/on_screen_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
class MemoryTest : public OnScreenTest {
protected:
    MemoryTest() {
        Do([] { CloseWindow(frmNext); });
    }

    void Count(int keys) {
        for (; keys > 0; --keys) {
            Do([] { PressKey('Q'); });
            Do([] { ReleaseKey('Q'); });
            services_.sounds.played.clear();
        }
    }
};

// Its line in the history, twice, and its point of the curve, twice: what is drawn and what is on the screen.
TEST_F(MemoryTest, AKeyTakesUpALineOfTheHistoryAndAPointOfTheCurve) {
    constexpr int kFirst = 1100, kMore = 1900;  // with the first fonts and layouts are made, and all the files of the back-ups
    constexpr double kMostOfAKey = 105;         // bytes, with the room that growing lists keep
    Count(kFirst);
    const std::size_t before = BytesInUse();
    Count(kMore);
    const double bytes_a_key = (static_cast<double>(BytesInUse()) - static_cast<double>(before)) / kMore;
    RecordProperty("bytes_a_key", std::to_string(bytes_a_key));
    ASSERT_EQ(AllTotal, kFirst + kMore);
    EXPECT_GT(bytes_a_key, 64) << "the heap is measured";
    EXPECT_LT(bytes_a_key, kMostOfAKey);
}
}  // namespace
