// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/MdbFile>
#include <KorDaoUC/SqlDatabase>

#include <QtCore/QFile>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>

//! A list of a form on the tables of an .mdb file.
class tst_MdbDictionary : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aListIsFilledInTheOrderOfItsStatement()
    {
        const QString file = QStringLiteral(KOR_MDB_FILE);
        if (!QFile::exists(file))
            QSKIP("no .mdb file here: set KORDAOUC_MDB_FILE to one");
        QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        connection.setDatabaseName(QStringLiteral(":memory:"));
        QVERIFY(connection.open());
        QVERIFY(kor::readMdbFile(file, connection).isComplete);
        kor::SqlDatabase database(connection);
        KorCombo combo;
        combo.setdatabase(&database);
        combo.setSQL(QStringLiteral("SELECT CustomerID, CompanyName FROM Customers ORDER BY CompanyName DESC"));
        combo.Refresh();
        auto *list = combo.findChild<QComboBox *>();
        QCOMPARE(list->count(), 91);
        for (int at = 1; at < list->count(); ++at)
            QVERIFY(list->itemText(at - 1).compare(list->itemText(at), Qt::CaseInsensitive) >= 0);
        combo.setValue(QStringLiteral("ALFKI"));
        QCOMPARE(combo.Text(), QStringLiteral("Alfreds Futterkiste"));
    }
};

QTEST_MAIN(tst_MdbDictionary)
#include "tst_mdbdictionary.moc"
