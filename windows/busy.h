#pragma once

// The busy pointer and the progress bar, from here to the end of the scope, however it is left.
class Busy {
public:
    explicit Busy(int maximum);  // of the progress bar
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
};
