// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "vectorfile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

QStringList fieldsOf(const QString &line)
{
    QStringList fields(1);
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (c == u'\t') {
            fields.append(QString());
        } else if (c == u'\\' && i + 1 < line.size()) {
            const QChar escaped = line[++i];
            fields.last() += escaped == u't'   ? QChar(u'\t')
                             : escaped == u'n' ? QChar(u'\n')
                             : escaped == u'r' ? QChar(u'\r')
                                               : escaped;
        } else {
            fields.last() += c;
        }
    }
    return fields;
}

VectorFile readVectorFile(const QString &path)
{
    VectorFile result;
    result.name = QFileInfo(path).completeBaseName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        result.error = file.errorString();
        return result;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    if (lines.first() != QStringLiteral("locale\ttype\tinput\targ\texpected\ttrust")) {
        result.error = QStringLiteral("the first line is not the header of a vector file");
        return result;
    }
    for (int line = 1; line < lines.size(); ++line) {
        if (lines[line].isEmpty())
            continue;
        const QStringList fields = fieldsOf(lines[line]);
        if (fields.size() != 6) {
            result.error = QStringLiteral("line %1 has %2 fields").arg(line + 1).arg(fields.size());
            return result;
        }
        result.vectors.push_back({line + 1, fields[0], fields[1], fields[2], fields[3], fields[4], fields[5]});
    }
    return result;
}
