// A run-time failure: what a user, a file or a disk can cause. Caught only where a procedure has a recovery path; what no path
// catches reaches the event loop, which shows the word and ends the program.
#pragma once
#include <stdexcept>

class Failure : public std::runtime_error {
public:
    explicit Failure(const char* word) : std::runtime_error(word) {}
};

constexpr const char* kOverflow = "Overflow";
constexpr const char* kDivisionByZero = "Division by zero";
constexpr const char* kSubscriptOutOfRange = "Subscript out of range";
constexpr const char* kTypeMismatch = "Type mismatch";
constexpr const char* kInvalidProcedureCall = "Invalid procedure call";
constexpr const char* kInputPastEnd = "Input past end of file";
constexpr const char* kFileError = "File error";
