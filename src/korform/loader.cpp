// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "korform/loader.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/UserControl>

#include <QtCore/QBuffer>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

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

std::optional<Refusal> refusalOfHead(const QByteArray &text)
{
    QXmlStreamReader from(text);
    if (!from.readNextStartElement())
        return std::nullopt; // no XML, which is told elsewhere
    QByteArray head;
    QXmlStreamWriter to(&head);
    to.writeStartElement(from.name().toString());
    to.writeAttributes(from.attributes());
    to.writeEmptyElement(QStringLiteral("widget"));
    to.writeAttribute(QStringLiteral("class"), QStringLiteral("QWidget"));
    to.writeEndElement();
    Loader loader;
    if (loader.loadText(head))
        return std::nullopt;
    return Refusal{static_cast<int>(from.lineNumber()), loader.errorString()};
}

} // namespace korform
