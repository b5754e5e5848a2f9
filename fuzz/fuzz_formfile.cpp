// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT

// Whatever the form file reader accepts comes back the same when it is written and read again, and is then written
// the same again. Besides, a form made of the raw input (odd names, odd texts) survives the way to text and back.
#include <KorDaoUC/FormFile>

#include <cstdio>
#include <cstdlib>

namespace {

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "fuzz_formfile: %s\n", what);
    std::abort();
}

void comesBack(const kor::FormBlock &form)
{
    const QByteArray text = kor::FormFile::serialize(form);
    const kor::FormResult again = kor::FormFile::parse(text);
    require(again.form.has_value(), "what was written can't be read");
    require(*again.form == form, "what was written reads back as something else");
    require(kor::FormFile::serialize(*again.form) == text, "the second text differs from the first");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const kor::FormResult result = kor::FormFile::parse(bytes);
    if (result.form)
        comesBack(*result.form);
    else
        require(!result.error.reason.isEmpty(), "a refusal without a reason");

    const QString units(reinterpret_cast<const QChar *>(bytes.data()), bytes.size() / 2);
    const QStringList parts = units.split(u'=');
    kor::FormBlock form{parts.first(), parts.last(), {}, {}};
    for (const QString &part : parts)
        form.properties.append(part, part);
    form.children.push_back({parts.last(), parts.first(), {}, {}});
    comesBack(form);
    return 0;
}
