// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Money on the table has no overflow check: a sum that leaves the 64-bit range wraps in
// two's complement. Signed overflow is undefined in C++, so every sum and product of the
// ledger goes through unsigned arithmetic here, where wrapping is defined.
#pragma once

#include <cstdint>

inline std::int64_t wrapping_add(std::int64_t a, std::int64_t b)
{
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}

inline std::int64_t wrapping_mul(std::int64_t a, std::int64_t b)
{
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b));
}
