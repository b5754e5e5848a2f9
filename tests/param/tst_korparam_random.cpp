// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"

#include <KorDaoUC/Format>

#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <vector>

using namespace kor;
using namespace kor::test;

namespace {

enum class Kind { Text, Number, Date, Combo, Click };

//! What a parameter must hold: the text that is shown, and the value.
struct Parameter {
    Kind kind;
    QString format;
    QString shown;
    QVariant value;
};

const QStringList cities{QStringLiteral("Gdynia"), QStringLiteral("Puck"), QStringLiteral("Sopot")};

} // namespace

//! Thousands of edits and moves over random parameters, against a model of what each must hold: text and value follow
//! the editor, and nothing else ever changes.
class tst_KorParam_Random : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(420, 200); }
    void cleanup() { tearDown(); }
    void everyParameterHoldsWhatWasEntered_data();
    void everyParameterHoldsWhatWasEntered();

private:
    [[nodiscard]] int below(int bound) { return static_cast<int>(random.bounded(bound)); }
    [[nodiscard]] Parameter &at(int row) { return parameters[static_cast<std::size_t>(row - 1)]; }
    void addParameter();
    void ensureOpen();
    void edit();
    void enterText(Parameter &after);
    void move();
    void readAll();
    void program();
    //! The open editor is left, by the user or the program: the number is formatted.
    void settleRow(int row);
    void compare();

    QRandomGenerator random;
    std::vector<Parameter> parameters;
    QStringList steps;
    int edited = 0; //!< the row whose editor is open, 0 for none
};

