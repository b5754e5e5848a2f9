// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "textboxkind.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/PropertyBag>

#include <QtWidgets/QLineEdit>

namespace orders {

namespace {

const QString textKey = QStringLiteral("Text");
const QString lockedKey = QStringLiteral("Locked");
const QString lengthKey = QStringLiteral("MaxLength");
constexpr int unlimited = 32767; // the toolkit's own

void read(QWidget &widget, const kor::PropertyBag &settings)
{
    auto &box = static_cast<QLineEdit &>(widget);
    box.setText(kor::CStr(settings.ReadProperty(textKey, QString())));
    box.setReadOnly(kor::CBool(settings.ReadProperty(lockedKey, false)));
    const int length = kor::CLng(settings.ReadProperty(lengthKey, 0));
    box.setMaxLength(length > 0 ? length : unlimited);
    if (box.isReadOnly())
        box.setFocusPolicy(Qt::ClickFocus);
}

void write(const QWidget &widget, kor::PropertyBag &settings)
{
    const auto &box = static_cast<const QLineEdit &>(widget);
    settings.WriteProperty(textKey, box.text(), QString());
    settings.WriteProperty(lockedKey, box.isReadOnly(), false);
    settings.WriteProperty(lengthKey, box.maxLength() < unlimited ? box.maxLength() : 0, 0);
}

} // namespace

kor::FormItemKind textBoxKind()
{
    return {[](QWidget *parent) { return new QLineEdit(parent); }, read, write,
            QStringList{textKey, lockedKey, lengthKey}};
}

} // namespace orders
