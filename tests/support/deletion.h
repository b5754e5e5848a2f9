// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

namespace kor::test {

//! A host that deletes the control as soon as it raises the event.
class DeletionOn : public QObject
{
public:
    DeletionOn(QObject *control, const QString &event);

    //! Whether the control knows the event at all.
    [[nodiscard]] bool isListening() const { return m_isListening; }
    [[nodiscard]] bool isDone() const { return m_control.isNull(); }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    QPointer<QObject> m_control;
    bool m_isListening = false;
};

} // namespace kor::test
