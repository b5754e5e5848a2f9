// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "run.h"

#include <KorDaoUC/FormBuilder>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/Locale>

#include <QtCore/QBuffer>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// The life of a form as it grows: loaded from its text, shown, and deleted. Twice the fields should take twice as long;
// the peer tells what the toolkit itself makes of so many widgets.

namespace {

using Window = std::unique_ptr<QWidget>;
using Loader = std::function<Window()>;
using Kind = std::function<Loader(qint64 count)>;

constexpr int columns = 80;

Kind formOf(const QString &control)
{
    return [control](qint64 count) -> Loader {
        QString text = QStringLiteral("Begin Form frmLarge\n   Width = 12000\n   Height = 9000\n");
        for (qint64 i = 0; i < count; ++i) {
            text += QStringLiteral("   Begin KorDaoUC.%1 field%2\n      Left = %3\n      Top = %4\n      Width = 1400\n"
                                   "      Height = 300\n   End\n")
                        .arg(control)
                        .arg(i)
                        .arg(i % columns * 1500)
                        .arg(i / columns * 330);
        }
        text += QStringLiteral("End\n");
        return [text = text.toUtf8()] {
            auto window = std::make_unique<QWidget>();
            kor::FormBuilder builder;
            const kor::FormResult read = kor::FormFile::parse(text);
            const auto fault = read.form ? builder.build(*read.form, window.get()) : std::optional(read.error.reason);
            if (fault)
                qFatal("%s", qPrintable(*fault));
            return window;
        };
    };
}

Kind uiFileOf(const QByteArray &widget)
{
    return [widget](qint64 count) -> Loader {
        QByteArray text = "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\"><property "
                          "name=\"geometry\"><rect><x>0</x><y>0</y><width>800</width><height>600</height></rect>"
                          "</property>";
        for (qint64 i = 0; i < count; ++i) {
            text += "<widget class=\"" + widget + "\" name=\"field" + QByteArray::number(i) +
                    "\"><property name=\"geometry\"><rect><x>" + QByteArray::number(i % columns * 100) + "</x><y>" +
                    QByteArray::number(i / columns * 22) +
                    "</y><width>93</width><height>20</height></rect></property></widget>";
        }
        text += "</widget></ui>";
        return [text] {
            QByteArray copy = text;
            QBuffer buffer(&copy);
            (void)buffer.open(QIODevice::ReadOnly);
            QUiLoader loader;
            return Window(loader.load(&buffer));
        };
    };
}

//! Until nothing waits for it any more, as in a program that runs. A window that is deleted in the same turn of the
//! event loop takes the toolkit ever longer a field: what waits for each is looked for in the queue of all.
void show(QWidget &window)
{
    window.show();
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

void wholeLife(benchmark::State &state, const Kind &kind)
{
    const Loader load = kind(state.range());
    for (auto _ : state)
        show(*load());
}

void end(benchmark::State &state, const Kind &kind)
{
    const Loader load = kind(state.range());
    for (auto _ : state) {
        state.PauseTiming();
        Window window = load();
        show(*window);
        state.ResumeTiming();
        window.reset();
    }
}

void add(const std::string &name, void (*what)(benchmark::State &, const Kind &), const Kind &kind,
         const std::vector<int> &counts)
{
    for (const int count : counts) {
        benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State &state) { what(state, kind); })
            ->Arg(count)
            ->Iterations(1) // the large ones take seconds
            ->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    kor::Locale::setSystemDefault(kor::Locale::polish());
    const Kind numbers = formOf(QStringLiteral("KorNumber"));
    const Kind lines = uiFileOf("QLineEdit");
    const Kind grids = formOf(QStringLiteral("KorGrid"));
    const Kind tables = uiFileOf("QTableWidget");
    add("FormLife/fields/kor", wholeLife, numbers, {5'000, 10'000, 20'000});
    add("FormLife/fields/peer:lineedit", wholeLife, lines, {5'000, 10'000, 20'000});
    add("FormLife/grids/kor", wholeLife, grids, {250, 1'000});
    add("FormLife/grids/peer:tablewidget", wholeLife, tables, {250, 1'000});
    add("FormEnd/fields/kor", end, numbers, {5'000, 20'000});
    add("FormEnd/fields/peer:lineedit", end, lines, {5'000, 20'000});
    return runBenchmarks(argc, argv);
}
