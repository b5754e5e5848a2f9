// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/forwardrecordset.h"

#include <QtCore/QScopeGuard>

namespace kor {

void ForwardRecordset::begin(int fieldCount)
{
    m_fieldCount = fieldCount;
    advance();
}

int ForwardRecordset::RecordCount() const
{
    requireOpen();
    return m_reached;
}

bool ForwardRecordset::Eof() const
{
    requireOpen();
    return m_place == Place::End;
}

void ForwardRecordset::MoveNext()
{
    requireRow();
    requireConnection();
    advance();
}

int ForwardRecordset::FieldCount() const
{
    requireOpen();
    return m_fieldCount;
}

QVariant ForwardRecordset::FieldValue(int index) const
{
    requireRow();
    requireField(index);
    requireConnection();
    return valueAt(index);
}

QString ForwardRecordset::FieldName(int index) const
{
    requireOpen();
    requireField(index);
    requireConnection();
    return nameAt(index);
}

void ForwardRecordset::Close()
{
    if (m_place != Place::Closed) {
        m_place = Place::Closed;
        release();
    }
}

void ForwardRecordset::giveEntries(const EntryTaker &take)
{
    const auto closed = qScopeGuard([this] { Close(); });
    if (Eof())
        return;
    requireField(1);
    requireConnection();
    take(valueAt(0), valueAt(1));
    giveRest(take);
}

void ForwardRecordset::giveRest(const EntryTaker &take)
{
    for (requireConnection(); fetch(); requireConnection())
        take(valueAt(0), valueAt(1));
}

void ForwardRecordset::advance()
{
    try {
        m_place = fetch() ? Place::Row : Place::End;
    } catch (...) {
        // A failed walk can't be taken up again, and must hold no lock while the host thinks about it.
        m_place = Place::Closed;
        release();
        throw;
    }
    if (m_place == Place::Row)
        ++m_reached;
}

void ForwardRecordset::requireOpen() const
{
    if (m_place == Place::Closed)
        throw RunTimeError(ErrorNumber::ObjectNoLongerSet);
}

void ForwardRecordset::requireRow() const
{
    requireOpen();
    if (m_place == Place::End)
        throw RunTimeError(ErrorNumber::NoCurrentRecord);
}

void ForwardRecordset::requireConnection() const
{
    if (!isConnected())
        throw connectionLost(DatabaseTask::Read, m_statement);
}

void ForwardRecordset::requireField(int index) const
{
    if (index < 0 || index >= m_fieldCount)
        throw RunTimeError(ErrorNumber::ItemNotFoundInCollection);
}

} // namespace kor
