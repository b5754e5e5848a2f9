// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/Clock>
#include <KorDaoUC/Convert>
#include <KorDaoUC/Date>
#include <KorDaoUC/Format>
#include <KorDaoUC/Locale>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QThread>
#include <QtTest/QTest>

#include <atomic>
#include <memory>
#include <vector>

using kor::Locale;

class tst_Locale : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theSystemsIsTheEnvironments();
    void knownOnesAreClassic();
    void othersAreAsTheToolkitTells_data();
    void othersAreAsTheToolkitTells();
    void timesAreWrittenWithoutWordsAndZones_data();
    void timesAreWrittenWithoutWordsAndZones();
    void theDefaultIsReplacedAndReferencesStay();
    void everyLocaleReadsWhatItWrites();
    void theClockIsReplaced();
    void manyThreadsFormatAtOnce();
};

void tst_Locale::theSystemsIsTheEnvironments()
{
    const QByteArray environment = qgetenv("LC_ALL");
    if (environment.startsWith("pl_PL"))
        QCOMPARE(Locale::systemDefault(), Locale::polish());
    else if (environment.startsWith('C'))
        QCOMPARE(Locale::systemDefault(), Locale::english());
    else if (qgetenv("LANG").startsWith("pl_PL") && qgetenv("LC_TIME") == "C")
        QCOMPARE(Locale::systemDefault(), Locale::polish());
    else
        QSKIP("tells nothing without LC_ALL");
}

void tst_Locale::knownOnesAreClassic()
{
    QCOMPARE(Locale::fromQLocale(QLocale(QLocale::Polish, QLocale::Poland)), Locale::polish());
    QCOMPARE(Locale::fromQLocale(QLocale(QLocale::English, QLocale::UnitedStates)), Locale::english());
    QCOMPARE(Locale::fromQLocale(QLocale(QLocale::German, QLocale::Germany)), Locale::german());
    QCOMPARE(Locale::fromQLocale(QLocale::c()), Locale::english());
    const Locale polish = Locale::polish();
    QCOMPARE(polish.decimalSeparator, QChar(u','));
    QCOMPARE(polish.groupSeparator, QChar(u'\u00a0'));
    QCOMPARE(polish.dateSeparator, QChar(u'.'));
    QCOMPARE(polish.shortDatePattern, QStringLiteral("dd.MM.yyyy"));
    QCOMPARE(polish.monthNames[0], QStringLiteral("styczeń"));
    QCOMPARE(polish.monthNamesGenitive[0], QStringLiteral("stycznia"));
    QCOMPARE(polish.dayNames[0], QStringLiteral("niedziela"));
    QCOMPARE(Locale::german().groupSeparator, QChar(u'.'));
    QCOMPARE(Locale::english().currencyNegative, QStringLiteral("($n)"));
}

