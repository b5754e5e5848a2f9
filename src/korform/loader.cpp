// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "korform/loader.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/UserControl>

#include <QtCore/QBuffer>

namespace korform {

Loader::Loader() { clearPluginPaths(); }

QWidget *Loader::createWidget(const QString &className, QWidget *parent, const QString &name)
{
    QWidget *control = kor::ControlRegistry::create(className, parent);
    if (!control)
        return QUiLoader::createWidget(className, parent, name);
    control->setObjectName(name);
    return control;
}

std::unique_ptr<QWidget> Loader::loadText(const QByteArray &text)
{
    QBuffer buffer;
    buffer.setData(text);
    if (!buffer.open(QIODevice::ReadOnly))
        return nullptr;
    return std::unique_ptr<QWidget>(load(&buffer));
}

} // namespace korform
