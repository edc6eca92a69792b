// What a control or a window raises. One procedure answers it; the files in events/ say which.
#pragma once
#include <functional>
#include <utility>

template <class... Args>
class Event {
public:
    void Calls(std::function<void(Args...)> procedure) { procedure_ = std::move(procedure); }
    bool IsJoined() const { return static_cast<bool>(procedure_); }
    void Raise(Args... args) const {
        if (procedure_) procedure_(args...);
    }

private:
    std::function<void(Args...)> procedure_;
};
