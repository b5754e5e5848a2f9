// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "random/handlers.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/Recordset>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtCore/QMetaMethod>
#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <array>
#include <stdexcept>
#include <utility>

namespace kor::test {

namespace {

bool isDeedDone = false;

constexpr std::array deedNames{
    "Delete",   "DeleteAndThrow", "DeleteLater", "ThrowRunTimeError", "ThrowException",  "ThrowNumber",      "Hide",
    "Disable",  "MoveFocus",      "OpenDialog",  "RunEventLoop",      "ChangeArguments", "SwallowArguments", "SetText",
    "SetValue", "Lock",           "Reload",      "HideForm"};
static_assert(deedNames.size() == Handlers::deeds);

void runEventLoop()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

//! A small form of its own, in which somebody types a little and goes away.
void openDialog(QWidget *over)
{
    QDialog dialog(over ? over->window() : nullptr);
    QPointer<UserControl> first = ControlRegistry::create(QStringLiteral("KorNumber"), &dialog);
    QPointer<UserControl> second = ControlRegistry::create(QStringLiteral("KorDate"), &dialog);
    first->setGeometry(10, 10, 120, 26);
    second->setGeometry(10, 50, 120, 26);
    QTimer::singleShot(0, &dialog, [&] {
        if (!dialog.windowHandle())
            return;
        for (const int key : {Qt::Key_1, Qt::Key_2, Qt::Key_Tab, Qt::Key_1, Qt::Key_Tab})
            QTest::keyClick(dialog.windowHandle(), static_cast<Qt::Key>(key));
    });
    QTimer::singleShot(30, &dialog, &QDialog::reject);
    dialog.exec();
}

} // namespace

Handlers::Handlers(UserControl *control) : m_control(control)
{
    const QMetaObject *type = control->metaObject();
    for (int index = UserControl::staticMetaObject.methodOffset(); index < type->methodCount(); ++index) {
        const QMetaMethod method = type->method(index);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        const int slot = QObject::staticMetaObject.methodCount() + static_cast<int>(m_events.size());
        if (QMetaObject::connect(control, index, this, slot, Qt::DirectConnection))
            m_events.push_back({QString::fromLatin1(method.name()), method.parameterTypes()});
    }
}

void Handlers::arm(unsigned event, Deed deed)
{
    m_armed = static_cast<int>(event % m_events.size());
    m_deed = deed;
}

QString Handlers::armed() const
{
    return m_armed < 0 ? QString()
                       : m_events.at(static_cast<std::size_t>(m_armed)).name + u": "_qs +
                             QLatin1String(deedNames.at(static_cast<std::size_t>(m_deed)));
}

int Handlers::take(const QString &event)
{
    for (Event &known : m_events) {
        if (known.name == event)
            return std::exchange(known.count, 0);
    }
    return 0;
}

bool Handlers::takeDone() { return std::exchange(isDeedDone, false); }

int Handlers::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    Event &event = m_events.at(static_cast<std::size_t>(id));
    ++event.count;
    if (id == m_armed && m_control) {
        m_armed = -1;
        isDeedDone = true;
        act(event, arguments);
    }
    return -1;
}

void Handlers::act(const Event &event, void **arguments)
{
    UserControl *control = m_control;
    switch (m_deed) {
    case Delete: delete control; return;
    case DeleteAndThrow: delete control; throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    case DeleteLater: control->deleteLater(); return;
    case ThrowRunTimeError: throw RunTimeError(ErrorNumber::TypeMismatch);
    case ThrowException: throw std::runtime_error("a program's own error");
    case ThrowNumber: throw 1; // NOLINT(hicpp-exception-baseclass): programs do
    case Hide: control->hide(); return;
    case Disable: control->setEnabled(false); return;
    case MoveFocus:
        if (QWidget *next = control->nextInFocusChain(); next->isVisible() && next->isEnabled())
            next->setFocus();
        return;
    case OpenDialog: openDialog(control); return;
    case RunEventLoop: runEventLoop(); return;
    case ChangeArguments:
    case SwallowArguments:
        for (int i = 0; i < event.types.size(); ++i) {
            if (event.types.at(i) == "int&")
                *static_cast<int *>(arguments[i + 1]) = m_deed == SwallowArguments ? 0 : 65;
            else if (event.types.at(i) == "bool&")
                *static_cast<bool *>(arguments[i + 1]) = true;
        }
        return;
    case SetText: set("Text", QStringLiteral("7,5")); return;
    case SetValue: set("Value", 3); return;
    case Lock: set("Locked", !control->property("Locked").value<bool>()); return;
    case Reload: control->Refresh(); return;
    case HideForm: control->window()->hide(); return;
    }
}

//! Sets one of the control's properties, if it is one: the toolkit gives objects new ones as they are set.
void Handlers::set(const char *property, const QVariant &value)
{
    if (m_control->metaObject()->indexOfProperty(property) >= 0)
        m_control->setProperty(property, value);
}

// --- the database

namespace {

[[noreturn]] void fail() { throw RunTimeError(ErrorNumber::DatabaseFailed, QStringLiteral("the server is gone")); }

class Rows : public Recordset
{
public:
    explicit Rows(MoodyDatabase::Mood mood) : m_mood(mood) {}

    [[nodiscard]] int RecordCount() const override { return m_row + 1; }
    [[nodiscard]] bool Eof() const override { return m_row >= count; }
    void MoveNext() override
    {
        ++m_row;
        if (m_mood == MoodyDatabase::Waits)
            runEventLoop();
        if (m_mood == MoodyDatabase::FailsMoving && m_row == 2)
            fail();
    }
    [[nodiscard]] int FieldCount() const override { return 2; }
    [[nodiscard]] QVariant FieldValue(int index) const override
    {
        if (m_mood == MoodyDatabase::FailsReading && m_row == 2)
            fail();
        return index == 0 ? QVariant(m_row) : QVariant(QStringLiteral("wiersz %1").arg(m_row));
    }
    [[nodiscard]] QString FieldName(int index) const override { return QString::number(index); }
    void Close() override {}

private:
    static constexpr int count = 5;
    MoodyDatabase::Mood m_mood;
    int m_row = 0;
};

} // namespace

std::unique_ptr<Recordset> MoodyDatabase::OpenRecordset(const QString &, int)
{
    if (m_mood == FailsOpening)
        fail();
    if (m_mood == ThrowsNumber)
        throw 1; // NOLINT(hicpp-exception-baseclass): a driver of somebody else's
    if (m_mood == Waits)
        runEventLoop();
    return std::make_unique<Rows>(m_mood);
}

} // namespace kor::test
