// What the commands of a script work on.
#pragma once
#include <cstddef>
#include <functional>
#include <ostream>
#include <string>

#include "drive/folders.h"
#include "drive/names.h"
#include "drive/report.h"
#include "platform/hands.h"
#include "platform/headless/headless_services.h"

namespace drive {

struct Stage {
    Folders& folders;
    HeadlessServices& services;
    Hands& hands;
    Report& report;
    std::ostream& out;

    bool started = false;
    std::size_t messages_seen = 0;  // so many message boxes, file dialogs and sounds have been looked at
    std::size_t dialogs_seen = 0;
    std::size_t sounds_seen = 0;

    // The user does something; after the end of the program nothing happens any more.
    void Act(const std::function<void()>& action) {
        if (!services.host.ended) action();
    }
    // The value of a NAME as scripts compare it.
    std::string Shown(const std::string& name) const { return folders.Shown(ValueOf(name)); }
};

}  // namespace drive
