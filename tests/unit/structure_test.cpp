// Includes between the source files point down and never round in a circle, and the core knows no toolkit.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {
namespace fs = std::filesystem;
using Names = std::vector<std::string>;

struct Source {
    Names own;      // files of the project that it includes, from the root
    Names foreign;  // <...> and what is no file of the project
};
using Sources = std::map<std::string, Source>;
using Arrows = std::map<std::string, std::set<std::string>>;  // from each node to what it includes

constexpr const char* kToolkit = "platform/qt";
constexpr const char* kHeadless = "platform/headless";

// `<vector>` or `"platform/any.h"` of a line that includes it, with its marks; empty for any other line.
std::string Included(const std::string& line) {
    constexpr const char* kBlanks = " \t";
    std::size_t at = line.find_first_not_of(kBlanks);
    if (at == std::string::npos || line[at] != '#') return "";
    at = line.find_first_not_of(kBlanks, at + 1);
    if (at == std::string::npos || line.compare(at, 7, "include") != 0) return "";
    const std::size_t begin = line.find_first_of("<\"", at);
    const std::size_t end = begin == std::string::npos ? begin : line.find_first_of(">\"", begin + 1);
    return end == std::string::npos ? "" : line.substr(begin, end - begin + 1);
}

Names Includes(const fs::path& path) {
    Names names;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        if (const std::string name = Included(line); !name.empty()) names.push_back(name);
    return names;
}

bool IsOfAToolkit(const std::string& included) {
    const char second = included.size() > 2 ? included[2] : ' ';
    return included.compare(1, 3, "SDL") == 0 || (included[1] == 'Q' && (std::isupper(second) || second == 't'));
}

bool IsSource(const fs::path& path) {
    return path.extension() == ".cpp" || path.extension() == ".h";
}

using Folders = std::set<std::string>;

// What the files of each folder of the core may include: their own folder, and all below it.
std::map<std::string, Folders> ReadFloors() {
    std::map<std::string, Folders> floors;
    std::ifstream list(SOURCE_FOLDER "/cmake/floors.cmake");
    const std::string kCall = "add_floor(";
    for (std::string line; std::getline(list, line);) {
        if (!line.starts_with(kCall)) continue;
        std::istringstream words(line.substr(kCall.size(), line.find(')') - kCall.size()));
        std::string folder;
        words >> folder;
        Folders& allowed = floors[folder];
        allowed.insert(folder);
        for (std::string below; words >> below;) allowed.insert(floors.at(below).begin(), floors.at(below).end());
    }
    return floors;
}

const std::map<std::string, Folders>& Floors() {
    static const std::map<std::string, Folders> floors = ReadFloors();
    return floors;
}

Sources ReadSources(const fs::path& root) {
    Sources sources;
    Folders top = {"program", "drive"};
    for (const auto& [folder, below] : Floors()) top.insert(folder.substr(0, folder.find('/')));
    for (const std::string& folder : top) {
        if (!fs::exists(root / folder)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            if (!IsSource(entry.path())) continue;
            Source& source = sources[fs::relative(entry.path(), root).generic_string()];
            for (const std::string& name : Includes(entry.path())) {
                const std::string path = name.substr(1, name.size() - 2);
                const bool own = name[0] == '"' && fs::exists(root / path);
                (own ? source.own : source.foreign).push_back(own ? path : name);
            }
        }
    }
    return sources;
}

const Sources& All() {
    static const Sources sources = ReadSources(SOURCE_FOLDER);
    return sources;
}

std::string FolderOf(const std::string& file) {
    const std::string folder = fs::path(file).parent_path().generic_string();
    return folder.starts_with(kToolkit) ? kToolkit : folder;
}

bool IsPlatform(const std::string& folder) {
    return folder == kToolkit || folder == kHeadless;
}

// A room is a header with its source: what either includes, the room does.
std::string RoomOf(const std::string& file) {
    return file.substr(0, file.rfind('.'));
}

Arrows ArrowsOfFiles() {
    Arrows arrows;
    for (const auto& [file, source] : All()) arrows[file].insert(source.own.begin(), source.own.end());
    return arrows;
}

Arrows ArrowsOfRooms(const Sources& sources) {
    Arrows arrows;
    for (const auto& [file, source] : sources) {
        auto& included_rooms = arrows[RoomOf(file)];
        for (const std::string& included : source.own)
            if (RoomOf(included) != RoomOf(file)) included_rooms.insert(RoomOf(included));
    }
    return arrows;
}

// Walks on from `node`. True: back to a node that has not been left yet; `way` is the way there.
bool ComesRound(const Arrows& arrows, const std::string& node, std::map<std::string, int>& state, Names& way) {
    enum { kUnseen, kOpen, kLeft };
    if (state[node] == kLeft) return false;
    way.push_back(node);
    if (state[node] == kOpen) return true;
    state[node] = kOpen;
    if (const auto found = arrows.find(node); found != arrows.end())
        for (const std::string& next : found->second)
            if (ComesRound(arrows, next, state, way)) return true;
    state[node] = kLeft;
    way.pop_back();
    return false;
}

