#include "platform/text.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/failure.h"

namespace {

constexpr std::size_t kMaxDigits = 15;   // a double keeps any decimal of so many digits
constexpr double kSixteenDigits = 1e15;  // the first whole number with one more

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsSign(char c) {
    return c == '-' || c == '+';
}

// Whether it is a later byte of a UTF-8 character.
bool IsContinuation(char c) {
    return (c & 0xC0) == 0x80;
}

const char* SkipBlanks(const char* at, const char* end) {
    while (at != end && IsBlank(*at)) ++at;
    return at;
}

const char* SkipDigits(const char* at, const char* end) {
    while (at != end && IsDigit(*at)) ++at;
    return at;
}

// Past digits with a period among them; stays where it is if there is no digit.
const char* SkipMantissa(const char* at, const char* end) {
    const char* const whole = SkipDigits(at, end);
    if (whole == end || *whole != '.') return whole;
    const char* const fraction = SkipDigits(whole + 1, end);
    return fraction - at > 1 ? fraction : at;
}

// Past "E", a sign and digits; stays where it is if there is no digit: "5 eggs" and "5e" are 5.
const char* SkipExponent(const char* at, const char* end) {
    if (at == end || (*at != 'e' && *at != 'E')) return at;
    const char* const digits = at + 1 != end && IsSign(at[1]) ? at + 2 : at + 1;
    const char* const after = SkipDigits(digits, end);
    return after > digits ? after : at;
}

// Of the sign and digits after an "E". What is wider than an int is as good as the widest int.
int ExponentValue(std::string_view digits) {
    if (digits.starts_with('+')) digits.remove_prefix(1);  // std::from_chars takes no plus
    int value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc()) return value;
    return digits.starts_with('-') ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

// A number that no double holds lies far above 1 or far below it: the place of its first digit tells which.
bool IsAboveOne(std::string_view number) {
    const std::size_t e = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, e);
    const std::int64_t exponent = e < number.size() ? ExponentValue(number.substr(e + 1)) : 0;
    const auto period = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(mantissa.find_first_not_of("0."));
    return period - first + exponent > 0;
}

// Infinity for what is too large, 0 for what is too small.
double UnsignedValue(const char* first, const char* last) {
    double value = 0;
    if (std::from_chars(first, last, value).ec == std::errc()) return value;
    return IsAboveOne({first, last}) ? std::numeric_limits<double>::infinity() : 0;
}

struct LeadingNumber {
    double value;
    const char* end;  // null if the text begins with no number
};

LeadingNumber ReadLeadingNumber(std::string_view text) {
    const char* const end = text.data() + text.size();
    if (text.size() <= kMaxDigits) {  // nearly every text that comes here is a short whole number
        std::int64_t whole = 0;
        const auto result = std::from_chars(text.data(), end, whole);
        if (result.ec == std::errc() && result.ptr == end) return {static_cast<double>(whole), end};
    }
    const char* const sign = SkipBlanks(text.data(), end);
    const char* const first = sign != end && IsSign(*sign) ? sign + 1 : sign;
    const char* const mantissa_end = SkipMantissa(first, end);
    if (mantissa_end == first) return {0, nullptr};
    const char* const last = SkipExponent(mantissa_end, end);
    const double value = UnsignedValue(first, last);
    return {*sign == '-' ? -value : value, last};
}

// "-1.2500e-03" becomes "-0.00125".
std::string WithoutExponent(std::string_view scientific) {
    const std::string_view sign = scientific.starts_with('-') ? "-" : "";
    const std::size_t e = scientific.find('e');
    const int exponent = ExponentValue(scientific.substr(e + 1));
    std::string digits(scientific.substr(sign.size(), e - sign.size()));
    std::erase(digits, '.');
    digits.erase(digits.find_last_not_of('0') + 1);
    const int after_first = static_cast<int>(digits.size()) - 1;
    std::string text(sign);
    if (exponent < 0) return text.append("0.").append(-exponent - 1, '0').append(digits);
    if (exponent >= after_first) return text.append(digits).append(exponent - after_first, '0');
    return text.append(digits, 0, exponent + 1).append(".").append(digits, exponent + 1);
}

}  // namespace

double Val(std::string_view text) {
    constexpr double kLargest = std::numeric_limits<double>::max();
    return std::clamp(ReadLeadingNumber(text).value, -kLargest, kLargest);
}

std::optional<double> AsNumber(std::string_view text) {
    const LeadingNumber number = ReadLeadingNumber(text);
    const char* const end = text.data() + text.size();
    if (number.end == nullptr || SkipBlanks(number.end, end) != end || std::isinf(number.value)) return std::nullopt;
    return number.value;
}

std::string NumberText(double number) {
    if (!std::isfinite(number)) throw Failure(kOverflow);
    char buffer[32];
    if (std::abs(number) < kSixteenDigits && number == std::trunc(number))
        return {buffer, std::to_chars(buffer, std::end(buffer), static_cast<std::int64_t>(number)).ptr};
    const auto shortest = std::to_chars(buffer, buffer + kMaxDigits, number, std::chars_format::fixed);
    if (shortest.ec == std::errc()) return {buffer, shortest.ptr};  // there is room for 15 digits, not for more
    // The shortest text may have 17 digits and show how the number was reckoned: 0.1 + 0.2 is to be 0.3.
    const auto rounded = std::to_chars(buffer, std::end(buffer), number, std::chars_format::scientific, kMaxDigits - 1);
    return WithoutExponent({buffer, rounded.ptr});
}

std::string FloatText(float number) {
    if (!std::isfinite(number)) throw Failure(kOverflow);
    if (number == 0) return "0";
    char buffer[32];
    const auto result = std::to_chars(buffer, std::end(buffer), number, std::chars_format::scientific);
    return WithoutExponent({buffer, result.ptr});
}

bool IsPlainNumber(std::string_view text) {
    const bool may_be = !text.empty() && (IsDigit(text[0]) || text[0] == '-');
    return may_be && NumberText(Val(text)) == text;
}

std::size_t Length(std::string_view text) {
    return static_cast<std::size_t>(text.size() - std::count_if(text.begin(), text.end(), IsContinuation));
}

std::string Left(std::string_view text, std::size_t count) {
    return std::string(text.substr(0, ByteOffset(text, count)));
}

std::string Right(std::string_view text, std::size_t count) {
    const std::size_t length = Length(text);
    return count < length ? std::string(text.substr(ByteOffset(text, length - count))) : std::string(text);
}

std::string Mid(std::string_view text, std::size_t start, std::size_t count) {
    assert(start >= 1);
    return Left(text.substr(ByteOffset(text, start - 1)), count);
}

std::size_t ByteOffset(std::string_view text, std::size_t characters) {
    std::size_t at = 0;
    for (; characters > 0 && at < text.size(); --characters) {
        ++at;
        while (at < text.size() && IsContinuation(text[at])) ++at;
    }
    return at;
}

std::string WithoutTrailingColon(std::string_view text) {
    if (text.ends_with(':')) text.remove_suffix(1);
    return std::string(text);
}
