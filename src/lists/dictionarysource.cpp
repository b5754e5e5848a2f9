// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/dictionarysource.h"

namespace kor {

namespace {

constexpr QStringView selectKeyword = u"SELECT";
constexpr QStringView listKeyword = u"LIST";

//! A keyword is plain letters, so its case is a matter of the plain alphabet only, in Turkey too.
bool beginsWithKeyword(QStringView text, QStringView keyword)
{
    if (text.size() < keyword.size())
        return false;
    for (qsizetype i = 0; i < keyword.size(); ++i) {
        const char16_t given = text[i].unicode();
        const bool isSmall = given >= u'a' && given <= u'z';
        if ((isSmall ? given - u'a' + u'A' : given) != keyword[i].unicode())
            return false;
    }
    return true;
}

//! Cuts blanks only: a tab or a no-break space belongs to the name.
QStringView withoutBlanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

} // namespace

SourceKind sourceKind(QStringView source)
{
    if (beginsWithKeyword(source, selectKeyword))
        return SourceKind::Select;
    return beginsWithKeyword(source, listKeyword) ? SourceKind::List : SourceKind::Other;
}

DictionaryRows parseInlineList(QStringView source)
{
    DictionaryRows rows;
    QStringView rest = withoutBlanks(source.sliced(listKeyword.size()));
    while (!rest.isEmpty()) {
        const qsizetype bar = rest.indexOf(u'|');
        const QStringView entry = bar < 0 ? rest : rest.first(bar); // the last "|" may be left out
        const qsizetype semicolon = entry.indexOf(u';');
        if (semicolon < 0)
            break;
        rows.append(withoutBlanks(entry.first(semicolon)).toString(),
                    withoutBlanks(entry.sliced(semicolon + 1)).toString());
        rest = bar < 0 ? QStringView() : rest.sliced(bar + 1);
    }
    return rows;
}

} // namespace kor
