// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>
#include <vector>

namespace kor {

//! One control, as the form designer and the toolkit's form loader see it.
class WidgetPlugin final : public QDesignerCustomWidgetInterface
{
public:
    explicit WidgetPlugin(QString name) : m_name(std::move(name)) {}

    [[nodiscard]] QString name() const override { return m_name; }
    [[nodiscard]] QString group() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QString whatsThis() const override;
    [[nodiscard]] QString includeFile() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] bool isContainer() const override { return false; }
    [[nodiscard]] QWidget *createWidget(QWidget *parent) override;
    [[nodiscard]] QString domXml() const override;
    [[nodiscard]] bool isInitialized() const override { return m_isInitialized; }
    //! Called by the designer only, which then gets what it alone needs.
    void initialize(QDesignerFormEditorInterface *core) override;

private:
    QString m_name;
    bool m_isInitialized = false;
};

//! All controls of the library, by their plain class names.
class PluginCollection final : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit PluginCollection(QObject *parent = nullptr);
    [[nodiscard]] QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    std::vector<std::unique_ptr<WidgetPlugin>> m_widgets;
};

} // namespace kor
