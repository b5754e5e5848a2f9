// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/checkedset.h"

#include <QtTest/QtTest>

using kor::CheckedSet;

namespace {

//! All texts of at most so many letters of an alphabet, "" among them.
QStringList wordsOf(const QString &alphabet, int longest)
{
    QStringList words{QString()};
    for (qsizetype from = 0, length = 1; length <= longest; ++length) {
        const qsizetype end = words.size();
        for (; from < end; ++from) {
            for (const QChar letter : alphabet)
                words << words[from] + letter;
        }
    }
    return words;
}

//! The rule, word for word, by which a key is in a set.
bool standsBetweenSeparators(const QString &keys, const QString &separator, const QString &key)
{
    const QString text = separator + keys;
    return !text.isEmpty() && text.contains(separator + key + separator);
}

} // namespace

class tst_CheckedSet : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keyIsInTheSet_data();
    void keyIsInTheSet();
    void agreesWithTheRuleOnEveryShortText_data();
    void agreesWithTheRuleOnEveryShortText();
    void emptyIsWhatHasNoWholeKey();
    void textHasTheSeparatorInFront();
    void readBackIsWhatWasWritten_data();
    void readBackIsWhatWasWritten();
    void everyOtherOfManyKeysIsFound();
};

void tst_CheckedSet::keyIsInTheSet_data()
{
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("found");
    const auto row = [](const char *behaviour, const char *separator, const char *keys, const char *key, bool found) {
        QTest::newRow(behaviour) << QString::fromUtf8(separator) << QString::fromUtf8(keys) << QString::fromUtf8(key)
                                 << found;
    };
    // clang-format off
    row("only key",                                        ";",  "1;",           "1",       true);
    row("first of three",                                  ";",  "1;5;7;",       "1",       true);
    row("one in the middle",                               ";",  "1;5;7;",       "5",       true);
    row("last with its separator",                         ";",  "1;5;7;",       "7",       true);
    row("last without a separator is not in it",           ";",  "1;5",          "5",       false);
    row("first of a set without a last separator",         ";",  "1;5",          "1",       true);
    row("only key without a separator is not in it",       ";",  "1",            "1",       false);
    row("key that is not there",                           ";",  "1;5;7;",       "6",       false);
    row("beginning of a key is no key",                    ";",  "11;",          "1",       false);
    row("whole key of which another is the beginning",     ";",  "11;",          "11",      true);
    row("end of a key is no key",                          ";",  "21;",          "1",       false);
    row("longer than what is there",                       ";",  "1;",           "11",      false);
    row("order does not matter",                           ";",  "7;1;5;",       "1",       true);
    row("repetition does not matter",                      ";",  "1;1;1;",       "1",       true);
    row("separator in front does not matter",              ";",  ";1;5;",        "1",       true);
    row("case matters",                                    ";",  "abc;",         "ABC",     false);
    row("accents matter",                                  ";",  "Łódź;",        "Lodz",    false);
    row("accented key",                                    ";",  "Łódź;Kraków;", "Łódź",    true);
    row("blank before a key belongs to it",                ";",  "1; 5;",        "5",       false);
    row("key with its blank",                              ";",  "1; 5;",        " 5",      true);
    row("blank inside a key",                              ";",  "a b;",         "a b",     true);
    row("nothing is in the empty set",                     ";",  "",             "1",       false);
    row("empty key is not in the empty set",               ";",  "",             "",        false);
    row("empty key beside a lone separator",               ";",  ";",            "",        true);
    row("empty key at the beginning",                      ";",  ";1;",          "",        true);
    row("empty key in the middle",                         ";",  "1;;2;",        "",        true);
    row("empty key at the end",                            ";",  "1;2;;",        "",        true);
    row("empty key is not in a set of others",             ";",  "1;2;",         "",        false);
    row("comma",                                           ",",  "c,a,",         "a",       true);
    row("comma, the other one",                            ",",  "c,a,",         "c",       true);
    row("comma, not there",                                ",",  "c,a,",         "b",       false);
    row("another separator is part of the key",            ",",  "1;5,",         "1;5",     true);
    row("another separator separates nothing",             ",",  "1;5,",         "1",       false);
    row("vertical bar",                                    "|",  "1|2|",         "2",       true);
    row("tab",                                             "\t", "1\t2\t",       "2",       true);
    row("line break",                                      "\n", "1\n2\n",       "2",       true);
    row("blank",                                           " ",  "1 2 ",         "2",       true);
    row("letter",                                          "x",  "1x2x",         "2",       true);
    row("letter in another case is none",                  "x",  "1X2X",         "2",       false);
    row("accented letter",                                 "ż",  "1ż2ż",         "2",       true);
    row("comma and blank",                                 ", ", "a, b, ",       "b",       true);
    row("comma and blank, last without",                   ", ", "a, b",         "b",       false);
    row("comma and blank, last with half of it",           ", ", "a, b,",        "b",       false);
    row("comma and blank, key that begins with a blank",   ", ", "a,  b, ",      " b",      true);
    row("comma and blank, key that ends with a comma",     ", ", "a,, b, ",      "a,",      true);
    row("comma and blank, half a separator is no key end", ", ", "a,b, ",        "a",       false);
    row("two different letters",                           "<>", "1<>2<>",       "2",       true);
    row("key with the separator inside",                   ";",  "1;2;",         "1;2",     true);
    row("its parts are in the set too",                    ";",  "1;2;",         "2",       true);
    row("key with the separator inside, interrupted",      ";",  "1;3;2;",       "1;2",     false);
    row("key with the separator inside, the other way",    ";",  "2;1;",         "1;2",     false);
    row("key with the separator inside, last without",     ";",  "1;2",          "1;2",     false);
    row("key with the separator inside, second time",      ";",  "1;3;1;2;",     "1;2",     true);
    row("key with the separator inside, behind others",    ";",  "5;1;2;6;",     "1;2",     true);
    row("key with the separator inside, cut short",        ";",  "1;22;",        "1;2",     false);
    row("key that begins with the separator",              ";",  "5;;2;",        ";2",      true);
    row("key that begins with the separator, at the front", ";", "2;",           ";2",      false);
    row("key that ends with the separator",                ";",  "2;;",          "2;",      true);
    row("key that ends with the separator, without one",   ";",  "2;",           "2;",      false);
    row("key that is the separator",                       ";",  ";;",           ";",       true);
    row("key that is the separator, one too few",          ";",  ";",            ";",       false);
    row("key of two separators inside",                    ";",  "a;b;c;",       "a;b;c",   true);
    row("comma and blank inside the key",                  ", ", "a, b, c, ",    "a, b",    true);
    row("separator of two like letters",                   "--", "1--2--",       "2",       true);
    row("separator of two like letters, key of one",       "--", "1---2--",      "-2",      true);
    row("separator of two like letters, cut otherwise",    "--", "1---2--",      "1-",      true);
    row("separator of two like letters, cut both ways",    "--", "1---2--",      "2",       true);
    row("separator of two like letters, last without",     "--", "1--2-",        "2",       false);
    row("separator of two like letters, empty key",        "--", "----",         "",        true);
    row("separator of two like letters, needs them all",   "--", "-",            "",        false);
    row("separator that begins as it ends",                "aba", "1aba2aba",    "2",       true);
    row("separator that begins as it ends, overlapping",   "aba", "1ababa",      "b",       false);
    row("no separator finds the key anywhere",             "",   "abc",          "b",       true);
    row("no separator, not there",                         "",   "abc",          "d",       false);
    row("no separator, empty key",                         "",   "abc",          "",        true);
    row("no separator, nothing checks nothing",            "",   "",             "",        false);
    row("negative number",                                 ";",  "-1;",          "-1",      true);
    row("negative number's digits are not the number",     ";",  "-1;",          "1",       false);
    row("decimal comma beside commas",                     ",",  "2,5,",         "2,5",     true);
    row("half of a decimal number",                        ",",  "2,5,",         "5",       true);
    row("date",                                            ";",  "29.02.2024;",  "29.02.2024", true);
    row("characters of regular expressions",               ";",  ".*;",          "1",       false);
    row("characters of regular expressions, as such",      ";",  ".*;",          ".*",      true);
    row("regular expression as the separator",             ".",  "1x2x",         "2",       false);
    row("surrogate pair",                                  ";",  "😀;",           "😀",       true);
    // clang-format on
}

