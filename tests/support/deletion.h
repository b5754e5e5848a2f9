// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <functional>

namespace kor::test {

//! A host's handler of an event, late-bound; it may do what it likes.
class HandlerOf : public QObject
{
public:
    HandlerOf(QObject *control, const QString &event, std::function<void()> deed);

    //! Whether the control knows the event at all.
    [[nodiscard]] bool isListening() const { return m_isListening; }
    [[nodiscard]] int calls() const { return m_calls; }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    std::function<void()> m_deed;
    bool m_isListening = false;
    int m_calls = 0;
};

//! A host that deletes the control as soon as it raises the event.
class DeletionOn : public HandlerOf
{
public:
    DeletionOn(QObject *control, const QString &event)
        : HandlerOf(control, event, [watched = QPointer(control)] { delete watched.data(); }), m_control(control)
    {
    }

    [[nodiscard]] bool isDone() const { return m_control.isNull(); }

private:
    QPointer<QObject> m_control;
};

} // namespace kor::test
