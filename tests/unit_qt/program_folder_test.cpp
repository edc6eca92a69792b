// The user's own folder against the installed tree, however much of it an earlier start has laid down.
#include "platform/qt/qt_host.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <string>

#ifdef Q_OS_LINUX
#include "unit_qt/file_size_limit.h"
#endif

namespace {
constexpr int kBytes = 100;

void Write(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

std::string Read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "no such file";
}

class ProgramFolderTest : public testing::Test {
protected:
    ProgramFolderTest() {
        Write(tree_ + "/References/KeySetting.csv", "keys");
        Write(tree_ + "/References/.hidden", "");
        Write(tree_ + "/Sound files/Alarm.wav", QByteArray(kBytes, 'a'));
        QDir().mkpath(tree_ + "/References/Back up files");
    }
    void ExpectAllThere() {
        EXPECT_EQ(Read(own_ + "/References/KeySetting.csv"), "keys");
        EXPECT_EQ(Read(own_ + "/References/.hidden"), "");
        EXPECT_EQ(Read(own_ + "/Sound files/Alarm.wav"), std::string(kBytes, 'a'));
        EXPECT_TRUE(QFileInfo(own_ + "/References/Back up files").isDir());
    }

    QTemporaryDir folder_;
    QString tree_ = folder_.path() + "/installed", own_ = folder_.path() + "/own";
};

TEST_F(ProgramFolderTest, AnEmptyFolderGetsTheWholeTree) {
    LayDownMissing(tree_, own_);
    ExpectAllThere();
}

TEST_F(ProgramFolderTest, AHalfLaidFolderIsCompleted) {
    Write(own_ + "/References/KeySetting.csv", "keys");
    LayDownMissing(tree_, own_);
    ExpectAllThere();
}

TEST_F(ProgramFolderTest, WhatTheUserHasChangedStaysAsItIs) {
    Write(own_ + "/References/KeySetting.csv", "her keys");
    Write(own_ + "/Sound files/Alarm.wav", "");
    Write(own_ + "/References/Back up files/1.csv", "her counts");
    LayDownMissing(tree_, own_);
    EXPECT_EQ(Read(own_ + "/References/KeySetting.csv"), "her keys");
    EXPECT_EQ(Read(own_ + "/Sound files/Alarm.wav"), "");
    EXPECT_EQ(Read(own_ + "/References/Back up files/1.csv"), "her counts");
}

TEST_F(ProgramFolderTest, TheUserCanWriteACopyOfWhatNobodyCan) {
    QFile::setPermissions(tree_ + "/References/KeySetting.csv", QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    LayDownMissing(tree_, own_);
    EXPECT_TRUE(QFile::permissions(own_ + "/References/KeySetting.csv").testFlag(QFile::WriteOwner));
}

#ifdef Q_OS_LINUX
TEST_F(ProgramFolderTest, WhereverTheDiskFillsUpNoFileStaysHalfWritten) {
    for (std::size_t room = 0; room < kBytes; ++room) {
        {
            const FileSizeLimit limit(room);
            LayDownMissing(tree_, own_);
        }
        ASSERT_EQ(QDir(own_ + "/Sound files").entryList(QDir::Files | QDir::Hidden).size(), 0) << room << " bytes";
    }
    LayDownMissing(tree_, own_);
    ExpectAllThere();
}
#endif
}  // namespace
