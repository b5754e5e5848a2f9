// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QPluginLoader>
#include <QtCore/QVariant>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtWidgets/QWidget>

#include <exception>
#include <functional>

// What a host has that knows the plugin's file and the names of the members, and no header.

namespace kor::test {

inline QVariant nullVariant() { return QVariant::fromValue(nullptr); }

//! The number that the text of an exception begins with, 0 when none is thrown: all that a host sees of an error.
inline int errorOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const std::exception &error) {
        return QByteArray(error.what()).split(':').first().toInt();
    }
    return 0;
}

//! What the plugin offers.
inline QList<QDesignerCustomWidgetInterface *> kinds()
{
    static QPluginLoader loader(QStringLiteral(KOR_PLUGIN_FOLDER "/libKorDaoUCPlugin.so"));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

//! A control by its name.
inline QWidget *create(const QString &name, QWidget *parent)
{
    for (QDesignerCustomWidgetInterface *kind : kinds()) {
        if (kind->name() == name)
            return kind->createWidget(parent);
    }
    return nullptr;
}

} // namespace kor::test
