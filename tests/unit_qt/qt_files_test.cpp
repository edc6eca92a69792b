#include "platform/qt/qt_files.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <optional>

#include "platform/failure.h"

#ifdef Q_OS_LINUX
#include <unistd.h>

#include "unit_qt/file_size_limit.h"
#elif defined(Q_OS_WIN)
#include <windows.h>
#endif

namespace {
class QtFilesTest : public testing::Test {
protected:
    std::string Path(const char* name) const { return folder_.path().toStdString() + "/" + name; }

    QtFiles files_;
    QTemporaryDir folder_;
};

#ifdef Q_OS_LINUX
// What the disk took before it was full, as Replace tells it; nothing if it went well.
std::optional<std::size_t> TakenBeforeFailure(OutputFile& file, const std::string& bytes, std::size_t room) {
    const FileSizeLimit limit(room);
    try {
        file.Replace(bytes);
        return std::nullopt;
    } catch (const WriteFailure& failure) {
        return failure.taken;
    }
}

// As root nothing is forbidden.
class NobodySpecial {
public:
    NobodySpecial() : user_(geteuid()) {
        if (user_ == 0) is_other_ = seteuid(kNobody) == 0;
    }
    ~NobodySpecial() {
        if (is_other_) (void)!seteuid(user_);
    }

private:
    static constexpr uid_t kNobody = 65534;
    uid_t user_;
    bool is_other_ = false;
};
#endif
}  // namespace

TEST_F(QtFilesTest, NothingIsGoneBeforeReplace) {
    files_.OpenForWriting(Path("a.csv"))->Replace("old content");
    {
        const auto file = files_.OpenForWriting(Path("a.csv"));
        EXPECT_EQ(files_.ReadAll(Path("a.csv")), "old content");
    }
    EXPECT_EQ(files_.ReadAll(Path("a.csv")), "old content");
}

#ifndef Q_OS_WIN
TEST_F(QtFilesTest, ABackslashInANameIsPartOfIt) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("a"));
    files_.OpenForWriting(Path("a\\b.csv"))->Replace("counts");
    EXPECT_EQ(files_.ReadAll(Path("a\\b.csv")), "counts");
    EXPECT_TRUE(QDir(folder_.path() + "/a").isEmpty());
}
#endif

TEST_F(QtFilesTest, ReplaceLeavesJustTheNewBytes) {
    files_.OpenForWriting(Path("a.csv"))->Replace("old and longer");
    files_.OpenForWriting(Path("a.csv"))->Replace(std::string_view("new\0\r\n", 6));
    EXPECT_EQ(files_.ReadAll(Path("a.csv")), std::string("new\0\r\n", 6));
}

TEST_F(QtFilesTest, TheHeadOfAFileIsItsFirstBytesAndAllOfAShorterOne) {
    files_.OpenForWriting(Path("a.csv"))->Replace("counts");
    EXPECT_EQ(files_.ReadHead(Path("a.csv"), 5), "count");
    EXPECT_EQ(files_.ReadHead(Path("a.csv"), 6), "counts");
    EXPECT_EQ(files_.ReadHead(Path("a.csv"), kLargestFile), "counts");
    EXPECT_THROW(files_.ReadHead(Path("none.csv"), 5), Failure);
}

