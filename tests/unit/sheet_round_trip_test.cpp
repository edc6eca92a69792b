// A sheet that is saved, opened and saved again at the same time of day is the same file, byte for byte, whatever is in it.
#include <algorithm>
#include <iterator>
#include <numeric>
#include <random>

#include "files/back_up.h"
#include "files/exports.h"
#include "files/save_sheet.h"
#include "platform/user.h"
#include "unit/open_test.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"

namespace {
constexpr unsigned kSeeds = 60;

// What a user can bring into a sheet, all of it from one seed.
class RandomSheet {
public:
    explicit RandomSheet(unsigned seed) : random_(seed) {}

    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool OneIn(int cases) { return Below(cases) == 0; }

    // Texts of one sheet either keep to Windows-1252 or not.
    std::string Text(int longest) {
        static const char* const kPieces[] = {
            "Pinus", "cf.", " ", ",",      "\r\n",   "\n",     "\r",     "\t",     "'",      "---",    "12",           "-3",
            "0,",    "1E2", ";", "\u00e9", "\u00df", "\u20ac", "\u2013", "\u0081", "\u03b2", "\u82b1", "\u0161\u0301", "\U0001f33e"};
        const int pieces = beyond_windows1252_ ? std::size(kPieces) : 20;
        std::string text;
        for (int length = Below(longest + 1); length > 0; --length) text += kPieces[Below(pieces)];
        return text;
    }
    std::string SampleName(int sample, bool numeric) {
        if (numeric) return std::to_string(sample) + (OneIn(3) ? ".5" : "");
        return OneIn(4) ? "0" + std::to_string(sample) : Text(3) + std::to_string(sample);
    }
    // A blank one would be an empty slot, and is written as such.
    std::string TaxonName() { return OneIn(2) ? "---" : "T" + Text(4); }
    std::string ParamName() {
        const std::string name = Text(3);
        return name.ends_with(':') ? "" : name;
    }
    // Numbers are what an edited file can leave in a column that is not on show.
    Any ParamValue(bool on_show) {
        if (!on_show && OneIn(4)) return (Below(2000) - 1000) / 8.0;
        return OneIn(3) ? "" : Text(2);
    }
    template <class Range>
    void Shuffle(Range begin, Range end) {
        std::shuffle(begin, end, random_);
    }

private:
    std::mt19937 random_;
    bool beyond_windows1252_ = random_() % 2 == 0;
};

class RoundTripTest : public OpenTest {
protected:
    // The arrays and the screen as a session leaves them, at the last sample.
    void Fill(unsigned seed) {
        RandomSheet random(seed);
        SampleCount = CurrentSample = static_cast<std::int16_t>(random.OneIn(8) ? 250 : 1 + random.Below(12));
        FillSubtotals(random);
        FillSamples(random);
        FillTaxa(random);
        FillParams(random);
    }
    void FillSubtotals(RandomSheet& random) {
        for (const int cell : {12, 13})
            if (random.OneIn(2)) SheetHeader[cell] = random.Text(3);
    }
    void FillSamples(RandomSheet& random) {
        std::int16_t serials[kColumns];
        std::iota(std::begin(serials), std::end(serials), std::int16_t{1});
        random.Shuffle(std::begin(serials), std::end(serials));
        const bool numeric = random.OneIn(2);
        for (int sample = 1; sample <= SampleCount; ++sample) {
            SampleTable[kSampleSerial][sample] = serials[sample - 1];
            SampleTable[kSampleName][sample] = random.SampleName(sample, numeric);
            SampleNotes[sample] = random.Text(6);
        }
        frmMain.Combo2.SetText(SampleTable[kSampleName][SampleCount].Text());
        frmMain.Text4.SetText(SampleNotes[SampleCount]);
    }
    void FillTaxa(RandomSheet& random) {
        std::iota(&KeyIndex[1], std::end(KeyIndex), std::int16_t{1});
        random.Shuffle(&KeyIndex[1], std::end(KeyIndex));
        for (int slot = 1; slot <= kSlots; ++slot) {
            TaxonTable[slot][kTaxonKey] = slot;
            TaxonTable[slot][kTaxonSubtotal1] = random.Below(2);
            TaxonTable[slot][kTaxonSubtotal2] = random.OneIn(9) ? -1 : random.Below(2);
            frmMain.Text1[slot].SetText(random.TaxonName());
            for (int sample = 1; sample <= SampleCount; ++sample) Counts[slot][sample] = random.OneIn(2) ? 0 : random.Below(400) - 180;
            frmMain.Text2[slot].SetText(std::to_string(Counts[slot][SampleCount]));
        }
    }
    void FillParams(RandomSheet& random) {
        for (int p = 1; p <= kParams; ++p) {
            for (int cell = 1; cell <= 3; ++cell) ParamHeader[p][cell] = random.OneIn(2) ? "" : random.Text(2);
            frmMain.Label10[p].SetCaption(random.ParamName());
            for (int sample = 1; sample <= SampleCount; ++sample) ParamValues[p][sample] = random.ParamValue(sample == SampleCount);
            frmMain.Text5[p].SetText(ParamValues[p][SampleCount].Text());
        }
        for (int cell = 1; cell <= 3; ++cell) SheetFooter[cell] = random.OneIn(2) ? "---" : "x" + random.Text(2);
    }

