// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "number/numberrules.h"

#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>

#include <cmath>

using namespace kor;

namespace {

//! "1[23]4" is 1234 with 23 selected, "12|34" the caret in the middle.
Entry entryOf(QString state)
{
    Entry entry;
    const auto open = state.indexOf(u'[');
    const auto close = state.indexOf(u']');
    if (open >= 0) {
        entry.selStart = static_cast<int>(open);
        entry.selLength = static_cast<int>(close - open - 1);
    } else {
        entry.selStart = static_cast<int>(state.indexOf(u'|'));
    }
    entry.text = state.remove(u'[').remove(u']').remove(u'|');
    return entry;
}

QString stateOf(const Entry &entry)
{
    QString text = entry.text;
    if (entry.selLength == 0)
        return text.insert(entry.selStart, u'|');
    text.insert(entry.selStart + entry.selLength, u']');
    return text.insert(entry.selStart, u'[');
}

//! What the text box makes of the judged key.
Entry typed(const Keystroke &key)
{
    Entry entry = key.entry;
    if (key.keyAscii == 0)
        return entry;
    if (key.keyAscii == 8) {
        if (entry.selLength == 0 && entry.selStart > 0) {
            --entry.selStart;
            entry.selLength = 1;
        }
        entry.text.remove(entry.selStart, entry.selLength);
    } else {
        entry.text.replace(entry.selStart, entry.selLength, QChar(static_cast<char16_t>(key.keyAscii)));
        ++entry.selStart;
    }
    entry.selLength = 0;
    return entry;
}

NumberSigns polish() { return NumberSigns::of(Locale::polish()); }
NumberSigns english() { return NumberSigns::of(Locale::english()); }
NumberSigns german() { return NumberSigns::of(Locale::german()); }

const QString standardMask = QStringLiteral("#,##0.00");

enum class Outcome { Typed, Swallowed, Beep };

} // namespace

Q_DECLARE_METATYPE(Outcome)

class tst_NumberRules : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void signsComeFromTheLocale();
    void rawText_data();
    void rawText();
    void display_data();
    void display();
    void fill_data();
    void fill();
    void key_data();
    void key();
    void hostChangesTheCode_data();
    void hostChangesTheCode();
    void everyOtherCharacterIsRefusedWithABeep();
    void narrowField_data();
    void narrowField();
    void given_data();
    void given();
    void bound_data();
    void bound();
    void refusedBound_data();
    void refusedBound();
    void range_data();
    void range();
    void nullIsNeverOutside();
    void textsInTheField_data();
    void textsInTheField();
    void textsThatStillSayTheValue_data();
    void textsThatStillSayTheValue();
    void formattedTextsOutside_data();
    void formattedTextsOutside();
    void messageNamesTheRange();
    void keyUp();
};

void tst_NumberRules::signsComeFromTheLocale()
{
    QCOMPARE(polish().decimalSeparator, QChar(u','));
    QCOMPARE(polish().thousandsSeparator, QChar(0xA0));
    QCOMPARE(polish().percentSymbol, QStringLiteral("%"));
    QCOMPARE(polish().currencyText.trimmed(), QStringLiteral("zł"));
    QCOMPARE(english().currencyText, QStringLiteral("$"));
    QCOMPARE(german().currencyText.trimmed(), QStringLiteral("€"));
}

