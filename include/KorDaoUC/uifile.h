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

//! What became of a part of a form that the other kind of file has no place for.
enum class Fate {
    Kept,    //!< nothing comes of it in the other file, but the way back gives it again
    Lost,    //!< can't be had back from the other file
    Refused, //!< is no value of its kind, and so is left out
};

//! What was noticed in converting.
struct Remark {
    int line = 0; //!< of the file that is converted, counted from 1; 0 when the file as a whole is meant
    QString text; //!< what and why, for people
    //! What became of it.
    Fate fate = Fate::Kept;
};

//! What a conversion needs to know that stands in neither file.
struct Options {
    //! Of the screens that the .ui file is drawn for, as form files have no pixels.
    double dotsPerInch = 96;
    //! Where a widget is that stands in a layout, by its name; form files have places only.
    std::function<std::optional<QRect>(const QString &name)> placeInLayout{};
};

//! A .ui file, or why there is none.
struct Text {
    //! The file in UTF-8; none when the form can't be converted.
    std::optional<QByteArray> ui;
    //! Why there is none.
    FormError error;
    //! What is only kept, lost or refused, in the order of the lines.
    QList<Remark> remarks;
};

//! A form, or why there is none. Its lines are those of the .ui file.
struct Form {
    //! None when the file can't be read.
    std::optional<FormBlock> form;
    //! Why there is none.
    FormError error;
    //! What is only kept, lost or refused, in the order of the lines.
    QList<Remark> remarks;
};

//! Makes a .ui file of a form. Never throws.
[[nodiscard]] KORDAOUC_EXPORT Text fromForm(const FormBlock &form, const Options &options = {});
//! Makes a form of a .ui file, given in UTF-8. Never throws.
[[nodiscard]] KORDAOUC_EXPORT Form toForm(QByteArrayView ui, const Options &options = {});

//! Writes a .ui file, all or nothing: on an error, which is returned, the old file is as it was.
[[nodiscard]] KORDAOUC_EXPORT std::optional<FormError> save(const QByteArray &ui, const QString &fileName);

} // namespace UiFile

} // namespace kor
