// marlbrook-drive [--windows] [--keep] SCRIPT
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "drive/run_script.h"
#include "platform/headless/files.h"
#include "platform/headless/headless_hands.h"
#ifdef MARLBROOK_WITH_WINDOWS
#include "platform/qt/open_files.h"
#include "platform/qt/qt_hands.h"
#endif
#ifdef _WIN32
#include <windows.h>
#endif

namespace {

namespace fs = std::filesystem;

constexpr const char* kUsage = "usage: marlbrook-drive [--windows] [--keep] SCRIPT        (\"-\" reads standard input)\n";

struct Arguments {
    bool windows = false;
    bool keep = false;
    std::string script;
};

bool ReadArguments(int argc, char** argv, Arguments& arguments) {
    for (int place = 1; place < argc; ++place) {
        const std::string word = argv[place];
        if (word == "--windows")
            arguments.windows = true;
        else if (word == "--keep")
            arguments.keep = true;
        else if (arguments.script.empty() && (word == "-" || !word.starts_with('-')))
            arguments.script = word;
        else
            return false;
    }
    return !arguments.script.empty();
}

int Complain(const std::string& sentence) {
    std::cerr << "marlbrook-drive: " << sentence << "\n";
    return drive::kScriptWrong;
}

// Beside the folder of the driver, whether that is installed or lies where it was built.
fs::path InstallationTree(const char* program) {
    std::error_code ignored;
#ifdef _WIN32
    wchar_t name[MAX_PATH];
    const bool is_told = GetModuleFileNameW(nullptr, name, MAX_PATH) < MAX_PATH;
    const fs::path driver = is_told ? name : fs::absolute(program, ignored);
#else
    fs::path driver = fs::canonical("/proc/self/exe", ignored);
    if (driver.empty()) driver = fs::absolute(program, ignored);
#endif
    const fs::path above = driver.parent_path().parent_path();
    const fs::path installed = above / "share" / "marlbrook";
    return fs::is_directory(installed, ignored) ? installed : above / "tree";
}

drive::RunOptions OptionsFor(const Arguments& arguments, const char* program) {
    const bool is_file = arguments.script != "-";
    return {arguments.script, is_file ? fs::absolute(arguments.script).parent_path() : fs::current_path(), InstallationTree(program),
            arguments.keep};
}

// Nothing could be read: false.
bool ReadScript(const std::string& name, std::stringstream& script) {
    if (name == "-") {
        script << std::cin.rdbuf();
        return true;
    }
    std::error_code ignored;
    std::ifstream file(fs::path(name), std::ios::binary);
    if (!file || fs::is_directory(name, ignored)) return false;
    script << file.rdbuf();
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    Arguments arguments;
    if (!ReadArguments(argc, argv, arguments)) {
        std::cerr << kUsage;
        return drive::kScriptWrong;
    }
    std::stringstream script;
    if (!ReadScript(arguments.script, script)) return Complain("cannot read " + arguments.script);
    drive::MakeHands make_hands = [](auto has_ended) { return std::make_unique<HeadlessHands>(has_ended); };
    if (arguments.windows) {
#ifdef MARLBROOK_WITH_WINDOWS
        if (const std::string lack = LackOfOpenFiles(); !lack.empty()) return Complain("--windows: " + lack);
        make_hands = [&](auto has_ended) { return MakeQtHands(argc, argv, has_ended); };
#else
        return Complain("--windows: this driver was built without the windows (Qt 6 was not found)");
#endif
    }
    try {
        return drive::RunScript(OptionsFor(arguments, argv[0]), script, make_hands, std::cout, std::cerr);
    } catch (const std::exception& error) {
        return Complain(error.what());
    }
}
