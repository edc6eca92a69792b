#include "drive/script.h"

#include <gtest/gtest.h>

#include <sstream>

#include "drive/fault.h"

using drive::Command;
using drive::Script;
using drive::ScriptFault;
using Words = std::vector<std::string>;

namespace {
std::vector<Command> CommandsOf(const std::string& text) {
    std::istringstream stream(text);
    Script script(stream);
    std::vector<Command> commands;
    for (Command command; script.Next(command);) commands.push_back(command);
    return commands;
}
}  // namespace

TEST(DriveScriptTest, BlankLinesAndCommentsArePassedOverAndCounted) {
    const auto commands = CommandsOf("# what it shows\n\nstart\n   \n  # more\nkey 81\r\n");
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].words, Words{"start"});
    EXPECT_EQ(commands[0].line, 3);
    EXPECT_EQ(commands[1].words, (Words{"key", "81"}));
    EXPECT_EQ(commands[1].line, 6);
}

TEST(DriveScriptTest, AMarkAtTheHeadIsPassedOver) {
    const auto commands = CommandsOf("\xEF\xBB\xBFstart\n");
    ASSERT_EQ(commands.size(), 1u);
    EXPECT_EQ(commands[0].words, Words{"start"});
}

TEST(DriveScriptTest, LinesOfACommandStandAsTheyAre) {
    const auto commands = CommandsOf("write $W/a.csv <<END\n# no comment\n\n  \"a\",1 \nEND\nstart\n");
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_TRUE(commands[0].has_lines);
    EXPECT_EQ(commands[0].words, (Words{"write", "$W/a.csv"}));
    EXPECT_EQ(commands[0].lines, (Words{"# no comment", "", "  \"a\",1 "}));
    EXPECT_FALSE(commands[1].has_lines);
    EXPECT_EQ(commands[1].line, 6);
}

TEST(DriveScriptTest, AQuotedMarkOpensNoLines) {
    const auto commands = CommandsOf("paste \"<<END\"\n");
    ASSERT_EQ(commands.size(), 1u);
    EXPECT_FALSE(commands[0].has_lines);
    EXPECT_EQ(commands[0].words, (Words{"paste", "<<END"}));
}

TEST(DriveScriptTest, LinesWithoutEndAreAFaultOfTheirFirstLine) {
    std::istringstream stream("start\nwrite $W/a.csv <<END\nx\n");
    Script script(stream);
    Command command;
    ASSERT_TRUE(script.Next(command));
    EXPECT_THROW(script.Next(command), ScriptFault);
    EXPECT_EQ(script.Line(), 2);
}
