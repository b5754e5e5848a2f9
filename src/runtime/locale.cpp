// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/locale.h>

#include <QtCore/QLocale>
#include <QtCore/QMutex>

#include <atomic>
#include <list>

namespace kor {

namespace {

QStringList words(const char16_t *text) { return QString::fromUtf16(text).split(u' '); }

void setEnglishNames(Locale &locale)
{
    locale.monthNames = words(u"January February March April May June July August September October November December");
    locale.monthNamesGenitive = locale.monthNames;
    locale.shortMonthNames = words(u"Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec");
    locale.dayNames = words(u"Sunday Monday Tuesday Wednesday Thursday Friday Saturday");
    locale.shortDayNames = words(u"Sun Mon Tue Wed Thu Fri Sat");
}

void setPolishNames(Locale &locale)
{
    locale.monthNames =
        words(u"styczeń luty marzec kwiecień maj czerwiec lipiec sierpień wrzesień październik listopad "
              u"grudzień");
    locale.monthNamesGenitive = words(u"stycznia lutego marca kwietnia maja czerwca lipca sierpnia września "
                                      u"października listopada grudnia");
    locale.shortMonthNames = words(u"sty lut mar kwi maj cze lip sie wrz paź lis gru");
    locale.dayNames = words(u"niedziela poniedziałek wtorek środa czwartek piątek sobota");
    locale.shortDayNames = words(u"niedz. pon. wt. śr. czw. pt. sob.");
}

void setPolishWords(Locale &locale)
{
    locale.trueText = QStringLiteral("Prawda");
    locale.falseText = QStringLiteral("Fałsz");
    locale.yesText = QStringLiteral("Tak");
    locale.noText = QStringLiteral("Nie");
    locale.onText = QStringLiteral("Włączone");
    locale.offText = QStringLiteral("Wyłączone");
}

void setGermanNames(Locale &locale)
{
    locale.monthNames = words(u"Januar Februar März April Mai Juni Juli August September Oktober November Dezember");
    locale.monthNamesGenitive = locale.monthNames;
    locale.shortMonthNames = words(u"Jan Feb Mrz Apr Mai Jun Jul Aug Sep Okt Nov Dez");
    locale.dayNames = words(u"Sonntag Montag Dienstag Mittwoch Donnerstag Freitag Samstag");
    locale.shortDayNames = words(u"So Mo Di Mi Do Fr Sa");
}

void setGermanWords(Locale &locale)
{
    locale.trueText = QStringLiteral("Wahr");
    locale.falseText = QStringLiteral("Falsch");
    locale.yesText = QStringLiteral("Ja");
    locale.noText = QStringLiteral("Nein");
    locale.onText = QStringLiteral("Ein");
    locale.offText = QStringLiteral("Aus");
}

} // namespace

Locale Locale::english()
{
    static const Locale locale = [] {
        Locale made;
        setEnglishNames(made);
        return made;
    }();
    return locale;
}

Locale Locale::polish()
{
    static const Locale locale = [] {
        Locale made;
        made.decimalSeparator = u',';
        made.groupSeparator = u'\u00a0';
        made.dateSeparator = u'.';
        made.currencySymbol = QStringLiteral("zł");
        made.currencyPositive = QStringLiteral("n zł");
        made.currencyNegative = QStringLiteral("-n zł");
        made.shortDatePattern = QStringLiteral("dd.MM.yyyy");
        made.longDatePattern = QStringLiteral("d MMMM yyyy");
        made.timePattern = QStringLiteral("HH:mm:ss");
        made.firstDayOfWeek = Qt::Monday;
        setPolishNames(made);
        setPolishWords(made);
        return made;
    }();
    return locale;
}

Locale Locale::german()
{
    static const Locale locale = [] {
        Locale made;
        made.decimalSeparator = u',';
        made.groupSeparator = u'.';
        made.dateSeparator = u'.';
        made.currencySymbol = QStringLiteral("€");
        made.currencyPositive = QStringLiteral("n €");
        made.currencyNegative = QStringLiteral("-n €");
        made.shortDatePattern = QStringLiteral("dd.MM.yyyy");
        made.longDatePattern = QStringLiteral("dddd, d. MMMM yyyy");
        made.timePattern = QStringLiteral("HH:mm:ss");
        made.firstDayOfWeek = Qt::Monday;
        setGermanNames(made);
        setGermanWords(made);
        return made;
    }();
    return locale;
}

namespace {

QChar firstCharacter(const QString &text, QChar otherwise) { return text.isEmpty() ? otherwise : text.front(); }

//! Marks of writing direction mean nothing in a pattern, and nobody can type them.
QString withoutMarks(QString pattern) { return pattern.remove(u'\u200e').remove(u'\u200f').remove(u'\u061c'); }

//! The separator of a short date pattern: what follows its first field.
QChar separatorOf(const QString &pattern)
{
    bool inField = false;
    for (const QChar c : pattern) {
        if (c.isLetter())
            inField = true;
        else if (inField && c != u'\'')
            return c;
    }
    return u'/';
}

//! A pattern of times in the classic tokens: tt for the half of the day, no zone.
QString classicTimePattern(const QString &pattern)
{
    QString result;
    bool quoted = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == u'\'')
            quoted = !quoted;
        if (!quoted && (c == u'a' || c == u'A')) {
            result += QStringLiteral("tt");
            if (i + 1 < pattern.size() && pattern[i + 1].toUpper() == u'P')
                ++i;
        } else if (quoted || c != u't') {
            result += c;
        }
    }
    result.remove(QStringLiteral("()"));
    return result.trimmed();
}

