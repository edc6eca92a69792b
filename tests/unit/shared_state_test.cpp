// The lists of shared variables, which scripts and the tests themselves go by, are whole.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "session/variables.h"
#include "unit/shared_state.h"

namespace {
namespace fs = std::filesystem;
using Names = std::multiset<std::string>;

constexpr const char* kVisit = R"(^ *visit\(.(\w+)., )";
constexpr const char* kVisitByOwnName = R"(^ *visit\(.(\w+)., \1\);)";

std::string TextOf(const std::string& header) {
    std::ostringstream text;
    text << std::ifstream(SOURCE_FOLDER "/" + header).rdbuf();
    return text.str();
}

// What the first group of the pattern finds in each line.
Names Found(const std::string& text, const std::string& pattern) {
    const std::regex line(pattern, std::regex::ECMAScript | std::regex::multiline);
    Names names;
    for (std::sregex_iterator found(text.begin(), text.end(), line), end; found != end; ++found) names.insert((*found)[1]);
    return names;
}

// "inline Any SheetHeader[15];" declares SheetHeader.
Names DeclaredIn(const std::string& header) {
    return Found(TextOf(header), R"(^inline [^;={(]*?(\w+)(?:\[[^\]]*\])*(?:\{[^;]*\}| = [^;]*)?;)");
}

struct Lister {
    Names& names;
    template <class T>
    void operator()(const char* name, T&) const {
        names.insert(name);
    }
};

TEST(SharedStateTest, EachVariableOfTheSheetIsListedOnce) {
    Names listed;
    ForEachSheetVariable(Lister{listed});
    ForEachHiddenSheetVariable(Lister{listed});
    ASSERT_TRUE(listed.count("Counts"));
    EXPECT_EQ(listed, DeclaredIn("session/state/sheet_state.h"));
}

TEST(SharedStateTest, EachVariableOfTheDiagramIsListedOnce) {
    Names shares, clusters;
    ForEachDiagramVariable(Lister{shares});
    ForEachHiddenDiagramVariable(Lister{shares});
    ForEachClusterVariable(Lister{clusters});
    EXPECT_EQ(shares, DeclaredIn("diagram/data/percentages.h"));
    EXPECT_EQ(clusters, DeclaredIn("diagram/data/coniss.h"));
}

std::vector<std::string> HeadersOfWindows() {
    std::vector<std::string> headers;
    for (const auto& entry : fs::directory_iterator(SOURCE_FOLDER "/windows"))
        if (const std::string name = entry.path().filename().string(); std::regex_search(name, std::regex("_windows?\\.h$")))
            headers.push_back("windows/" + name);
    return headers;
}

// A member of a window that holds no control is a plain value: "bool FormLoaded = false;".
Names MembersIn(const std::string& header) {
    return Found(TextOf(header), R"(^    (?:bool|int|float|double|std::u?int\w+|std::string) (\w+)(?:\[[^\]]*\])*(?: = [^;]*)?;)");
}

TEST(SharedStateTest, EachMemberOfAWindowIsListedOnce) {
    std::map<std::string, Names> listed;
    frmMain.ForEachVariable(Lister{listed["windows/main_window.h"]});
    frmDiagram.ForEachVariable(Lister{listed["windows/diagram_window.h"]});
    frmInitial.ForEachVariable(Lister{listed["windows/key_windows.h"]});
    listed["windows/key_windows.h"].merge(Names{"OldDefinition", "OldCode", "OldFunctional"});  // set when a box gets the focus
    listed["windows/subtotal_window.h"] = {"Filling"};                                          // set when the window loads
    for (const std::string& header : HeadersOfWindows()) EXPECT_EQ(listed[header], MembersIn(header)) << header;
}

TEST(SharedStateTest, EachVariableIsListedByItsOwnName) {
    std::vector<std::string> headers = HeadersOfWindows();
    for (const char* header : {"session/state/sheet_state.h", "diagram/data/percentages.h", "diagram/data/coniss.h"})
        headers.emplace_back(header);
    for (const std::string& header : headers) {
        const std::string text = TextOf(header);
        const Names listed = Found(text, kVisit), by_own_name = Found(text, kVisitByOwnName);
        EXPECT_EQ(listed.size(), by_own_name.size()) << header;
    }
}

// "bool held = false;" in the first column, or a static in a function; constants, events and windows are none.
Names VariablesHiddenIn(const std::string& text) {
    const std::string type =
        R"((?!const|Event<|\w+Window |using |return |class |struct |enum |extern |inline |namespace )[A-Za-z_][\w:<>,*& ]*[*& ])";
    const std::string name = R"((\w+)(?:\[[^\]\n]*\])*(?:;| = |\{))";
    Names names = Found(text, "^(?:static )?" + type + name);
    names.merge(Found(text, "^ +static " + type + name));
    return names;
}

TEST(SharedStateTest, AHiddenVariableIsFound) {
    EXPECT_EQ(VariablesHiddenIn("namespace {\nint held = 0;\nstd::vector<Any> rows[3];\nconst int kRows = 3;\nint Rows();\n}\n"),
              (Names{"held", "rows"}));
    EXPECT_EQ(VariablesHiddenIn("void Count() {\n    static int counted;\n    static const int kFirst = 1;\n    int local = 0;\n}\n"),
              (Names{"counted"}));
}

// Windows stand and have the focus only while they are loaded; what the system calls knows no object.
TEST(SharedStateTest, NoVariableIsHiddenFromTheLists) {
    const std::map<std::string, Names> known = {{"platform/window.cpp", {"windows", "shown", "active", "window_view"}},
                                                {"platform/services.cpp", {"MousePointer", "services"}},
                                                // what the system calls knows no object
                                                {"platform/qt/unasked_end.cpp", {"say_before", "signal_sockets", "terminate_before"}}};
    for (const char* folder : {"diagram", "drive", "events", "files", "keys", "platform", "program", "session", "taxa", "windows"})
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(SOURCE_FOLDER) / folder)) {
            const std::string file = fs::relative(entry.path(), SOURCE_FOLDER).generic_string();
            if (entry.path().extension() != ".cpp") continue;
            const auto found = known.find(file);
            EXPECT_EQ(VariablesHiddenIn(TextOf(file)), found == known.end() ? Names{} : found->second) << file;
        }
}

