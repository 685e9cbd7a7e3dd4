// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bindings/MgCommandDS.h"

#include <QPair>

#include <cstddef>
#include <vector>

namespace tests {

// Both direction bytes of a record, four scheme first.
using Bytes = QPair<int, int>;

[[nodiscard]] inline Bytes bytesOf(const MgCommandDS &record)
{
    return {record.fourDirection, record.eightDirection};
}

[[nodiscard]] inline std::vector<Bytes> bytesOf(const std::vector<MgCommandDS> &records)
{
    std::vector<Bytes> bytes;
    bytes.reserve(records.size());
    for (const MgCommandDS &record : records)
        bytes.push_back(bytesOf(record));
    return bytes;
}

// The bytes of all records after the record in `row` was given a direction. This is a second
// implementation of the model's rules in another form: tables that give each direction in the other
// scheme, and a function from the state before to the state after.
[[nodiscard]] inline std::vector<Bytes> bytesAfter(const std::vector<Bytes> &before, bool fourScheme,
                                                   std::size_t row, int direction)
{
    static constexpr int kEightOfFour[] = {0, 1, 3, 5, 7};
    static constexpr int kKeep = -1;
    static constexpr int kFourOfEight[] = {0, 1, kKeep, 2, kKeep, 3, kKeep, 4, kKeep};

    std::vector<Bytes> state = before;
    bool found = false;
    for (std::size_t other = 0; other < state.size(); ++other) {
        const int held = fourScheme ? before[other].first : before[other].second;
        if (found || held != direction)
            continue;
        found = true;
        state[other].second = 0;
        const bool straight = direction % 2 == 1;
        if (fourScheme || straight)
            state[other].first = 0;
    }

    if (fourScheme) {
        state[row] = {direction, kEightOfFour[direction]};
    } else {
        state[row].second = direction;
        if (kFourOfEight[direction] != kKeep)
            state[row].first = kFourOfEight[direction];
    }
    return state;
}

} // namespace tests
