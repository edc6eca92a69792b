// The virtual-key numbers that the program knows by name. They are the numbers that Windows gives the keys, on every system.
#pragma once

constexpr int kBackspaceKey = 8;
constexpr int kTabKey = 9;
constexpr int kEnterKey = 13;
constexpr int kEscapeKey = 27;
constexpr int kDeleteKey = 46;
