// Acts of a user through the real window, and how long each took from the keyboard or the mouse to the updated model, to the sound
// handed over, and to the picture on the screen. Run it by bench/window_bench.sh:
//     window_bench plain [KEYS]      counting keys, 200 a second; 10,000 if no number is given
//     window_bench diagram [KEYS]    the same, 40 a second, beside a diagram of 135 taxa by 250 samples of 1600 by 1000 pixels
//     window_bench fresh [KEYS]      as diagram, in a sample just begun: each key is a large percentage and moves the columns
//     window_bench tree [KEYS]       as diagram, with the cluster tree
//     window_bench session [KEYS]    as diagram, 100 a second; 100,000, some weeks' work, if no number is given. A new sheet is
//                                    begun after every 25,000 keys, for one history has lines for 32,767. Tells of the first and the last
//                                    thousand keys, and what the program holds before and after them
//     window_bench drag [MOVES]      the line of the selected sample dragged over that diagram
//     window_bench memory [SAMPLES]  what the program holds with such a sheet open, then with its diagram, then with the tree
//
// With WINDOW_BENCH_COPIES=no in the environment no copy is kept of what a session would leave that ends by itself.
//
// Fails if a key does not count.
#include <QCoreApplication>
#include <QDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <string>
#include <thread>

#include "bench/stages.h"
#include "bench/x_user.h"
#include "diagram/data/sample_position.h"
#include "events/program.h"
#include "platform/headless/headless_services.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/desktop.h"
#include "platform/qt/key_filter.h"
#include "platform/qt/lifeline.h"
#include "platform/qt/qt_host.h"
#include "platform/qt/renderer.h"
#include "platform/qt/style.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/sheet_file.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr unsigned kSeed = 20261114;
// X key codes of the first 27 counter keys, all of them letters but two.
constexpr int kCodes[] = {24, 25, 26, 38, 39, 40, 52, 53, 54, 27, 28, 29, 41, 42, 43, 55, 56, 57, 30, 31, 32, 44, 45, 46, 58, 59, 60};

struct Task {
    std::string name = "plain";
    int acts = 10000;  // of memory: samples
    bool HasDiagram() const { return name != "plain"; }
    bool Drags() const { return name == "drag"; }
    bool IsSession() const { return name == "session"; }
    int ActsPerSheet() const { return IsSession() ? std::min(acts, 25000) : acts; }
    std::chrono::milliseconds Pause() const { return std::chrono::milliseconds(IsSession() ? 10 : HasDiagram() ? 25 : 5); }
};

// On a new machine the keyboard is asked for until it is known.
void LeaveKeyboardUnknown(Renderer& renderer) {
    if (ActiveWindow() != &frmMain) renderer.Run([] { CloseWindow(*ActiveWindow()); });
}

void BeginSample(Renderer& renderer) {
    renderer.Run(StartProgram);
    LeaveKeyboardUnknown(renderer);
    if (frmNext.Visible()) renderer.Run([] { CloseWindow(frmNext); });
}

Rows LargeSheet(const Task& task) {
    Rows rows = DataSheet(task.name == "memory" ? task.acts : kSampleLimit);
    if (task.name == "fresh")
        for (int row = kTaxonRow; row < kParamRow; ++row) rows[row].back() = "0";
    return rows;
}

// In a session of its own: what was counted before is given up.
void OpenSheet(Renderer& renderer, const std::filesystem::path& folder, const Rows& rows) {
    const std::string path = (folder / "large.csv").string();
    std::ofstream(path, std::ios::binary) << Joined(rows);
    ScriptedMessageBoxes messages;
    ScriptedFileDialogs dialogs;
    messages.answers = {Answer::Yes, Answer::Yes};
    dialogs.answers = {path};
    MessageBoxes* const real_messages = std::exchange(services.messages, &messages);
    FileDialogs* const real_dialogs = std::exchange(services.dialogs, &dialogs);
    renderer.Run([] { ClickControl(frmMain.mnuNew); });
    LeaveKeyboardUnknown(renderer);
    renderer.Run([] { ClickControl(frmMain.mnuOpen); });
    services.messages = real_messages;
    services.dialogs = real_dialogs;
}

// Of so many pixels of the screen, which shows the window enlarged if it is a large one.
int Twips(const Renderer& renderer, int pixels) {
    return static_cast<int>(pixels / renderer.WidgetOf(frmDiagram)->Factor());
}

void OpenDiagram(Renderer& renderer, const Task& task) {
    renderer.Run([] { ClickControl(frmMain.mnuCurve); });
    renderer.Run([&] { ResizeWindow(frmDiagram, Twips(renderer, 1600), Twips(renderer, 1000)); });
    if (task.name == "tree") renderer.Run([] { ClickControl(frmDiagram.nmuConiss); });
}

// Where the line of a sample is on the screen, in the middle of the diagram.
QPoint PlaceOfLine(const Renderer& renderer, int sample) {
    const ControlWidget& picture = *renderer.WidgetOf(frmDiagram)->Find(frmDiagram.Picture1);
    return picture.Widget()->mapToGlobal(picture.PlaceOf(kUnitsAcross / 2, SamplePositions().Y(sample)).toPoint());
}

void SendKeys(XUser& user, const Task& task, int keys) {
    std::mt19937 random(kSeed);
    std::uniform_int_distribution<std::size_t> any(0, std::size(kCodes) - 1);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < keys; ++i) {
        std::this_thread::sleep_until(start + i * task.Pause());
        stages.sent.push_back(std::chrono::steady_clock::now());
        user.Stroke(kCodes[any(random)]);
    }
}

