// Whatever bytes a script is, the driver runs it to its end or says which line is wrong. Only scripts that stay in the two folders of
// their run are played.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "drive/names.h"
#include "drive/run_script.h"
#include "drive/script.h"
#include "platform/failure.h"
#include "platform/headless/headless_hands.h"
#include "unit/program_test.h"

namespace {
namespace fs = std::filesystem;

void Check(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

struct FreshProgram : ProgramTest {
    void TestBody() override {}
};

// What is installed beside a program, small.
class InstallationTree {
public:
    InstallationTree() : folder_(fs::temp_directory_path() / "tree") {
        MemoryFiles files;
        files.LayDownProgram(folder_.string());
        for (const auto& [path, bytes] : files.bytes) {
            fs::create_directories(fs::path(path).parent_path());
            std::ofstream(path, std::ios::binary) << bytes;
        }
        fs::copy_file(SOURCE_FOLDER "/install/References/KeySetting.csv", folder_ / "References" / "KeySetting.csv",
                      fs::copy_options::overwrite_existing);
    }
    const fs::path& Folder() const { return folder_; }

private:
    fs::path folder_;
};

bool MayLeaveItsFolders(const std::string& word) {
    return word.starts_with('/') || word.starts_with('\\') || word.starts_with("./") || word.find("..") != std::string::npos;
}

// A script that cannot be read on is not run on either: what stands behind the fault does nothing.
bool StaysInItsFolders(const std::string& bytes) {
    std::istringstream text(bytes);
    drive::Script script(text);
    try {
        for (drive::Command command; script.Next(command);)
            if (std::any_of(command.words.begin(), command.words.end(), MayLeaveItsFolders)) return false;
    } catch (const drive::ScriptFault&) {
    }
    return true;
}

// The words of a script, looked at alone: values put into words read back, and a name has a value or a fault.
void CheckWords(const std::string& text) {
    const std::vector<std::string> words = drive::SplitWords(drive::Quoted(text));
    Check(words.size() == 1 && words[0] == text, "a quoted text is one word");
    Check(drive::OnOneLine(text).find_first_of("\r\n") == std::string::npos, "a value stands on one line");
    drive::AsWhole(text);
    drive::AsDecimal(text);
    try {
        drive::ValueOf(text);
    } catch (const drive::ScriptFault&) {
    }
}

bool EndsInACount(const std::string& out) {
    int passed = -1, failed = -1;
    const std::size_t end = out.find_last_of('\n', out.size() - 2);
    const std::string last = out.substr(end == std::string::npos ? 0 : end + 1);
    return std::sscanf(last.c_str(), "%d passed, %d failed\n", &passed, &failed) == 2 && passed >= 0 && failed >= 0;
}

void Play(const std::string& bytes) {
    static const InstallationTree tree;
    std::istringstream script(bytes);
    std::ostringstream out, errors;
    const auto make_hands = [](auto has_ended) { return std::make_unique<HeadlessHands>(has_ended); };
    const int status = drive::RunScript({"any.drive", tree.Folder(), tree.Folder()}, script, make_hands, out, errors);
    Check(status == drive::kAllHeld || status == drive::kSomeMissed || status == drive::kScriptWrong, "the status is one of three");
    Check(errors.str().empty() == (status == drive::kAllHeld), "what is wrong is said, and nothing else");
    Check(EndsInACount(out.str()), "the last line counts the expectations");
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (!StaysInItsFolders(bytes)) return -1;
    auto program = std::make_unique<FreshProgram>();
    CheckWords(bytes);
    Play(bytes);
    const HeadlessServices until_unloaded("/program");  // those of the run are gone
    program.reset();
    return 0;
}
