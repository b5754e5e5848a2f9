// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>
#include <cstdint>
#include <vector>

//! Measures one work at each of these sizes.
inline void measure(const char *name, void (*body)(benchmark::State &), const std::vector<std::int64_t> &sizes,
                    benchmark::TimeUnit unit = benchmark::kMicrosecond)
{
    for (const std::int64_t size : sizes)
        benchmark::RegisterBenchmark(name, body)->Arg(size)->Unit(unit);
}

//! The size that is being measured, for what counts in int.
inline int sizeOf(const benchmark::State &state) { return static_cast<int>(state.range()); }
