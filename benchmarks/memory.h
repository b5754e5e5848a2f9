// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>
#include <cstddef>
#include <cstdint>
#include <malloc.h>

//! What the program holds of the heap, the blocks that are too large for it included.
inline std::size_t bytesInUse()
{
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

//! Tells, in place of the time, how much of the heap each of so many parts of what is made takes.
template <class Make>
void memory(benchmark::State &state, std::int64_t parts, Make &&make)
{
    for (auto _ : state) {
        const std::size_t before = bytesInUse();
        const auto made = make();
        const std::size_t after = bytesInUse();
        state.counters["bytes_each"] = static_cast<double>(after - before) / static_cast<double>(parts);
    }
}
