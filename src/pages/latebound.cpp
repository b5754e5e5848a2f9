// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/latebound.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>

#include <optional>

namespace kor {

namespace {

RunTimeError notFound(const char *name)
{
    const QString text = RunTimeError(ErrorNumber::PropertyOrMethodNotFound).description();
    return {ErrorNumber::PropertyOrMethodNotFound, QStringLiteral("%1: %2").arg(text, QLatin1String(name))};
}

std::optional<QMetaProperty> propertyOf(const QObject &object, const char *name)
{
    const QMetaObject *type = object.metaObject();
    const int index = type->indexOfProperty(name);
    return index >= 0 ? std::optional(type->property(index)) : std::nullopt;
}

QMetaMethod methodOf(const QObject &object, const char *signature)
{
    const QMetaObject *type = object.metaObject();
    return type->method(type->indexOfMethod(QMetaObject::normalizedSignature(signature)));
}

QMetaMethod getterOf(const QObject &object, const char *name)
{
    const QMetaMethod method = methodOf(object, QByteArray(name).append("()"));
    return method.isValid() && method.returnType() != QMetaType::Void ? method : QMetaMethod();
}

QVariant call(QObject &object, const QMetaMethod &method, QGenericArgument first, QGenericArgument second,
              QGenericArgument third)
{
    const QMetaType type = method.returnMetaType();
    if (type.id() == QMetaType::Void) {
        method.invoke(&object, Qt::DirectConnection, first, second, third);
        return {};
    }
    const bool isVariant = type.id() == QMetaType::QVariant;
    QVariant result = isVariant ? QVariant() : QVariant(type);
    void *place = isVariant ? &result : result.data();
    method.invoke(&object, Qt::DirectConnection, QGenericReturnArgument(method.typeName(), place), first, second,
                  third);
    return result;
}

QVariant fitted(const QVariant &value, QMetaType type)
{
    if (value.typeId() != QMetaType::QString)
        return value;
    switch (type.id()) {
    case QMetaType::Bool: return CBool(value);
    case QMetaType::Short: return QVariant::fromValue(CInt(value));
    case QMetaType::Int: return CLng(value);
    case QMetaType::Float: return CSng(value);
    case QMetaType::Double: return CDbl(value);
    default: return value;
    }
}

} // namespace

bool hasMember(const QObject &object, const char *name)
{
    if (const auto property = propertyOf(object, name))
        return property->isReadable();
    return object.dynamicPropertyNames().contains(name) || getterOf(object, name).isValid();
}

QVariant readMember(QObject &object, const char *name)
{
    if (const auto property = propertyOf(object, name); property && property->isReadable()) {
        QVariant value = property->read(&object);
        if (property->isEnumType())
            value.convert(QMetaType(QMetaType::Int));
        return value;
    }
    if (object.dynamicPropertyNames().contains(name))
        return object.property(name);
    const QMetaMethod getter = getterOf(object, name);
    if (!getter.isValid())
        throw notFound(name);
    return call(object, getter, QGenericArgument(nullptr), {}, {});
}

void writeMember(QObject &object, const char *name, const QVariant &value)
{
    if (const auto property = propertyOf(object, name)) {
        if (!property->isWritable())
            throw notFound(name);
        if (!property->write(&object, fitted(value, property->metaType())))
            throw RunTimeError(ErrorNumber::TypeMismatch);
    } else if (object.dynamicPropertyNames().contains(name)) {
        object.setProperty(name, value);
    } else {
        throw notFound(name);
    }
}

QVariant callMember(QObject &object, const char *signature, QGenericArgument first, QGenericArgument second,
                    QGenericArgument third)
{
    const QMetaMethod method = methodOf(object, signature);
    if (!method.isValid())
        throw notFound(signature);
    return call(object, method, first, second, third);
}

} // namespace kor
