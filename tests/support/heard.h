// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QMetaEnum>
#include <QtCore/QStringList>
#include <QtGui/QAccessible>
#include <QtWidgets/QWidget>

#include <functional>
#include <utility>

namespace kor::test {

//! A widget as a screen reader meets it.
[[nodiscard]] inline QAccessibleInterface *heard(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}
[[nodiscard]] inline QString nameOf(QObject *object) { return heard(object)->text(QAccessible::Name); }
[[nodiscard]] inline QString valueOf(QObject *object) { return heard(object)->text(QAccessible::Value); }
[[nodiscard]] inline QString descriptionOf(QObject *object) { return heard(object)->text(QAccessible::Description); }

//! Whether somebody could do something with an object: it has the keyboard, or is there to be pressed or chosen.
[[nodiscard]] inline bool isForUse(const QAccessibleInterface &part)
{
    switch (part.role()) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::SpinBox:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Dialog: return true;
    case QAccessible::Cell:
    case QAccessible::ListItem: return false; // whose name is their text, if they have one
    default: return part.state().focusable;
    }
}

//! Goes through an object and all that is in it.
inline void walk(QAccessibleInterface *part, const std::function<void(QAccessibleInterface *)> &visit)
{
    visit(part);
    for (int i = 0; i < part->childCount(); ++i) {
        if (QAccessibleInterface *child = part->child(i))
            walk(child, visit);
    }
}

//! What is said of objects for use that say nothing, or of a tree that contradicts itself: nothing, in a good form.
[[nodiscard]] inline QString faultsIn(QAccessibleInterface *top)
{
    QStringList faults;
    walk(top, [&](QAccessibleInterface *part) {
        const QObject *object = part->object();
        const QString what = QStringLiteral("%1 %2, role %3: ")
                                 .arg(QString::fromLatin1(object ? object->metaObject()->className() : "cell"),
                                      object ? object->objectName() : QString())
                                 .arg(part->role());
        if (part->state().invisible)
            return;
        if (part->role() == QAccessible::NoRole)
            faults << what + QStringLiteral("no role");
        if (isForUse(*part) && part->text(QAccessible::Name).isEmpty())
            faults << what + QStringLiteral("no name");
        const QByteArray kind(object ? object->metaObject()->className() : "");
        const bool isOurs = kind.startsWith("kor::") || kind.startsWith("Kor"); // the toolkit's menu buttons don't
        for (int i = 0; isOurs && i < part->childCount(); ++i) {
            QAccessibleInterface *child = part->child(i);
            if (child && part->indexOfChild(child) != i)
                faults << what + QStringLiteral("child %1 says it is another").arg(i);
        }
    });
    return faults.join(u'\n');
}

//! Notes what screen readers are told while it lives. The toolkit tells nothing where nobody listens, so this needs a
//! bus of theirs: tests/support/with-reader-bus gives one.
class Notices
{
public:
    Notices()
    {
        s_told.clear();
        m_before = QAccessible::installUpdateHandler(&Notices::note);
    }
    ~Notices() { QAccessible::installUpdateHandler(m_before); }
    Q_DISABLE_COPY_MOVE(Notices)

    //! The toolkit sends none while nobody listens. Where a listener was promised, it is no excuse that there is none.
    [[nodiscard]] static bool areHeard()
    {
        return QAccessible::isActive() || qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON");
    }
    //! "Event name" of each notice since the last call.
    [[nodiscard]] QStringList take() { return std::exchange(s_told, {}); }

private:
    static void note(QAccessibleEvent *event)
    {
        const QAccessibleInterface *part = event->accessibleInterface();
        QString told = QString::fromLatin1(QMetaEnum::fromType<QAccessible::Event>().valueToKey(event->type()));
        if (part)
            told += u' ' + part->text(QAccessible::Name);
        s_told << told;
    }

    inline static QStringList s_told;
    QAccessible::UpdateHandler m_before = nullptr;
};

} // namespace kor::test
