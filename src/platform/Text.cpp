// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

} // namespace

double Val(std::string_view text)
{
    std::size_t i = 0;
    const std::size_t n = text.size();
    while (i < n && isBlank(text[i]))
        ++i;

    bool negative = false;
    if (i < n && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }

    // The number proper: digits, an optional point and more digits; at least one digit.
    const std::size_t start = i;
    std::size_t digits = 0;
    // Decimal magnitude of the first significant digit, to tell an overflow from an underflow.
    long long magnitude = 0;
    bool significant = false;
    while (i < n && isDigit(text[i])) {
        if (text[i] != '0')
            significant = true;
        if (significant)
            ++magnitude;
        ++digits;
        ++i;
    }
    if (i < n && text[i] == '.') {
        ++i;
        while (i < n && isDigit(text[i])) {
            if (!significant) {
                if (text[i] != '0')
                    significant = true;
                else
                    --magnitude;
            }
            ++digits;
            ++i;
        }
    }
    if (digits == 0)
        return 0.0;

    // An exponent counts only with at least one digit: "1e" is 1 followed by junk.
    long long exponent = 0;
    std::size_t end = i;
    if (i < n && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        bool negativeExponent = false;
        if (j < n && (text[j] == '+' || text[j] == '-')) {
            negativeExponent = text[j] == '-';
            ++j;
        }
        if (j < n && isDigit(text[j])) {
            while (j < n && isDigit(text[j])) {
                if (exponent < 1'000'000)
                    exponent = exponent * 10 + (text[j] - '0');
                ++j;
            }
            if (negativeExponent)
                exponent = -exponent;
            end = j;
        }
    }

    double value = 0.0;
    const char *first = text.data() + start;
    const auto [ptr, ec] = std::from_chars(first, text.data() + end, value, std::chars_format::general);
    if (ec == std::errc::result_out_of_range) {
        // Too large or too small for a double: the side is given by where the first digit lands.
        value = significant && magnitude + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    } else if (ec != std::errc()) {
        value = 0.0;
    }
    (void)ptr;
    return negative ? -value : value;
}

std::int64_t CutToInt64(double value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63, exactly representable
    if (std::isnan(value))
        return 0;
    if (value >= limit)
        return std::numeric_limits<std::int64_t>::max();
    if (value < -limit)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value); // truncates toward zero, now in range
}

std::string Str(std::int64_t value)
{
    char buffer[24];
    const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
    (void)ec; // 20 characters always suffice for a 64-bit integer
    return std::string(buffer, end);
}
