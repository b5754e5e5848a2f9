// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "mdb/mdbcopy.h"

#include "mdb/jetfile.h"
#include "mdb/sqliteschema.h"

#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QElapsedTimer>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <algorithm>

namespace kor {

namespace mdb {

namespace {

constexpr qint64 longestSilence = 50; // milliseconds between two questions whether to go on

[[noreturn]] void refuse(const QSqlError &error, const QString &statement)
{
    throw RunTimeError(ErrorNumber::DatabaseFailed, statement + QStringLiteral(": ") + error.text());
}

//! Tables come in the order of the file, before those they refer to, and old files hold rows that refer to nothing. So
//! relations are not held against what is read; where the host had them in force, they are so again afterwards.
class RelationsAside
{
public:
    explicit RelationsAside(const QSqlDatabase &target) : m_target(target)
    {
        QSqlQuery query(m_target);
        m_areInForce = query.exec(QStringLiteral("PRAGMA foreign_keys")) && query.next() && query.value(0).toBool();
        query.finish();
        if (m_areInForce)
            query.exec(QStringLiteral("PRAGMA foreign_keys = OFF"));
    }
    ~RelationsAside()
    {
        if (m_areInForce)
            QSqlQuery(m_target).exec(QStringLiteral("PRAGMA foreign_keys = ON"));
    }
    Q_DISABLE_COPY_MOVE(RelationsAside)

private:
    QSqlDatabase m_target;
    bool m_areInForce = false;
};

class Copy
{
public:
    Copy(const QSqlDatabase &target, Contents &contents, const MdbProgress &mayGoOn)
        : m_target(target), m_contents(contents), m_mayGoOn(mayGoOn)
    {
    }

    MdbReading run()
    {
        const QList<Table> tables = m_contents.tables();
        const QList<Relation> relations = relationsThatHold(tables, m_contents.relations());
        for (const Table &table : tables)
            m_all += table.rows;
        m_silence.start();
        for (const Table &table : tables) {
            execute(createTable(table, relations));
            if (!copyRows(table))
                return {};
            for (const Index &index : table.indexes)
                makeIndex(table, index);
        }
        m_reading.isComplete = true;
        m_reading.tables = static_cast<int>(tables.size());
        return m_reading;
    }

private:
    void execute(const QString &statement)
    {
        QSqlQuery query(m_target);
        if (!query.exec(statement))
            refuse(query.lastError(), statement);
    }

    //! SQLite would refuse every row of a table that refers to one that is not there.
    QList<Relation> relationsThatHold(const QList<Table> &tables, const QList<Relation> &relations)
    {
        const auto columnsOf = [&](const QString &name) {
            QStringList names;
            for (const Table &table : tables) {
                if (table.name.compare(name, Qt::CaseInsensitive) == 0) {
                    for (const Column &column : table.columns)
                        names << column.name;
                }
            }
            return names;
        };
        const auto hasAll = [&](const QString &table, const QStringList &columns) {
            const QStringList names = columnsOf(table);
            return std::all_of(columns.begin(), columns.end(),
                               [&](const QString &column) { return names.contains(column, Qt::CaseInsensitive); });
        };
        QList<Relation> holding;
        for (const Relation &relation : relations) {
            if (hasAll(relation.table, relation.columns) && hasAll(relation.owner, relation.ownerColumns))
                holding.append(relation);
            else
                m_reading.remarks << QStringLiteral("The relation of '%1' to '%2' is left out: a table or column of it "
                                                    "is not in the file")
                                         .arg(relation.table, relation.owner);
        }
        return holding;
    }

    bool copyRows(const Table &table)
    {
        QSqlQuery insert(m_target);
        const QString statement = insertRow(table);
        if (!insert.prepare(statement))
            refuse(insert.lastError(), statement);
        const qint64 before = m_reading.rows;
        bool goesOn = true;
        m_contents.read(table, [&](const Row &row) {
            for (qsizetype at = 0; at < row.size(); ++at) {
                const QVariant value = boundValue(table.columns.at(at).type, row.at(at));
                if (!value.isValid() && row.at(at).isValid())
                    m_reading.remarks << QStringLiteral("'%1': a date in '%2' lies beyond the calendar and is left out")
                                             .arg(table.name, table.columns.at(at).name);
                insert.bindValue(static_cast<int>(at), value);
            }
            if (!insert.exec())
                refuse(insert.lastError(), statement);
            ++m_reading.rows;
            goesOn = isWanted(table);
            return goesOn;
        });
        if (goesOn && m_reading.rows - before < table.rows)
            throw RunTimeError(ErrorNumber::UnrecognizedDatabaseFormat,
                               QStringLiteral("The table '%1' is broken: %2 of %3 rows could be read")
                                   .arg(table.name)
                                   .arg(m_reading.rows - before)
                                   .arg(table.rows));
        return goesOn;
    }

    bool isWanted(const Table &table)
    {
        if (!m_mayGoOn || m_silence.elapsed() < longestSilence)
            return true;
        const bool isWanted = m_mayGoOn(table.name, m_reading.rows, std::max(m_all, m_reading.rows));
        m_silence.restart();
        return isWanted;
    }

    void makeIndex(const Table &table, const Index &index)
    {
        if (index.isPrimary)
            return;
        QSqlQuery query(m_target);
        if (query.exec(createIndex(table, index, index.isUnique)))
            return;
        if (!index.isUnique)
            refuse(query.lastError(), createIndex(table, index, false));
        execute(createIndex(table, index, false));
        m_reading.remarks << QStringLiteral("The index '%1' of '%2' is not unique here").arg(index.name, table.name);
    }

    QSqlDatabase m_target;
    Contents &m_contents;
    const MdbProgress &m_mayGoOn;
    MdbReading m_reading;
    QElapsedTimer m_silence;
    qint64 m_all = 0;
};

} // namespace

MdbReading copyInto(const QSqlDatabase &target, Contents &contents, const MdbProgress &mayGoOn)
{
    QSqlDatabase connection = target;
    const RelationsAside aside(connection); // which no transaction lets be changed
    if (!connection.transaction())
        refuse(connection.lastError(), QStringLiteral("BEGIN"));
    try {
        MdbReading reading = Copy(connection, contents, mayGoOn).run();
        if (reading.isComplete && !connection.commit())
            refuse(connection.lastError(), QStringLiteral("COMMIT"));
        if (!reading.isComplete)
            connection.rollback();
        return reading;
    } catch (...) {
        connection.rollback();
        throw;
    }
}

} // namespace mdb

MdbReading readMdbFile(const QString &fileName, const QSqlDatabase &target, const MdbProgress &mayGoOn)
{
    return mdb::copyInto(target, *mdb::openJetFile(fileName), mayGoOn);
}

} // namespace kor