void tst_Locale::othersAreAsTheToolkitTells_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("currency");
    QTest::addColumn<QString>("date");
    // clang-format off
    QTest::newRow("French")    << QStringLiteral("fr_FR") << QStringLiteral("1\u202f234,50") << QStringLiteral("1\u202f234,50 €")   << QStringLiteral("06/01/1998");
    QTest::newRow("Czech, with the century in the year") << QStringLiteral("cs_CZ") << QStringLiteral("1\u00a0234,50") << QStringLiteral("1\u00a0234,50 Kč")  << QStringLiteral("06.01.1998");
    QTest::newRow("British")   << QStringLiteral("en_GB") << QStringLiteral("1,234.50")      << QStringLiteral("£1,234.50")         << QStringLiteral("06/01/1998");
    QTest::newRow("Swiss")     << QStringLiteral("de_CH") << QStringLiteral("1’234.50")      << QStringLiteral("1’234.50 CHF")      << QStringLiteral("06.01.1998");
    QTest::newRow("Hungarian, without blanks and a last point") << QStringLiteral("hu_HU") << QStringLiteral("1\u00a0234,50") << QStringLiteral("1\u00a0234,50 Ft")  << QStringLiteral("1998.01.06");
    QTest::newRow("Slovak, without blanks") << QStringLiteral("sk_SK") << QStringLiteral("1\u00a0234,50") << QStringLiteral("1\u00a0234,50 €") << QStringLiteral("6.1.1998");
    QTest::newRow("Bulgarian, without the word for year") << QStringLiteral("bg_BG") << QStringLiteral("1\u00a0234,50") << QStringLiteral("1\u00a0234,50 лв.") << QStringLiteral("6.01.1998");
    QTest::newRow("Egyptian, without marks of direction") << QStringLiteral("ar_EG") << QStringLiteral("1٬234٫50") << QStringLiteral("1٬234٫50 ج.م.") << QStringLiteral("6/1/1998");
    QTest::newRow("Albanian, whose currency holds the letter n") << QStringLiteral("sq_MK") << QStringLiteral("1\u00a0234,50") << QStringLiteral("1\u00a0234,50 den") << QStringLiteral("6.1.1998");
    QTest::newRow("Arabic")    << QStringLiteral("ar_AE") << QStringLiteral("1,234.50")      << QStringLiteral("\u062f.\u0625.1,234.50")   << QStringLiteral("6/1/1998");
    QTest::newRow("Japanese")  << QStringLiteral("ja_JP") << QStringLiteral("1,234.50")      << QStringLiteral("￥1,234.50")        << QStringLiteral("1998/01/06");
    // clang-format on
}

void tst_Locale::othersAreAsTheToolkitTells()
{
    QFETCH(QString, name);
    QFETCH(QString, amount);
    QFETCH(QString, currency);
    QFETCH(QString, date);
    const Locale locale = Locale::fromQLocale(QLocale(name));
    QCOMPARE(kor::Format(1234.5, u"Standard", locale), amount);
    QCOMPARE(kor::Format(1234.5, u"Currency", locale), currency);
    QCOMPARE(kor::Format(QDate(1998, 1, 6), u"Short Date", locale), date);
    QCOMPARE(locale.monthNames.size(), 12);
    QCOMPARE(locale.dayNames.size(), 7);
}

void tst_Locale::timesAreWrittenWithoutWordsAndZones_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("time");
    // clang-format off
    QTest::newRow("Czech")                              << QStringLiteral("cs_CZ") << QStringLiteral("5:08:06");
    QTest::newRow("British")                            << QStringLiteral("en_GB") << QStringLiteral("05:08:06");
    QTest::newRow("a comma before the zone")            << QStringLiteral("be_BY") << QStringLiteral("05:08:06");
    QTest::newRow("words for hours")                    << QStringLiteral("fr_CA") << QStringLiteral("05:08:06");
    QTest::newRow("points, as between day and month")   << QStringLiteral("fi_FI") << QStringLiteral("5:08:06");
    QTest::newRow("points, where dates have none")      << QStringLiteral("id_ID") << QStringLiteral("05.08.06");
    QTest::newRow("half of the day behind")             << QStringLiteral("en_CA") << QStringLiteral("5:08:06 a.m.");
    QTest::newRow("half of the day before")             << QStringLiteral("ko_KR") << QStringLiteral("오전 5:08:06");
    QTest::newRow("part of the day for half of the day") << QStringLiteral("zh_TW") << QStringLiteral("上午 5:08:06");
    // clang-format on
}

void tst_Locale::timesAreWrittenWithoutWordsAndZones()
{
    QFETCH(QString, name);
    QFETCH(QString, time);
    const Locale locale = Locale::fromQLocale(QLocale(name));
    QCOMPARE(kor::Format(QTime(5, 8, 6), u"Long Time", locale), time);
    QCOMPARE(kor::CDate(time, locale), kor::CDate(QTime(5, 8, 6), locale));
}