void tst_NumberRules::rawText_data()
{
    QTest::addColumn<int>("locale");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("raw");
    // clang-format off
    QTest::newRow("grouped amount")              << 0 << QStringLiteral("1\u00A0234,50")        << QStringLiteral("1234.50");
    QTest::newRow("two groups")                  << 0 << QStringLiteral("1\u00A0234\u00A0567,5") << QStringLiteral("1234567.5");
    QTest::newRow("percent")                     << 0 << QStringLiteral("12,50%")               << QStringLiteral("12.50");
    QTest::newRow("currency")                    << 0 << QStringLiteral("12,50 zł")             << QStringLiteral("12.50");
    QTest::newRow("negative")                    << 0 << QStringLiteral("-5,00")                << QStringLiteral("-5.00");
    QTest::newRow("full stop stays")             << 0 << QStringLiteral("1.5")                  << QStringLiteral("1.5");
    QTest::newRow("empty")                       << 0 << QString()                              << QString();
    QTest::newRow("letters stay")                << 0 << QStringLiteral("abc")                  << QStringLiteral("abc");
    QTest::newRow("fill stays")                  << 0 << QStringLiteral("###")                  << QStringLiteral("###");
    QTest::newRow("english grouped")             << 1 << QStringLiteral("1,234.50")             << QStringLiteral("1234.50");
    QTest::newRow("english currency")            << 1 << QStringLiteral("$1,234.50")            << QStringLiteral("1234.50");
    QTest::newRow("german grouped")              << 2 << QStringLiteral("1.234,50")             << QStringLiteral("1234.50");
    QTest::newRow("german currency")             << 2 << QStringLiteral("1.234,50 €")           << QStringLiteral("1234.50");
    // clang-format on
}

void tst_NumberRules::rawText()
{
    QFETCH(int, locale);
    QFETCH(QString, shown);
    const NumberSigns signs = locale == 0 ? polish() : locale == 1 ? english() : german();
    QTEST(toRawText(shown, signs), "raw");
}

void tst_NumberRules::display_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("shown");
    // clang-format off
    QTest::newRow("bare number")            << QStringLiteral("1234,567")  << standardMask                 << QStringLiteral("1\u00A0234,57");
    QTest::newRow("full stop for the comma") << QStringLiteral("1234.567") << standardMask                 << QStringLiteral("1\u00A0234,57");
    QTest::newRow("already formatted")      << QStringLiteral("1\u00A0234,57") << standardMask             << QStringLiteral("1\u00A0234,57");
    QTest::newRow("below one")              << QStringLiteral(",5")        << standardMask                 << QStringLiteral("0,50");
    QTest::newRow("negative")               << QStringLiteral("-7")        << standardMask                 << QStringLiteral("-7,00");
    QTest::newRow("whole numbers")          << QStringLiteral("7,5")       << QStringLiteral("0")          << QStringLiteral("8");
    QTest::newRow("percent mask")           << QStringLiteral("0,5")       << QStringLiteral("0%")         << QStringLiteral("50%");
    QTest::newRow("empty")                  << QString()                   << standardMask                 << QString();
    QTest::newRow("minus alone")            << QStringLiteral("-")         << standardMask                 << QString();
    QTest::newRow("letters")                << QStringLiteral("abc")       << standardMask                 << QString();
    QTest::newRow("fill stays as it is")    << QStringLiteral("##")        << standardMask                 << QStringLiteral("##");
    QTest::newRow("currency sign")          << QStringLiteral("12,5 zł")   << standardMask                 << QStringLiteral("12,50");
    // clang-format on
}

void tst_NumberRules::display()
{
    QFETCH(QString, text);
    QFETCH(QString, mask);
    QTEST(formatForDisplay(text, mask, polish()), "shown");
}

void tst_NumberRules::fill_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("room");
    QTest::addColumn<QString>("filled");
    // clang-format off
    QTest::newRow("digits become the sign")       << QStringLiteral("123")     << 9 << QStringLiteral("###");
    QTest::newRow("other characters stay")        << QStringLiteral("-1,5")    << 9 << QStringLiteral("-#,#");
    QTest::newRow("letters A to P too")           << QStringLiteral("APQZap")  << 9 << QStringLiteral("##QZap");
    QTest::newRow("cut at the front")             << QStringLiteral("-123,45") << 4 << QStringLiteral("#,##");
    QTest::newRow("one sign remains in no room")  << QStringLiteral("12345")   << 0 << QStringLiteral("#");
    QTest::newRow("empty stays empty")            << QString()                 << 0 << QString();
    // clang-format on
}

void tst_NumberRules::fill()
{
    QFETCH(QString, text);
    QFETCH(int, room);
    QTEST(hashFill(text, [room](const QString &t) { return t.size() <= room; }), "filled");
}

