// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/FormFile>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace kor {
class FormBuilder;
}

namespace korform {

enum class FileKind { Form, Ui };

//! A file as it is on the disk, and what it seems to hold.
struct Source {
    QByteArray text{};
    FileKind kind = FileKind::Form;
};

//! Reads a file; nothing when it can't be read, which is said.
[[nodiscard]] std::optional<Source> readSource(const QString &fileName);
//! What a file of that name is to hold.
[[nodiscard]] FileKind kindByName(const QString &fileName);

//! Blocks that form files keep for the form designer, or that a program knows, shown as empty frames.
void addOtherKinds(kor::FormBuilder &builder, const kor::FormBlock &form, const QStringList &classes);
//! Whether the form holds widgets of the form designer.
[[nodiscard]] bool hasDesignerWidgets(const kor::FormBlock &form);

} // namespace korform
