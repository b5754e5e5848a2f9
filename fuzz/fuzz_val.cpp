// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "fuzzinput.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/RunTimeError>

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const QString text = input.takeText();
    double value = 0;
    try {
        value = kor::Val(text);
    } catch (const kor::RunTimeError &error) {
        require(error.number() == 6, "Val raises nothing but overflow", text);
        return 0;
    }
    require(std::isfinite(value), "Val is finite", text);
    QString spaced;
    for (const QChar c : text)
        spaced += QString(c) + u' ';
    require(kor::Val(spaced) == value, "blanks make no difference", text);
    const kor::Locale locale = kor::Locale::english();
    const QString written = kor::CStr(value, locale);
    require(kor::CStr(kor::Val(written), locale) == written, "Val reads what CStr writes", written);
    return 0;
}
