// Reading and writing of sheets of some samples, and their percentage tables.
#include <benchmark/benchmark.h>

#include "bench/growing.h"
#include "bench/headless_program.h"
#include "diagram/data/percentages.h"
#include "files/back_up.h"
#include "files/format/cells.h"
#include "files/format/read_sheet.h"
#include "files/rescue.h"
#include "files/save_sheet.h"
#include "files/sheet_on_screen.h"
#include "platform/encoding.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
// The cells alone, each as the value that it is.
void ReadCells(benchmark::State& state) {
    const std::string bytes = TheProgram().files.bytes[SheetOf(Samples(state))];
    for (auto _ : state) {
        CellReader cells(DecodeFile(bytes));
        while (!cells.AtEnd()) benchmark::DoNotOptimize(cells.Next());
    }
}

// From the bytes of the file into the arrays and the cells on the screen.
void ReadSheet(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    const std::string bytes = TheProgram().files.bytes[SheetOf(Samples(state))];
    for (auto _ : state) {
        CellReader cells(DecodeFile(bytes));
        SheetHeader[kHeaderPath] = cells.Next();
        GridRead read;
        ReadGrid(cells, read, [](int) {});
        ShowSheet(read);
        ReadParamRows(cells);
        ReadNotes(cells);
    }
}

// All of it: the question's way in, totals, the curve, the master back-up.
void Open(benchmark::State& state) {
    for (auto _ : state) TheProgram().Open(SheetOf(Samples(state)));
}

void Save(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    for (auto _ : state) SaveSheet(kSave);
}

void BackUp(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    for (auto _ : state) BackUpSheet();
}

class NoDisk : public WholeFiles {
public:
    void Write(std::shared_ptr<OwnName>, const std::string&, std::function<void(bool)>) override {}
    void Remove(const std::string&) override {}
    void Finish() override {}
    bool AreSame(const std::string&, const std::string&) override { return false; }
};

// What a key may wait for once a second: the copy for a session that ends by itself, which the disk takes on a thread of its own.
void Copy(benchmark::State& state) {
    HeadlessProgram& program = TheProgram();
    NoDisk disk;
    Rescue rescue(disk, [] {});
    program.Open(SheetOf(Samples(state)));
    frmMain.SampleNote.SetText("not saved");
    for (auto _ : state) rescue.KeepNow();
}

void Percentages(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    for (auto _ : state) AllSamplePercentages();
}

// The table with its labels and sums, into memory.
void SavePercentages(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    for (auto _ : state) {
        TheProgram().services.dialogs.answers = {"/sheets/percent.csv"};
        SaveSheet(kSavePercentAll);
    }
}

BENCHMARK(ReadCells)->Apply(Growing);
BENCHMARK(ReadSheet)->Apply(Growing);
BENCHMARK(Open)->Apply(Growing);
BENCHMARK(Save)->Apply(Growing);
BENCHMARK(BackUp)->Apply(Growing);
BENCHMARK(Copy)->Apply(Growing);
BENCHMARK(Percentages)->Apply(Growing);
BENCHMARK(SavePercentages)->Apply(Growing);
}  // namespace
