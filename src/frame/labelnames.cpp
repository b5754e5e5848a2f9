// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "frame/labelnames.h"

#include <KorDaoUC/usercontrol.h>

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>

namespace kor {

namespace {

//! A caption as it is read out: "&" marks the letter behind it, two of them are one.
QString spoken(const QString &caption)
{
    QString text;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        if (caption.at(at) == u'&' && ++at == caption.size())
            break;
        text += caption.at(at);
    }
    return text;
}

void nameByLabels(const QWidget &around)
{
    QHash<const QObject *, QString> captions;
    for (const QObject *part : around.children()) {
        const auto *label = qobject_cast<const QLabel *>(part);
        if (label && label->buddy() && !captions.contains(label->buddy()))
            captions.insert(label->buddy(), label->text());
    }
    const auto *group = qobject_cast<const QGroupBox *>(&around);
    const QString title = group ? group->title() : QString();
    for (const QObject *part : around.children()) {
        const auto *control = qobject_cast<const UserControl *>(part);
        if (!control || !control->focusProxy() || !control->accessibleName().isEmpty())
            continue;
        if (const QString caption = captions.value(control, title); !caption.isEmpty())
            control->focusProxy()->setAccessibleName(spoken(caption));
    }
}

} // namespace

void nameByLabelsSoon(QWidget *around)
{
    static QHash<const QWidget *, QPointer<QWidget>> waiting; // one that was deleted meanwhile is no longer waiting
    QPointer<QWidget> &place = waiting[around];
    if (place)
        return;
    place = around;
    QMetaObject::invokeMethod(
        around,
        [around] {
            waiting.remove(around);
            nameByLabels(*around);
        },
        Qt::QueuedConnection);
}

} // namespace kor
