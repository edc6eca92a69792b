#include "program/figure_shell.h"

#ifdef _WIN32
#include <windows.h>  // the others need it

#include <shellapi.h>
#include <shlwapi.h>

#include <algorithm>
#include <filesystem>

#include "platform/headless/files.h"

namespace {
namespace fs = std::filesystem;

std::string Utf8(const wchar_t* text) {
    std::string bytes(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.pop_back();  // the 0 at the end
    return bytes;
}

std::vector<std::string> FilesLike(const std::string& pattern) {
    const std::string folder = pattern.substr(0, pattern.find_last_of("/\\:") + 1);
    const std::wstring like = DiskPath(pattern.substr(folder.size())).wstring();
    std::vector<std::string> found;
    std::error_code error;
    for (fs::directory_iterator entry(DiskPath(folder.empty() ? "./" : folder), error), end; entry != end; entry.increment(error)) {
        const std::wstring name = entry->path().filename().wstring();
        if (entry->is_regular_file(error) && PathMatchSpecExW(name.c_str(), like.c_str(), PMSF_NORMAL) == S_OK)
            found.push_back(folder + Utf8(name.c_str()));
    }
    std::ranges::sort(found);
    return found;
}
}  // namespace

// argv has question marks for letters that are not of the system's own code page.
std::vector<std::string> CommandLineWords(int, char**) {
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> words;
    for (int word = 1; word < count; ++word) words.push_back(Utf8(wide[word]));
    LocalFree(wide);
    return words;
}

std::vector<std::string> FilesOf(const std::vector<std::string>& names) {
    std::vector<std::string> files;
    for (const std::string& name : names) {
        const std::vector<std::string> found = name.find_first_of("*?") == std::string::npos ? std::vector<std::string>() : FilesLike(name);
        if (found.empty())
            files.push_back(name);
        else
            files.insert(files.end(), found.begin(), found.end());
    }
    return files;
}

TerminalInUtf8::TerminalInUtf8() : before_(GetConsoleOutputCP()) {
    SetConsoleOutputCP(CP_UTF8);
}

TerminalInUtf8::~TerminalInUtf8() {
    SetConsoleOutputCP(before_);
}

#else

std::vector<std::string> CommandLineWords(int argc, char** argv) {
    return {argv + 1, argv + argc};
}

std::vector<std::string> FilesOf(const std::vector<std::string>& names) {
    return names;
}

TerminalInUtf8::TerminalInUtf8() = default;
TerminalInUtf8::~TerminalInUtf8() = default;

#endif
