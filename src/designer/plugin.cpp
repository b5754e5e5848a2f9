// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/plugin.h"

#include "designer/descriptions.h"
#include "designer/icons.h"

#include <KorDaoUC/controlregistry.h>
#include <KorDaoUC/propertybag.h>
#include <KorDaoUC/usercontrol.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QPluginLoader>
#include <QtDesigner/QDesignerFormEditorPluginInterface>

namespace kor {

void WidgetPlugin::initialize(QDesignerFormEditorInterface *core)
{
    m_isInitialized = true;
    // The designer finds the other module, but leaves it to itself.
    QPluginLoader loader(QStringLiteral("designer/KorDaoUCDesigner"));
    auto *editor = qobject_cast<QDesignerFormEditorPluginInterface *>(loader.instance());
    if (editor && !editor->isInitialized())
        editor->initialize(core);
}

QString WidgetPlugin::group() const { return QStringLiteral("KorDaoUC"); }

QString WidgetPlugin::toolTip() const { return descriptionOf(m_name).toolTip; }

QString WidgetPlugin::whatsThis() const { return descriptionOf(m_name).help; }

QString WidgetPlugin::includeFile() const { return QStringLiteral("<KorDaoUC/%1>").arg(m_name); }

QIcon WidgetPlugin::icon() const { return controlIcon(m_name); }

QWidget *WidgetPlugin::createWidget(QWidget *parent) { return ControlRegistry::create(m_name, parent); }

QString WidgetPlugin::domXml() const
{
    const QSize size = descriptionOf(m_name).size;
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\"><property name=\"geometry\"><rect>"
                          "<x>0</x><y>0</y><width>%3</width><height>%4</height></rect></property></widget></ui>")
        .arg(m_name, QString(m_name).replace(0, 3, QStringLiteral("kor")))
        .arg(size.width())
        .arg(size.height());
}

PluginCollection::PluginCollection(QObject *parent) : QObject(parent)
{
    // Hosts that don't link the library name these types by their text.
    qRegisterMetaType<Missing>();
    qRegisterMetaType<PropertyBag>();
    for (const QString &name : ControlRegistry::names())
        m_widgets.push_back(std::make_unique<WidgetPlugin>(name));
}

QList<QDesignerCustomWidgetInterface *> PluginCollection::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> all;
    for (const auto &widget : m_widgets)
        all.append(widget.get());
    return all;
}

} // namespace kor
