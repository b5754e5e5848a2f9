// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "korform/form.h"

#include "korform/command.h"

#include <KorDaoUC/FormBuilder>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtWidgets/QLabel>

#include <algorithm>

namespace korform {

namespace {

constexpr qint64 largest = 64 * 1024 * 1024;
constexpr QLatin1String designerPrefix("ui.");

kor::FormItemKind frameOf(const QString &type)
{
    const auto create = [type](QWidget *parent) -> QWidget * {
        auto *frame = new QLabel(type, parent);
        frame->setTextFormat(Qt::PlainText);
        frame->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
        frame->setAlignment(Qt::AlignCenter);
        return frame;
    };
    return {create, [](QWidget &, const kor::PropertyBag &) {}, [](const QWidget &, kor::PropertyBag &) {}};
}

} // namespace

std::optional<Source> readSource(const QString &fileName)
{
    QFile file(fileName);
    if (QFileInfo(fileName).isDir()) {
        say(fileName, 0, "error", QStringLiteral("this is a folder"));
        return std::nullopt;
    }
    Source source;
    if (file.open(QIODevice::ReadOnly))
        source.text = file.read(largest + 1); // a pipe has no size
    if (file.error() != QFileDevice::NoError) {
        say(fileName, 0, "error", file.errorString());
        return std::nullopt;
    }
    if (source.text.size() > largest) {
        say(fileName, 0, "error", QStringLiteral("the file has more than %1 bytes").arg(largest));
        return std::nullopt;
    }
    const auto first = std::find_if(source.text.cbegin(), source.text.cend(),
                                    [](char byte) { return !QByteArrayView(" \t\r\n\xef\xbb\xbf").contains(byte); });
    const bool isEmpty = first == source.text.cend();
    source.kind = isEmpty ? kindByName(fileName) : *first == '<' ? FileKind::Ui : FileKind::Form;
    return source;
}

FileKind kindByName(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".ui"), Qt::CaseInsensitive) ? FileKind::Ui : FileKind::Form;
}

bool hasDesignerWidgets(const kor::FormBlock &form)
{
    return std::any_of(form.children.cbegin(), form.children.cend(), [](const kor::FormBlock &child) {
        return child.type.startsWith(designerPrefix) || hasDesignerWidgets(child);
    });
}

void addOtherKinds(kor::FormBuilder &builder, const kor::FormBlock &form, const QStringList &classes)
{
    for (const kor::FormBlock &child : form.children) {
        if (child.type.startsWith(designerPrefix) || classes.contains(child.type))
            builder.addKind(child.type, frameOf(child.type));
        addOtherKinds(builder, child, classes);
    }
}

} // namespace korform
