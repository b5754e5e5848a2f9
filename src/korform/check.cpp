// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "korform/command.h"
#include "korform/form.h"
#include "korform/loader.h"

#include <KorDaoUC/FormBuilder>
#include <KorDaoUC/UiFile>

#include <algorithm>

namespace korform {

namespace {

using Faults = QList<kor::FormFault>;

void addErrors(const QList<kor::FormError> &errors, Faults &faults)
{
    for (const kor::FormError &error : errors)
        faults.append({error.line, error.reason, false});
}

//! The form, as far as it can be read.
kor::FormBlock formIn(const Source &source, Faults &faults)
{
    if (source.kind == FileKind::Form) {
        kor::FormFile::Check check = kor::FormFile::check(source.text);
        addErrors(check.faults, faults);
        return std::move(check.form);
    }
    kor::UiFile::Form form = kor::UiFile::toForm(source.text);
    if (!form.form) {
        addErrors({form.error}, faults);
        return {};
    }
    if (const std::optional<Refusal> refusal = refusalOfHead(source.text))
        faults.append({refusal->line, refusal->reason, false});
    for (const kor::UiFile::Remark &remark : form.remarks) {
        if (remark.fate == kor::UiFile::Fate::Refused)
            faults.append({remark.line, remark.text, false});
    }
    return std::move(*form.form);
}

Faults faultsOf(const Source &source, const Arguments &arguments)
{
    Faults faults;
    const kor::FormBlock form = formIn(source, faults);
    if (form.type.isEmpty()) // there is none, which was said
        return faults;
    kor::FormBuilder builder;
    addOtherKinds(builder, form, arguments.classes);
    faults += builder.check(form);
    std::stable_sort(faults.begin(), faults.end(),
                     [](const kor::FormFault &left, const kor::FormFault &right) { return left.line < right.line; });
    return faults;
}

} // namespace

int check(const Arguments &arguments)
{
    int result = Done;
    for (const QString &fileName : arguments.files) {
        const std::optional<Source> source = readSource(fileName);
        if (!source) {
            result = NotDone;
            continue;
        }
        for (const kor::FormFault &fault : faultsOf(*source, arguments)) {
            say(fileName, fault.line, fault.isWarning ? "warning" : "error", fault.reason);
            if (!fault.isWarning || arguments.isStrict)
                result = std::max(result, static_cast<int>(Imperfect));
        }
    }
    return result;
}

} // namespace korform