void tst_NumberRules::key_data()
{
    QTest::addColumn<int>("locale");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("keyAscii");
    QTest::addColumn<int>("maxLength");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<int>("keyPresses");
    QTest::addColumn<QString>("after");

    const auto row = [](const char *name, int locale, const char *before, int key, int maxLength, Outcome outcome,
                        int presses, const char *after) {
        QTest::newRow(name) << locale << QString::fromUtf8(before) << key << maxLength << outcome << presses
                            << QString::fromUtf8(after);
    };
    // clang-format off
    row("digit at the end",                          0, "12|",    '3', 0, Outcome::Typed,     1, "123|");
    row("digit in the middle",                       0, "1|2",    '9', 0, Outcome::Typed,     1, "19|2");
    row("digit at the front",                        0, "|12",    '9', 0, Outcome::Typed,     1, "9|12");
    row("digit into the empty field",                0, "|",      '7', 0, Outcome::Typed,     1, "7|");
    row("digit replaces the selection",              0, "1[23]",  '9', 0, Outcome::Typed,     1, "19|");
    row("digit replaces everything",                 0, "[123]",  '9', 0, Outcome::Typed,     1, "9|");
    row("zero is a digit",                           0, "1|",     '0', 0, Outcome::Typed,     1, "10|");
    row("comma types the separator",                 0, "12|",    ',', 0, Outcome::Typed,     1, "12,|");
    row("full stop types the separator",             0, "12|",    '.', 0, Outcome::Typed,     1, "12,|");
    row("comma types the english separator",         1, "12|",    ',', 0, Outcome::Typed,     1, "12.|");
    row("full stop types the english separator",     1, "12|",    '.', 0, Outcome::Typed,     1, "12.|");
    row("comma types the german separator",          2, "12|",    ',', 0, Outcome::Typed,     1, "12,|");
    row("separator in the middle",                   0, "1|2",    ',', 0, Outcome::Typed,     1, "1,|2");
    row("separator replaces part",                   0, "1[2]3",  ',', 0, Outcome::Typed,     1, "1,|3");
    row("separator over everything asks twice",      0, "[123]",  ',', 0, Outcome::Typed,     2, ",|");
    row("separator into the empty field asks twice", 0, "|",      ',', 0, Outcome::Typed,     2, ",|");
    row("second separator moves behind the first",   0, "1|2,5",  ',', 0, Outcome::Swallowed, 0, "12,|5");
    row("second separator from behind",              0, "12,5|",  '.', 0, Outcome::Swallowed, 0, "12,|5");
    row("second separator from just behind",         0, "12,|5",  ',', 0, Outcome::Swallowed, 0, "12,|5");
    row("second separator with a selection",         0, "1[2],5", ',', 0, Outcome::Swallowed, 0, "12,|5");
    row("separator selected is still there",         0, "1[,]5",  ',', 0, Outcome::Swallowed, 0, "1,|5");
    row("english second separator",                  1, "1|2.5",  ',', 0, Outcome::Swallowed, 0, "12.|5");
    row("minus goes to the front from the end",      0, "12|",    '-', 0, Outcome::Typed,     1, "-|12");
    row("minus goes to the front from the middle",   0, "1|2",    '-', 0, Outcome::Typed,     1, "-|12");
    row("minus at the front",                        0, "|12",    '-', 0, Outcome::Typed,     1, "-|12");
    row("minus keeps a partial selection's text",    0, "1[2]",   '-', 0, Outcome::Typed,     1, "-|12");
    row("minus over everything asks twice",          0, "[12]",   '-', 0, Outcome::Typed,     2, "-|");
    row("minus into the empty field asks twice",     0, "|",      '-', 0, Outcome::Typed,     2, "-|");
    row("second minus only moves",                   0, "-12|",   '-', 0, Outcome::Swallowed, 0, "-|12");
    row("second minus from the front",               0, "|-12",   '-', 0, Outcome::Swallowed, 0, "-|12");
    row("minus over everything negative",            0, "[-12]",  '-', 0, Outcome::Typed,     2, "-|");
    row("backspace is typed",                        0, "12|",    8,   0, Outcome::Typed,     1, "1|");
    row("backspace in the empty field",              0, "|",      8,   0, Outcome::Typed,     1, "|");
    row("backspace over the selection",              0, "1[23]",  8,   0, Outcome::Typed,     1, "1|");
    row("length: full field swallows silently",      0, "123|",   '4', 3, Outcome::Swallowed, 0, "123|");
    row("length: full field refuses in the middle",  0, "1|23",   '4', 3, Outcome::Swallowed, 0, "1|23");
    row("length: one short is typed",                0, "12|",    '4', 3, Outcome::Typed,     1, "124|");
    row("length: selection makes room",              0, "1[2]3",  '4', 3, Outcome::Typed,     1, "14|3");
    row("length: backspace always",                  0, "123|",   8,   3, Outcome::Typed,     1, "12|");
    row("length: minus is counted",                  0, "123|",   '-', 3, Outcome::Swallowed, 0, "|123");
    row("length: separator is not counted",          0, "123|",   ',', 3, Outcome::Typed,     1, "123,|");
    row("length: letter is swallowed silently",      0, "123|",   'a', 3, Outcome::Swallowed, 0, "123|");
    row("length 1: first digit",                     0, "|",      '4', 1, Outcome::Typed,     1, "4|");
    row("length 1: second digit",                    0, "4|",     '5', 1, Outcome::Swallowed, 0, "4|");
    row("letter beeps",                              0, "12|",    'a', 0, Outcome::Beep,      0, "12|");
    row("capital letter beeps",                      0, "12|",    'E', 0, Outcome::Beep,      0, "12|");
    row("plus beeps",                                0, "12|",    '+', 0, Outcome::Beep,      0, "12|");
    row("blank beeps",                               0, "12|",    ' ', 0, Outcome::Beep,      0, "12|");
    row("Polish letter beeps",                       0, "12|",    0x105, 0, Outcome::Beep,    0, "12|");
    row("percent sign beeps",                        0, "12|",    '%', 0, Outcome::Beep,      0, "12|");
    row("fill sign beeps",                           0, "12|",    '#', 0, Outcome::Beep,      0, "12|");
    row("bracket beeps",                             0, "12|",    ']', 0, Outcome::Beep,      0, "12|");
    row("Enter beeps",                               0, "12|",    13,  0, Outcome::Beep,      0, "12|");
    row("Escape beeps",                              0, "12|",    27,  0, Outcome::Beep,      0, "12|");
    row("letter over the selection beeps",           0, "[12]",   'a', 0, Outcome::Beep,      0, "[12]");
    row("Arabic digit beeps",                        0, "12|",    0x663, 0, Outcome::Beep,    0, "12|");
    // clang-format on
    for (int digit = '0'; digit <= '9'; ++digit) {
        for (int locale = 0; locale < 3; ++locale)
            row(qPrintable(QStringLiteral("digit %1 in locale %2").arg(QChar(digit)).arg(locale)), locale, "-5|", digit,
                0, Outcome::Typed, 1, qPrintable(QStringLiteral("-5%1|").arg(QChar(digit))));
    }
}