TEST_F(QtFilesTest, PathsBearAccents) {
    files_.OpenForWriting(Path("p\xC3\xA9riode.csv"))->Replace("x");
    EXPECT_EQ(files_.ReadAll(Path("p\xC3\xA9riode.csv")), "x");
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

TEST_F(QtFilesTest, WhatADiskTookBeforeItWasFullStaysAndTheNextSaveIsWhole) {
    std::string whole;
    while (whole.size() < 250) whole += std::to_string(whole.size()) + ",\r\n";
    for (std::size_t room = 0; room <= whole.size(); ++room) {
        const auto taken = TakenBeforeFailure(*files_.OpenForWriting(Path("a.csv")), whole, room);
        ASSERT_EQ(taken, room < whole.size() ? std::optional(room) : std::nullopt) << room << " bytes";
        ASSERT_EQ(files_.ReadAll(Path("a.csv")), whole.substr(0, room));
        files_.OpenForWriting(Path("a.csv"))->Replace(whole);
        ASSERT_EQ(files_.ReadAll(Path("a.csv")), whole) << "after a failure at " << room;
    }
}

TEST_F(QtFilesTest, AFileThatIsBusyIsAFileError) {
    QFile::link("/proc/self/exe", QString::fromStdString(Path("busy.csv")));  // no running program can be written
    EXPECT_THROW(files_.OpenForWriting(Path("busy.csv")), Failure);
}

TEST_F(QtFilesTest, AFolderThatTakesNoFilesIsAFileError) {
    constexpr QFile::Permissions kOnlyRead = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    files_.OpenForWriting(Path("a.csv"))->Replace("old");
    QFile::setPermissions(QString::fromStdString(Path("a.csv")), kOnlyRead);
    QFile::setPermissions(folder_.path(), kOnlyRead | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    {
        const NobodySpecial user;
        EXPECT_THROW(files_.OpenForWriting(Path("new.csv")), Failure);
        EXPECT_THROW(files_.OpenForWriting(Path("a.csv")), Failure);
        EXPECT_EQ(files_.ReadAll(Path("a.csv")), "old");
    }
    QFile::setPermissions(folder_.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
#endif

TEST_F(QtFilesTest, AFolderThatHasGoneIsAFileErrorUntilItIsBack) {
    QDir folder(folder_.path());
    folder.mkdir("stick");
    files_.OpenForWriting(Path("stick/a.csv"))->Replace("old");
    QDir(folder.filePath("stick")).removeRecursively();
    EXPECT_THROW(files_.OpenForWriting(Path("stick/a.csv")), Failure);
    EXPECT_THROW(files_.ReadAll(Path("stick/a.csv")), Failure);
    folder.mkdir("stick");
    files_.OpenForWriting(Path("stick/a.csv"))->Replace("new");
    EXPECT_EQ(files_.ReadAll(Path("stick/a.csv")), "new");
}

TEST_F(QtFilesTest, WhatIsNoOrdinaryFileOrFarTooLargeIsNotRead) {
    files_.OpenForWriting(Path("huge.csv"))->Replace("");
    QFile(QString::fromStdString(Path("huge.csv"))).resize(static_cast<qint64>(kLargestFile) + 1);  // sparse
#ifdef Q_OS_WIN
    const char* const device = "NUL.csv";
#else
    const char* const device = "endless.csv";
    QFile::link("/dev/zero", QString::fromStdString(Path(device)));
#endif
    for (const char* name : {"huge.csv", device, "."}) EXPECT_THROW(files_.ReadAll(Path(name)), Failure) << name;
}

#ifdef Q_OS_WIN
TEST_F(QtFilesTest, ANameThatWindowsTakesForSomethingElseIsAFileError) {
    for (const char* name : {"CON.csv", "nul.csv", "com1.csv", "a:b.csv"}) {
        EXPECT_THROW(files_.OpenForWriting(Path(name)), Failure) << name;
        EXPECT_THROW(files_.ReadAll(Path(name)), Failure) << name;
    }
    EXPECT_TRUE(QDir(folder_.path()).isEmpty());
    files_.OpenForWriting(Path("CONIFERS.csv"))->Replace("x");
    EXPECT_EQ(files_.ReadAll(Path("CONIFERS.csv")), "x");
}

TEST_F(QtFilesTest, AFileThatAnotherProgramHoldsIsAFileErrorUntilItLetsGo) {
    files_.OpenForWriting(Path("a.csv"))->Replace("old");
    for (const DWORD shared : {FILE_SHARE_READ, 0}) {
        const HANDLE held = CreateFileA(Path("a.csv").c_str(), GENERIC_READ | GENERIC_WRITE, shared, nullptr, OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(held, INVALID_HANDLE_VALUE);
        EXPECT_THROW(files_.OpenForWriting(Path("a.csv")), Failure) << shared;
        if (shared == FILE_SHARE_READ)
            EXPECT_EQ(files_.ReadAll(Path("a.csv")), "old");
        else
            EXPECT_THROW(files_.ReadAll(Path("a.csv")), Failure);
        CloseHandle(held);
    }
    files_.OpenForWriting(Path("a.csv"))->Replace("new");
    EXPECT_EQ(files_.ReadAll(Path("a.csv")), "new");
}
#endif

class QtWholeFilesTest : public QtFilesTest {
    char name_[5] = "test";
    char* arguments_[1] = {name_};
    int count_ = 1;
    QCoreApplication application_{count_, arguments_};

protected:
    QtWholeFiles whole_;
    int taken_ = 0, refused_ = 0;

    std::shared_ptr<OwnName> Name(const char* first, const char* second) const {
        return std::make_shared<OwnName>(OwnName{{Path(first), Path(second)}, ""});
    }
    void Write(const std::shared_ptr<OwnName>& name, const std::string& bytes) {
        whole_.Write(name, bytes, [this](bool done) { ++(done ? taken_ : refused_); });
    }
    void Finish() {
        whole_.Finish();
        QCoreApplication::sendPostedEvents();
    }
    QStringList Names() const { return QDir(folder_.path()).entryList(QDir::Files); }
};

TEST_F(QtWholeFilesTest, TheNewestContentIsThereAndNothingBesideIt) {
    const auto name = Name("a.csv", "b.csv");
    for (int time = 0; time <= 200; ++time) Write(name, std::string(1000, 'x') + std::to_string(time));
    Finish();
    EXPECT_EQ(files_.ReadAll(Path("a.csv")), std::string(1000, 'x') + "200");
    EXPECT_EQ(Names(), QStringList{"a.csv"});
    EXPECT_GE(taken_, 1);
    EXPECT_EQ(refused_, 0);
}

TEST_F(QtWholeFilesTest, OneIsDoneAfterTheOther) {
    Write(Name("a.csv", "c.csv"), "1");
    whole_.Remove(Path("a.csv"));
    Write(Name("b.csv", "c.csv"), "2");
    Write(Name("a.csv", "c.csv"), "3");
    whole_.Remove(Path("b.csv"));
    Finish();
    EXPECT_EQ(Names(), QStringList{"a.csv"});
    EXPECT_EQ(files_.ReadAll(Path("a.csv")), "3");
}

TEST_F(QtWholeFilesTest, WhatCannotBeWrittenIsTold) {
    Write(Name("none/none/a.csv", "none/none/b.csv"), "1");
    Finish();
    EXPECT_EQ(refused_, 1);
}

TEST_F(QtWholeFilesTest, AFolderThatWasTidiedAwayIsMadeAgain) {
    const auto name = Name("copies/a.csv", "copies/b.csv");
    for (const char* bytes : {"1", "2"}) {
        QDir(folder_.filePath("copies")).removeRecursively();
        Write(name, bytes);
        Finish();
        EXPECT_EQ(files_.ReadAll(Path("copies/a.csv")), bytes);
    }
}

TEST_F(QtWholeFilesTest, NoFileIsWrittenOverThatItHasNotWritten) {
    files_.OpenForWriting(Path("a.csv"))->Replace("somebody's");
    const auto name = Name("a.csv", "b.csv");
    for (const char* bytes : {"1", "2"}) {
        Write(name, bytes);
        Finish();
        EXPECT_EQ(name->path, Path("b.csv"));
        EXPECT_EQ(files_.ReadAll(Path("b.csv")), bytes);
    }
    Write(Name("a.csv", "b.csv"), "3");
    Finish();
    EXPECT_EQ(refused_, 1) << "no name is free";
    EXPECT_EQ(files_.ReadAll(Path("a.csv")), "somebody's");
    EXPECT_EQ(files_.ReadAll(Path("b.csv")), "2");
    EXPECT_EQ(Names(), (QStringList{"a.csv", "b.csv"}));
}

TEST_F(QtWholeFilesTest, TwoNamesOfOneFileAreFound) {
    Write(Name("a.csv", "c.csv"), "1");
    Finish();
#ifdef Q_OS_WIN
    const char* const other = "A.CSV";
#else
    const char* const other = "b.csv";
    ASSERT_TRUE(QFile::link(folder_.path() + "/a.csv", folder_.path() + "/b.csv"));
#endif
    EXPECT_TRUE(whole_.AreSame(Path("a.csv"), Path(other)));
    EXPECT_FALSE(whole_.AreSame(Path("a.csv"), Path("c.csv")));
}

// The longest path that calls of Windows take in its plain form has 259 characters.
TEST_F(QtWholeFilesTest, AFolderBelowManyOthersServesAsAnyOther) {
    QString deep = folder_.path();
    while (deep.size() < 300) deep += "/" + QString(60, 'd');
    ASSERT_TRUE(QDir().mkpath(deep));
    const std::string first = deep.toStdString() + "/copies/a.csv", second = deep.toStdString() + "/copies/b.csv";
    files_.OpenForWriting(deep.toStdString() + "/sheet.csv")->Replace("counts");
    EXPECT_EQ(files_.ReadAll(deep.toStdString() + "/sheet.csv"), "counts");
    const auto name = std::make_shared<OwnName>(OwnName{{first, second}, ""});
    for (const char* bytes : {"1", "2"}) {
        Write(name, bytes);
        Finish();
        EXPECT_EQ(files_.ReadAll(first), bytes);
    }
    Write(std::make_shared<OwnName>(OwnName{{first, second}, ""}), "3");
    Finish();
    EXPECT_EQ(files_.ReadAll(second), "3");
    EXPECT_EQ(refused_, 0);
    EXPECT_TRUE(whole_.AreSame(first, deep.toStdString() + "/copies/../copies/a.csv"));
    EXPECT_FALSE(whole_.AreSame(first, second));
    EXPECT_EQ(QDir(deep + "/copies").entryList(QDir::Files), (QStringList{"a.csv", "b.csv"}));
}

#ifdef Q_OS_LINUX
TEST_F(QtWholeFilesTest, OnAFullDiskTheOldContentStays) {
    const auto name = Name("a.csv", "b.csv");
    Write(name, "old");
    Finish();
    {
        const FileSizeLimit limit(10);
        Write(name, std::string(1000, 'x'));
        Finish();
    }
    EXPECT_EQ(refused_, 1);
    EXPECT_EQ(files_.ReadAll(Path("a.csv")), "old");
    EXPECT_EQ(Names(), QStringList{"a.csv"});
}
#endif
