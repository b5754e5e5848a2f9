// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "fuzzinput.h"
#include "number/numberrules.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/RunTimeError>

#include <algorithm>

using kor::Entry;
using kor::Keystroke;

namespace {

//! Keys typed into a field one after the other: whatever they are, the field stays a field.
void checkTyping(FuzzInput &input, const kor::NumberSigns &signs, const QString &mask)
{
    Entry entry{input.takeText(), 0, 0};
    const int room = input.take<uint8_t>();
    const int maxLength = input.take<uint8_t>() % 24;
    for (int i = 0; i < 32; ++i) {
        const int length = static_cast<int>(entry.text.size());
        entry.selStart = input.take<uint8_t>() % (length + 1);
        entry.selLength = input.take<uint8_t>() % (length - entry.selStart + 1);
        const int key = input.take<uint16_t>();
        int presses = 0;
        const Keystroke judged = kor::judgeKey(
            {key, entry}, {signs, mask, maxLength, [room](const QString &text) { return text.size() <= room; }},
            [&presses](int &) { ++presses; });
        require(judged.entry.text == entry.text, "the filter itself changes no text", entry.text);
        require(judged.entry.selStart >= 0 && judged.entry.selStart <= length, "the caret stays in the text",
                entry.text);
        require(presses <= 2, "KeyPress is raised twice at the most", entry.text);
        require(!judged.beeps || judged.keyAscii == 0, "what beeps is swallowed", entry.text);
        if (judged.keyAscii == 0 || judged.keyAscii == 8)
            continue;
        const QChar typed(static_cast<char16_t>(judged.keyAscii));
        require(typed == u'-' || typed == signs.decimalSeparator || (typed >= u'0' && typed <= u'9'),
                "only parts of a number are typed", QString(typed));
        entry.text.replace(judged.entry.selStart, judged.entry.selLength, typed);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const kor::NumberSigns signs = kor::NumberSigns::of(input.takeLocale());
    const QString mask = QStringLiteral("#,##0.00");
    checkTyping(input, signs, mask);

    const QString text = input.takeText();
    const QString shown = kor::formatForDisplay(text, mask, signs);
    require(kor::formatForDisplay(shown, mask, signs) == shown, "what is shown reads back as itself", text);
    const auto room = static_cast<qsizetype>(input.take<uint8_t>());
    const QString fill = kor::hashFill(shown, [room](const QString &t) { return t.size() <= room; });
    require(fill.size() <= std::max<qsizetype>(room, 1) || fill.size() <= 1, "a fill fits", shown);
    try {
        (void)kor::boundGiven(text, signs);
    } catch (const kor::RunTimeError &error) {
        require(error.number() == 6 || error.number() == 13, "only overflow and mismatch are raised", text);
    }
    return 0;
}