void tst_NumberRules::key()
{
    QFETCH(int, locale);
    QFETCH(QString, before);
    QFETCH(int, keyAscii);
    QFETCH(int, maxLength);
    const NumberSigns signs = locale == 0 ? polish() : locale == 1 ? english() : german();
    int presses = 0;
    const Keystroke key =
        judgeKey({keyAscii, entryOf(before)}, {signs, standardMask, maxLength, [](const QString &) { return true; }},
                 [&presses](int &) { ++presses; });
    const Outcome outcome = key.keyAscii != 0 ? Outcome::Typed : key.beeps ? Outcome::Beep : Outcome::Swallowed;
    QTEST(outcome, "outcome");
    QTEST(presses, "keyPresses");
    QTEST(stateOf(typed(key)), "after");
}

void tst_NumberRules::hostChangesTheCode_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("keyAscii");
    QTest::addColumn<int>("changedTo");
    QTest::addColumn<bool>("firstOnly");
    QTest::addColumn<QString>("after");
    // clang-format off
    QTest::newRow("0 swallows a digit")               << QStringLiteral("12|")  << int('3') << 0        << false << QStringLiteral("12|");
    QTest::newRow("another digit is typed instead")   << QStringLiteral("12|")  << int('3') << int('4') << false << QStringLiteral("124|");
    QTest::newRow("a letter is the host's own risk")  << QStringLiteral("12|")  << int('3') << int('x') << false << QStringLiteral("12x|");
    QTest::newRow("a digit becomes a backspace")      << QStringLiteral("12|")  << int('3') << 8        << false << QStringLiteral("1|");
    QTest::newRow("0 swallows the separator")         << QStringLiteral("12|")  << int(',') << 0        << false << QStringLiteral("12|");
    QTest::newRow("first of two events: to a digit")  << QStringLiteral("[12]") << int(',') << int('7') << true  << QStringLiteral("7|");
    QTest::newRow("first of two events: to a minus")  << QStringLiteral("[12]") << int(',') << int('-') << true  << QStringLiteral("-|");
    QTest::newRow("first of two events: to a letter is then refused") << QStringLiteral("[12]") << int('-') << int('a') << true << QStringLiteral("[12]");
    QTest::newRow("first of two events: to 0 is refused") << QStringLiteral("[12]") << int('-') << 0 << true << QStringLiteral("[12]");
    // clang-format on
}

