// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"

#include <QtCore/QMetaMethod>

#include <utility>

namespace kor::test {

EventLog::EventLog(QObject *control)
{
    const QMetaObject *type = control->metaObject();
    for (int index = type->methodOffset(); index < type->methodCount(); ++index) {
        const QMetaMethod method = type->method(index);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        const int slot = QObject::staticMetaObject.methodCount() + static_cast<int>(m_events.size());
        if (QMetaObject::connect(control, index, this, slot, Qt::DirectConnection)) {
            const auto types = method.parameterTypes();
            m_events.push_back({QString::fromLatin1(method.name()), {types.cbegin(), types.cend()}});
        }
    }
}

int EventLog::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    const Event &event = m_events.at(static_cast<std::size_t>(id));
    if (m_ignored.contains(event.name))
        return -1;
    const bool isKey = event.name == u"KeyDown" || event.name == u"KeyUp";
    if (const int code = isKey ? *static_cast<int *>(arguments[1]) : 0; code >= 16 && code <= 18)
        return -1;
    QStringList shown;
    for (std::size_t i = 0; i < event.types.size(); ++i) {
        if (event.types[i] == "int&" || event.types[i] == "int")
            shown << QString::number(*static_cast<int *>(arguments[i + 1]));
        else if (event.types[i] == "QString")
            shown << *static_cast<QString *>(arguments[i + 1]);
    }
    m_lines << (event.types.empty() ? event.name
                                    : QStringLiteral("%1(%2)").arg(event.name, shown.join(QLatin1Char(','))));
    return -1;
}

QString EventLog::take() { return std::exchange(m_lines, {}).join(QLatin1Char(' ')); }

} // namespace kor::test
