// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "run.h"

#include <KorDaoUC/Beep>
#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Locale>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/UserControl>

#include <QtCore/QBuffer>
#include <QtGui/QKeyEvent>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

// A clerk's keys in a numeric field, and the settings of a large form.

namespace {

//! Types one character into a field that starts each time with the same text, the caret at its end.
void typeInto(benchmark::State &state, QLineEdit *box, const QString &text, int key, const QString &typed)
{
    for (auto _ : state) {
        state.PauseTiming();
        box->setText(text);
        state.ResumeTiming();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, typed);
        QApplication::sendEvent(box, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, typed);
        QApplication::sendEvent(box, &release);
    }
}

void numberKey(benchmark::State &state, int key, const QString &typed)
{
    kor::setBeepHandler([] {});
    KorNumber number;
    number.resize(200, 26);
    typeInto(state, number.findChild<QLineEdit *>(), QStringLiteral("1234"), key, typed);
    kor::setBeepHandler({});
}

void spinBoxKey(benchmark::State &state, int key, const QString &typed)
{
    QDoubleSpinBox box;
    box.setLocale(QLocale(QLocale::Polish));
    box.setRange(-1e9, 1e9);
    box.setGroupSeparatorShown(true);
    box.resize(200, 26);
    typeInto(state, box.findChild<QLineEdit *>(), QStringLiteral("1234"), key, typed);
}

kor::FormBlock largeForm(int controls)
{
    kor::FormBlock form{QStringLiteral("Form"), QStringLiteral("frmLarge"), {}, {}};
    for (int i = 0; i < controls; ++i) {
        kor::FormBlock block{QStringLiteral("KorDaoUC.KorNumber"), QStringLiteral("num%1").arg(i), {}, {}};
        block.properties.append(QStringLiteral("Left"), 120 * i);
        block.properties.append(QStringLiteral("Locked"), true);
        block.properties.append(QStringLiteral("MaskPicture"), QStringLiteral("#,##0.000"));
        block.properties.append(QStringLiteral("MaxValue"), 1000.0F);
        block.properties.append(QStringLiteral("CheckRange"), true);
        block.properties.append(QStringLiteral("ToolTipText"), QStringLiteral("Zaliczka wpłacona przy zamówieniu"));
        form.children.push_back(block);
    }
    return form;
}

void parseForm(benchmark::State &state)
{
    const QByteArray text = kor::FormFile::serialize(largeForm(200));
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::FormFile::parse(text));
}

//! From the text to two hundred working fields on a window.
void loadForm(benchmark::State &state)
{
    const QByteArray text = kor::FormFile::serialize(largeForm(200));
    for (auto _ : state) {
        QWidget window;
        const auto parsed = kor::FormFile::parse(text);
        for (const kor::FormBlock &block : parsed.form->children)
            kor::ControlRegistry::create(block.type, &window)->readProperties(block.properties);
    }
}

//! The same form as the toolkit keeps it, with its own numeric field.
void loadUiFile(benchmark::State &state)
{
    QByteArray text = R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">)";
    for (int i = 0; i < 200; ++i) {
        text += R"(<widget class="QDoubleSpinBox" name="num)" + QByteArray::number(i) +
                R"("><property name="readOnly"><bool>true</bool></property>
                <property name="decimals"><number>3</number></property>
                <property name="maximum"><double>1000.0</double></property>
                <property name="groupSeparatorShown"><bool>true</bool></property>
                <property name="toolTip"><string>Zaliczka wpłacona przy zamówieniu</string></property></widget>)";
    }
    text += "</widget></ui>";
    QUiLoader loader;
    for (auto _ : state) {
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        const std::unique_ptr<QWidget> window(loader.load(&buffer));
        benchmark::DoNotOptimize(window);
    }
}

void readSettings(benchmark::State &state)
{
    const kor::FormBlock form = largeForm(200);
    std::vector<std::unique_ptr<kor::UserControl>> controls;
    for (int i = 0; i < 200; ++i)
        controls.emplace_back(kor::ControlRegistry::create(QStringLiteral("KorNumber")));
    for (auto _ : state) {
        for (std::size_t i = 0; i < controls.size(); ++i)
            controls[i]->readProperties(form.children[i].properties);
    }
}

void writeSettings(benchmark::State &state)
{
    const kor::FormBlock form = largeForm(1);
    std::unique_ptr<kor::UserControl> control(kor::ControlRegistry::create(QStringLiteral("KorNumber")));
    control->readProperties(form.children[0].properties);
    for (auto _ : state) {
        for (int i = 0; i < 200; ++i) {
            kor::PropertyBag bag;
            control->writeProperties(bag);
            benchmark::DoNotOptimize(bag);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    kor::Locale::setSystemDefault(kor::Locale::polish());
    benchmark::RegisterBenchmark("NumberKey/accepted/kor", numberKey, Qt::Key_5, QStringLiteral("5"));
    benchmark::RegisterBenchmark("NumberKey/accepted/peer:doublespinbox", spinBoxKey, Qt::Key_5, QStringLiteral("5"));
    benchmark::RegisterBenchmark("NumberKey/refused/kor", numberKey, Qt::Key_X, QStringLiteral("x"));
    benchmark::RegisterBenchmark("NumberKey/refused/peer:doublespinbox", spinBoxKey, Qt::Key_X, QStringLiteral("x"));
    benchmark::RegisterBenchmark("FormLoad/200/kor", loadForm)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("FormLoad/200/peer:uiloader", loadUiFile)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("FormFile/parse200/kor", parseForm);
    benchmark::RegisterBenchmark("Settings/read200/kor", readSettings);
    benchmark::RegisterBenchmark("Settings/write200/kor", writeSettings);
    return runBenchmarks(argc, argv);
}
