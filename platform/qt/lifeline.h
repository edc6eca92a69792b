// Keeps a copy of the sheet for the case that the session ends by itself.
#pragma once
#include <QTimer>

#include "events/program.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/qt_host.h"
#include "platform/qt/renderer.h"
#include "platform/qt/unasked_end.h"

class Lifeline {
public:
    Lifeline(QtHost& host, Renderer& renderer);
    ~Lifeline();
    void Offer() { rescue_.Offer(); }
    void End();  // behind the last event

private:
    void Keep();
    void KeepNow();
    bool HasEndedByUser() const;

    QtHost& host_;
    Renderer& renderer_;
    QtWholeFiles disk_;
    QTimer soon_;
    Rescue rescue_;
    UnaskedEnd last_act_;
};