void tst_NumberRules::hostChangesTheCode()
{
    QFETCH(QString, before);
    QFETCH(int, keyAscii);
    QFETCH(int, changedTo);
    QFETCH(bool, firstOnly);
    const NumberSigns signs = polish();
    int presses = 0;
    const Keystroke key = judgeKey({keyAscii, entryOf(before)},
                                   {signs, standardMask, 0, [](const QString &) { return true; }}, [&](int &code) {
                                       if (++presses == 1 || !firstOnly)
                                           code = changedTo;
                                   });
    QTEST(stateOf(typed(key)), "after");
}

void tst_NumberRules::everyOtherCharacterIsRefusedWithABeep()
{
    const NumberSigns signs = polish();
    const Entry before = entryOf(QStringLiteral("1[2]3"));
    const QString accepted = QStringLiteral("-0123456789,.");
    for (int code = 0; code <= 0xFFFF; ++code) {
        if (code == 8 || accepted.contains(QChar(static_cast<char16_t>(code))))
            continue;
        int presses = 0;
        const Keystroke key = judgeKey({code, before}, {signs, standardMask, 0, [](const QString &) { return true; }},
                                       [&presses](int &) { ++presses; });
        QVERIFY2(key.keyAscii == 0 && key.beeps && presses == 0 && key.entry == before,
                 qPrintable(QString::number(code)));
    }
}

void tst_NumberRules::narrowField_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("keyAscii");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<int>("keyPresses");
    // The field has room for six characters; 123 is shown as 123,00.
    // clang-format off
    QTest::newRow("fits formatted")                            << QStringLiteral("12|")      << int('3') << Outcome::Typed << 1;
    QTest::newRow("a fourth digit would not fit")              << QStringLiteral("123|")     << int('4') << Outcome::Beep  << 0;
    QTest::newRow("a fourth digit over a selection")           << QStringLiteral("12[3]")    << int('4') << Outcome::Typed << 1;
    QTest::newRow("before the separator: typed without asking") << QStringLiteral("1234|,5") << int('6') << Outcome::Typed << 0;
    QTest::newRow("behind the separator: typed")               << QStringLiteral("1234,|5")  << int('6') << Outcome::Typed << 1;
    QTest::newRow("minus that would not fit formatted")        << QStringLiteral("123|")     << int('-') << Outcome::Beep  << 0;
    QTest::newRow("minus that fits formatted")                 << QStringLiteral("12|")      << int('-') << Outcome::Typed << 1;
    QTest::newRow("text too long already")                     << QStringLiteral("1234567|") << int('8') << Outcome::Beep  << 0;
    QTest::newRow("text too long already, selection")          << QStringLiteral("[1234567]") << int('8') << Outcome::Typed << 1;
    QTest::newRow("separator always")                          << QStringLiteral("1234567|") << int(',') << Outcome::Typed << 1;
    QTest::newRow("backspace always")                          << QStringLiteral("1234567|") << 8        << Outcome::Typed << 1;
    // clang-format on
}

