#include "unit/shared_state.h"

#include "session/variables.h"

namespace {
struct Wiper {
    template <class T>
    void operator()(const char* /*name*/, T& variable) const {
        Wipe(variable);
    }

private:
    template <class T>
    static void Wipe(T& variable) {
        variable = T{};
    }
    template <class T, std::size_t n>
    static void Wipe(T (&array)[n]) {
        for (T& element : array) Wipe(element);
    }
    static void Wipe(Wave& wave) { wave.bytes.clear(); }
};
}  // namespace

void WipeSharedState() {
    ForEachVariable(Wiper{});
    ForEachHiddenVariable(Wiper{});
}
