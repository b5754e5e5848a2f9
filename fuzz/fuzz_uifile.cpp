// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT

// Whatever .ui file is read becomes a form that comes back from the .ui file made of it; and so does every form file.
#include "forms/formtext.h"
#include "forms/uiform.h"

#include <KorDaoUC/FormFile>

#include <cstdio>
#include <cstdlib>

namespace {

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "fuzz_uifile: %s\n", what);
    std::abort();
}

//! Some kinds of block with properties of every type, and keys that are written twice.
kor::UiKinds kinds()
{
    using enum kor::UiValueType;
    const auto key = [](const char *name, kor::UiValueType type, const QVariant &usual = {}) {
        return kor::UiSetting{QString::fromLatin1(name), QString::fromLatin1(name), type, usual};
    };
    kor::UiSetting alignment = key("Alignment", Enumeration, QVariant::fromValue(short(1)));
    alignment.members = {{QStringLiteral("kor::Left"), 0}, {QStringLiteral("kor::Right"), 1}};
    kor::UiSetting text = key("Text", Text, QString());
    text.isToldAlways = true;
    const kor::UiSetting again = key("MaxLength", Whole, 0);
    kor::UiKind form{QStringLiteral("Form"),
                     QStringLiteral("QWidget"),
                     {},
                     {QStringLiteral("Caption")},
                     {key("Caption", Text, QString()), key("Font", Font)},
                     QSize(640, 480)};
    form.isForm = true;
    kor::UiKind label{QStringLiteral("Label"),
                      QStringLiteral("QLabel"),
                      {},
                      {},
                      {key("Caption", Text, QString()), key("Alignment", Alignment, QVariant::fromValue(short(0)))},
                      QSize(10, 10)};
    label.leadsToNext = true;
    kor::UiKind number{QStringLiteral("KorDaoUC.KorNumber"),
                       QStringLiteral("KorNumber"),
                       QStringLiteral("KorDaoUC/KorNumber"),
                       {},
                       {key("Enabled", Boolean, true), key("Font", Font), key("Type", None), text, again, alignment,
                        again, key("MaxValue", Number, 0.0F), key("Value", Any, QVariant::fromValue(nullptr))},
                       QSize(90, 24)};
    number.takesFocus = true;
    kor::UiKinds all;
    for (const kor::UiKind &kind : {form, label, number})
        all.add(kind);
    return all;
}

void comesBack(const kor::FormBlock &form)
{
    static const kor::UiKinds known = kinds();
    const kor::UiFile::Text there = kor::uiFromForm(form, known, {});
    if (!there.ui) {
        require(form.type != u"Form", "a form that becomes no .ui file");
        return;
    }
    const kor::UiFile::Form back = kor::formFromUi(*there.ui, known, {});
    require(back.form.has_value(), "a .ui file that can't be read again");
    if (kor::FormFile::serialize(*back.form) == kor::FormFile::serialize(form))
        return;
    std::fprintf(stderr, "%s\n%s\n%s\n", kor::FormFile::serialize(form).constData(), there.ui->constData(),
                 kor::FormFile::serialize(*back.form).constData());
    require(false, "another form comes back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static const kor::UiKinds known = kinds();
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const kor::UiFile::Form read = kor::formFromUi(bytes, known, {});
    if (read.form)
        comesBack(*read.form);
    else
        require(!read.error.reason.isEmpty(), "a refusal without a reason");
    if (const kor::FormResult form = kor::FormFile::parse(bytes); form.form)
        comesBack(*form.form);
    return 0;
}
