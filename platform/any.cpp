#include "platform/any.h"

#include "platform/text.h"

double Any::Number() const {
    return is_number_ ? number_ : Val(text_);
}

std::string Any::Text() const {
    return is_number_ ? NumberText(number_) : text_;
}
