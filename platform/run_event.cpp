#include "platform/run_event.h"

#include "platform/failure.h"
#include "platform/services.h"

void RunEvent(const std::function<void()>& event) {
    try {
        event();
    } catch (const Failure& failure) {
        services.host->Fail(failure.what());
    }
}
