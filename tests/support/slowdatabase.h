// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/Database>
#include <KorDaoUC/Recordset>
#include <KorDaoUC/RunTimeError>

#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <utility>

namespace kor::test {

//! A host's own database, which runs an event loop while it waits for a slow server: something happens in there, once.
class SlowDatabase final : public Database
{
public:
    enum class Place { OpenRecordset, MoveNext };

    std::unique_ptr<Recordset> OpenRecordset(const QString &source, int) override;

    void once(Place place, std::function<void()> happens)
    {
        m_place = place;
        m_happens = std::move(happens);
    }
    //! Whether what was to happen is still to come.
    [[nodiscard]] bool isWaitedFor() const { return bool(m_happens); }

    int rows = 3;
    bool breaks = false;           //!< when the third row is asked for
    QStringList asked;             //!< the statements, as they still read when the waiting was over
    QMap<QString, QString> titles; //!< what the names of a statement begin with; "nazwa" where nothing is said

private:
    class Rows;
    void waitIn(Place place)
    {
        if (place == m_place) {
            if (const auto happens = std::exchange(m_happens, {}))
                happens();
        }
    }

    Place m_place = Place::OpenRecordset;
    std::function<void()> m_happens;
};

class SlowDatabase::Rows final : public Recordset
{
public:
    Rows(SlowDatabase *database, const QString &source)
        : m_database(database), m_rows(database->rows), m_title(database->titles.value(source, QStringLiteral("nazwa")))
    {
    }

    int RecordCount() const override { return m_rows > 0 ? 1 : 0; }
    bool Eof() const override { return m_at >= m_rows; }
    void MoveNext() override
    {
        m_database->waitIn(Place::MoveNext);
        if (++m_at == 2 && m_database->breaks)
            throw RunTimeError(ErrorNumber::DatabaseFailed, QStringLiteral("przerwane"));
    }
    int FieldCount() const override { return 2; }
    QVariant FieldValue(int index) const override
    {
        return index == 0 ? QVariant(m_at + 1) : QVariant(QStringLiteral("%1 %2").arg(m_title).arg(m_at + 1));
    }
    QString FieldName(int) const override { return {}; }
    void Close() override {}

private:
    SlowDatabase *m_database;
    int m_rows;
    QString m_title;
    int m_at = 0;
};

inline std::unique_ptr<Recordset> SlowDatabase::OpenRecordset(const QString &source, int)
{
    waitIn(Place::OpenRecordset);
    asked << source;
    return std::make_unique<Rows>(this, source);
}

} // namespace kor::test
