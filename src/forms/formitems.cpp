// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/formitems.h"

#include "frame/settings.h"

#include <KorDaoUC/enumerations.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace kor {

namespace {

QFont fontAround(const QWidget &widget)
{
    return widget.parentWidget() ? widget.parentWidget()->font() : QApplication::font(&widget);
}

//! The row of the font. A widget that shows the font around it goes on following that one.
template <class Widget>
typename SettingsTable<Widget>::Row itemFont()
{
    const auto read = [](const Widget &widget) {
        return QVariant(widget.testAttribute(Qt::WA_SetFont) ? widget.font() : fontAround(widget));
    };
    const auto apply = [](Widget &widget, const QVariant &saved) {
        const auto font = settingAs<QFont>(saved);
        widget.setFont(font == fontAround(widget) ? QFont() : font);
    };
    return typename SettingsTable<Widget>::Row("Font", read, apply, QVariant()).withDefault([](const Widget &widget) {
        return QVariant(fontAround(widget));
    });
}

bool isEnabled(const QWidget &widget) { return widget.isEnabledTo(widget.parentWidget()); }

AlignmentType alignment(const QLabel &label)
{
    if (label.alignment() & Qt::AlignRight)
        return AlignmentType::Right_Justify;
    return label.alignment() & Qt::AlignHCenter ? AlignmentType::Center : AlignmentType::Left_Justify;
}

void setAlignment(QLabel &label, const QVariant &saved)
{
    Qt::Alignment horizontal = Qt::AlignLeft;
    switch (settingAs<AlignmentType>(saved)) {
    case AlignmentType::Left_Justify: break;
    case AlignmentType::Right_Justify: horizontal = Qt::AlignRight; break;
    case AlignmentType::Center: horizontal = Qt::AlignHCenter; break;
    default: throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    }
    label.setAlignment(horizontal | Qt::AlignVCenter);
}

void setEnabled(QWidget &widget, const QVariant &saved) { widget.setEnabled(settingAs<bool>(saved)); }

const SettingsTable<QLabel> labelSettings = {
    {"Caption", &QLabel::text, &QLabel::setText, QString()},
    {"Alignment", alignment, setAlignment, integer(0)},
    {"Enabled", isEnabled, setEnabled, true},
    itemFont<QLabel>(),
    {"ToolTipText", &QLabel::toolTip, &QLabel::setToolTip, QString()},
};

const SettingsTable<QPushButton> buttonSettings = {
    {"Caption", &QPushButton::text, &QPushButton::setText, QString()},
    {"Default", &QPushButton::isDefault, &QPushButton::setDefault, false},
    {"Enabled", isEnabled, setEnabled, true},
    itemFont<QPushButton>(),
    {"ToolTipText", &QPushButton::toolTip, &QPushButton::setToolTip, QString()},
};

const SettingsTable<QGroupBox> frameSettings = {
    {"Caption", &QGroupBox::title, &QGroupBox::setTitle, QString()},
    {"Enabled", isEnabled, setEnabled, true},
    itemFont<QGroupBox>(),
    {"ToolTipText", &QGroupBox::toolTip, &QGroupBox::setToolTip, QString()},
};

const SettingsTable<QWidget> formSettings = {
    {"Caption", &QWidget::windowTitle, &QWidget::setWindowTitle, QString()},
    itemFont<QWidget>(),
};

template <class Widget>
FormItemKind kindOf(const SettingsTable<Widget> &table)
{
    return {
        [](QWidget *parent) { return new Widget(parent); },
        [&table](QWidget &widget, const PropertyBag &settings) { table.read(static_cast<Widget &>(widget), settings); },
        [&table](const QWidget &widget, PropertyBag &settings) {
            table.write(static_cast<const Widget &>(widget), settings);
        },
        table.keys(),
    };
}

} // namespace

QHash<QString, FormItemKind> readyMadeItems()
{
    return {
        {QStringLiteral("Label"), kindOf(labelSettings)},
        {QStringLiteral("CommandButton"), kindOf(buttonSettings)},
        {QStringLiteral("Frame"), kindOf(frameSettings)},
    };
}

void readForm(QWidget &window, const PropertyBag &settings) { formSettings.read(window, settings); }
void writeForm(const QWidget &window, PropertyBag &settings) { formSettings.write(window, settings); }
QStringList formKeys() { return formSettings.keys(); }

} // namespace kor
