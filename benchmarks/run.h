// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QLoggingCategory>

#include <benchmark/benchmark.h>

//! Runs the benchmarks that were registered. The platform without a screen says of each window, in no category of its
//! own, what it can't do with it; that alone is left out of what the toolkit prints.
inline int runBenchmarks(int argc, char **argv)
{
    static QtMessageHandler print = nullptr;
    print = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
        if (!text.startsWith(u"This plugin does not support "))
            print(type, context, text);
    });
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
