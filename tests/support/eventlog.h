// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <vector>

namespace kor::test {

//! Records a control's events in their order, late-bound, with their arguments as they were handed over.
//!
//! Written as "KeyDown(38,0)"; positions (Single arguments) are left out, and so are the presses and releases of the
//! Shift, Ctrl and Alt keys themselves.
class EventLog : public QObject
{
public:
    //! Listens to every event that the control's own class declares.
    explicit EventLog(QObject *control);

    //! What came since the last call, in one line.
    [[nodiscard]] QString take();
    [[nodiscard]] QStringList lines() const { return m_lines; }
    //! Leaves out some events, such as mouse moves that depend on the machine.
    void ignore(const QStringList &names) { m_ignored = names; }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    struct Event {
        QString name;
        std::vector<QByteArray> types;
    };
    std::vector<Event> m_events;
    QStringList m_lines;
    QStringList m_ignored;
};

} // namespace kor::test
