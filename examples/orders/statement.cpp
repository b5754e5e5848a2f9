// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "statement.h"

#include "fileplace.h"

#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>

#include <utility>

namespace orders {

namespace {

//! What a clerk can make of a failure of SQLite; the numbers are its primary result codes.
QString reasonOfFile(int code)
{
    constexpr int primary = 0xff;
    switch (code & primary) {
    case 5:
    case 6:
        return QStringLiteral("Z bazy korzysta teraz inny program albo inne stanowisko. Spróbuj ponownie za chwilę.");
    case 8: return QStringLiteral("Pliku bazy nie wolno zmieniać (jest tylko do odczytu).");
    case 10: return QStringLiteral("Dysku z plikiem bazy nie udało się odczytać lub zapisać.");
    case 11:
    case 26: return QStringLiteral("Plik nie jest bazą danych albo jest uszkodzony.");
    case 13: return QStringLiteral("Na dysku z plikiem bazy nie ma już miejsca. Zwolnij miejsce i spróbuj ponownie.");
    case 14: return QStringLiteral("Pliku bazy nie da się otworzyć.");
    case 19: return QStringLiteral("Baza nie przyjęła tych danych.");
    default: return QStringLiteral("Baza danych zgłosiła błąd.");
    }
}

const QString noConnection =
    QStringLiteral("Nie ma połączenia z bazą na serwerze. Sprawdź nazwę bazy i użytkownika albo "
                   "spróbuj ponownie, gdy serwer będzie działał.");

//! The same for a server, by the SQLSTATE of its answer; the longer beginnings come first.
QString reasonOfServer(const QString &state)
{
    static const std::pair<QLatin1String, QString> reasons[] = {
        {QLatin1String("08"), noConnection},
        {QLatin1String("22"), QStringLiteral("Baza nie przyjęła tych danych.")},
        {QLatin1String("23"), QStringLiteral("Baza nie przyjęła tych danych.")},
        {QLatin1String("25006"), QStringLiteral("Bazy nie wolno zmieniać (jest tylko do odczytu).")},
        {QLatin1String("40"), QStringLiteral("Z bazy korzysta teraz inne stanowisko. Spróbuj ponownie za chwilę.")},
        {QLatin1String("42501"), QStringLiteral("Użytkownik nie ma uprawnień do tej bazy.")},
        {QLatin1String("53100"), QStringLiteral("Na dysku serwera nie ma już miejsca.")},
        {QLatin1String("53"), QStringLiteral("Serwer bazy jest przeciążony. Spróbuj ponownie za chwilę.")},
        {QLatin1String("55P03"), QStringLiteral("Z bazy korzysta teraz inne stanowisko. Spróbuj ponownie za chwilę.")},
        {QLatin1String("57P"), QStringLiteral("Serwer bazy jest właśnie wyłączany lub uruchamiany.")},
    };
    for (const auto &[beginning, reason] : reasons) {
        if (state.startsWith(beginning))
            return reason;
    }
    return QStringLiteral("Baza danych zgłosiła błąd.");
}

//! SQLSTATEs have five characters; SQLite's codes are numbers of four digits at most.
QString reasonOf(const QSqlError &error)
{
    const QString code = error.nativeErrorCode();
    if (code.size() == 5)
        return reasonOfServer(code);
    if (code.isEmpty()) // a file has a code for everything
        return noConnection;
    return reasonOfFile(code.toInt());
}

bool isServers(const QSqlDatabase &connection) { return connection.driverName() == serverDriver; }

//! Whether the server has ended the connection: it says so, or nothing at all.
bool isLost(const QSqlDatabase &connection, const QSqlError &error)
{
    const QString state = error.nativeErrorCode();
    return isServers(connection) && (state.isEmpty() || state.startsWith(u"57P") || state.startsWith(u"08"));
}

// Known to the connection itself, of which there are many handles.
constexpr const char *inTransaction = "isInTransaction";
bool isInTransaction(const QSqlDatabase &connection) { return connection.driver()->property(inTransaction).toBool(); }
void setInTransaction(const QSqlDatabase &connection, bool is) { connection.driver()->setProperty(inTransaction, is); }

QSqlQuery attempt(const QSqlDatabase &connection, const QString &statement, const QVariantList &values)
{
    QSqlQuery query(connection);
    query.setForwardOnly(true);
    if (values.isEmpty()) { // also what no server prepares
        query.exec(statement);
        return query;
    }
    const bool works = query.prepare(statement);
    for (const QVariant &value : values) {
        // The toolkit would bind a null QString, which is an empty text, as NULL.
        const bool isText = value.metaType() == QMetaType(QMetaType::QString);
        query.addBindValue(isText && value.value<QString>().isNull() ? QVariant(QStringLiteral("")) : value);
    }
    if (works)
        query.exec();
    return query;
}

} // namespace

StoreError::StoreError(const QString &text) : std::runtime_error(text.toStdString()), m_text(text) {}

StoreError::StoreError(const QString &doing, const QString &reason)
    : StoreError(doing + QStringLiteral(" nie powiodło się.\n") + reason)
{
}

StoreError::StoreError(const QString &doing, const QSqlError &error)
    : StoreError(doing, reasonOf(error) + QStringLiteral("\n\n(") + error.text().simplified() + u')')
{
}

bool openAgain(QSqlDatabase &connection)
{
    connection.close();
    if (!connection.open())
        return false;
    if (isServers(connection)) // who waits for another desk is told so, as with a file
        QSqlQuery(connection).exec(QStringLiteral("SET lock_timeout = '5s'"));
    return true;
}

QSqlQuery run(const QSqlDatabase &connection, const QString &doing, const QString &statement,
              const QVariantList &values)
{
    const auto connectAgain = [&] {
        QSqlDatabase again = connection;
        if (!openAgain(again))
            throw StoreError(doing, again.lastError());
    };
    if (!connection.isOpen() && isServers(connection)) // the server was off when it was last asked
        connectAgain();
    QSqlQuery query = attempt(connection, statement, values);
    if (!query.isActive() && isLost(connection, query.lastError()) && !isInTransaction(connection)) {
        query = QSqlQuery();
        connectAgain();
        query = attempt(connection, statement, values);
    }
    if (!query.isActive())
        throw StoreError(doing, query.lastError());
    return query;
}

Transaction::Transaction(const QSqlDatabase &connection, QString doing, const QString &tables)
    : m_connection(connection), m_doing(std::move(doing))
{
    if (!hasItsFile(m_connection))
        throw StoreError(m_doing, QStringLiteral("Plik bazy usunięto, przeniesiono albo zastąpiono innym, gdy program "
                                                 "na nim pracował. Przywróć go na miejsce i spróbuj ponownie."));
    // At once as a writer: one that reads first and writes later could be refused in between.
    run(m_connection, m_doing, isServers(m_connection) ? QStringLiteral("BEGIN") : QStringLiteral("BEGIN IMMEDIATE"));
    setInTransaction(m_connection, true);
    try {
        if (isServers(m_connection) && !tables.isEmpty())
            run(m_connection, m_doing, QStringLiteral("LOCK TABLE %1 IN SHARE ROW EXCLUSIVE MODE").arg(tables));
    } catch (...) {
        rollBack();
        throw;
    }
}

Transaction::~Transaction()
{
    if (!m_done)
        rollBack();
}

void Transaction::rollBack()
{
    if (m_connection.isOpen())
        QSqlQuery(m_connection).exec(QStringLiteral("ROLLBACK"));
    setInTransaction(m_connection, false);
}

void Transaction::commit()
{
    QSqlQuery query = attempt(m_connection, QStringLiteral("COMMIT"), {});
    if (!query.isActive() && isLost(m_connection, query.lastError()))
        throw StoreError(m_doing, QStringLiteral("Połączenie z serwerem przerwano w chwili zapisu i nie wiadomo, czy "
                                                 "zmiana została zapisana. Sprawdź to na liście, zanim zapiszesz "
                                                 "ponownie."));
    if (!query.isActive())
        throw StoreError(m_doing, query.lastError());
    setInTransaction(m_connection, false);
    m_done = true;
}

} // namespace orders
