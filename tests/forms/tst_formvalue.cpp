// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/formtext.h"

#include <KorDaoUC/Currency>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>

#include <limits>

namespace {

QVariant byteOf(int value) { return QVariant::fromValue(static_cast<uchar>(value)); }
QVariant integerOf(int value) { return QVariant::fromValue(static_cast<short>(value)); }
QVariant longOf(qint64 value) { return QVariant(static_cast<int>(value)); }
QVariant amount(qint64 tenThousandths)
{
    return QVariant::fromValue(kor::Currency::fromTenThousandths(tenThousandths));
}
QVariant text(const char *utf8) { return QString::fromUtf8(utf8); }
QVariant textOf(std::u16string_view units) { return QStringView(units.data(), qsizetype(units.size())).toString(); }
QVariant moment(int year, int month, int day, int hour, int minute, int second, int millisecond = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second, millisecond), Qt::UTC);
}

} // namespace

class tst_FormValue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyTypeReadsBackAsItself_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("notation");

        // clang-format off
        QTest::newRow("Empty")                          << QVariant()                   << "Empty";
        QTest::newRow("Null")                           << kor::null()                  << "Null";
        QTest::newRow("a missing argument")             << kor::missing()               << "Missing";
        QTest::newRow("True")                           << QVariant(true)               << "True";
        QTest::newRow("False")                          << QVariant(false)              << "False";

        QTest::newRow("Byte 0")                         << byteOf(0)                    << "0b";
        QTest::newRow("Byte 255")                       << byteOf(255)                  << "255b";
        QTest::newRow("Integer 5")                      << integerOf(5)                 << "5%";
        QTest::newRow("Integer -1")                     << integerOf(-1)                << "-1%";
        QTest::newRow("smallest Integer")               << integerOf(-32768)            << "-32768%";
        QTest::newRow("largest Integer")                << integerOf(32767)             << "32767%";
        QTest::newRow("Long 0")                         << longOf(0)                    << "0";
        QTest::newRow("Long 5")                         << longOf(5)                    << "5";
        QTest::newRow("Long -1 is no colour")           << longOf(-1)                   << "-1";
        QTest::newRow("largest Long")                   << longOf(2147483647)           << "2147483647";
        QTest::newRow("64 bits beyond a Double")        << QVariant(qlonglong(9007199254740993)) << "9007199254740993^";
        QTest::newRow("lowest 64 bits")                 << QVariant(std::numeric_limits<qlonglong>::min()) << "-9223372036854775808^";
        QTest::newRow("highest 64 bits")                << QVariant(std::numeric_limits<qlonglong>::max()) << "9223372036854775807^";
        QTest::newRow("smallest Long is a colour")      << longOf(-2147483648LL)        << "&H80000000&";
        QTest::newRow("colour of windows")              << longOf(0x80000005LL)         << "&H80000005&";
        QTest::newRow("colour of window texts")         << longOf(0x80000008LL)         << "&H80000008&";
        QTest::newRow("colour of button faces")         << longOf(0x8000000fLL)         << "&H8000000F&";
        QTest::newRow("last system colour")             << longOf(0x800000ffLL)         << "&H800000FF&";
        QTest::newRow("just past the system colours")   << longOf(0x80000100LL)         << "-2147483392";
        QTest::newRow("an own colour is a plain Long")  << longOf(0x00c0ffff)           << "12648447";

        QTest::newRow("Single 1000")                    << QVariant(1000.0F)            << "1000!";
        QTest::newRow("Single 0.1")                     << QVariant(0.1F)               << "0.1!";
        QTest::newRow("Single -0.7")                    << QVariant(-0.7F)              << "-0.7!";
        QTest::newRow("largest Single")                 << QVariant(std::numeric_limits<float>::max())        << "3.4028235e+38!";
        QTest::newRow("smallest normal Single")         << QVariant(std::numeric_limits<float>::min())        << "1.1754944e-38!";
        QTest::newRow("smallest Single")                << QVariant(std::numeric_limits<float>::denorm_min()) << "1e-45!";
        QTest::newRow("Single with nine digits")        << QVariant(16777217.0F)        << "16777216!";
        QTest::newRow("Double 1.5")                     << QVariant(1.5)                << "1.5#";
        QTest::newRow("Double 1")                       << QVariant(1.0)                << "1#";
        QTest::newRow("Double 0.1")                     << QVariant(0.1)                << "0.1#";
        QTest::newRow("Double 0.1 + 0.2")               << QVariant(0.1 + 0.2)          << "0.30000000000000004#";
        QTest::newRow("Double 1/3")                     << QVariant(1.0 / 3)            << "0.3333333333333333#";
        QTest::newRow("Double 1234567.89")              << QVariant(1234567.89)         << "1234567.89#";
        QTest::newRow("largest Double")                 << QVariant(std::numeric_limits<double>::max())        << "1.7976931348623157e+308#";
        QTest::newRow("smallest Double")                << QVariant(std::numeric_limits<double>::denorm_min()) << "5e-324#";
        QTest::newRow("Double 100000")                  << QVariant(100000.0)           << "100000#";
        QTest::newRow("Single 1000000")                 << QVariant(1e6F)               << "1000000!";
        QTest::newRow("Double 0.00001")                 << QVariant(0.00001)            << "0.00001#";
        QTest::newRow("Double 0.000001")                << QVariant(0.000001)           << "1e-06#";
        QTest::newRow("Double 1e15")                    << QVariant(1e15)               << "1e+15#";
        QTest::newRow("Double below 1e15")              << QVariant(999999999999999.9)  << "999999999999999.9#";
        QTest::newRow("minus zero")                     << QVariant(-0.0)               << "-0#";
        QTest::newRow("Double -1e22")                   << QVariant(-1e22)              << "-1e+22#";
        QTest::newRow("Double past 2^53")               << QVariant(9007199254740993.0) << "9.007199254740992e+15#";

        QTest::newRow("Currency 0")                     << amount(0)                    << "0@";
        QTest::newRow("Currency 1.5")                   << amount(15000)                << "1.5@";
        QTest::newRow("Currency 0.0001")                << amount(1)                    << "0.0001@";
        QTest::newRow("Currency -0.0001")               << amount(-1)                   << "-0.0001@";
        QTest::newRow("Currency -0.5")                  << amount(-5000)                << "-0.5@";
        QTest::newRow("Currency -1.0203")               << amount(-10203)               << "-1.0203@";
        QTest::newRow("Currency 1000")                  << amount(10000000)             << "1000@";
        QTest::newRow("largest Currency")               << amount(std::numeric_limits<qint64>::max()) << "922337203685477.5807@";
        QTest::newRow("smallest Currency")              << amount(std::numeric_limits<qint64>::min()) << "-922337203685477.5808@";

        QTest::newRow("a date")                         << QVariant(QDate(2026, 11, 21))      << "#2026-11-21#";
        QTest::newRow("first date of all")              << QVariant(QDate(100, 1, 1))         << "#0100-01-01#";
        QTest::newRow("a date too early for a Variant") << QVariant(QDate(26, 11, 21))        << "#0026-11-21#";
        QTest::newRow("a moment too early for one")     << moment(99, 12, 31, 23, 59, 59, 7)  << "#0099-12-31 23:59:59.007#";
        QTest::newRow("first date that files hold")     << QVariant(QDate(1, 1, 1))           << "#0001-01-01#";
        QTest::newRow("last date of all")               << QVariant(QDate(9999, 12, 31))      << "#9999-12-31#";
        QTest::newRow("29 February")                    << QVariant(QDate(2024, 2, 29))       << "#2024-02-29#";
        QTest::newRow("a date with its time")           << moment(2026, 11, 21, 12, 30, 0)    << "#2026-11-21 12:30:00#";
        QTest::newRow("with milliseconds")              << moment(2026, 11, 21, 0, 0, 0, 7)   << "#2026-11-21 00:00:00.007#";
        QTest::newRow("in the hour that summer skips")  << moment(2026, 3, 29, 2, 30, 0)      << "#2026-03-29 02:30:00#";

        QTest::newRow("an empty text")                  << text("")                     << "\"\"";
        QTest::newRow("a Polish text")                  << text("Zażółć gęślą jaźń")    << QStringLiteral("\"Zażółć gęślą jaźń\"");
        QTest::newRow("a quote is doubled")             << text("12\" x 8\"")           << "\"12\"\" x 8\"\"\"";
        QTest::newRow("nothing but a quote")            << text("\"")                   << "\"\"\"\"";
        QTest::newRow("an apostrophe is no comment")    << text("it's")                 << "\"it's\"";
        QTest::newRow("a backslash")                    << text("C:\\new")              << "\"C:\\\\new\"";
        QTest::newRow("line breaks")                    << text("a\r\nb\nc")            << "\"a\\r\\nb\\nc\"";
        QTest::newRow("a tab")                          << text("a\tb")                 << "\"a\\tb\"";
        QTest::newRow("a control character")            << text("\x01\x1f\x7f")         << "\"\\u0001\\u001F\\u007F\"";
        QTest::newRow("the null character")             << textOf({u"a\0b", 3})         << "\"a\\u0000b\"";
        QTest::newRow("blanks at both ends")            << text("  x  ")                << "\"  x  \"";
        QTest::newRow("no-break space stands as it is") << textOf(u"1\u00a0234")        << QStringLiteral("\"1\u00a0234\"");
        QTest::newRow("a line separator")               << textOf(u"a\u2028b\u2029")    << "\"a\\u2028b\\u2029\"";
        QTest::newRow("a turn of writing direction")    << textOf(u"a\u202eb")          << "\"a\\u202Eb\"";
        QTest::newRow("a byte order mark")              << textOf(u"\ufeff")            << "\"\\uFEFF\"";
        QTest::newRow("an emoji")                       << textOf(u"\U0001f600")        << QStringLiteral("\"\U0001f600\"");
        QTest::newRow("half of a surrogate pair")       << textOf({u"\xd83d", 1})       << "\"\\uD83D\"";
        QTest::newRow("a pair in the wrong order")      << textOf({u"\xde00\xd83d", 2}) << "\"\\uDE00\\uD83D\"";
        QTest::newRow("a text that looks like True")    << text("True")                 << "\"True\"";
        QTest::newRow("a text that looks like 5")       << text("5")                    << "\"5\"";

        QTest::newRow("a plain font")  << QVariant::fromValue(kor::SavedFont{QStringLiteral("DejaVu Sans,10,-1,5,400,0,0,0,0,0,0,0,0,0,0,1")})
                                       << "Font(\"DejaVu Sans\", 10)";
        QTest::newRow("a bold italic") << QVariant::fromValue(kor::SavedFont{QStringLiteral("DejaVu Sans,8.25,-1,5,700,1,0,0,0,0,0,0,0,0,0,1")})
                                       << "Font(\"DejaVu Sans\", 8.25, Bold, Italic)";
        QTest::newRow("every style")   << QVariant::fromValue(kor::SavedFont{QStringLiteral("Sans,9,-1,5,700,1,1,1,0,0,0,0,0,0,0,1")})
                                       << "Font(\"Sans\", 9, Bold, Italic, Underline, Strikeout)";
        QTest::newRow("semibold")      << QVariant::fromValue(kor::SavedFont{QStringLiteral("Sans,9,-1,5,600,0,0,0,0,0,0,0,0,0,0,1")})
                                       << "Font(\"Sans,9,-1,5,600,0,0,0,0,0,0,0,0,0,0,1\")";
        QTest::newRow("in pixels")     << QVariant::fromValue(kor::SavedFont{QStringLiteral("Sans,-1,13,5,400,0,0,0,0,0,0,0,0,0,0,1")})
                                       << "Font(\"Sans,-1,13,5,400,0,0,0,0,0,0,0,0,0,0,1\")";
        QTest::newRow("named style")   << QVariant::fromValue(kor::SavedFont{QStringLiteral("Sans,9,-1,5,400,0,0,0,0,0,0,0,0,0,0,1,Book")})
                                       << "Font(\"Sans,9,-1,5,400,0,0,0,0,0,0,0,0,0,0,1,Book\")";
        // clang-format on
    }
    void everyTypeReadsBackAsItself()
    {
        QFETCH(const QVariant, value);
        QFETCH(const QString, notation);
        QCOMPARE(kor::writeValue(value), notation);
        kor::LineReader reader(notation);
        const std::optional<QVariant> read = reader.readValue();
        QVERIFY2(read, qPrintable(reader.reason()));
        QVERIFY(reader.atEnd());
        QVERIFY2(kor::isSameSetting(*read, value), read->typeName());
    }

    void alsoReads_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QVariant>("value");

        // clang-format off
        QTest::newRow("a small hexadecimal Long")        << "&HFF&"                 << longOf(255);
        QTest::newRow("a hexadecimal in small letters")  << "&Hc0ffff&"             << longOf(0x00c0ffff);
        QTest::newRow("a hexadecimal -1")                << "&HFFFFFFFF&"           << longOf(-1);
        QTest::newRow("leading zeros")                   << "007"                   << longOf(7);
        QTest::newRow("a Double with an exponent")       << "1e3#"                  << QVariant(1000.0);
        QTest::newRow("a Double with trailing zeros")    << "1.50#"                 << QVariant(1.5);
        QTest::newRow("a Double without leading zero")   << ".5#"                   << QVariant(0.5);
        QTest::newRow("a Currency with trailing zeros")  << "1.5000@"               << amount(15000);
        QTest::newRow("an escape for a plain letter")    << "\"\\u0041\""           << text("A");
        QTest::newRow("an escape in small letters")      << "\"\\u00f3\""           << text("ó");
        QTest::newRow("a pair of escaped halves")        << "\"\\uD83D\\uDE00\""     << textOf(u"\U0001f600");
        QTest::newRow("a tab inside a text")             << "\"a\tb\""              << text("a\tb");
        QTest::newRow("midnight is the date alone")      << "#2026-11-21 00:00:00#" << QVariant(QDate(2026, 11, 21));
        QTest::newRow("blanks before the value")         << "   5%"                 << integerOf(5);
        QTest::newRow("a comment behind the value")      << "5% ' twips"            << integerOf(5);
        QTest::newRow("a comment right behind a text")   << "\"x\"'y"               << text("x");
        QTest::newRow("a font with blanks in between")   << "Font( \"Sans\" ,9 , Bold )"
            << QVariant::fromValue(kor::SavedFont{QStringLiteral("Sans,9,-1,5,700,0,0,0,0,0,0,0,0,0,0,1")});
        // clang-format on
    }
    void alsoReads()
    {
        QFETCH(const QString, notation);
        QFETCH(const QVariant, value);
        kor::LineReader reader(notation);
        const std::optional<QVariant> read = reader.readValue();
        QVERIFY2(read, qPrintable(reader.reason()));
        QVERIFY(reader.atEnd());
        QVERIFY2(kor::isSameSetting(*read, value), read->typeName());
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QString>("reason"); // a part of it

        // clang-format off
        QTest::newRow("nothing")                      << ""                    << "missing";
        QTest::newRow("blanks")                       << "   "                 << "missing";
        QTest::newRow("a comment")                    << "' 5"                 << "missing";
        QTest::newRow("a second equals sign")         << "= 5"                 << "missing";
        QTest::newRow("a word")                       << "Tak"                 << "Tak is no value";
        QTest::newRow("true in small letters")        << "true"                << "true is no value";
        QTest::newRow("a fraction without type")      << "1.5"                 << "1.5 is no value";
        QTest::newRow("a decimal comma")              << "1,5#"                << "";
        QTest::newRow("a plus sign")                  << "+5"                  << "+5 is no value";
        QTest::newRow("two minus signs")              << "--5"                 << "no value";
        QTest::newRow("a lone minus")                 << "-"                   << "no value";
        QTest::newRow("a lone percent sign")          << "%"                   << "no value";
        QTest::newRow("a lone currency sign")         << "@"                   << "no value";
        QTest::newRow("a Byte over 255")              << "256b"                << "out of the range";
        QTest::newRow("a negative Byte")              << "-1b"                 << "no value";
        QTest::newRow("an Integer over 32767")        << "32768%"              << "out of the range";
        QTest::newRow("an Integer below -32768")      << "-32769%"             << "out of the range";
        QTest::newRow("an Integer with a fraction")   << "1.5%"                << "no value";
        QTest::newRow("a Long over 2147483647")       << "2147483648"          << "out of the range";
        QTest::newRow("64 bits with one digit too many") << "9223372036854775808^" << "out of the range";
        QTest::newRow("64 bits with a fraction")      << "1.5^"                << "no value";
        QTest::newRow("64 bits without digits")       << "^"                   << "no value";
        QTest::newRow("a Long of twenty digits")      << "99999999999999999999"<< "out of the range";
        QTest::newRow("a hexadecimal of nine digits") << "&H123456789&"        << "out of the range";
        QTest::newRow("a hexadecimal without digits") << "&H&"                 << "no value";
        QTest::newRow("a hexadecimal without end")    << "&H80000005"          << "no value";
        QTest::newRow("a hexadecimal with a sign")    << "&H-5&"               << "no value";
        QTest::newRow("a hexadecimal of a G")         << "&HFG&"               << "no value";
        QTest::newRow("a Single too large")           << "1e39!"               << "out of the range";
        QTest::newRow("a Double too large")           << "1e309#"              << "out of the range";
        QTest::newRow("a Double too small")           << "1e-400#"             << "out of the range";
        QTest::newRow("an infinity")                  << "inf#"                << "no value";
        QTest::newRow("no number at all")             << "nan#"                << "no value";
        QTest::newRow("a Currency of five decimals")  << "1.00001@"            << "no value";
        QTest::newRow("a Currency without units")     << ".5@"                 << "no value";
        QTest::newRow("a Currency ending in a point") << "1.@"                 << "no value";
        QTest::newRow("a Currency with an exponent")  << "1e3@"                << "no value";
        QTest::newRow("a Currency too large")         << "922337203685477.5808@" << "out of the range";
        QTest::newRow("a sign within a Currency")     << "1.-5@"               << "no value";
        QTest::newRow("a digit of another script")    << QStringLiteral("\u0665") << "no value";
        QTest::newRow("a text without end")           << "\"abc"               << "closing quote";
        QTest::newRow("a lone quote")                 << "\""                  << "closing quote";
        QTest::newRow("a text that ends in a doubled quote") << "\"abc\"\""    << "closing quote";
        QTest::newRow("an unknown escape")            << "\"\\x41\""           << "backslash";
        QTest::newRow("a backslash at the end")       << "\"abc\\"             << "backslash";
        QTest::newRow("an escape cut short")          << "\"\\u00\""           << "four hexadecimal";
        QTest::newRow("an escape of other letters")   << "\"\\u00zz\""         << "four hexadecimal";
        QTest::newRow("a date without end")           << "#2026-11-21"         << "closing '#'";
        QTest::newRow("an empty date")                << "##"                  << "no date";
        QTest::newRow("31 April")                     << "#2026-04-31#"        << "no date";
        QTest::newRow("29 February of a common year") << "#2025-02-29#"        << "no date";
        QTest::newRow("month 13")                     << "#2026-13-01#"        << "no date";
        QTest::newRow("year 0")                       << "#0000-01-01#"        << "no date";
        QTest::newRow("a date in another order")      << "#21.11.2026#"        << "no date";
        QTest::newRow("a date of single digits")      << "#2026-1-2#"          << "no date";
        QTest::newRow("hour 24")                      << "#2026-11-21 24:00:00#" << "no date";
        QTest::newRow("a time without seconds")       << "#2026-11-21 12:30#"  << "no date";
        QTest::newRow("a time alone")                 << "#12:30:00#"          << "no date";
        QTest::newRow("a font without brackets")      << "Font \"Sans\""       << "a font is written";
        QTest::newRow("a font without family")        << "Font(9)"             << "a font is written";
        QTest::newRow("a font with a second size")    << "Font(\"Sans\", 9, 9)"<< "a font is written";
        QTest::newRow("a font of no size")            << "Font(\"Sans\", 0)"   << "a font is written";
        QTest::newRow("a font of infinite size")      << "Font(\"Sans\", inf)" << "a font is written";
        QTest::newRow("an unknown style of font")     << "Font(\"Sans\", 9, Fat)" << "a font is written";
        QTest::newRow("a font without end")           << "Font(\"Sans\", 9"    << "a font is written";
        QTest::newRow("a family with a comma")        << "Font(\"A,B\", 9)"    << "a font is written";
        // clang-format on
    }
    void refuses()
    {
        QFETCH(const QString, notation);
        QFETCH(const QString, reason);
        kor::LineReader reader(notation);
        const std::optional<QVariant> read = reader.readValue();
        if (reason.isEmpty()) {
            // "1,5#" begins like a number: what follows must not be taken for the end of the line.
            QVERIFY(!read || !reader.atEnd());
            return;
        }
        QVERIFY(!read);
        QVERIFY2(reader.reason().contains(reason), qPrintable(reader.reason()));
    }

    void bringsOtherTypesIntoAVariant_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("notation");

        // clang-format off
        QTest::newRow("a 64-bit integer that fits is a Long")    << QVariant(qint64(5))                  << "5";
        QTest::newRow("a larger one is a Double")                << QVariant(qint64(5000000000))         << "5000000000#";
        QTest::newRow("an unsigned integer over 2^31 is a Double") << QVariant(4000000000U)              << "4000000000#";
        QTest::newRow("one beyond a Double stays")               << QVariant(qulonglong(9007199254740993)) << "9007199254740993^";
        QTest::newRow("an infinity is no value")                 << QVariant(std::numeric_limits<double>::infinity()) << "Empty";
        QTest::newRow("no number is no value")                   << QVariant(std::numeric_limits<float>::quiet_NaN()) << "Empty";
        QTest::newRow("a date that is none is Null")             << QVariant(QDate())                    << "Null";
        QTest::newRow("a moment at midnight is its date")        << moment(2026, 11, 21, 0, 0, 0)        << "#2026-11-21#";
        QTest::newRow("a database NULL is Null")                 << QVariant(QMetaType(QMetaType::LongLong)) << "Null";
        // clang-format on
    }
    void bringsOtherTypesIntoAVariant()
    {
        QFETCH(const QVariant, value);
        QFETCH(const QString, notation);
        QCOMPARE(kor::writeValue(value), notation);
    }

    void names_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("notation");

        // clang-format off
        QTest::newRow("a plain name")               << "MaskPicture"         << "MaskPicture";
        QTest::newRow("a name that begins with 0")  << "0TextMatrix"         << "0TextMatrix";
        QTest::newRow("a qualified class")          << "KorDaoUC.KorNumber"  << "KorDaoUC.KorNumber";
        QTest::newRow("an underscore")              << "txt_1"               << "txt_1";
        QTest::newRow("Polish letters")             << QStringLiteral("lblZamówienie") << QStringLiteral("lblZamówienie");
        QTest::newRow("a name with a blank")        << "Col 1"               << "\"Col 1\"";
        QTest::newRow("a name with an equals sign") << "a=b"                 << "\"a=b\"";
        QTest::newRow("a name with a quote")        << "a\"b"                << "\"a\"\"b\"";
        QTest::newRow("an empty name")              << ""                    << "\"\"";
        QTest::newRow("a control of an array")      << "lbl(3)"              << "\"lbl(3)\"";
        // clang-format on
    }
    void names()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, notation);
        QCOMPARE(kor::writeName(name), notation);
        kor::LineReader reader(notation);
        const std::optional<kor::LineReader::Word> word = reader.readName();
        QVERIFY2(word, qPrintable(reader.reason()));
        QVERIFY(reader.atEnd());
        QCOMPARE(word->text, name);
    }
};

QTEST_GUILESS_MAIN(tst_FormValue)
#include "tst_formvalue.moc"
