#pragma once

// The busy pointer and the progress bar, from here to the end of the scope, however it is left.
class Busy {
public:
    explicit Busy(int maximum);  // of the progress bar
    ~Busy();
    void Reach(int value) const;  // the bar shows how far it has come
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
};
