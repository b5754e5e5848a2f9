// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/designerstage.h"

#include <QtCore/QBuffer>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerObjectInspectorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>
#include <QtDesigner/qdesigner_components.h>
#include <QtTest/QtTest>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

namespace kor::test {

QString formOf(const QString &control, const QString &properties)
{
    return QStringLiteral("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
                          "<widget class=\"%1\" name=\"field\">%2</widget></widget><customwidgets><customwidget>"
                          "<class>%1</class><extends>QWidget</extends></customwidget></customwidgets></ui>")
        .arg(control, properties);
}

DesignerStage::DesignerStage() = default;
DesignerStage::~DesignerStage() = default;

void DesignerStage::startDesigner()
{
    QDesignerComponents::initializeResources();
    m_window = std::make_unique<QWidget>();
    QWidget *window = m_window.get();
    m_core = QDesignerComponents::createFormEditor(QCoreApplication::instance());
    m_core->setTopLevel(window);
    m_core->setWidgetBox(QDesignerComponents::createWidgetBox(m_core, window));
    m_core->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_core, window));
    m_core->setObjectInspector(QDesignerComponents::createObjectInspector(m_core, window));
    m_core->setActionEditor(QDesignerComponents::createActionEditor(m_core, window));
    new QDesignerIntegration(m_core, m_core);
    QDesignerComponents::createTaskMenu(m_core, window);
    QDesignerComponents::initializePlugins(m_core);
}

void DesignerStage::endDesigner() { m_window.reset(); }

void DesignerStage::newForm() { m_form = m_core->formWindowManager()->createFormWindow(m_window.get()); }

void DesignerStage::closeForm() { delete m_form; }

void DesignerStage::open(const QString &form)
{
    QByteArray text = form.toUtf8();
    QBuffer buffer(&text);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QString reason;
    QVERIFY2(m_form->setContents(&buffer, &reason), qPrintable(reason));
    m_core->formWindowManager()->setActiveFormWindow(m_form);
    QVERIFY(control());
    m_form->clearSelection();
    m_form->selectWidget(control());
}

QWidget *DesignerStage::control() const { return m_form->findChild<QWidget *>(QStringLiteral("field")); }

QDesignerPropertySheetExtension *DesignerStage::sheet() const
{
    return qt_extension<QDesignerPropertySheetExtension *>(m_core->extensionManager(), control());
}

std::unique_ptr<QWidget> DesignerStage::run(const QString &form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(KOR_PLUGIN_FOLDER "/designer"));
    QByteArray text = form.toUtf8();
    QBuffer buffer(&text);
    return std::unique_ptr<QWidget>(loader.load(&buffer));
}

QString DesignerStage::message()
{
    QString text;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *box = qobject_cast<QMessageBox *>(window);
        if (!box || !box->isVisible())
            continue;
        text = box->text();
        box->close();
    }
    return text;
}

} // namespace kor::test
