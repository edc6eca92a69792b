// The program that the benchmarks run on: nobody sees it, its files lie in memory, and it has been started with a first sample.
#pragma once
#include <string>

#include "platform/headless/headless_services.h"
#include "unit/memory_files.h"

struct HeadlessProgram {
    static constexpr const char* kFolder = "/program";
    HeadlessServices services{kFolder};
    MemoryFiles files;

    HeadlessProgram();
    void Open(const std::string& path);  // one of `files`; what was counted before is given up
};

HeadlessProgram& TheProgram();  // the shared state stands for one program, so there is one; starts it at the first call

std::string SheetOf(int samples);  // the path of a sheet of 135 taxa, which it lays down in TheProgram().files
