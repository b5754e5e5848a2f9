// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/UserControl>

#include <QtCore/QDate>
#include <QtCore/QMetaProperty>
#include <QtGui/QFont>

#include <memory>

namespace kor::test {

//! Another value than the one a property has, and one that its control takes.
[[nodiscard]] inline QVariant otherThan(const QMetaProperty &property, const QVariant &value)
{
    const QByteArray name = property.name();
    if (property.isEnumType() || name == "BackStyle")
        return value.toInt() == 0 ? 1 : 0;
    if (name.endsWith("Color"))
        return 0x123456;
    if (name == "Value")
        return value.typeId() == QMetaType::QDate ? QVariant(QDate(2026, 5, 6)) : QVariant(7);
    if (name == "MinValue" || name == "MaxValue")
        return name == "MaxValue" ? 1234.5 : -0.1;
    switch (property.metaType().id()) {
    case QMetaType::Bool: return !value.toBool();
    case QMetaType::Int: return value.toInt() + 4;
    case QMetaType::QFont: return QFont(QStringLiteral("DejaVu Sans"), 17, QFont::Bold);
    default: break;
    }
    return name == "Text" ? QStringLiteral("7") : QStringLiteral("inny, \"łódź\" & <b>\nkoniec ");
}

//! What a control saves when everything about it was changed.
[[nodiscard]] inline PropertyBag changedSettings(const QString &type)
{
    const std::unique_ptr<UserControl> control(ControlRegistry::create(type));
    UserControl::setUserMode(control.get(), false);
    const QMetaObject *members = control->metaObject();
    for (int place = QWidget::staticMetaObject.propertyCount(); place < members->propertyCount(); ++place) {
        const QMetaProperty property = members->property(place);
        if (!property.isStored() || !property.isWritable() || qstrcmp(property.name(), "CurrentDate") == 0)
            continue; // a form says which date, not that it is today's
        try {
            property.write(control.get(), otherThan(property, property.read(control.get())));
        } catch (const RunTimeError &) { // not this one
        }
    }
    PropertyBag settings;
    control->writeProperties(settings);
    return settings;
}

//! A form with every control of the library, all of whose settings differ from the defaults, with labels that lead to
//! them, in two frames; and with every control as it is new, beside.
[[nodiscard]] inline FormBlock formOfAllControls()
{
    FormBlock form{QStringLiteral("Form"), QStringLiteral("frmAll"), {}, {}};
    form.properties.append(QStringLiteral("Caption"), QStringLiteral("Wszystkie \"pola\" & <inne>"));
    form.properties.append(QStringLiteral("Width"), 9000);
    form.properties.append(QStringLiteral("Height"), 12000);
    const auto place = [](FormBlock &block, int left, int top, int width) {
        block.properties.append(QStringLiteral("Left"), left);
        block.properties.append(QStringLiteral("Top"), top);
        block.properties.append(QStringLiteral("Width"), width);
        block.properties.append(QStringLiteral("Height"), 601);
    };
    FormBlock frame{QStringLiteral("Frame"), QStringLiteral("fraAll"), {}, {}};
    frame.properties.append(QStringLiteral("Caption"), QStringLiteral("Z&mienione"));
    place(frame, 100, 100, 8000);
    int number = 0;
    for (const QString &type : ControlRegistry::names()) {
        FormBlock label{QStringLiteral("Label"), QStringLiteral("lbl") + type, {}, {}};
        label.properties.append(QStringLiteral("Caption"), QStringLiteral("&") + type);
        place(label, 100, 300 + 700 * number, 1501);
        label.properties.append(QStringLiteral("TabIndex"), 2 * number + 1);
        FormBlock control{QStringLiteral("KorDaoUC.") + type, QStringLiteral("the") + type, {}, {}};
        place(control, 1700, 300 + 700 * number, 2500);
        control.properties.append(QStringLiteral("TabIndex"), 2 * number + 2);
        const PropertyBag settings = changedSettings(type);
        for (const auto &[key, value] : settings.entries())
            control.properties.append(key, value);
        FormBlock fresh{QStringLiteral("KorDaoUC.") + type, QStringLiteral("new") + type, {}, {}};
        place(fresh, 4500, 300 + 700 * number, 2500);
        frame.children.push_back(label);
        frame.children.push_back(control);
        form.children.push_back(fresh);
        ++number;
    }
    form.children.insert(form.children.begin(), frame);
    FormBlock button{QStringLiteral("CommandButton"), QStringLiteral("cmdSave"), {}, {}};
    button.properties.append(QStringLiteral("Caption"), QStringLiteral("&Zapisz"));
    button.properties.append(QStringLiteral("Default"), true);
    place(button, 100, 11000, 1000);
    button.properties.append(QStringLiteral("Tag"), QStringLiteral("nobody's"));
    form.children.push_back(button);
    return form;
}

} // namespace kor::test
