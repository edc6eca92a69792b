// The files of a figure appear together or not at all.
#include "program/figure_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>

#include "platform/headless/files.h"

namespace {
namespace fs = std::filesystem;
using Tree = std::map<std::string, std::string>;  // path below the folder: bytes; "/" of a folder

class FilesTest : public testing::Test {
protected:
    FilesTest() { fs::create_directories(folder_); }
    ~FilesTest() override { fs::remove_all(folder_); }

    std::string Path(const std::string& name) const { return PathText(folder_ / name); }
    void Put(const std::string& name, const std::string& bytes) const { std::ofstream(folder_ / name, std::ios::binary) << bytes; }

    Tree Left() const {
        Tree tree;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder_)) {
            std::ifstream stream(entry.path(), std::ios::binary);
            tree[PathText(fs::relative(entry.path(), folder_))] =
                entry.is_directory() ? "/" : std::string(std::istreambuf_iterator<char>(stream), {});
        }
        return tree;
    }

    std::string Fault(const FileTexts& files, const std::vector<std::string>& outdated = {}) const {
        try {
            WriteTogether(files, outdated);
        } catch (const WriteFault& fault) {
            return fault.what();
        }
        return "";
    }

    // What no system takes as a name: it is noticed when the file takes its place.
    std::string TooLong() const { return Path("z" + std::string(300, 'z')); }

private:
    const fs::path folder_ = fs::temp_directory_path() / ("figure_files_" + std::to_string(std::random_device()()));
};

TEST_F(FilesTest, FilesTakeTheirPlacesAndThoseOfOldOnes) {
    Put("core.svg", "old");
    WriteTogether({{Path("core.pdf"), "a"}, {Path("core.svg"), "b"}, {Path("core_tables/counts.csv"), "c"}}, {});
    EXPECT_EQ(Left(), (Tree{{"core.pdf", "a"}, {"core.svg", "b"}, {"core_tables", "/"}, {"core_tables/counts.csv", "c"}}));
}

TEST_F(FilesTest, FoldersInFoldersAreMade) {
    WriteTogether({{Path("a/b/core.svg"), "a"}}, {});
    EXPECT_EQ(Left(), (Tree{{"a", "/"}, {"a/b", "/"}, {"a/b/core.svg", "a"}}));
}

TEST_F(FilesTest, AFolderInTheWayLeavesAllAsItWas) {
    fs::create_directory(Path("core.svg"));
    Put("core.pdf", "old");
    const Tree before = Left();
    EXPECT_EQ(Fault({{Path("core.pdf"), "a"}, {Path("core.svg"), "b"}, {Path("x/y/z"), "c"}}),
              "cannot write " + Path("core.svg") + ": it is a folder");
    EXPECT_EQ(Left(), before);
}

TEST_F(FilesTest, APlaceThatCannotBeTakenGivesTheOthersBack) {
    Put("core.pdf", "old");
    Put("influx.csv", "older");
    const Tree before = Left();
    EXPECT_NE(
        Fault({{Path("core.pdf"), "a"}, {Path("core.svg"), "b"}, {Path("new/core.png"), "c"}, {TooLong(), "d"}}, {Path("influx.csv")}), "");
    EXPECT_EQ(Left(), before);
}

TEST_F(FilesTest, OutdatedFilesGoButNoFolders) {
    Put("influx.csv", "old");
    Put("notes.csv", "mine");
    fs::create_directory(Path("concentrations.csv"));
    WriteTogether({{Path("counts.csv"), "a"}}, {Path("influx.csv"), Path("concentrations.csv"), Path("never.csv")});
    EXPECT_EQ(Left(), (Tree{{"concentrations.csv", "/"}, {"counts.csv", "a"}, {"notes.csv", "mine"}}));
}

TEST_F(FilesTest, NamesOfOthersAreNotUsedOnTheWay) {
    Put("core.svg.part", "mine");
    Put("marlbrook-figure.part-1", "mine");
    fs::create_directory(Path("marlbrook-figure.part-2"));
    Put("marlbrook-figure.part-2/0", "of another call");
    Tree expected = Left();
    expected["core.svg"] = "a";
    WriteTogether({{Path("core.svg"), "a"}}, {});
    EXPECT_EQ(Left(), expected);
}
}  // namespace
