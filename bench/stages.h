// How long each act of the user took to reach the model, the sound and the picture on the screen.
#pragma once
#include <QApplication>
#include <chrono>
#include <vector>

#include "platform/services.h"

struct Stages {
    using Time = std::chrono::steady_clock::time_point;
    std::vector<Time> sent, reached, sounded, painted;  // one entry an act, in their order
    bool under_way = false;                             // acts come; what sounds or is painted belongs to them

    void Expect(std::size_t acts);  // makes room, so that no entry waits for memory
    void Report() const;
    void ReportEnds(std::size_t acts) const;  // of the first and of the last so many
};
extern Stages stages;

// Each counted key plays one sound, as the last thing that it does.
class TimedSounds : public Sounds {
public:
    explicit TimedSounds(Sounds& sounds) : sounds_(sounds) {}
    void Play(const Wave& wave) override;
    void Beep() override { sounds_.Beep(); }
    void IfSilent(std::function<void()> procedure) override { sounds_.IfSilent(std::move(procedure)); }

private:
    Sounds& sounds_;
};

// What has been done is on the screen when the server has carried out the painting.
class TimedApplication : public QApplication {
public:
    using QApplication::QApplication;
    bool moves_are_acts = false;  // a move of the mouse is an act, not a key
    bool notify(QObject* receiver, QEvent* event) override;
};
