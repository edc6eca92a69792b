// 10,000 keys at 200 a second through the real window: each must count, and this tells how long each took from the keyboard to the
// updated model, to the sound handed over, and to the picture on the screen. It takes a minute. Run it by bench/window_bench.sh, which passes on another
// number of keys.
#include <QApplication>
#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "bench/key_sender.h"
#include "events/program.h"
#include "platform/qt/key_filter.h"
#include "platform/qt/look.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_file_dialogs.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/qt/qt_sounds.h"
#include "platform/qt/renderer.h"
#include "platform/user.h"
#include "session/sheet_state.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
using Time = std::chrono::steady_clock::time_point;
int key_count = 10000;  // of one sample: its taxa curve grows as long as that
constexpr std::chrono::microseconds kPause(5000);
constexpr unsigned kSeed = 20261114;
// X key codes of the first 27 counter keys, all of them letters but two.
constexpr int kCodes[] = {24, 25, 26, 38, 39, 40, 52, 53, 54, 27, 28, 29, 41, 42, 43, 55, 56, 57, 30, 31, 32, 44, 45, 46, 58, 59, 60};

struct Stages {
    std::vector<Time> sent, counted, sounded, painted;
};
Stages stages;

Time Now() {
    return std::chrono::steady_clock::now();
}

// Each counted key plays one sound, as the last thing that it does.
class TimedSounds : public Sounds {
public:
    void Play(const Wave& wave) override {
        if (&wave == &WaveOpening) return sounds_.Play(wave);
        stages.counted.push_back(Now());
        sounds_.Play(wave);
        stages.sounded.push_back(Now());
    }
    void Beep() override { sounds_.Beep(); }

private:
    QtSounds sounds_;
};

// What has been counted is on the screen when the server has carried out the painting.
class TimedApplication : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        const bool paints = event->type() == QEvent::UpdateRequest;
        const bool handled = QApplication::notify(receiver, event);
        if (paints) {
            WaitForServer(nativeInterface<QNativeInterface::QX11Application>()->display());
            stages.painted.resize(stages.sounded.size(), Now());
        }
        return handled;
    }
};

class BenchHost : public ProgramHost {
public:
    explicit BenchHost(const std::filesystem::path& folder) : folder_(folder.string()) {}
    std::string Folder() override { return folder_; }
    Box ScreenSize() override { return {}; }
    void End() override { QCoreApplication::exit(0); }
    void Fail(const char* word) override {
        std::fprintf(stderr, "window_bench: %s\n", word);
        QCoreApplication::exit(1);
    }

private:
    std::string folder_;
};

void BeginSample() {
    Renderer& renderer = TheRenderer();
    renderer.Run(StartProgram);
    renderer.Run([] { CloseWindow(*ActiveWindow()); });  // on a new machine the keyboard is not known yet
    if (frmNext.Visible()) renderer.Run([] { CloseWindow(frmNext); });
}

void SendKeys() {
    KeySender sender;
    std::mt19937 random(kSeed);
    std::uniform_int_distribution<std::size_t> any(0, std::size(kCodes) - 1);
    const Time start = Now();
    for (int i = 0; i < key_count; ++i) {
        std::this_thread::sleep_until(start + i * kPause);
        stages.sent.push_back(Now());
        sender.Stroke(kCodes[any(random)]);
    }
    std::this_thread::sleep_for(std::chrono::seconds(1));
    QMetaObject::invokeMethod(qApp, [] { QCoreApplication::exit(0); });
}

void Report(const char* stage, const std::vector<Time>& reached) {
    std::vector<double> milliseconds;
    for (std::size_t i = 0; i < std::min(reached.size(), stages.sent.size()); ++i)
        milliseconds.push_back(std::chrono::duration<double, std::milli>(reached[i] - stages.sent[i]).count());
    if (milliseconds.empty()) return;
    std::sort(milliseconds.begin(), milliseconds.end());
    const auto at = [&](double share) { return milliseconds[static_cast<std::size_t>(share * (milliseconds.size() - 1))]; };
    std::printf("%-16s median %6.2f ms   99 %% within %6.2f ms   longest %6.2f ms\n", stage, at(0.5), at(0.99), at(1));
}

int Counted() {
    int sum = 0;
    for (int slot = 1; slot <= kSlots; ++slot) sum += Counts[slot][CurrentSample];
    return sum;
}
}  // namespace

int main(int argc, char** argv) {
    if (argc > 1) key_count = std::atoi(argv[1]);
    for (auto* stage : {&stages.sent, &stages.counted, &stages.sounded, &stages.painted}) stage->reserve(key_count + 1);
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "marlbrook-bench";
    std::filesystem::remove_all(folder);
    std::filesystem::copy(MARLBROOK_TREE, folder, std::filesystem::copy_options::recursive);

    TimedApplication application(argc, argv);
    ApplyLook(application);
    Renderer renderer;
    KeyFilter keys;
    BenchHost host(folder);
    TimedSounds sounds;
    QtMessageBoxes messages;
    QtFileDialogs dialogs;
    QtClock clock;
    QtClipboard clipboard;
    QtPopups popups;
    QtFiles files;
    services = {&messages, &dialogs, &sounds, &clock, &clipboard, &popups, &files, &host};
    BeginSample();

    std::thread sender;
    QTimer::singleShot(1500, [&sender] { sender = std::thread(SendKeys); });
    QApplication::exec();
    sender.join();
    std::filesystem::remove_all(folder);

    std::printf("%d keys sent, %d counted\n", key_count, Counted());
    Report("key to model", stages.counted);
    Report("key to sound", stages.sounded);
    Report("key to picture", stages.painted);
    return Counted() == key_count ? 0 : 1;
}