void tst_NumberRules::narrowField()
{
    QFETCH(QString, before);
    QFETCH(int, keyAscii);
    const NumberSigns signs = polish();
    int presses = 0;
    const Keystroke key = judgeKey({keyAscii, entryOf(before)},
                                   {signs, standardMask, 0, [](const QString &text) { return text.size() <= 6; }},
                                   [&presses](int &) { ++presses; });
    const Outcome outcome = key.keyAscii != 0 ? Outcome::Typed : key.beeps ? Outcome::Beep : Outcome::Swallowed;
    QTEST(outcome, "outcome");
    QTEST(presses, "keyPresses");
}

void tst_NumberRules::given_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("number");
    // clang-format off
    QTest::newRow("double")             << QVariant(1.25)                       << QVariant(1.25);
    QTest::newRow("long")               << QVariant(7)                          << QVariant(7.0);
    QTest::newRow("integer")            << QVariant::fromValue<short>(7)        << QVariant(7.0);
    QTest::newRow("single")             << QVariant(0.5F)                       << QVariant(0.5);
    QTest::newRow("64 bits")            << QVariant(qlonglong(12345678901LL))   << QVariant(12345678901.0);
    QTest::newRow("text with a comma")  << QVariant(QStringLiteral("12,5"))     << QVariant(12.5);
    QTest::newRow("text with a stop")   << QVariant(QStringLiteral("12.5"))     << QVariant(12.5);
    QTest::newRow("grouped text")       << QVariant(QStringLiteral("1\u00A0234,5")) << QVariant(1234.5);
    QTest::newRow("Null")               << null()                               << QVariant();
    QTest::newRow("Empty")              << QVariant()                           << QVariant();
    QTest::newRow("missing")            << missing()                            << QVariant();
    QTest::newRow("empty text")         << QVariant(QString())                  << QVariant();
    QTest::newRow("letters")            << QVariant(QStringLiteral("abc"))      << QVariant();
    QTest::newRow("boolean is a word")  << QVariant(true)                       << QVariant();
    QTest::newRow("not a number")       << QVariant(std::nan(""))               << QVariant();
    QTest::newRow("infinite")           << QVariant(-HUGE_VAL)                  << QVariant();
    // clang-format on
}

void tst_NumberRules::given()
{
    QFETCH(QVariant, value);
    QFETCH(QVariant, number);
    const auto read = numberGiven(value, polish());
    QCOMPARE(read ? QVariant(*read) : QVariant(), number);
}

void tst_NumberRules::bound_data()
{
    QTest::addColumn<int>("locale");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<float>("single");
    // clang-format off
    QTest::newRow("number")                   << 0 << QVariant(100)                          << 100.0F;
    QTest::newRow("double to single")         << 0 << QVariant(0.1)                          << 0.1F;
    QTest::newRow("Polish half")              << 0 << QVariant(QStringLiteral("0,5"))        << 0.5F;
    QTest::newRow("Polish thousand")          << 0 << QVariant(QStringLiteral("1\u00A0000")) << 1000.0F;
    QTest::newRow("English half")             << 1 << QVariant(QStringLiteral("0.5"))        << 0.5F;
    QTest::newRow("English thousand")         << 1 << QVariant(QStringLiteral("1,000"))      << 1000.0F;
    QTest::newRow("English million")          << 1 << QVariant(QStringLiteral("1,000,000"))  << 1000000.0F;
    QTest::newRow("negative")                 << 0 << QVariant(QStringLiteral("-12"))        << -12.0F;
    QTest::newRow("Empty is zero")            << 0 << QVariant()                             << 0.0F;
    // clang-format on
}

void tst_NumberRules::bound()
{
    QFETCH(int, locale);
    QFETCH(QVariant, given);
    QTEST(boundGiven(given, locale == 0 ? polish() : english()), "single");
}

