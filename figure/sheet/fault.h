// What is wrong with a sheet or with what is asked of it: one line for the user. Nothing of the figure is written then.
#pragma once
#include <stdexcept>

struct FigureFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};
