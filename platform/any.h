// A field that holds a text or a number as it was read or set. Files show the difference: a text is quoted, a number is bare.
#pragma once
#include <concepts>
#include <string>
#include <string_view>

class Any {
public:
    Any() = default;  // the empty text
    Any(std::string text) : text_(std::move(text)) {}
    Any(std::string_view text) : text_(text) {}
    Any(const char* text) : text_(text) {}
    template <class T>
    requires std::is_arithmetic_v<T> Any(T number) : is_number_(true), number_(static_cast<double>(number)) {}

    bool IsNumber() const { return is_number_; }
    double Number() const;     // of a text: its leading number, 0 if there is none
    std::string Text() const;  // of a number: its shortest decimal text

    // With a number: by value. With a text: by the text that would be shown.
    template <class T>
    requires std::is_arithmetic_v<T>
    bool operator==(T number) const { return Number() == static_cast<double>(number); }
    bool operator==(std::string_view text) const { return Text() == text; }

private:
    bool is_number_ = false;
    double number_ = 0;
    std::string text_;
};
