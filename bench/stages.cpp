#include "bench/stages.h"

#include <QEvent>
#include <QGuiApplication>
#include <algorithm>
#include <cstdio>

#include "bench/x_user.h"

Stages stages;

namespace {
Stages::Time Now() {
    return std::chrono::steady_clock::now();
}

// Of the acts from `first` to before `end`.
void ReportStage(const char* stage, const std::vector<Stages::Time>& ends, std::size_t first, std::size_t end) {
    std::vector<double> milliseconds;
    for (std::size_t i = first; i < std::min({end, ends.size(), stages.sent.size()}); ++i)
        milliseconds.push_back(std::chrono::duration<double, std::milli>(ends[i] - stages.sent[i]).count());
    if (milliseconds.empty()) return;
    std::sort(milliseconds.begin(), milliseconds.end());
    const auto at = [&](double share) { return milliseconds[static_cast<std::size_t>(share * (milliseconds.size() - 1))]; };
    std::printf("  to %-8s median %6.2f ms   99 %% within %6.2f ms   longest %6.2f ms\n", stage, at(0.5), at(0.99), at(1));
}

void ReportStages(std::size_t first, std::size_t end) {
    ReportStage("model", stages.reached, first, end);
    ReportStage("sound", stages.sounded, first, end);
    ReportStage("picture", stages.painted, first, end);
}
}  // namespace

void Stages::Expect(std::size_t acts) {
    for (auto* stage : {&sent, &reached, &sounded, &painted}) stage->reserve(acts + 1);
}

void Stages::Report() const {
    ReportStages(0, sent.size());
}

void Stages::ReportEnds(std::size_t acts) const {
    std::printf(" the first %zu\n", acts);
    ReportStages(0, acts);
    std::printf(" the last %zu\n", acts);
    ReportStages(sent.size() - std::min(acts, sent.size()), sent.size());
}

void TimedSounds::Play(const Wave& wave) {
    if (!stages.under_way) return sounds_.Play(wave);
    stages.reached.push_back(Now());
    sounds_.Play(wave);
    stages.sounded.push_back(Now());
}

bool TimedApplication::notify(QObject* receiver, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool handled = QApplication::notify(receiver, event);
    if (moves_are_acts && type == QEvent::MouseMove && receiver->isWindowType()) stages.reached.push_back(Now());
    if (stages.under_way && type == QEvent::UpdateRequest) {
        WaitForServer(nativeInterface<QNativeInterface::QX11Application>()->display());
        stages.painted.resize(stages.reached.size(), Now());
        if (!stages.painted.empty()) stages.painted.back() = Now();  // one act may change two windows
    }
    return handled;
}
