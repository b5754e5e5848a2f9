// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/daterules.h"
#include "run.h"

#include <KorDaoUC/Format>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/Locale>
#include <KorDaoUC/Variant>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QLineEdit>

#include <benchmark/benchmark.h>
#include <functional>

// A clerk's keys in a date field, and the check of what was typed.

namespace {

const QString mask = QStringLiteral("dd.MM.yyyy");
const QDate today(2024, 3, 5);

void send(QWidget *box, int key, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(box, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(box, &release);
}

//! One digit over the day of a whole date.
void typeOverDay(benchmark::State &state, QLineEdit *box, QWidget *keyboard, const std::function<void()> &begin)
{
    const QString digit = QStringLiteral("2");
    for (auto _ : state) {
        state.PauseTiming();
        begin();
        state.ResumeTiming();
        send(keyboard, Qt::Key_2, digit);
    }
    if (box->text() != QStringLiteral("2.03.2024"))
        state.SkipWithError("the digit was not typed");
}

void dateKey(benchmark::State &state)
{
    KorDate date;
    date.setFormatMask(mask);
    date.resize(160, 26);
    auto *box = date.findChild<QLineEdit *>();
    typeOverDay(state, box, box, [box] {
        box->setText(QStringLiteral("15.03.2024"));
        box->setSelection(0, 2);
    });
}

void dateEditKey(benchmark::State &state)
{
    QDateEdit edit;
    edit.setLocale(QLocale(QLocale::Polish));
    edit.setDisplayFormat(mask);
    edit.resize(160, 26);
    typeOverDay(state, edit.findChild<QLineEdit *>(), &edit, [&edit] {
        edit.setDate(QDate(2024, 3, 15));
        edit.setSelectedSection(QDateTimeEdit::DaySection);
    });
}

//! A step to the next day.
void dateStep(benchmark::State &state)
{
    KorDate date;
    date.setFormatMask(mask);
    date.setValue(QDate(2004, 2, 15));
    date.resize(160, 26);
    auto *box = date.findChild<QLineEdit *>();
    for (auto _ : state)
        send(box, Qt::Key_Up, {});
}

void dateEditStep(benchmark::State &state)
{
    QDateEdit edit;
    edit.setLocale(QLocale(QLocale::Polish));
    edit.setDisplayFormat(mask);
    edit.setDate(QDate(2004, 2, 15));
    edit.setSelectedSection(QDateTimeEdit::DaySection);
    edit.setWrapping(true);
    edit.resize(160, 26);
    for (auto _ : state)
        send(&edit, Qt::Key_Up, {});
}

//! The toolkit's check of a text, which it keeps to its own.
class OpenDateEdit final : public QDateEdit
{
public:
    using QDateEdit::dateTimeFromText;
    using QDateEdit::validate;
};

void check(benchmark::State &state, const QString &text)
{
    const kor::Locale locale = kor::Locale::polish();
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::checkDate(text, {mask, locale, today}));
}

void dateEditCheck(benchmark::State &state)
{
    OpenDateEdit edit;
    edit.setLocale(QLocale(QLocale::Polish));
    edit.setDisplayFormat(mask);
    // It keeps the last text it has looked at, so it is given two in turn.
    const QString texts[] = {QStringLiteral("15.03.1999"), QStringLiteral("16.03.1999")};
    std::size_t turn = 0;
    for (auto _ : state) {
        QString text = texts[turn++ & 1];
        int place = 10;
        benchmark::DoNotOptimize(edit.validate(text, place));
        benchmark::DoNotOptimize(edit.dateTimeFromText(text));
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    kor::Locale::setSystemDefault(kor::Locale::polish());
    benchmark::RegisterBenchmark("DateKey/accepted/kor", [](benchmark::State &state) {
        state.SetLabel("goal qdateedit 1");
        dateKey(state);
    });
    benchmark::RegisterBenchmark("DateKey/accepted/peer:qdateedit", dateEditKey);
    benchmark::RegisterBenchmark("DateKey/step/kor", [](benchmark::State &state) {
        state.SetLabel("goal qdateedit 1");
        dateStep(state);
    });
    benchmark::RegisterBenchmark("DateKey/step/peer:qdateedit", dateEditStep);
    benchmark::RegisterBenchmark("DateCheck/exact/kor", [](benchmark::State &state) {
        state.SetLabel("goal qdateedit 1");
        check(state, QStringLiteral("15.03.1999"));
    });
    benchmark::RegisterBenchmark("DateCheck/exact/peer:qdateedit", dateEditCheck);
    benchmark::RegisterBenchmark("DateCheck/loose",
                                 [](benchmark::State &state) { check(state, QStringLiteral("1-2-49")); });
    benchmark::RegisterBenchmark("DateCheck/refused",
                                 [](benchmark::State &state) { check(state, QStringLiteral("31.02.2001")); });
    return runBenchmarks(argc, argv);
}
