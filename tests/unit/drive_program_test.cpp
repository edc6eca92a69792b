// The driver as a process: its arguments, what it reads, and the status it ends with.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {
namespace fs = std::filesystem;

struct Outcome {
    int status;
    std::string said;  // on both outputs
};

Outcome Drive(const std::string& arguments) {
    std::FILE* const pipe = popen((DRIVER " " + arguments + " 2>&1").c_str(), "r");
    std::string said;
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) said += static_cast<char>(c);
    return {WEXITSTATUS(pclose(pipe)), said};
}

class DriveProgramTest : public testing::Test {
protected:
    DriveProgramTest() { std::ofstream(script_) << "expect SampleCount 0\n"; }
    ~DriveProgramTest() override { fs::remove(script_); }

    const std::string script_ = testing::TempDir() + "drive-program-" + std::to_string(getpid()) + ".drive";
};
}  // namespace

TEST_F(DriveProgramTest, AScriptIsReadFromAFileOrFromStandardInput) {
    const Outcome from_file = Drive(script_);
    EXPECT_EQ(from_file.status, 0);
    EXPECT_EQ(from_file.said, "1 passed, 0 failed\n");
    const Outcome from_input = Drive("- <" + script_);
    EXPECT_EQ(from_input.status, 0);
    EXPECT_EQ(from_input.said, "1 passed, 0 failed\n");
}

TEST_F(DriveProgramTest, KeptFoldersAreNamed) {
    const Outcome kept = Drive("--keep " + script_);
    EXPECT_EQ(kept.status, 0);
    const std::string program = kept.said.substr(5, kept.said.find('\n') - 5);
    const std::size_t second = kept.said.find("$W = ");
    ASSERT_NE(second, std::string::npos) << kept.said;
    const std::string work = kept.said.substr(second + 5, kept.said.find('\n', second) - second - 5);
    EXPECT_TRUE(fs::is_regular_file(program + "/References/KeySetting.csv"));
    EXPECT_TRUE(fs::is_directory(work));
    fs::remove_all(program);
    fs::remove_all(work);
}

TEST_F(DriveProgramTest, OtherArgumentsAreAnsweredByTheirForm) {
    for (const std::string& arguments : {std::string(), std::string("--slow ") + script_, script_ + " " + script_}) {
        const Outcome wrong = Drive(arguments);
        EXPECT_EQ(wrong.status, 2) << arguments;
        EXPECT_TRUE(wrong.said.starts_with("usage: marlbrook-drive [--windows] [--keep] SCRIPT")) << wrong.said;
    }
}

TEST_F(DriveProgramTest, WhatCannotBeReadIsNamed) {
    for (const std::string& name : {script_ + ".none", testing::TempDir()}) {
        const Outcome wrong = Drive(name);
        EXPECT_EQ(wrong.status, 2) << name;
        EXPECT_EQ(wrong.said, "marlbrook-drive: cannot read " + name + "\n");
    }
}

TEST_F(DriveProgramTest, AFolderForTheRunThatCannotBeMadeIsSaid) {
    setenv("TMPDIR", "/nowhere", 1);
    const Outcome wrong = Drive(script_);
    unsetenv("TMPDIR");
    EXPECT_EQ(wrong.status, 2);
    EXPECT_TRUE(wrong.said.starts_with("marlbrook-drive: ")) << wrong.said;
}
