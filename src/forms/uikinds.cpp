// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/uikinds.h"

#include "forms/uiform.h"
#include "forms/uivalue.h"

#include <KorDaoUC/controlregistry.h>
#include <KorDaoUC/propertybag.h>
#include <KorDaoUC/usercontrol.h>
#include <KorDaoUC/wholefile.h>

#include <QtCore/QMetaEnum>
#include <QtCore/QMetaProperty>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <memory>

namespace kor {

namespace {

UiSetting stock(const char *key, const char *property, UiValueType type, const QVariant &defaultValue,
                bool isTranslated = false)
{
    return {QString::fromLatin1(key), QString::fromLatin1(property), type, defaultValue, {}, false, isTranslated};
}

UiSetting caption(const char *property) { return stock("Caption", property, UiValueType::Text, QString(), true); }
UiSetting toolTip() { return stock("ToolTipText", "toolTip", UiValueType::Text, QString(), true); }
UiSetting enabled() { return stock("Enabled", "enabled", UiValueType::Boolean, true); }
UiSetting font() { return stock("Font", "font", UiValueType::Font, QVariant()); }

UiKind formKind()
{
    UiKind kind{QStringLiteral("Form"),      QStringLiteral("QWidget"),        {},
                {QStringLiteral("Caption")}, {caption("windowTitle"), font()}, QSize(640, 480)};
    kind.isForm = true;
    return kind;
}

UiKind labelKind()
{
    UiKind kind{QStringLiteral("Label"),
                QStringLiteral("QLabel"),
                {},
                {QStringLiteral("Caption"), QStringLiteral("Alignment")},
                {caption("text"),
                 stock("Alignment", "alignment", UiValueType::Alignment, QVariant::fromValue(short(0))), enabled(),
                 font(), toolTip()},
                QLabel().sizeHint()};
    kind.leadsToNext = true;
    return kind;
}

UiKind buttonKind()
{
    UiKind kind{
        QStringLiteral("CommandButton"),
        QStringLiteral("QPushButton"),
        {},
        {QStringLiteral("Caption"), QStringLiteral("Default")},
        {caption("text"), stock("Default", "default", UiValueType::Boolean, false), enabled(), font(), toolTip()},
        QPushButton().sizeHint()};
    kind.takesFocus = true;
    return kind;
}

UiKind frameKind()
{
    return {QStringLiteral("Frame"),
            QStringLiteral("QGroupBox"),
            {},
            {QStringLiteral("Caption")},
            {caption("title"), enabled(), font(), toolTip()},
            QGroupBox().sizeHint()};
}

//! The property that is the same thing as a setting, where it has another name.
QString propertyOf(const QString &key)
{
    if (key == u"LockedText")
        return QStringLiteral("Locked");
    if (key == u"Separator")
        return QStringLiteral("SavedSeparator"); // which may be set at run time
    if (key == u"HelpText")
        return QStringLiteral("toolTip");
    return key;
}

UiValueType typeOf(const QMetaProperty &property, const QVariant &defaultValue)
{
    if (property.isEnumType())
        return UiValueType::Enumeration;
    switch (property.metaType().id()) {
    case QMetaType::Bool: return UiValueType::Boolean;
    case QMetaType::Int: return UiValueType::Whole;
    case QMetaType::QString: return UiValueType::Text;
    case QMetaType::QFont: return UiValueType::Font;
    case QMetaType::QVariant: return defaultValue.typeId() == QMetaType::Float ? UiValueType::Number : UiValueType::Any;
    default: return UiValueType::None;
    }
}

UiSetting settingOf(const UserControl &control, const SavedSetting &saved, const PropertyBag &ofNew)
{
    UiSetting setting{saved.key, propertyOf(saved.key), UiValueType::None, saved.defaultValue};
    const QMetaObject *type = control.metaObject();
    const QMetaProperty property = type->property(type->indexOfProperty(setting.property.toLatin1().constData()));
    if (!property.isWritable() || !property.isStored())
        return setting;
    setting.type = typeOf(property, saved.defaultValue);
    if (setting.type == UiValueType::Font)
        setting.defaultValue = QVariant(); // that of the form, which differs
    if (property.isEnumType()) {
        const QMetaEnum members = property.enumerator();
        for (int place = 0; place < members.keyCount(); ++place)
            setting.members.emplaceBack(
                QStringLiteral("%1::%2").arg(QLatin1String(members.scope()), QLatin1String(members.key(place))),
                members.value(place));
    }
    setting.isTranslated = saved.key == u"ToolTipText" || saved.key == u"HelpText";
    setting.isToldAlways = ofNew.contains(saved.key) && setting.type != UiValueType::Font &&
                           uiValue(setting, saved.defaultValue).has_value();
    return setting;
}

UiKind controlKind(const QString &name)
{
    const std::unique_ptr<UserControl> control(ControlRegistry::create(name, nullptr));
    PropertyBag ofNew;
    control->writeProperties(ofNew);
    UiKind kind{QStringLiteral("KorDaoUC.") + name, name, QStringLiteral("KorDaoUC/") + name};
    QStringList read;
    const QList<SavedSetting> all = control->savedSettings();
    for (const SavedSetting &saved : all) {
        if (saved.use != SettingUse::WriteOnly)
            read << saved.key;
    }
    for (const SavedSetting &saved : all) {
        if (saved.use == SettingUse::ReadOnly)
            continue;
        UiSetting setting = settingOf(*control, saved, ofNew);
        if (!read.contains(saved.key)) // what loading passes over is not the property, whatever its name
            setting.type = UiValueType::None;
        kind.settings.append(setting);
    }
    kind.defaultSize = control->sizeHint();
    kind.takesFocus = (control->focusPolicy() & Qt::TabFocus) != 0;
    return kind;
}

} // namespace

const UiKinds &uiKinds()
{
    static QStringList known;
    static UiKinds kinds;
    if (const QStringList names = ControlRegistry::names(); names != known) {
        known = names;
        kinds = UiKinds();
        for (const UiKind &kind : {formKind(), labelKind(), buttonKind(), frameKind()})
            kinds.add(kind);
        for (const QString &name : names)
            kinds.add(controlKind(name));
    }
    return kinds;
}

namespace UiFile {

Text fromForm(const FormBlock &form, const Options &options) { return uiFromForm(form, uiKinds(), options); }
Form toForm(QByteArrayView ui, const Options &options) { return formFromUi(ui, uiKinds(), options); }

std::optional<FormError> save(const QByteArray &ui, const QString &fileName)
{
    if (const std::optional<QString> reason = writeWhole(fileName, ui))
        return FormError{0, *reason};
    return std::nullopt;
}

} // namespace UiFile

} // namespace kor
