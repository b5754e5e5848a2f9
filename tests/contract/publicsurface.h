// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace kor::test {

//! What hosts reach of one control by name.
struct PublicSurface {
    QString control;
    QStringList members;  //!< properties and methods
    QStringList events;   //!< in their order
    QString userProperty; //!< what data mapping reads and writes; empty for the composites
};

//! The surface of a control; its name is empty when the control is not known.
[[nodiscard]] PublicSurface publicSurface(const QString &control);

//! The argument types of an event, as the meta-object system writes them.
[[nodiscard]] QString argumentsOf(const QString &event, const QString &control);

} // namespace kor::test
