// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

class QWidget;

namespace kor {

class UserControl;

//! The controls of the library by their names, for form files, designers and tests.
class KORDAOUC_EXPORT ControlRegistry
{
public:
    using Factory = std::function<UserControl *(QWidget *parent)>;

    //! A new control with its initial settings, or null when there is none of that name. Takes the plain class name
    //! ("KorNumber") and the qualified one ("KorDaoUC.KorNumber").
    [[nodiscard]] static UserControl *create(const QString &name, QWidget *parent = nullptr);
    //! The plain names of all controls, in the order of the library.
    [[nodiscard]] static QStringList names();

    //! Adds a kind of control, or replaces the one of the same name.
    static void add(const QString &name, Factory factory);
};

} // namespace kor
