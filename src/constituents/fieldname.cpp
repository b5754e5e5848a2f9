// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/fieldname.h"

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

bool leadsTo(const QWidget *place, const QWidget *box)
{
    while (place && place != box)
        place = place->focusProxy();
    return place == box;
}

} // namespace

const QWidget *controlOf(const QWidget *box)
{
    const QWidget *control = box;
    for (const QWidget *place = box; place && !place->isWindow(); place = place->parentWidget()) {
        if (leadsTo(place, box))
            control = place;
    }
    return control;
}

const QLabel *labelOf(const QWidget *box)
{
    const QWidget *control = controlOf(box);
    const QWidget *around = control->parentWidget();
    if (!around || control->isWindow())
        return nullptr;
    for (const QObject *part : around->children()) {
        const auto *label = qobject_cast<const QLabel *>(part);
        if (label && label->buddy() && (label->buddy() == control || label->buddy() == box))
            return label;
    }
    return nullptr;
}

QString fieldName(const QWidget *box)
{
    if (!box->accessibleName().isEmpty())
        return box->accessibleName();
    const QWidget *control = controlOf(box);
    if (!control->accessibleName().isEmpty())
        return control->accessibleName();
    if (const QLabel *label = labelOf(box))
        return spoken(label->text());
    const auto *group = qobject_cast<const QGroupBox *>(control->parentWidget());
    return group ? spoken(group->title()) : QString();
}

} // namespace kor