void tst_NumberRules::refusedBound_data()
{
    QTest::addColumn<int>("locale");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<int>("error");
    // clang-format off
    QTest::newRow("half with the grouping sign")  << 1 << QVariant(QStringLiteral("0,5"))     << 13;
    QTest::newRow("two digits behind a group")    << 1 << QVariant(QStringLiteral("1,00"))    << 13;
    QTest::newRow("four digits behind a group")   << 1 << QVariant(QStringLiteral("1,0000"))  << 13;
    QTest::newRow("group at the end")             << 1 << QVariant(QStringLiteral("1,"))      << 13;
    QTest::newRow("German half with a stop")      << 2 << QVariant(QStringLiteral("0.5"))     << 13;
    QTest::newRow("letters")                      << 0 << QVariant(QStringLiteral("abc"))     << 13;
    QTest::newRow("empty text")                   << 0 << QVariant(QString())                 << 13;
    QTest::newRow("Null")                         << 0 << null()                              << 94;
    QTest::newRow("too large for a Single")       << 0 << QVariant(1e39)                      << 6;
    QTest::newRow("infinite")                     << 0 << QVariant(qInf())                    << 6;
    QTest::newRow("no number at all")             << 0 << QVariant(qQNaN())                   << 13;
    QTest::newRow("list")                         << 0 << QVariant(QVariantList{1, 2})        << 13;
    // clang-format on
}

void tst_NumberRules::refusedBound()
{
    QFETCH(int, locale);
    QFETCH(QVariant, given);
    QFETCH(int, error);
    try {
        (void)boundGiven(given, locale == 0 ? polish() : locale == 1 ? english() : german());
        QFAIL("accepted");
    } catch (const RunTimeError &refusal) {
        QCOMPARE(refusal.number(), error);
    }
}

void tst_NumberRules::range_data()
{
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<float>("min");
    QTest::addColumn<float>("max");
    QTest::addColumn<double>("number");
    QTest::addColumn<QVariant>("bound");
    // clang-format off
    QTest::newRow("inside")                        << true  << 0.0F << 10.0F << 5.0   << QVariant();
    QTest::newRow("at the lower bound")            << true  << 0.0F << 10.0F << 0.0   << QVariant();
    QTest::newRow("at the upper bound")            << true  << 0.0F << 10.0F << 10.0  << QVariant();
    QTest::newRow("below")                         << true  << 0.0F << 10.0F << -1.0  << QVariant(0.0F);
    QTest::newRow("above")                         << true  << 0.0F << 10.0F << 11.0  << QVariant(10.0F);
    QTest::newRow("not checked")                   << false << 0.0F << 10.0F << 11.0  << QVariant();
    QTest::newRow("at a bound that is no binary fraction") << true << 0.0F << 0.7F << 0.7 << QVariant();
    QTest::newRow("just above such a bound")       << true  << 0.0F << 0.7F  << 0.71  << QVariant(0.7F);
    QTest::newRow("crossed bounds: the upper wins") << true << 10.0F << 5.0F << 7.0   << QVariant(5.0F);
    QTest::newRow("beyond a Single")               << true  << 0.0F << 10.0F << 1e300 << QVariant(10.0F);
    // clang-format on
}

void tst_NumberRules::range()
{
    QFETCH(bool, isChecked);
    QFETCH(float, min);
    QFETCH(float, max);
    QFETCH(double, number);
    QFETCH(QVariant, bound);
    const NumberRange range{isChecked, min, max};
    const auto clamped = range.bound(number);
    QCOMPARE(clamped ? QVariant(*clamped) : QVariant(), bound);
    QCOMPARE(range.isOutside(number), bound.isValid());
}

void tst_NumberRules::nullIsNeverOutside() { QVERIFY(!(NumberRange{true, 5, 10}.isOutside(null()))); }

void tst_NumberRules::keyUp()
{
    const QList<int> forwarded{8, 45, 46, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57};
    for (int code = 0; code < 256; ++code)
        QVERIFY2(isKeyUpForwarded(code) == forwarded.contains(code), qPrintable(QString::number(code)));
}

