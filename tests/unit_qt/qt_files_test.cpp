#include "platform/qt/qt_files.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/failure.h"

namespace {
class QtFilesTest : public testing::Test {
protected:
    std::string Path(const char* name) const { return folder_.path().toStdString() + "/" + name; }

    QtFiles files_;

private:
    QTemporaryDir folder_;
};
}  // namespace

TEST_F(QtFilesTest, NothingIsGoneBeforeReplace) {
    files_.OpenForWriting(Path("a.csv"))->Replace("old content");
    {
        const auto file = files_.OpenForWriting(Path("a.csv"));
        EXPECT_EQ(files_.ReadAll(Path("a.csv")), "old content");
    }
    EXPECT_EQ(files_.ReadAll(Path("a.csv")), "old content");
}

TEST_F(QtFilesTest, ReplaceLeavesJustTheNewBytes) {
    files_.OpenForWriting(Path("a.csv"))->Replace("old and longer");
    files_.OpenForWriting(Path("a.csv"))->Replace(std::string_view("new\0\r\n", 6));
    EXPECT_EQ(files_.ReadAll(Path("a.csv")), std::string("new\0\r\n", 6));
}

TEST_F(QtFilesTest, PathsBearAccentsAndEitherSeparator) {
    files_.OpenForWriting(Path("p\xC3\xA9riode.csv"))->Replace("x");
    std::string other = Path("p\xC3\xA9riode.csv");
    other[other.rfind('/')] = '\\';
    EXPECT_EQ(files_.ReadAll(other), "x");
}

TEST_F(QtFilesTest, WhatCannotBeOpenedIsAFileError) {
    EXPECT_THROW(files_.ReadAll(Path("none.csv")), Failure);
    EXPECT_THROW(files_.ReadAll(Path("")), Failure);
    EXPECT_THROW(files_.OpenForWriting(Path("none/a.csv")), Failure);
}

#ifdef Q_OS_LINUX
TEST_F(QtFilesTest, FullDiskIsAFileError) {
    QFile::link("/dev/full", QString::fromStdString(Path("full.csv")));
    EXPECT_THROW(files_.OpenForWriting(Path("full.csv"))->Replace("x"), Failure);
}
#endif

TEST_F(QtFilesTest, WhatIsNoOrdinaryFileOrFarTooLargeIsNotRead) {
    files_.OpenForWriting(Path("huge.csv"))->Replace("");
    QFile(QString::fromStdString(Path("huge.csv"))).resize(static_cast<qint64>(kLargestFile) + 1);  // sparse
    QFile::link("/dev/zero", QString::fromStdString(Path("endless.csv")));
    for (const char* name : {"huge.csv", "endless.csv", "."}) EXPECT_THROW(files_.ReadAll(Path(name)), Failure) << name;
}
