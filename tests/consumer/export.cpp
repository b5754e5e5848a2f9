// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/GridExport>
#include <KorDaoUC/KorGrid>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    KorGrid grid;
    grid.AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1440, 0);
    grid.setRows(2);
    grid.setTextMatrix(1, 1, QStringLiteral("Żarówka"));

    QFile sheet(folder.filePath(QStringLiteral("grid.xlsx")));
    QFile lines(folder.filePath(QStringLiteral("grid.csv")));
    for (const QFile *file : {&sheet, &lines}) {
        const auto kind = kor::exportKindOf(file->fileName());
        if (!kind || !kor::exportGrid(grid, file->fileName(), *kind).isWritten())
            return 1;
    }
    const bool isThere = sheet.open(QFile::ReadOnly) && lines.open(QFile::ReadOnly);
    return isThere && sheet.read(2) == "PK" && QString::fromUtf8(lines.readAll()).contains(u"Żarówka") ? 0 : 2;
}