void tst_CheckedSet::keyIsInTheSet()
{
    QFETCH(QString, separator);
    QFETCH(QString, keys);
    QFETCH(QString, key);
    QTEST(CheckedSet(keys, separator).contains(key), "found");
    QTEST(standsBetweenSeparators(keys, separator, key), "found");
}

void tst_CheckedSet::agreesWithTheRuleOnEveryShortText_data()
{
    QTest::addColumn<QString>("separator");
    for (const char *separator : {";", "a", ";a", "a;", ";;", "a;a", ";;a", ";a;a", "x", ""})
        QTest::addRow("separated by \"%s\"", separator) << QString::fromLatin1(separator);
}

void tst_CheckedSet::agreesWithTheRuleOnEveryShortText()
{
    QFETCH(QString, separator);
    const QStringList allKeys = wordsOf(QStringLiteral(";ab"), 3);
    for (const QString &keys : wordsOf(QStringLiteral(";ab"), 6)) {
        const CheckedSet set(keys, separator);
        for (const QString &key : allKeys) {
            if (set.contains(key) != standsBetweenSeparators(keys, separator, key))
                QFAIL(qPrintable(QStringLiteral("\"%1\" in \"%2\"").arg(key, keys)));
            if (set.isEmpty() && set.contains(key))
                QFAIL(qPrintable(QStringLiteral("\"%1\" in \"%2\", which is empty").arg(key, keys)));
        }
    }
}