void tst_KorParam_Random::addParameter()
{
    settleRow(edited);
    edited = 0;
    const auto kind = static_cast<Kind>(below(5));
    static const char *const words[] = {"TEXT", "NUMBER", "DATE", "COMBO", "CLICK"};
    Parameter made{kind, QString(), QString(), QVariant()};
    QString clickText;
    switch (kind) {
    case Kind::Text:
        made.value = QStringLiteral("tekst %1").arg(below(1000));
        made.shown = made.value.toString();
        break;
    case Kind::Number: {
        made.format = below(2) ? QStringLiteral("#,##0.00") : QString();
        const double number = below(100'000) / 100.0;
        made.value = number;
        made.shown = Format(number, made.format.isEmpty() ? QStringLiteral("General Number") : made.format);
        break;
    }
    case Kind::Date:
        made.value = QDate(2026, 1, 1).addDays(below(3000));
        made.shown = Format(made.value, QStringLiteral("Short Date"));
        break;
    case Kind::Combo: {
        const int key = below(3);
        made.value = key;
        made.shown = cities.at(key);
        break;
    }
    case Kind::Click:
        made.value = below(100);
        made.shown = clickText = QStringLiteral("wybór %1").arg(below(1000));
        break;
    }
    sheet->AddParam(QStringLiteral("Parametr %1").arg(parameters.size() + 1), QString(),
                    QString::fromLatin1(words[static_cast<int>(kind)]), made.value, QString(), 0, QString(),
                    QStringLiteral("LIST 0;Gdynia|1;Puck|2;Sopot"), QString(), 0, 0, clickText, QString(), made.format);
    parameters.push_back(made);
    steps << QStringLiteral("add %1").arg(QString::fromLatin1(words[static_cast<int>(kind)]));
    settle();
}

void tst_KorParam_Random::settleRow(int row)
{
    if (row == 0 || at(row).kind != Kind::Number)
        return;
    Parameter &left = at(row);
    if (isNull(left.value)) {
        left.shown.clear();
    } else {
        left.shown = Format(left.value, left.format.isEmpty() ? QStringLiteral("General Number") : left.format);
    }
}

void tst_KorParam_Random::ensureOpen()
{
    if (edited && !openEditor().isEmpty())
        return;
    if (!sheet->isAncestorOf(QApplication::focusWidget())) {
        enter();
    } else if (openEditor().isEmpty()) {
        if (sheet->Row() == 0)
            press(Qt::Key_Down);
        else
            press(Qt::Key_F2);
    }
    edited = openEditor().isEmpty() ? 0 : sheet->Row();
}

void tst_KorParam_Random::enterText(Parameter &after)
{
    switch (after.kind) {
    case Kind::Text:
        after.shown = below(6) ? QStringLiteral("żółw %1").arg(below(1000)) : QString();
        after.value = after.shown;
        break;
    case Kind::Number: {
        if (below(6) == 0) {
            after.shown.clear();
            after.value = null();
            break;
        }
        const int cents = 100 * below(1000) + 25 * below(4);
        after.shown = QString::number(cents / 100.0).replace(u'.', u',');
        after.value = cents / 100.0;
        break;
    }
    case Kind::Date: {
        const QDate day = QDate(2026, 1, 1).addDays(below(3000));
        after.value = day;
        after.shown = Format(day, QStringLiteral("Short Date"));
        break;
    }
    case Kind::Combo: {
        const int key = below(3);
        type(cities.at(key).left(1).toLower());
        QTest::qWait(0);
        after.value = key;
        after.shown = cities.at(key);
        return;
    }
    case Kind::Click:
        if (below(3) == 0) {
            press(below(2) ? Qt::Key_Delete : Qt::Key_Backspace);
            after.shown.clear();
            after.value = null();
        } else {
            after.shown = QStringLiteral("z okna %1").arg(below(1000));
            after.value = below(1000);
            const auto connection = connect(sheet, &KorParam::ClickClick, this, [&](const QString &) {
                sheet->setClickValue(after.value);
                sheet->setClickText(after.shown);
            });
            press(Qt::Key_F4);
            disconnect(connection);
        }
        return;
    }
    press(Qt::Key_Home);
    press(Qt::Key_End, Qt::ShiftModifier);
    press(Qt::Key_Delete);
    type(after.shown);
}

//! Enters something into the open editor, and gives up now and then.
void tst_KorParam_Random::edit()
{
    ensureOpen();
    if (!edited)
        return;
    if (at(edited).kind == Kind::Combo)
        QTest::qWait(QApplication::keyboardInputInterval() + 1); // or the letters would be one name
    Parameter after = at(edited);
    enterText(after);
    QCOMPARE(shown(edited), after.shown);
    if (after.kind != Kind::Date) // which is read when it is left
        QCOMPARE(sheet->ParValue(), after.value);
    steps << QStringLiteral("edit %1").arg(edited);
    at(edited) = after;
    if (after.kind == Kind::Date) {
        press(Qt::Key_Return);
        edited = 0;
    }
}

void tst_KorParam_Random::move()
{
    static const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> keys{
        {Qt::Key_Down, Qt::NoModifier},      {Qt::Key_Down, Qt::NoModifier},       {Qt::Key_Up, Qt::NoModifier},
        {Qt::Key_Return, Qt::NoModifier},    {Qt::Key_F2, Qt::NoModifier},         {Qt::Key_Tab, Qt::NoModifier},
        {Qt::Key_Home, Qt::ControlModifier}, {Qt::Key_End, Qt::ControlModifier},   {Qt::Key_Backtab, Qt::NoModifier},
        {Qt::Key_Down, Qt::ShiftModifier},   {Qt::Key_PageUp, Qt::ControlModifier}};
    const auto &[key, modifiers] = keys[static_cast<std::size_t>(below(static_cast<int>(keys.size())))];
    ensureOpen();
    const bool hasOwnUse = edited && (at(edited).kind == Kind::Date || at(edited).kind == Kind::Combo);
    if (hasOwnUse && (key == Qt::Key_PageUp || modifiers == Qt::ShiftModifier))
        return; // steps the date, and the list
    const int before = edited;
    press(key, modifiers);
    steps << QStringLiteral("key %1").arg(key, 0, 16);
    const bool isOpen = !openEditor().isEmpty();
    if (!isOpen || sheet->Row() != before)
        settleRow(before);
    edited = isOpen ? sheet->Row() : 0;
}

//! As a host does before it runs its report.
void tst_KorParam_Random::readAll()
{
    for (int row = 1; row < sheet->Rows(); ++row)
        (void)valueOf(row);
    edited = 0;
    steps << QStringLiteral("read");
}

void tst_KorParam_Random::program()
{
    const int row = 1 + below(sheet->Rows() - 1);
    if (edited || at(row).kind == Kind::Click || at(row).kind == Kind::Number)
        return;
    Parameter &changed = at(row);
    sheet->setRow(row);
    switch (changed.kind) {
    case Kind::Text: changed.value = QStringLiteral("program %1").arg(below(100)); break;
    case Kind::Date: changed.value = QDate(2030, 1, 1).addDays(below(100)); break;
    default: changed.value = below(3); break;
    }
    sheet->setParValue(changed.value);
    steps << QStringLiteral("program %1").arg(row);
    QCOMPARE(shown(row), changed.shown); // deliberately
    leave();
    enter(); // until the user comes by
    if (changed.kind == Kind::Text)
        changed.shown = changed.value.toString();
    else if (changed.kind == Kind::Date)
        changed.shown = Format(changed.value, QStringLiteral("Short Date"));
    else
        changed.shown = cities.at(changed.value.toInt());
    press(Qt::Key_Return);
}

void tst_KorParam_Random::compare()
{
    QStringList expected;
    QStringList found;
    for (int row = 1; row < sheet->Rows(); ++row) {
        expected << at(row).shown;
        found << shown(row);
    }
    QVERIFY2(found == expected, qPrintable(QStringLiteral("after %1\nexpected %2\nfound    %3")
                                               .arg(steps.mid(std::max<qsizetype>(0, steps.size() - 8)).join(u' '),
                                                    expected.join(u"; "), found.join(u"; "))));
}

void tst_KorParam_Random::everyParameterHoldsWhatWasEntered_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 2U, 3U, 20261122U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_KorParam_Random::everyParameterHoldsWhatWasEntered()
{
    QFETCH(quint32, seed);
    random.seed(seed);
    QApplication::setKeyboardInputInterval(1);
    parameters.clear();
    steps.clear();
    edited = 0;
    for (int i = 0; i < 5; ++i)
        addParameter();
    for (int i = 0; i < 400; ++i) {
        const int what = below(20);
        if (what < 9)
            edit();
        else if (what < 16)
            move();
        else if (what < 17)
            addParameter();
        else if (what < 18)
            program();
        else if (what == 18 && !edited)
            readAll();
        compare();
        if (QTest::currentTestFailed())
            return;
    }
    leave();
    settleRow(edited);
    compare();
    for (int row = 1; row < sheet->Rows(); ++row)
        QCOMPARE(valueOf(row), at(row).value);
    QCOMPARE(messages->take(), QStringList());
}

QTEST_MAIN(tst_KorParam_Random)
#include "tst_korparam_random.moc"
