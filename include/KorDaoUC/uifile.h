// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/formfile.h>

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtCore/QString>

#include <functional>
#include <optional>

namespace kor {

//! Turns forms into files of the toolkit's form designer (.ui) and back. docs/forms.md tells what becomes of what.
//!
//! What has a property of its own in the other kind of file is told by it; the rest is kept beside, and comes back
//! unchanged as long as nobody changed the property meanwhile. So a form that goes there and back is the same form.
namespace UiFile {

enum class Fate {
    Kept,    //!< nothing comes of it in the other file, but the way back gives it again
    Lost,    //!< can't be had back from the other file
    Refused, //!< is no value of its kind, and so is left out
};

struct Remark {
    int line = 0; //!< of the file that is converted, counted from 1; 0 when the file as a whole is meant
    QString text;
    Fate fate = Fate::Kept;
};

struct Options {
    //! Of the screens that the .ui file is drawn for, as form files have no pixels.
    double dotsPerInch = 96;
    //! Where a widget is that stands in a layout, by its name; form files have places only.
    std::function<std::optional<QRect>(const QString &name)> placeInLayout{};
};

//! A .ui file, or why there is none.
struct Text {
    std::optional<QByteArray> ui;
    FormError error;
    QList<Remark> remarks;
};

//! A form, or why there is none. Its lines are those of the .ui file.
struct Form {
    std::optional<FormBlock> form;
    FormError error;
    QList<Remark> remarks;
};

[[nodiscard]] KORDAOUC_EXPORT Text fromForm(const FormBlock &form, const Options &options = {});
[[nodiscard]] KORDAOUC_EXPORT Form toForm(QByteArrayView ui, const Options &options = {});

//! Writes a .ui file, all or nothing: on an error, which is returned, the old file is as it was.
[[nodiscard]] KORDAOUC_EXPORT std::optional<FormError> save(const QByteArray &ui, const QString &fileName);

} // namespace UiFile

} // namespace kor
