// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "run.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/UiFile>
#include <KorDaoUC/UserControl>

#include <QtCore/QBuffer>
#include <QtCore/QStringList>
#include <QtCore/QXmlStreamReader>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>

#include <benchmark/benchmark.h>
#include <memory>
#include <utility>

// Large forms: turned into files of the form designer and back, against what it takes to load such a file.

namespace {

//! The control at a place of the form: fields in turn, and once in forty places a list or a grid, as on a clerk's form.
QString controlAt(int place)
{
    static const QStringList large{QStringLiteral("KorList"), QStringLiteral("KorListCheck"), QStringLiteral("KorGrid"),
                                   QStringLiteral("KorParam")};
    static const auto split = [] {
        std::pair<QStringList, QStringList> all;
        for (const QString &name : kor::ControlRegistry::names())
            (large.contains(name) ? all.second : all.first) << name;
        return all;
    }();
    constexpr int often = 40;
    const QStringList &names = place % often == 0 ? split.second : split.first;
    return names.at((place % often == 0 ? place / often : place) % names.size());
}

//! A window of controls, each with a place, a number of Tab and two settings.
kor::FormBlock form(int controls)
{
    kor::FormBlock block{QStringLiteral("Form"), QStringLiteral("frmLarge"), {}, {}};
    for (int i = 0; i < controls; ++i) {
        const QString name = controlAt(i);
        kor::FormBlock control{QStringLiteral("KorDaoUC.") + name, QStringLiteral("c%1").arg(i), {}, {}};
        control.properties.append(QStringLiteral("Left"), 150 + i % 10 * 2000);
        control.properties.append(QStringLiteral("Top"), 150 + i / 10 * 450);
        control.properties.append(QStringLiteral("Width"), 1800);
        control.properties.append(QStringLiteral("Height"), 360);
        control.properties.append(QStringLiteral("TabIndex"), i + 1);
        control.properties.append(QStringLiteral("BackColor"), 0xffffe0);
        control.properties.append(QStringLiteral("Enabled"), false);
        block.children.push_back(control);
    }
    return block;
}

//! The toolkit's loader with the controls of the library.
class Loader final : public QUiLoader
{
public:
    Loader() { clearPluginPaths(); }
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        QWidget *control = kor::ControlRegistry::create(className, parent);
        if (!control)
            return QUiLoader::createWidget(className, parent, name);
        control->setObjectName(name);
        return control;
    }
};

void convertToUi(benchmark::State &state)
{
    const kor::FormBlock block = form(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::UiFile::fromForm(block).ui->size());
    state.SetLabel("goal QUiLoader 1");
}

void convertToForm(benchmark::State &state)
{
    const QByteArray ui = *kor::UiFile::fromForm(form(static_cast<int>(state.range(0)))).ui;
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::UiFile::toForm(ui).form->children.size());
    state.SetLabel("goal QUiLoader 1");
}

void readXml(benchmark::State &state)
{
    const QByteArray ui = *kor::UiFile::fromForm(form(static_cast<int>(state.range(0)))).ui;
    for (auto _ : state) {
        QXmlStreamReader reader(ui);
        while (!reader.atEnd())
            benchmark::DoNotOptimize(reader.readNext());
    }
}

//! Loads a .ui file; the window's end is not counted.
void load(benchmark::State &state, QByteArray ui)
{
    for (auto _ : state) {
        Loader loader;
        QBuffer buffer(&ui);
        (void)buffer.open(QIODevice::ReadOnly);
        std::unique_ptr<QWidget> window(loader.load(&buffer));
        state.PauseTiming();
        if (!window)
            state.SkipWithError("the form is not loaded");
        window.reset();
        state.ResumeTiming();
    }
}

void loadControls(benchmark::State &state)
{
    load(state, *kor::UiFile::fromForm(form(static_cast<int>(state.range(0)))).ui);
}

constexpr int many = 1000;

} // namespace

BENCHMARK(convertToUi)->Name("Form to ui/kor")->Arg(many)->Unit(benchmark::kMillisecond);
BENCHMARK(loadControls)->Name("Form to ui/peer:QUiLoader")->Arg(many)->Unit(benchmark::kMillisecond);
BENCHMARK(readXml)->Name("Form to ui/peer:XML")->Arg(many)->Unit(benchmark::kMillisecond);
BENCHMARK(convertToForm)->Name("Form from ui/kor")->Arg(many)->Unit(benchmark::kMillisecond);
BENCHMARK(loadControls)->Name("Form from ui/peer:QUiLoader")->Arg(many)->Unit(benchmark::kMillisecond);
BENCHMARK(readXml)->Name("Form from ui/peer:XML")->Arg(many)->Unit(benchmark::kMillisecond);

int main(int count, char **arguments)
{
    QApplication application(count, arguments);
    return runBenchmarks(count, arguments);
}
