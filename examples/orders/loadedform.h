// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/FormBuilder>

#include <QtWidgets/QWidget>

namespace orders {

//! A form file of the program's on a widget, and the fields there by their names.
class LoadedForm
{
public:
    //! Builds the form; the widget has its size then. Raises std::runtime_error when the file does not fit the program.
    LoadedForm(QString fileName, QWidget *widget);

    //! The same for a field that the program misses, or of another kind.
    template <class Field>
    Field *part(const char *name) const
    {
        auto *found = m_widget->findChild<Field *>(QString::fromLatin1(name));
        if (!found)
            refuse(QString::fromLatin1(name) + QStringLiteral(" is missing"));
        return found;
    }

private:
    [[noreturn]] void refuse(const QString &reason) const;

    QString m_fileName;
    QWidget *m_widget;
    kor::FormBuilder m_builder;
};

} // namespace orders
