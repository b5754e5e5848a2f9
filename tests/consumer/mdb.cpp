// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/MdbFile>
#include <KorDaoUC/RunTimeError>

#include <QtCore/QCoreApplication>
#include <QtSql/QSqlDatabase>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QSqlDatabase target = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    target.setDatabaseName(QStringLiteral(":memory:"));
    if (!target.open())
        return 1;
    try {
        const kor::MdbReading reading = kor::readMdbFile(QStringLiteral("nowhere.mdb"), target);
        return reading.isComplete ? 2 : 3;
    } catch (const kor::RunTimeError &error) {
        return error.number() == 3024 ? 0 : 4;
    }
}
