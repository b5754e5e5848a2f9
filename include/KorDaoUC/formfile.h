// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/propertybag.h>

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <optional>
#include <vector>

namespace kor {

//! One block of a form file: a form or a control with its saved settings and the blocks that stand inside it.
struct KORDAOUC_EXPORT FormBlock {
    QString type; //!< "Form", "Label", "KorDaoUC.KorNumber", ...
    QString name; //!< may be empty
    //! Its settings, in the order of the file; keys that nobody knows among them.
    PropertyBag properties;
    //! The blocks inside it, in the order of the file.
    std::vector<FormBlock> children;
    //! Where the block begins and where each of its settings stands, counted from 1, for messages; nothing in a form
    //! that comes from no text. Equality does not ask for it.
    int line = 0;
    //! Where each of its settings stands; empty in a form that comes from no text.
    QList<int> propertyLines{};

    //! Whether both are the same form: type, name, settings and blocks, wherever they stand.
    bool operator==(const FormBlock &other) const;
};

//! A font in a program that has none (built on Qt Core alone): the toolkit's own description of it. With Qt Gui
//! loaded, form files give and take QFont and this type is not seen.
struct KORDAOUC_EXPORT SavedFont {
    //! As QFont::toString() writes it.
    QString description;

    friend bool operator==(const SavedFont &, const SavedFont &) = default;
};

//! Why a form file could not be read or written.
struct FormError {
    int line = 0;   //!< 1-based; 0 when the file as a whole is meant
    QString reason; //!< for people
};

//! A form, or the reason why there is none.
struct FormResult {
    std::optional<FormBlock> form; //!< none when there is an error
    FormError error;               //!< why there is no form
};

//! The text form in which a window's controls are kept: nested blocks, one setting a line, in the order written.
//!
//! Every Variant comes back in the type it had. Keys may stand more than once, and keys that nobody knows are kept.
//! Comments may be put in by hand; they are not kept when a program saves the form. docs/forms.md has the grammar.
namespace FormFile {

//! Blocks may lie this deep within each other, the form itself included.
inline constexpr int maximumDepth = 64;
//! Bytes that a file may have.
inline constexpr qint64 maximumSize = 16 * 1024 * 1024;

//! Reads a form from UTF-8 text. Never throws; whatever was read before stays with the caller untouched.
[[nodiscard]] KORDAOUC_EXPORT FormResult parse(QByteArrayView text);
//! Writes a form as UTF-8 text. A value that is no Variant is first brought into one by normalized().
[[nodiscard]] KORDAOUC_EXPORT QByteArray serialize(const FormBlock &form);

//! What a text that may be spoilt holds.
struct Check {
    QList<FormError> faults; //!< every one, in the order of the lines
    QList<int> comments;     //!< the lines that end with a comment
    FormBlock form;          //!< what can be read all the same
};

//! Finds every fault of a text, where parse() ends at the first. No fault means that parse() reads it.
[[nodiscard]] KORDAOUC_EXPORT Check check(QByteArrayView text);

//! Reads a form from a file.
[[nodiscard]] KORDAOUC_EXPORT FormResult load(const QString &fileName);
//! Writes a form to a file, all or nothing: on an error, which is returned, the old file is as it was. A form that
//! load() would refuse is not written.
[[nodiscard]] KORDAOUC_EXPORT std::optional<FormError> save(const FormBlock &form, const QString &fileName);

} // namespace FormFile

} // namespace kor

Q_DECLARE_METATYPE(kor::SavedFont)
