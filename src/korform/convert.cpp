// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "korform/command.h"
#include "korform/form.h"
#include "korform/loader.h"

#include <KorDaoUC/UiFile>

#include <QtCore/QHash>

#include <algorithm>
#include <functional>
#include <optional>

namespace korform {

namespace {

namespace FormFile = kor::FormFile;
namespace UiFile = kor::UiFile;

//! The places that the layouts of a form give to its widgets.
std::function<std::optional<QRect>(const QString &)> placesIn(const QByteArray &ui)
{
    if (!ui.contains("<layout"))
        return {};
    Loader loader;
    const std::unique_ptr<QWidget> window = loader.loadText(ui);
    if (!window)
        return {};
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->show(); // that layouts place what is shown only
    QHash<QString, QRect> places;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->objectName().isEmpty() && !places.contains(widget->objectName()))
            places.insert(widget->objectName(), widget->geometry());
    }
    return [places](const QString &name) {
        const auto found = places.constFind(name);
        return found != places.cend() ? std::optional(*found) : std::nullopt;
    };
}

//! Names what the other file can't tell; whether everything can be had back from it.
bool sayRemarks(const QString &fileName, const QList<UiFile::Remark> &remarks, const Arguments &arguments)
{
    bool isWhole = true;
    for (const UiFile::Remark &remark : remarks) {
        const bool isKept = remark.fate == UiFile::Fate::Kept;
        if (!isKept)
            isWhole = false;
        if (!isKept || !arguments.isQuiet)
            say(fileName, remark.line, isKept ? "kept" : "lost", remark.text);
    }
    return isWhole;
}

//! Ends the conversion: the file is written by `save`, unless that would lose something that was not to be lost.
template <class Save>
int finish(const Arguments &arguments, bool isWhole, Save save)
{
    const QString &target = arguments.files.last();
    if (!isWhole && arguments.isStrict) {
        say(target, 0, "error", QStringLiteral("is not written, for something would be lost"));
        return NotDone;
    }
    if (const std::optional<kor::FormError> error = save(target)) {
        say(target, error->line, "error", error->reason);
        return NotDone;
    }
    return isWhole ? Done : Imperfect;
}

int notComing(const QString &target)
{
    say(target, 0, "error",
        QStringLiteral("is not written, for another form would come back from it; this is a fault of korform"));
    return NotDone;
}

int toUi(const Arguments &arguments, const QByteArray &text)
{
    const QString &from = arguments.files.first();
    const kor::FormResult form = FormFile::parse(text);
    if (!form.form) {
        say(from, form.error.line, "error", form.error.reason);
        return NotDone;
    }
    UiFile::Options options;
    options.dotsPerInch = arguments.dotsPerInch;
    UiFile::Text ui = UiFile::fromForm(*form.form, options);
    if (!ui.ui) {
        say(from, ui.error.line, "error", ui.error.reason);
        return NotDone;
    }
    const UiFile::Form back = UiFile::toForm(*ui.ui, options);
    if (!back.form || FormFile::serialize(*back.form) != FormFile::serialize(*form.form))
        return notComing(arguments.files.last());
    for (const int line : FormFile::check(text).comments)
        ui.remarks.append({line, QStringLiteral("the comment is not kept"), UiFile::Fate::Lost});
    std::stable_sort(ui.remarks.begin(), ui.remarks.end(),
                     [](const UiFile::Remark &left, const UiFile::Remark &right) { return left.line < right.line; });
    return finish(arguments, sayRemarks(from, ui.remarks, arguments),
                  [&ui](const QString &target) { return UiFile::save(*ui.ui, target); });
}

int toForm(const Arguments &arguments, const QByteArray &text)
{
    const QString &from = arguments.files.first();
    UiFile::Options options;
    options.dotsPerInch = arguments.dotsPerInch;
    options.placeInLayout = placesIn(text);
    const UiFile::Form form = UiFile::toForm(text, options);
    if (!form.form) {
        say(from, form.error.line, "error", form.error.reason);
        return NotDone;
    }
    return finish(arguments, sayRemarks(from, form.remarks, arguments),
                  [&form](const QString &target) { return FormFile::save(*form.form, target); });
}

} // namespace

int convert(const Arguments &arguments)
{
    const QString &target = arguments.files.last();
    const std::optional<Source> source = readSource(arguments.files.first());
    if (!source)
        return NotDone;
    if (source->kind == kindByName(target)) {
        say(target, 0, "error",
            source->kind == FileKind::Ui
                ? QStringLiteral("a .ui file becomes a form file, whose name ends otherwise")
                : QStringLiteral("a form file becomes a .ui file, and so its name must end in .ui"));
        return NotDone;
    }
    return source->kind == FileKind::Ui ? toForm(arguments, source->text) : toUi(arguments, source->text);
}

} // namespace korform