//! The place of the digits in an amount that the toolkit wrote, as the letter n.
QString currencyPattern(const QString &amount)
{
    qsizetype first = 0;
    while (first < amount.size() && !amount[first].isDigit())
        ++first;
    qsizetype last = amount.size() - 1;
    while (last > first && !amount[last].isDigit())
        --last;
    if (first >= amount.size())
        return QStringLiteral("n");
    QString pattern = amount.first(first) + u'n' + amount.sliced(last + 1);
    // No-break blanks mean nothing in a pattern of text that is set beside a number.
    return withoutMarks(pattern.replace(u'\u00a0', u' ').replace(u'\u202f', u' '));
}

//! Every habit as the toolkit's locale tells it.
Locale told(const QLocale &locale)
{
    Locale result;
    result.decimalSeparator = firstCharacter(locale.decimalPoint(), u'.');
    result.groupSeparator = firstCharacter(locale.groupSeparator(), u',');
    result.shortDatePattern = withoutMarks(locale.dateFormat(QLocale::ShortFormat));
    result.longDatePattern = withoutMarks(locale.dateFormat(QLocale::LongFormat));
    result.timePattern = withoutMarks(classicTimePattern(locale.timeFormat(QLocale::LongFormat)));
    result.dateSeparator = separatorOf(result.shortDatePattern);
    result.timeSeparator = separatorOf(result.timePattern);
    result.currencySymbol = locale.currencySymbol();
    result.currencyPositive = currencyPattern(locale.toCurrencyString(1.25));
    result.currencyNegative = currencyPattern(locale.toCurrencyString(-1.25));
    result.amText = locale.amText();
    result.pmText = locale.pmText();
    for (int month = 1; month <= 12; ++month) {
        result.monthNames += locale.standaloneMonthName(month);
        result.monthNamesGenitive += locale.monthName(month);
        result.shortMonthNames += locale.standaloneMonthName(month, QLocale::ShortFormat);
    }
    for (const int day : {7, 1, 2, 3, 4, 5, 6}) {
        result.dayNames += locale.standaloneDayName(day);
        result.shortDayNames += locale.standaloneDayName(day, QLocale::ShortFormat);
    }
    result.firstDayOfWeek = locale.firstDayOfWeek();
    return result;
}

//! Where the system says nothing of its own, the classic value; where it does, what it says.
Locale corrected(const Locale &told, const Locale &stock, const Locale &classic)
{
    Locale result = classic;
    const auto take = [&](auto member) {
        if (told.*member != stock.*member)
            result.*member = told.*member;
    };
    take(&Locale::decimalSeparator);
    take(&Locale::groupSeparator);
    take(&Locale::dateSeparator);
    take(&Locale::timeSeparator);
    take(&Locale::currencySymbol);
    take(&Locale::currencyPositive);
    take(&Locale::currencyNegative);
    take(&Locale::shortDatePattern);
    take(&Locale::longDatePattern);
    take(&Locale::timePattern);
    take(&Locale::amText);
    take(&Locale::pmText);
    take(&Locale::monthNames);
    take(&Locale::monthNamesGenitive);
    take(&Locale::shortMonthNames);
    take(&Locale::dayNames);
    take(&Locale::shortDayNames);
    take(&Locale::firstDayOfWeek);
    return result;
}

} // namespace

Locale Locale::fromQLocale(const QLocale &locale)
{
    // An environment without a locale (LC_ALL=C) says nothing about habits; English is what programs expect there.
    if (locale.language() == QLocale::C)
        return english();
    const auto is = [&](QLocale::Language language, QLocale::Territory territory) {
        return locale.language() == language && locale.territory() == territory;
    };
    const Locale asTold = told(locale);
    // The toolkit's data differ from the classic ones in these three (short dates with one digit or a two-digit year).
    if (is(QLocale::Polish, QLocale::Poland))
        return corrected(asTold, told(QLocale(QLocale::Polish, QLocale::Poland)), polish());
    if (is(QLocale::English, QLocale::UnitedStates))
        return corrected(asTold, told(QLocale(QLocale::English, QLocale::UnitedStates)), english());
    if (is(QLocale::German, QLocale::Germany))
        return corrected(asTold, told(QLocale(QLocale::German, QLocale::Germany)), german());
    Locale result = asTold;
    if (locale.language() == QLocale::Polish)
        setPolishWords(result);
    else if (locale.language() == QLocale::German)
        setGermanWords(result);
    return result;
}

namespace {

//! The process default and every locale that ever was it: callers hold references.
class DefaultLocale
{
public:
    const Locale &get()
    {
        if (const Locale *current = m_current.load(std::memory_order_acquire))
            return *current;
        const QMutexLocker lock(&m_mutex);
        if (!m_current.load(std::memory_order_relaxed))
            install(Locale::fromQLocale(QLocale::system()));
        return *m_current.load(std::memory_order_relaxed);
    }

    void set(const Locale &locale)
    {
        const QMutexLocker lock(&m_mutex);
        install(locale);
    }

private:
    void install(const Locale &locale)
    {
        for (const Locale &known : m_known) {
            if (known == locale) {
                m_current.store(&known, std::memory_order_release);
                return;
            }
        }
        m_known.push_back(locale);
        m_current.store(&m_known.back(), std::memory_order_release);
    }

    QMutex m_mutex;
    std::list<Locale> m_known;
    std::atomic<const Locale *> m_current = nullptr;
};

DefaultLocale &defaultLocale()
{
    // Never destroyed: a host's static objects may still format while the process ends.
    static auto *const instance = new DefaultLocale;
    return *instance;
}

} // namespace

const Locale &Locale::systemDefault() { return defaultLocale().get(); }

void Locale::setSystemDefault(const Locale &locale) { defaultLocale().set(locale); }

} // namespace kor
