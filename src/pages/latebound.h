// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariant>

namespace kor {

//! Whether an object has a property, or a method without arguments that gives something, of that name.
[[nodiscard]] bool hasMember(const QObject &object, const char *name);
//! What such a member gives; an enumeration's value as a number. Error 438 when there is none.
[[nodiscard]] QVariant readMember(QObject &object, const char *name);
//! Sets a property. A text becomes a number or a Boolean by the locale's rules where the property is one, with their
//! errors. Error 438 when there is no such property or it can't be written, 13 for what it can't hold; the object's
//! own errors go through.
void writeMember(QObject &object, const char *name, const QVariant &value);
//! Calls a method by its signature, as "Name(int,QString)". Error 438 when there is none.
QVariant callMember(QObject &object, const char *signature, QGenericArgument first = QGenericArgument(nullptr),
                    QGenericArgument second = {}, QGenericArgument third = {});

} // namespace kor
