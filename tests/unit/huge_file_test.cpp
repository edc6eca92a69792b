// What is chosen as a sheet and can be none: it is refused before it fills the memory or keeps the program waiting.
#include <filesystem>
#include <random>

#include "platform/headless/files.h"
#include "unit/open_test.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace {
namespace fs = std::filesystem;

class HugeFileTest : public OpenTest {
protected:
    HugeFileTest() {
        fs::create_directories(folder_);
        EXPECT_TRUE(Open(DataSheet(2)));
        services.files = &services_.disk;
    }
    ~HugeFileTest() override { fs::remove_all(folder_); }

    void ExpectRefused(const fs::path& file) {
        EXPECT_THROW(services_.disk.ReadAll(PathText(file)), Failure);
        EXPECT_FALSE(OpenAgain(PathText(file)));
        EXPECT_EQ(SheetPath, kPath) << "the sheet stays as it was";
        EXPECT_EQ(Counts[1][2], 3);
        EXPECT_EQ(MessageCount(), 0u);
    }

    const fs::path folder_ = fs::path(testing::TempDir()) / ("huge " + std::to_string(std::random_device()()));
};

TEST_F(HugeFileTest, AFileThatNoSheetCanBeIsNotRead) {
    const fs::path file = folder_ / "huge.csv";
    services_.disk.OpenForWriting(PathText(file))->Replace("");
    fs::resize_file(file, (16 << 20) + 1);  // sparse
    ExpectRefused(file);
    fs::resize_file(file, 16 << 20);
    EXPECT_EQ(services_.disk.ReadAll(PathText(file)).size(), 16u << 20);
}

#ifndef _WIN32  // where no file of a folder can be a device
TEST_F(HugeFileTest, ADeviceThatNeverEndsIsNotRead) {
    const fs::path file = folder_ / "endless.csv";
    fs::create_symlink("/dev/zero", file);
    ExpectRefused(file);
}

TEST_F(HugeFileTest, APipeIsNotWaitedFor) {
    const fs::path file = folder_ / "pipe.csv";
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    ExpectRefused(file);
}
#endif
}  // namespace
