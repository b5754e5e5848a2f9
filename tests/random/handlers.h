// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/Database>
#include <KorDaoUC/UserControl>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QStringList>

#include <vector>

namespace kor::test {

//! The program's handlers of one control's events. They count, and one of them, once it is armed, does what programs do
//! in handlers, good and bad.
class Handlers : public QObject
{
public:
    enum Deed : int {
        Delete,
        DeleteAndThrow,
        DeleteLater,
        ThrowRunTimeError,
        ThrowException,
        ThrowNumber,
        Hide,
        Disable,
        MoveFocus,
        OpenDialog,
        RunEventLoop,
        ChangeArguments,
        SwallowArguments,
        SetText,
        SetValue,
        Lock,
        Reload,
        HideForm,
    };
    static constexpr int deeds = HideForm + 1;

    explicit Handlers(UserControl *control);

    //! From now on the event does the deed, once. The number chooses among the control's own events and Error.
    void arm(unsigned event, Deed deed);
    void disarm() { m_armed = -1; }
    [[nodiscard]] QString armed() const;
    //! How often an event came since the last call.
    [[nodiscard]] int take(const QString &event);
    //! Whether any deed was done since the last call, in any control: what follows is not the user's doing alone.
    [[nodiscard]] static bool takeDone();

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    struct Event {
        QString name;
        QList<QByteArray> types;
        int count = 0;
    };
    void act(const Event &event, void **arguments);
    void set(const char *property, const QVariant &value);

    QPointer<UserControl> m_control;
    std::vector<Event> m_events;
    int m_armed = -1;
    Deed m_deed = Delete;
};

//! A database that answers, fails at one of its calls, or lets the user go on while it works.
class MoodyDatabase : public Database
{
public:
    enum Mood : int { Answers, FailsOpening, FailsMoving, FailsReading, Waits, ThrowsNumber };
    static constexpr int moods = ThrowsNumber + 1;

    [[nodiscard]] Mood mood() const { return m_mood; }
    void setMood(Mood mood) { m_mood = mood; }
    [[nodiscard]] std::unique_ptr<Recordset> OpenRecordset(const QString &source, int type) override;

private:
    Mood m_mood = Answers;
};

} // namespace kor::test