// Puts something else than the start value into all that it visits.
struct Spoiler {
    template <class T>
    void operator()(const char* /*name*/, T& variable) const {
        Spoil(variable);
    }

private:
    template <class T>
    static void Spoil(T& scalar) {
        scalar = 1;
    }
    template <class T, std::size_t n>
    static void Spoil(T (&array)[n]) {
        for (T& element : array) Spoil(element);
    }
    template <class T>
    static void Spoil(std::vector<T>& array) {
        array.resize(1);
    }
    static void Spoil(std::string& text) { text = "1"; }
    static void Spoil(Wave& wave) { wave.bytes = "1"; }
    static void Spoil(MouseHold& hold) { hold = {&frmMain.mnuRightButton, &frmMain.SaveButton}; }
};

struct WipeCheck {
    template <class T>
    void operator()(const char* name, T& variable) const {
        EXPECT_TRUE(IsWiped(variable)) << name;
    }

private:
    template <class T>
    static bool IsWiped(const T& scalar) {
        return scalar == T{};
    }
    template <class T, std::size_t n>
    static bool IsWiped(const T (&array)[n]) {
        return std::all_of(std::begin(array), std::end(array), [](const T& element) { return IsWiped(element); });
    }
    static bool IsWiped(const Any& value) { return !value.IsNumber() && value.Text().empty(); }
    static bool IsWiped(const Wave& wave) { return wave.bytes.empty(); }
    static bool IsWiped(const MouseHold& hold) { return !hold.popup && !hold.pressed; }
};

TEST(SharedStateTest, AWipeReachesEveryVariable) {
    ForEachVariable(Spoiler{});
    ForEachHiddenVariable(Spoiler{});
    ASSERT_EQ(Counts[kSlots][kColumns], 1);
    WipeSharedState();
    ForEachVariable(WipeCheck{});
    ForEachHiddenVariable(WipeCheck{});
}
}  // namespace
