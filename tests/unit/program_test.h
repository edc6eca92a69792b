// The ground of all tests that need the program: its state as at the start of a process, silent services, files in memory.
#pragma once
#include <gtest/gtest.h>

#include <string>

#include "platform/headless/headless_services.h"
#include "session/state/sheet_state.h"
#include "unit/memory_files.h"

class ProgramTest : public testing::Test {
protected:
    ProgramTest();  // key settings and waves lie in the program's folder; nothing has started
    ~ProgramTest() override;

    void Start();                            // the start face is up
    void Begin(const std::string& name);     // and a first sample of this name is being counted
    void Key(int code);                      // pressed and released
    void KeyNumber(int key, int times = 1);  // counter key 1..45, as the settings have it
    void AnswerNext(Answer answer) { services_.messages.answers.push_back(answer); }

    static constexpr const char* kFolder = "/program";
    HeadlessServices services_{kFolder};
    MemoryFiles files_;
};