void tst_Locale::theDefaultIsReplacedAndReferencesStay()
{
    const Locale before = Locale::systemDefault();
    const Locale &reference = Locale::systemDefault();
    Locale::setSystemDefault(Locale::german());
    QCOMPARE(kor::Format(1234.5, u"Standard"), QStringLiteral("1.234,50"));
    QCOMPARE(reference, before);
    Locale::setSystemDefault(before);
    QCOMPARE(&Locale::systemDefault(), &reference);
}

void tst_Locale::everyLocaleReadsWhatItWrites()
{
    for (const QLocale &toolkits :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        const Locale locale = Locale::fromQLocale(toolkits);
        const QByteArray name = toolkits.name().toUtf8();
        const QString number = kor::Format(-1234567.25, u"#,##0.00", locale);
        // A locale that groups and parts decimals with one character would not be able to.
        QVERIFY2(kor::IsNumeric(number, locale), name.constData());
        QVERIFY2(kor::CDbl(number, locale) == -1234567.25, name.constData());
        QVERIFY2(kor::CDbl(kor::CStr(0.1, locale), locale) == 0.1, name.constData());
        for (const double amount : {1234.5, -1234.5})
            QVERIFY2(kor::CDbl(kor::Format(amount, u"Currency", locale), locale) == amount, name.constData());
        const QDate date(1925, 11, 2);
        QVERIFY2(kor::DateValue(kor::Format(date, u"Short Date", locale), locale) == date, name.constData());
        QVERIFY2(kor::IsDate(kor::Format(date, u"d mmm yyyy", locale), locale), name.constData());
        for (const QTime time : {QTime(0, 8, 6), QTime(5, 8, 6), QTime(12, 8, 6), QTime(23, 8, 6)}) {
            const QVariant moment = QDateTime(date, time, Qt::UTC);
            QVERIFY2(kor::CDate(kor::CStr(moment, locale), locale) == moment, name.constData());
            QVERIFY2(kor::CDate(kor::CStr(time, locale), locale) == kor::CDate(time, locale), name.constData());
        }
        QVERIFY2(kor::IsDate(kor::Format(date, u"Short Date", locale) + QStringLiteral(" 17:08"), locale),
                 name.constData());
        QVERIFY2(!kor::Format(date, u"Long Date", locale).isEmpty(), name.constData());
    }
}

void tst_Locale::theClockIsReplaced()
{
    QCOMPARE(kor::Clock::today(), QDate::currentDate());
    kor::Clock::setSource([] { return QDate(2003, 9, 28); });
    QCOMPARE(kor::Clock::today(), QDate(2003, 9, 28));
    QCOMPARE(kor::DateValue(QStringLiteral("1-5"), Locale::polish()), QDate(2003, 5, 1));
    kor::Clock::setSource({});
    QCOMPARE(kor::Clock::today(), QDate::currentDate());
}

void tst_Locale::manyThreadsFormatAtOnce()
{
    std::atomic<int> wrong = 0;
    const auto work = [&wrong] {
        for (int i = 0; i < 2000; ++i) {
            const QString mask = QStringLiteral("#,##0.") + QString(i % 97, u'0');
            const QString text = kor::Format(1.0, mask, Locale::polish());
            wrong += text == QStringLiteral("1,") + QString(i % 97, u'0') ? 0 : 1;
            if (i % 100 == 0)
                Locale::setSystemDefault(i % 200 == 0 ? Locale::polish() : Locale::german());
            wrong += kor::Format(1234.5, u"0.0") == QStringLiteral("1234,5") ? 0 : 1;
            kor::Clock::setSource([] { return QDate(2000, 1, 1); });
            wrong += kor::Clock::today() == QDate(2000, 1, 1) ? 0 : 1;
        }
    };
    const Locale before = Locale::systemDefault();
    Locale::setSystemDefault(Locale::polish());
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back(QThread::create(work));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        thread->wait();
    Locale::setSystemDefault(before);
    kor::Clock::setSource({});
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(tst_Locale)
#include "tst_locale.moc"
