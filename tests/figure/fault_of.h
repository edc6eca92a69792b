// What is told of a fault.
#pragma once
#include <string>

#include "figure/sheet/fault.h"

// The line of the FigureFault that the call raises; "" if it raises none.
template <class Call>
std::string FaultOf(Call call) {
    try {
        call();
    } catch (const FigureFault& fault) {
        return fault.what();
    }
    return "";
}
