// The key settings as installed, byte for byte: the keyboard is not yet known (999), all else counts from the first minute.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

const std::filesystem::path kTree = std::filesystem::path(WAVES_FOLDER).parent_path();

// clang-format off
constexpr const char* kRows[] = {
    R"("Key","Code","Number")",
    R"("q",81,1)",
    R"("w",87,2)",
    R"("e",69,3)",
    R"("a",65,4)",
    R"("s",83,5)",
    R"("d",68,6)",
    R"("z",90,7)",
    R"("x",88,8)",
    R"("c",67,9)",
    R"("r",82,10)",
    R"("t",84,11)",
    R"("y",89,12)",
    R"("f",70,13)",
    R"("g",71,14)",
    R"("h",72,15)",
    R"("v",86,16)",
    R"("b",66,17)",
    R"("n",78,18)",
    R"("u",85,19)",
    R"("i",73,20)",
    R"("o",79,21)",
    R"("j",74,22)",
    R"("k",75,23)",
    R"("l",76,24)",
    R"("m",77,25)",
    R"(",",188,26)",
    R"(".",190,27)",
    R"("[F1]",112,28)",
    R"("[F2]",113,29)",
    R"("[F3]",114,30)",
    R"("1",49,31)",
    R"("2",50,32)",
    R"("3",51,33)",
    R"("[F4]",115,34)",
    R"("[F5]",116,35)",
    R"("[F6]",117,36)",
    R"("4",52,37)",
    R"("5",53,38)",
    R"("6",54,39)",
    R"("[F7]",118,40)",
    R"("[F8]",119,41)",
    R"("[F9]",120,42)",
    R"("7",55,43)",
    R"("8",56,44)",
    R"("9",57,45)",
    R"(";",186,"46")",
    R"("p",80,"47")",
    R"(";",186,"48")",
    R"("[BkSp]",8,"49")",
    R"("=",187,"50")",
    R"("Shift",999,"-")",
    R"("Ctrl",999,"-")",
    R"("Delete",999,"-")",
    R"("BkSp",999,"-")",
    R"("Esc",999,"-")",
    R"("Enter",999,"-")",
    R"("Space",999,"-")",
    R"("F1",999,"-")",
    R"("Left",999,"-")",
    R"("Up",999,"-")",
    R"("Right",999,"-")",
    R"("Down",999,"-")",
};
// clang-format on

std::string Bytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

TEST(KeySettingsSeedTest, HoldsThese63RowsEachEndedByCrLf) {
    const std::string seed = Bytes(SOURCE_FOLDER "/install/References/KeySetting.csv");
    ASSERT_EQ(std::size(kRows), 63u);
    std::size_t at = 0;
    for (const std::string row : kRows) {
        EXPECT_EQ(seed.substr(at, row.size() + 2), row + "\r\n") << "at byte " << at;
        at += row.size() + 2;
    }
    EXPECT_EQ(seed.size(), at) << "nothing follows the last row";
}

TEST(KeySettingsSeedTest, StandsUnchangedInTheInstallationTree) {
    EXPECT_EQ(Bytes(kTree / "References/KeySetting.csv"), Bytes(SOURCE_FOLDER "/install/References/KeySetting.csv"));
    EXPECT_TRUE(std::filesystem::is_empty(kTree / "References/Back up files"));
}