// "a > b > a"; empty if there is no circle.
std::string Circle(const Arrows& arrows) {
    std::map<std::string, int> state;
    for (const auto& [node, next] : arrows) {
        Names way;
        if (!ComesRound(arrows, node, state, way)) continue;
        std::string text;
        for (auto step = std::find(way.begin(), way.end(), way.back()); step != way.end(); ++step)
            text += (text.empty() ? "" : " > ") + *step;
        return text;
    }
    return "";
}

TEST(StructureTest, TheSourcesAreFound) {
    ASSERT_GT(All().size(), 100u);
    for (const char* file : {"session/state/sheet_state.h", "events/program.h", "platform/qt/renderer.cpp", "windows/main_window.cpp"})
        EXPECT_EQ(All().count(file), 1u) << file;
    EXPECT_FALSE(All().at("windows/main_window.h").own.empty());
}

TEST(StructureTest, NoFileIncludesItselfInACircle) {
    EXPECT_EQ(Circle(ArrowsOfFiles()), "");
}

TEST(StructureTest, NoRoomIncludesItselfInACircle) {
    const Arrows arrows = ArrowsOfRooms(All());
    for (const auto& [folder, below] : Floors()) {
        const auto of_folder = [&folder = folder](const auto& arrow) { return FolderOf(arrow.first) == folder; };
        EXPECT_TRUE(std::any_of(arrows.begin(), arrows.end(), of_folder)) << folder;
    }
    ASSERT_TRUE(arrows.at("drive/names").count("drive/variables")) << "of a source";
    ASSERT_TRUE(arrows.at("platform/controls").count("platform/control")) << "of a header";
    ASSERT_TRUE(arrows.at("platform/qt/window_widget").count("platform/qt/control_widget"));
    EXPECT_EQ(Circle(arrows), "");
}

TEST(StructureTest, ACircleThatPassesThroughSourcesIsOneOfRooms) {
    const Sources sources = {{"a/low.h", {}}, {"a/low.cpp", {{"a/low.h", "a/high.h"}, {}}}, {"a/high.h", {{"a/low.h"}, {}}}};
    EXPECT_EQ(Circle(ArrowsOfRooms(sources)), "a/high > a/low > a/high");
}

TEST(StructureTest, ACircleIsFoundWhereverTheWalkBegins) {
    EXPECT_EQ(Circle({{"a", {"b", "c"}}, {"b", {"c"}}, {"c", {}}}), "");
    EXPECT_EQ(Circle({{"a", {"c"}}, {"b", {"d"}}, {"c", {"d"}}, {"d", {"c"}}}), "c > d > c");
}

TEST(StructureTest, AFolderIncludesWhatLiesBelowIt) {
    for (const auto& [file, source] : All()) {
        const auto floor = Floors().find(FolderOf(file));
        if (floor == Floors().end()) continue;
        for (const std::string& included : source.own)
            EXPECT_TRUE(floor->second.count(FolderOf(included))) << file << " includes " << included;
    }
}

TEST(StructureTest, EveryFolderHasItsFloor) {
    const Folders above = {kToolkit, kHeadless, "program", "drive"};
    for (const auto& [file, source] : All()) EXPECT_TRUE(Floors().count(FolderOf(file)) || above.count(FolderOf(file))) << file;
}

TEST(StructureTest, APlatformKnowsOfTheProgramOnlyHowToStartIt) {
    for (const auto& [file, source] : All()) {
        if (!IsPlatform(FolderOf(file))) continue;
        for (const std::string& included : source.own) {
            const std::string folder = FolderOf(included);
            EXPECT_TRUE(folder == "platform" || folder == FolderOf(file) || included == "events/program.h")
                << file << " includes " << included;
        }
    }
}

TEST(StructureTest, OnlyTheToolkitLayerIncludesAToolkit) {
    int found = 0;
    for (const auto& [file, source] : All())
        for (const std::string& included : source.foreign) {
            if (!IsOfAToolkit(included)) continue;
            ++found;
            EXPECT_EQ(FolderOf(file), kToolkit) << file << " includes " << included;
        }
    EXPECT_GT(found, 10) << "the toolkit layer itself must be seen";
}

TEST(StructureTest, WhatIsIncludedIsThereOrBelongsToTheLanguage) {
    for (const auto& [file, source] : All()) {
        if (!Floors().count(FolderOf(file)) && FolderOf(file) != kHeadless) continue;
        for (const std::string& included : source.foreign)
            EXPECT_TRUE(included[0] == '<' && included.find('.') == std::string::npos) << file << " includes " << included;
    }
}

TEST(StructureTest, EverySourceHasItsHeaderFirst) {
    for (const auto& [file, source] : All()) {
        if (!file.ends_with(".cpp")) continue;
        const std::string header = file.substr(0, file.size() - 3) + "h";
        if (!All().count(header)) continue;
        ASSERT_FALSE(source.own.empty()) << file;
        EXPECT_EQ(source.own.front(), header) << file;
    }
}
}  // namespace