void tst_CheckedSet::emptyIsWhatHasNoWholeKey()
{
    QVERIFY(CheckedSet(QString(), QStringLiteral(";")).isEmpty());
    QVERIFY(CheckedSet(QStringLiteral("1"), QStringLiteral(";")).isEmpty());
    QVERIFY(CheckedSet(QString(), QString()).isEmpty());
    QVERIFY(!CheckedSet(QStringLiteral("1;"), QStringLiteral(";")).isEmpty());
    QVERIFY(!CheckedSet(QStringLiteral(";"), QStringLiteral(";")).isEmpty()); // the key ""
    QVERIFY(!CheckedSet(QStringLiteral("1"), QString()).isEmpty());
}

void tst_CheckedSet::textHasTheSeparatorInFront()
{
    QCOMPARE(CheckedSet(QStringLiteral("1;5;"), QStringLiteral(";")).text(), QStringLiteral(";1;5;"));
    QCOMPARE(CheckedSet(QString(), QStringLiteral(", ")).text(), QStringLiteral(", "));
    QCOMPARE(CheckedSet(QStringLiteral("ab"), QString()).text(), QStringLiteral("ab"));
}

void tst_CheckedSet::readBackIsWhatWasWritten_data()
{
    QTest::addColumn<QString>("separator");
    for (const char *separator : {";", ",", ", ", "|", "<>", "\t"})
        QTest::addRow("separated by \"%s\"", separator) << QString::fromLatin1(separator);
}

void tst_CheckedSet::readBackIsWhatWasWritten()
{
    QFETCH(QString, separator);
    const QStringList keys = wordsOf(QStringLiteral("xyż"), 4);
    QString written;
    for (qsizetype i = 0; i < keys.size(); i += 3)
        written += keys[i] + separator;
    const CheckedSet set(written, separator);
    for (qsizetype i = 0; i < keys.size(); ++i)
        QCOMPARE(set.contains(keys[i]), i % 3 == 0);
}

void tst_CheckedSet::everyOtherOfManyKeysIsFound()
{
    QString written;
    for (int i = 0; i < 200'000; i += 2)
        written += QString::number(i) + QLatin1Char(';');
    const CheckedSet set(written, QStringLiteral(";"));
    int found = 0;
    for (int i = 0; i < 200'000; ++i)
        found += set.contains(QString::number(i)) ? 1 : 0;
    QCOMPARE(found, 100'000);
}

QTEST_APPLESS_MAIN(tst_CheckedSet)
#include "tst_checkedset.moc"
