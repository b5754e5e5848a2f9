// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/deletion.h"

#include <QtCore/QMetaMethod>

#include <utility>

namespace kor::test {

HandlerOf::HandlerOf(QObject *control, const QString &event, std::function<void()> deed) : m_deed(std::move(deed))
{
    const QMetaObject *type = control->metaObject();
    for (int index = 0; index < type->methodCount(); ++index) {
        const QMetaMethod method = type->method(index);
        if (method.methodType() == QMetaMethod::Signal && QString::fromLatin1(method.name()) == event) {
            const int slot = QObject::staticMetaObject.methodCount();
            m_isListening = QMetaObject::connect(control, index, this, slot, Qt::DirectConnection);
        }
    }
}

int HandlerOf::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id == 0 && call == QMetaObject::InvokeMetaMethod) {
        ++m_calls;
        m_deed();
    }
    return -1;
}

} // namespace kor::test
