// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "fuzzinput.h"

#include <KorDaoUC/Like>
#include <KorDaoUC/RunTimeError>

#include <optional>
#include <vector>

namespace {

bool holds(QStringView list, QChar c)
{
    for (qsizetype i = 0; i < list.size();) {
        const bool range = i + 2 < list.size() && list[i + 1] == u'-';
        const QChar last = range ? list[i + 2] : list[i];
        if (c >= list[i] && c <= last)
            return true;
        i += range ? 3 : 1;
    }
    return false;
}

//! A second opinion: which prefixes of the text an ever longer prefix of the pattern matches. Slow and simple.
bool matchesByTable(QStringView text, QStringView pattern)
{
    const auto size = std::size_t(text.size());
    std::vector<bool> reached(size + 1);
    reached[0] = true;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        std::vector<bool> next(size + 1);
        QStringView list;
        if (pattern[at] == u'[') {
            const qsizetype end = pattern.indexOf(u']', at + 1);
            list = pattern.sliced(at + 1, end - at - 1);
            at = end;
            if (list.isEmpty())
                continue;
        }
        const QChar c = pattern[at];
        const bool star = list.isEmpty() && c == u'*';
        for (std::size_t i = 0; i <= size; ++i) {
            if (star)
                next[i] = reached[i] || (i > 0 && next[i - 1]);
            if (star || i == size || !reached[i])
                continue;
            const QChar letter = text[qsizetype(i)];
            const bool excluding = list.size() > 1 && list.front() == u'!';
            const bool same = !list.isEmpty() ? holds(excluding ? list.sliced(1) : list, letter) != excluding
                              : c == u'?'     ? true
                              : c == u'#'     ? letter >= u'0' && letter <= u'9'
                                              : letter == c;
            next[i + 1] = next[i + 1] || same;
        }
        reached = next;
    }
    return reached[size];
}

QString literally(const QString &text)
{
    QString pattern;
    for (const QChar c : text)
        pattern += QStringLiteral("*?#[").contains(c) ? u'[' + QString(c) + u']' : QString(c);
    return pattern;
}

QString lowered(QString text)
{
    for (QChar &c : text)
        c = c.toLower();
    return text;
}

//! Nothing for a pattern that is refused.
std::optional<bool> attempt(const QString &text, const QString &pattern, kor::TextComparison mode)
{
    try {
        return kor::Like(text, pattern, mode);
    } catch (const kor::RunTimeError &error) {
        require(error.number() == 93, "only the pattern is refused", pattern);
    }
    return std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const QString text = input.takeText();
    const QString pattern = input.takeText();
    require(kor::Like(text, literally(text)), "a text matches itself", text);
    require(kor::Like(text, u'*' + literally(text) + u'*'), "stars match nothing too", text);
    const auto binary = attempt(text, pattern, kor::TextComparison::Binary);
    require(!binary || *binary == matchesByTable(text, pattern), "both matchers agree", text + u'|' + pattern);
    const auto regardless = attempt(text, pattern, kor::TextComparison::Text);
    require(regardless == attempt(lowered(text), lowered(pattern), kor::TextComparison::Binary),
            "without regard to case all letters count as small ones", text + u'|' + pattern);
    return 0;
}