    bool OpenAnyway(const std::string& path) {
        SheetClean = true;  // no question
        return OpenAgain(path);
    }
    static std::string WithoutPath(const std::string& bytes) { return bytes.substr(bytes.find(',')); }
};

TEST_F(RoundTripTest, ASheetComesBackAsTheSameBytes) {
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        Fill(seed);
        SheetPath = kPath;
        SaveSheet(kSave);
        const std::string saved = files_.bytes[kPath];
        ASSERT_TRUE(OpenAnyway(kPath)) << "seed " << seed;
        SaveSheet(kSave);
        ASSERT_EQ(files_.bytes[kPath], saved) << "seed " << seed;
    }
}

// A file could stay the same and yet be read wrong, if it is written just as wrong.
TEST_F(RoundTripTest, EveryCellComesBackAsItWas) {
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        Fill(seed);
        SheetPath = kPath;
        SaveSheet(kSave);
        const auto texts = [](const Any* cells) {
            Texts all;
            for (int i = 1; i <= SampleCount; ++i) all.push_back((cells[i].IsNumber() ? "=" : "'") + cells[i].Text());
            return all;
        };
        const auto everything = [&] {
            std::vector<Texts> all = {
                texts(SampleTable[kSampleSerial]), texts(SampleTable[kSampleName]), {SampleNotes + 1, SampleNotes + 1 + SampleCount}};
            for (int p = 1; p <= kParams; ++p) all.push_back(texts(ParamValues[p]));
            for (int slot = 1; slot <= kSlots; ++slot) {
                all.push_back({TaxonTable[slot][kTaxonSubtotal1].Text(), TaxonTable[slot][kTaxonSubtotal2].Text(),
                               TaxonTable[slot][kTaxonName].Text()});
                for (int sample = 1; sample <= SampleCount; ++sample) all.back().push_back(std::to_string(Counts[slot][sample]));
                all.back().push_back(std::to_string(KeyIndex[slot]));
            }
            all.push_back(
                {SheetHeader[kHeaderSubtotal1].Text(), SheetHeader[kHeaderSubtotal2].Text(), SheetFooter[1].Text(), SheetFooter[3].Text()});
            return all;
        };
        const auto before = everything();
        ASSERT_TRUE(OpenAnyway(kPath)) << "seed " << seed;
        ASSERT_EQ(everything(), before) << "seed " << seed;
    }
}

TEST_F(RoundTripTest, ABackUpComesBackTheSameButForItsPath) {
    const std::string folder = "/program/References/Back up files/";
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        Fill(seed);
        BackupSlot = 99;
        BackUpSheet();
        ASSERT_TRUE(OpenAnyway(folder + "Master_back_up.csv")) << "seed " << seed;
        ASSERT_EQ(WithoutPath(files_.bytes[folder + "Auto_back_up_(0).csv"]), WithoutPath(files_.bytes[folder + "Master_back_up.csv"]))
            << "seed " << seed;
    }
}

TEST_F(RoundTripTest, ATemplateComesBackAsTheSameBytes) {
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        Fill(seed);
        SheetPath = kPath;
        AnswerDialog(kPath);
        CreateTemplate();
        const std::string saved = files_.bytes[kPath];
        ASSERT_TRUE(OpenAnyway(kPath)) << "seed " << seed;
        ClickControl(frmSiteName.Command1);
        AnswerDialog(kPath);
        CreateTemplate();
        ASSERT_EQ(files_.bytes[kPath], saved) << "seed " << seed;
    }
}

TEST_F(RoundTripTest, AnOlderSheetComesBackOnceItHasBeenSaved) {
    ASSERT_TRUE(Open(OlderSheet(3)));
    SaveSheet(kSave);
    const std::string saved = files_.bytes[kPath];
    ASSERT_TRUE(OpenAnyway(kPath));
    SaveSheet(kSave);
    EXPECT_EQ(files_.bytes[kPath], saved);
}

TEST_F(RoundTripTest, AnAccentWhoseBytesWouldBeAnotherComesBack) {
    ASSERT_TRUE(Open(DataSheet(1)));
    frmMain.Text1[1].SetText("\u00c3\u00a9");  // in Windows-1252 the two bytes that are an e with an acute accent in UTF-8
    SaveSheet(kSave);
    ASSERT_TRUE(OpenAnyway(kPath));
    EXPECT_EQ(frmMain.Text1[1].Text(), "\u00c3\u00a9");
}

// The one name that does not come back: a colon of its own at the end is taken for the one that the label adds.
TEST_F(RoundTripTest, AParameterNameLosesAColonOfItsOwn) {
    ASSERT_TRUE(Open(DataSheet(1)));
    frmMain.Label10[1].SetCaption("Depth::");
    SaveSheet(kSave);
    EXPECT_TRUE(FileLine(kPath, kParamRow + 1).starts_with("\"---\",\"---\",\"---\",\"Depth:\""));
    ASSERT_TRUE(OpenAnyway(kPath));
    EXPECT_EQ(frmMain.Label10[1].Caption(), "Depth:");
}
}  // namespace
