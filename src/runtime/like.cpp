// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/like.h>
#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QVarLengthArray>

namespace kor {

namespace {

//! One element of a pattern. Lists refer to their text in the pattern, so that compiling allocates nothing.
struct Element {
    enum class Kind { Character, Any, Digit, List, ExcludingList, Star };
    Kind kind;
    char16_t character = 0;
    QStringView list;
};

using Pattern = QVarLengthArray<Element, 32>;

[[noreturn]] void refuse() { throw RunTimeError(ErrorNumber::InvalidPattern); }

//! Calls `range(first, last)` for every single character and range of a list.
template <typename Range>
void walkList(QStringView list, Range range)
{
    for (qsizetype i = 0; i < list.size(); ++i) {
        const char16_t first = list[i].unicode();
        // A hyphen between two characters makes a range; elsewhere (at an end, behind a range) it stands for itself.
        if (i + 2 < list.size() && list[i + 1] == u'-') {
            range(first, list[i + 2].unicode());
            i += 2;
        } else {
            range(first, first);
        }
    }
}

//! What ranges and characters are compared by.
char16_t rankOf(char16_t c, TextComparison mode)
{
    return mode == TextComparison::Text ? static_cast<char16_t>(QChar::toLower(c)) : c;
}

bool listHolds(QStringView list, char16_t c, TextComparison mode)
{
    bool found = false;
    const char16_t rank = rankOf(c, mode);
    walkList(list, [&](char16_t first, char16_t last) {
        found = found || (rank >= rankOf(first, mode) && rank <= rankOf(last, mode));
    });
    return found;
}

//! The list that opens before `at`, which is moved behind its closing bracket.
void compileList(QStringView pattern, qsizetype &at, TextComparison mode, Pattern &elements)
{
    const qsizetype end = pattern.indexOf(u']', at);
    if (end < 0)
        refuse();
    QStringView list = pattern.sliced(at, end - at);
    at = end;
    // A lone ! is an ordinary character; an empty list stands for no character at all.
    const bool excluding = list.size() > 1 && list.front() == u'!';
    if (excluding)
        list = list.sliced(1);
    walkList(list, [mode](char16_t first, char16_t last) {
        if (rankOf(first, mode) > rankOf(last, mode))
            refuse();
    });
    if (!list.isEmpty())
        elements.append({excluding ? Element::Kind::ExcludingList : Element::Kind::List, 0, list});
}

Pattern compile(QStringView pattern, TextComparison mode)
{
    Pattern elements;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        switch (const char16_t c = pattern[at].unicode()) {
        case u'?': elements.append({Element::Kind::Any, 0, {}}); break;
        case u'#': elements.append({Element::Kind::Digit, 0, {}}); break;
        case u'*':
            if (elements.isEmpty() || elements.last().kind != Element::Kind::Star)
                elements.append({Element::Kind::Star, 0, {}});
            break;
        case u'[': compileList(pattern, ++at, mode, elements); break;
        default: elements.append({Element::Kind::Character, c, {}}); break;
        }
    }
    return elements;
}

bool matches(const Element &element, char16_t c, TextComparison mode)
{
    switch (element.kind) {
    case Element::Kind::Character: return rankOf(element.character, mode) == rankOf(c, mode);
    case Element::Kind::Any: return true;
    case Element::Kind::Digit: return c >= u'0' && c <= u'9';
    case Element::Kind::List: return listHolds(element.list, c, mode);
    case Element::Kind::ExcludingList: return !listHolds(element.list, c, mode);
    case Element::Kind::Star: break;
    }
    return false;
}

} // namespace

bool Like(QStringView text, QStringView pattern, TextComparison mode)
{
    const Pattern elements = compile(pattern, mode);
    qsizetype at = 0;
    qsizetype element = 0;
    // Only the last star is ever given more: what the earlier ones took was the least they could, so time grows with
    // text x pattern at the worst.
    qsizetype star = -1;
    qsizetype starAt = 0;
    while (at < text.size()) {
        if (element < elements.size() && elements[element].kind == Element::Kind::Star) {
            star = element++;
            starAt = at;
        } else if (element < elements.size() && matches(elements[element], text[at].unicode(), mode)) {
            ++element;
            ++at;
        } else if (star >= 0) {
            element = star + 1;
            at = ++starAt;
        } else {
            return false;
        }
    }
    while (element < elements.size() && elements[element].kind == Element::Kind::Star)
        ++element;
    return element == elements.size();
}

} // namespace kor
