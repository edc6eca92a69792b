#include "platform/qt/lifeline.h"

namespace {
constexpr int kKeepAfterMs = 1000;  // an event: half of what may be lost when the power goes, the other half is the disk's
}

Lifeline::Lifeline(QtHost& host, Renderer& renderer)
    : host_(host), renderer_(renderer), rescue_(disk_, [this] { soon_.start(); }), last_act_([this] { KeepNow(); }) {
    soon_.setSingleShot(true);
    soon_.setInterval(kKeepAfterMs);
    soon_.callOnTimeout([this] { Keep(); });
    renderer.WhenEventBegins([this] {
        if (!soon_.isActive()) soon_.start();
    });
    host.BeforeItFails([this] { KeepNow(); });
}

Lifeline::~Lifeline() {
    renderer_.WhenEventBegins([] {});
    host_.BeforeItFails([] {});
}

void Lifeline::End() {
    if (HasEndedByUser()) rescue_.EndByUser();
}

void Lifeline::Keep() {
    if (HasEndedByUser()) return;
    rescue_.Keep();
    if (renderer_.InEvent()) soon_.start();  // a box is open: what follows its answer belongs to the same event
}

void Lifeline::KeepNow() {
    if (!HasEndedByUser()) rescue_.KeepNow();
}

// A failure leaves the sheet as it was then. The end of the desktop session closes a question, which is no answer.
bool Lifeline::HasEndedByUser() const {
    return host_.HasEnded() && !host_.HasFailed() && !last_act_.IsUnderWay();
}