void tst_NumberRules::textsInTheField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("shown"); // invalid: nothing
    QTest::addColumn<QVariant>("set");
    const auto row = [](const char *name, const QString &text, const QVariant &shown, const QVariant &set) {
        QTest::newRow(name) << text << shown << set;
    };
    const QVariant no;
    // clang-format off
    row("number",                         QStringLiteral("12,5"),                   12.5,   12.5);
    row("point",                          QStringLiteral("12.5"),                   12.5,   12.5);
    row("grouped",                        QStringLiteral("1\u00a0234,50"),          1234.5, 1234.5);
    row("per cent",                       QStringLiteral("50%"),                    50.0,   50.0);
    row("amount",                         QStringLiteral("7,00 zł"),                7.0,    7.0);
    row("begins with a number",           QStringLiteral("12abc"),                  12.0,   no);
    row("word",                           QStringLiteral("abc"),                    0.0,    no);
    row("nothing",                        QString(),                                0.0,    no);
    row("minus alone",                    QStringLiteral("-"),                      0.0,    no);
    row("largest Double",                 QStringLiteral("1e308"),                  1e308,  1e308);
    row("beyond every Double",            QStringLiteral("1e400"),                  no,     no);
    row("below every Double",             QStringLiteral("-1e400"),                 no,     no);
    row("four hundred digits",            QString(400, u'9'),                       no,     no);
    row("too small for a Double",         QStringLiteral("1e-400"),                 0.0,    0.0);
    row("hexadecimal of more than 32 bits", QStringLiteral("&H1FFFFFFFF"),          no,     no);
    // clang-format on
}

void tst_NumberRules::textsInTheField()
{
    QFETCH(QString, text);
    QFETCH(QVariant, shown);
    QFETCH(QVariant, set);
    const auto asVariant = [](std::optional<double> number) { return number ? QVariant(*number) : QVariant(); };
    QCOMPARE(asVariant(numberShown(text, polish())), shown);
    QCOMPARE(asVariant(numberSet(text, polish())), set);
}

void tst_NumberRules::textsThatStillSayTheValue_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<bool>("says");
    const QString usual = QStringLiteral("#,##0.00");
    // clang-format off
    QTest::newRow("as formatted")             << QStringLiteral("1\u00a0234,50") << QVariant(1234.5) << usual                 << true;
    QTest::newRow("another number")           << QStringLiteral("1,00")          << QVariant(2.0)    << usual                 << false;
    QTest::newRow("a run of hashes says all") << QStringLiteral("##")            << QVariant(2.0)    << usual                 << true;
    QTest::newRow("nothing and Null")         << QString()                       << null()           << usual                 << true;
    QTest::newRow("a text and Null")          << QStringLiteral("1,00")          << null()           << usual                 << false;
    QTest::newRow("a lone minus")             << QStringLiteral("-")             << QVariant(-5.0)   << QStringLiteral("\\-;\\-") << false;
    // clang-format on
}

void tst_NumberRules::textsThatStillSayTheValue()
{
    QFETCH(QString, shown);
    QFETCH(QVariant, value);
    QFETCH(QString, mask);
    QTEST(saysValue(shown, value, mask, polish()), "says");
}

void tst_NumberRules::formattedTextsOutside_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isOutside");
    QTest::newRow("inside") << QStringLiteral("5,00") << false;
    QTest::newRow("outside") << QStringLiteral("11,00") << true;
    QTest::newRow("read up to the grouping") << QStringLiteral("1\u00a0234,00") << false;
    QTest::newRow("nothing reads as 0") << QString() << true;
    QTest::newRow("beyond every Double") << QString(400, u'9') << true;
}

void tst_NumberRules::formattedTextsOutside()
{
    QFETCH(QString, text);
    QTEST((NumberRange{true, 1, 10}.refuses(text)), "isOutside");
    QVERIFY((!NumberRange{false, 1, 10}.refuses(text)));
}

void tst_NumberRules::messageNamesTheRange()
{
    QCOMPARE((NumberRange{true, 0.5F, 1000}.message(Locale::polish())),
             QStringLiteral("Przekroczony zakres liczby. Wprowadź liczbę z zakresu: [0,5...1000]."));
}

QTEST_APPLESS_MAIN(tst_NumberRules)
#include "tst_numberrules.moc"
