// What a sheet must hold, counted a second time, and its files byte for byte.
#pragma once
#include <array>
#include <string>
#include <vector>

#include "session/state/sheet_state.h"

struct Sample {
    std::string name;
    int serial = 1;
    std::string note;
    std::array<int, kSlots + 1> counts{};
};
struct Sheet {
    std::string path;
    std::string time;  // of the last save or back-up
    std::vector<Sample> samples;
};

int InSubtotal(int slot, int subtotal);  // 1 or 0: the flags of every sheet here
int TotalOf(const Sample& sample);
int SubtotalOf(const Sample& sample, int subtotal);

std::string BackUpOf(const Sheet& sheet);
std::string FileOf(const Sheet& sheet);
