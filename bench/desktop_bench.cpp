// What the toolkit has a part in: painting of the diagram of the largest sheet, bar and curve in 1600 by 1000 pixels, and saving on the
// disk. Beside each the least that it must do: the same lines by the painter alone, one write and flush of the same bytes.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "bench/growing.h"
#include "bench/headless_program.h"
#include "files/save_sheet.h"
#include "platform/qt/picture_painter.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/style.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
constexpr QSize kPixels(1600, 1000);
const PictureScale kScale{kPixels, 1, 1};

const std::vector<DrawOperation>& OpenDiagram() {
    TheProgram().Open(SheetOf(kSampleLimit));
    ClickControl(frmMain.mnuCurve);
    return frmDiagram.Picture1.Operations();
}

QPixmap White() {
    QPixmap picture(kPixels);
    picture.fill(Qt::white);
    return picture;
}

void PaintWhole(benchmark::State& state) {
    const auto& operations = OpenDiagram();
    QPixmap picture = White();
    for (auto _ : state) {
        QPainter painter(&picture);
        PaintOperations(painter, operations, kScale);
    }
}

bool IsBar(const DrawOperation& operation) {
    return operation.shape == DrawOperation::Shape::Line && operation.y1 == operation.y2;
}

// The row that a count changes, with the search for it.
void RepaintRow(benchmark::State& state) {
    std::vector<DrawOperation> operations = OpenDiagram();
    std::vector<DrawOperation> counted = operations;
    const double row = std::find_if(operations.begin() + 10, operations.end(), IsBar)->y1;
    for (DrawOperation& operation : counted)
        if (IsBar(operation) && operation.y1 == row) operation.x2 += 0.0001;
    QPixmap picture = White();
    ShownOperations shown;
    shown.Show(operations, kScale);
    for (auto _ : state) {
        operations.swap(counted);
        const QRect part = shown.Show(operations, kScale);
        if (part.isEmpty()) return state.SkipWithError("nothing changed");
        RepaintPart(picture, part, kWhite, shown.All(), kScale);
    }
}

// The same bars at once, then the slanted lines at once.
void PaintSameLines(benchmark::State& state) {
    std::vector<QRect> bars;
    std::vector<QLineF> lines;
    for (const DrawOperation& operation : OpenDiagram()) {
        if (operation.shape != DrawOperation::Shape::Line) continue;
        const QLineF line(operation.x1 * kPixels.width(), operation.y1 * kPixels.height(), operation.x2 * kPixels.width(),
                          operation.y2 * kPixels.height());
        if (std::abs(line.dx()) >= 0.5 && std::abs(line.dy()) >= 0.5)
            lines.push_back(line);
        else
            bars.push_back(
                QRect(QPoint(static_cast<int>(std::min(line.x1(), line.x2())), static_cast<int>(std::min(line.y1(), line.y2()))),
                      QPoint(static_cast<int>(std::max(line.x1(), line.x2())), static_cast<int>(std::max(line.y1(), line.y2())))));
    }
    QPixmap picture = White();
    for (auto _ : state) {
        QPainter painter(&picture);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::darkGreen);
        painter.drawRects(bars.data(), static_cast<int>(bars.size()));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::darkGreen);
        painter.drawLines(lines.data(), static_cast<int>(lines.size()));
    }
}

std::string FileOnDisk() {
    return (std::filesystem::temp_directory_path() / "marlbrook-bench.csv").string();
}

void SaveOnDisk(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    const std::string old_path = std::exchange(SheetPath, FileOnDisk());
    QtFiles disk;
    Files* const memory = std::exchange(services.files, &disk);
    for (auto _ : state) SaveSheet(kSave);
    if (SaveOutcome != 0) state.SkipWithError("the file cannot be written");
    services.files = memory;
    SheetPath = old_path;
    std::filesystem::remove(FileOnDisk());
}

void WriteBytes(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    SaveSheet(kSave);
    const std::string bytes = TheProgram().files.bytes[SheetOf(Samples(state))];
    for (auto _ : state) {
        std::FILE* const file = std::fopen(FileOnDisk().c_str(), "wb");
        const bool is_written = file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() &&
                                std::fflush(file) == 0 && fsync(fileno(file)) == 0;
        if (file == nullptr || std::fclose(file) != 0 || !is_written) return state.SkipWithError("the file cannot be written");
    }
    std::filesystem::remove(FileOnDisk());
}

BENCHMARK(PaintWhole)->Unit(benchmark::kMicrosecond);
BENCHMARK(RepaintRow)->Unit(benchmark::kMicrosecond);
BENCHMARK(PaintSameLines)->Unit(benchmark::kMicrosecond);
BENCHMARK(SaveOnDisk)->Apply(Growing)->UseRealTime();
BENCHMARK(WriteBytes)->Apply(Growing)->UseRealTime();
}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    ApplyLook(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