// Up and down between the ends of the line's way, a few pixels a move.
void DragLine(XUser& user, const Task& task, QPoint grip, QPoint top) {
    user.MoveMouse(grip.x(), grip.y());
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    user.PressMouse(true);
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    stages.reached.clear();
    const int length = grip.y() - top.y();
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < task.acts; ++i) {
        std::this_thread::sleep_until(start + i * task.Pause());
        const int way = 7 * (i + 1) % (2 * length);
        stages.sent.push_back(std::chrono::steady_clock::now());
        user.MoveMouse(grip.x(), grip.y() - std::min(way, 2 * length - way));
    }
    user.PressMouse(false);
}

int Counted() {
    int sum = 0;
    for (int slot = 1; slot <= kSlots; ++slot) sum += Counts[slot][CurrentSample];
    return sum;
}

double ResidentMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:")) return std::stod(line.substr(6)) / 1024;
    return 0;
}

long OpenDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

void ReportHeld(const char* when) {
    std::printf("  held %-6s %6.1f MB, %ld descriptors\n", when, ResidentMegabytes(), OpenDescriptors());
}

void ReportMemory(Renderer& renderer, const std::filesystem::path& folder, const Task& task) {
    const auto report = [](const char* with) {
        QApplication::processEvents();
        std::printf("  with %-8s %6.1f MB\n", with, ResidentMegabytes());
    };
    report("start");
    OpenSheet(renderer, folder, LargeSheet(task));
    report("sheet");
    OpenDiagram(renderer, task);
    report("diagram");
    renderer.Run([] { ClickControl(frmDiagram.nmuConiss); });
    report("tree");
}

std::thread Begin(const Renderer& renderer, const Task& task, int acts) {
    const QPoint grip = task.Drags() ? PlaceOfLine(renderer, SampleCount) : QPoint(),
                 top = task.Drags() ? PlaceOfLine(renderer, 1) : QPoint();
    return std::thread([=] {
        XUser user;
        task.Drags() ? DragLine(user, task, grip, top) : SendKeys(user, task, acts);
        std::this_thread::sleep_for(std::chrono::seconds(1));
        QMetaObject::invokeMethod(qApp, [] { QCoreApplication::exit(0); });
    });
}

// Returns how many grains it has counted.
int ActOnSheet(Renderer& renderer, const Task& task, int acts) {
    const int counted_before = Counted();
    std::thread user;
    QTimer::singleShot(1000, [&] { renderer.Run([&] { BringToFront(task.Drags() ? static_cast<Window&>(frmDiagram) : frmMain); }); });
    QTimer::singleShot(2500, [&] {
        stages.under_way = true;
        user = Begin(renderer, task, acts);
    });
    QApplication::exec();
    stages.under_way = false;
    if (user.joinable()) user.join();  // else the program has failed before
    return Counted() - counted_before;
}

int ActOnSheets(Renderer& renderer, const std::filesystem::path& folder, const Task& task) {
    int counted = 0;
    for (int sent = 0; sent < task.acts; sent += task.ActsPerSheet()) {
        if (task.HasDiagram()) OpenSheet(renderer, folder, LargeSheet(task));
        if (task.HasDiagram()) OpenDiagram(renderer, task);
        if (task.IsSession() && sent == 0) ReportHeld("before");
        const int acts = std::min(task.ActsPerSheet(), task.acts - sent), grains = ActOnSheet(renderer, task, acts);
        counted += grains;
        if (grains < acts && !task.Drags()) break;
    }
    if (task.IsSession()) ReportHeld("after");
    return counted;
}

// Of its own for each run, and gone after it.
class Folder {
public:
    Folder() { std::filesystem::copy(MARLBROOK_TREE, path, std::filesystem::copy_options::recursive); }
    ~Folder() { std::filesystem::remove_all(path); }
    const std::filesystem::path path =
        std::filesystem::path(QDir::tempPath().toStdString()) / ("marlbrook-bench-" + std::to_string(QCoreApplication::applicationPid()));
};
}  // namespace

int main(int argc, char** argv) {
    Task task;
    if (argc > 1) task.name = argv[1];
    if (task.IsSession()) task.acts = 100000;
    if (argc > 2) task.acts = std::atoi(argv[2]);
    stages.Expect(task.acts);

    const Folder folder;
    TimedApplication application(argc, argv);
    application.moves_are_acts = task.Drags();
    ApplyLook(application);
    Renderer renderer;
    KeyFilter keys(renderer);
    QtHost host(QString::fromStdString(folder.path.string()));
    DesktopServices desktop(host, renderer);
    TimedSounds sounds(desktop.sounds);
    services.sounds = &sounds;
    std::optional<Lifeline> lifeline;
    if (qgetenv("WINDOW_BENCH_COPIES") != "no") lifeline.emplace(host, renderer);
    BeginSample(renderer);
    if (task.name == "memory") {
        ReportMemory(renderer, folder.path, task);
        return 0;
    }

    const int counted = ActOnSheets(renderer, folder.path, task);
    std::printf("%s: %d sent, %d %s\n", task.name.c_str(), task.acts, task.Drags() ? static_cast<int>(stages.reached.size()) : counted,
                task.Drags() ? "arrived" : "counted");
    if (task.IsSession())
        stages.ReportEnds(1000);
    else
        stages.Report();
    return task.Drags() || counted == task.acts ? 0 : 1;
}
