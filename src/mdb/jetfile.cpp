// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "mdb/jetfile.h"

#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QFile>
#include <QtCore/QScopeGuard>

#include <algorithm>
#include <array>
#include <map>
#include <mdbtools.h>

namespace kor::mdb {

namespace {

constexpr std::size_t usualText = MDB_BIND_SIZE; // bytes that libmdb makes room for
constexpr quint32 memoLengthBits = 0x3fffffff;
constexpr int bytesOfUtf8 = 4; // that one unit of a memo may become

using Handle = std::unique_ptr<MdbHandle, decltype(&mdb_close)>;
using TableHandle = std::unique_ptr<MdbTableDef, decltype(&mdb_free_tabledef)>;

template <class Item>
Item *itemOf(const GPtrArray *items, unsigned int place)
{
    return static_cast<Item *>(g_ptr_array_index(items, place));
}

//! A text that libmdb made.
QString taken(char *text)
{
    const auto release = qScopeGuard([text] { g_free(text); });
    return QString::fromUtf8(text);
}

Type typeOf(int code)
{
    switch (code) {
    case MDB_BOOL: return Type::Boolean;
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT: return Type::Integer;
    case MDB_MONEY: return Type::Currency;
    case MDB_NUMERIC: return Type::Decimal;
    case MDB_FLOAT: return Type::Single;
    case MDB_DOUBLE: return Type::Double;
    case MDB_DATETIME: return Type::Date;
    case MDB_MEMO: return Type::Memo;
    case MDB_BINARY:
    case MDB_OLE: return Type::Binary;
    case MDB_REPID: return Type::Guid;
    default: return Type::Text;
    }
}

class JetFile final : public Contents
{
public:
    explicit JetFile(Handle handle) : m_handle(std::move(handle))
    {
        // libmdb goes on where a page is missing; what the file says of itself shows that.
        if (!mdb_read_catalog(m_handle.get(), MDB_ANY) ||
            m_handle->num_catalog < open(entryOf(QStringLiteral("MSysObjects")))->num_rows)
            throw RunTimeError(ErrorNumber::UnrecognizedDatabaseFormat, QStringLiteral("The list of tables is broken"));
    }

    [[nodiscard]] QList<Table> tables() override;
    [[nodiscard]] QList<Relation> relations() override;
    void read(const Table &table, const std::function<bool(const Row &)> &take) override;

private:
    [[nodiscard]] MdbCatalogEntry *entryOf(const QString &name) const;
    [[nodiscard]] TableHandle open(MdbCatalogEntry *entry) const;
    [[nodiscard]] QVariant valueOf(const MdbColumn &column, void *bound) const;
    [[nodiscard]] QVariant memoAt(const MdbColumn &column) const;

    Handle m_handle;
};

MdbCatalogEntry *JetFile::entryOf(const QString &name) const
{
    for (unsigned int at = 0; at < m_handle->num_catalog; ++at) {
        auto *entry = itemOf<MdbCatalogEntry>(m_handle->catalog, at);
        if (entry->object_type == MDB_TABLE && name == QString::fromUtf8(entry->object_name))
            return entry;
    }
    return nullptr;
}

TableHandle JetFile::open(MdbCatalogEntry *entry) const
{
    TableHandle table(entry ? mdb_read_table(entry) : nullptr, mdb_free_tabledef);
    if (!table || !mdb_read_columns(table.get()))
        throw RunTimeError(ErrorNumber::UnrecognizedDatabaseFormat,
                           QStringLiteral("The table '%1' cannot be read")
                               .arg(entry ? QString::fromUtf8(entry->object_name) : QString()));
    return table;
}

QList<Table> JetFile::tables()
{
    QList<Table> tables;
    for (unsigned int at = 0; at < m_handle->num_catalog; ++at) {
        auto *entry = itemOf<MdbCatalogEntry>(m_handle->catalog, at);
        if (entry->object_type != MDB_TABLE || !mdb_is_user_table(entry))
            continue;
        const TableHandle handle = open(entry);
        Table table{QString::fromUtf8(entry->object_name), {}, {}, handle->num_rows};
        for (unsigned int column = 0; column < handle->num_cols; ++column) {
            const auto *found = itemOf<MdbColumn>(handle->columns, column);
            table.columns.append({QString::fromUtf8(found->name), typeOf(found->col_type)});
        }
        mdb_read_indices(handle.get());
        for (unsigned int place = 0; handle->indices && place < handle->indices->len; ++place) {
            const auto *found = itemOf<MdbIndex>(handle->indices, place);
            constexpr int ofRelation = 2;
            if (found->index_type == ofRelation)
                continue; // kept by the file for itself
            Index index{
                QString::fromUtf8(found->name), {}, found->index_type == 1, (found->flags & MDB_IDX_UNIQUE) != 0};
            for (unsigned int key = 0; key < found->num_keys; ++key) {
                const int column = found->key_col_num[key] - 1;
                if (column >= 0 && column < table.columns.size())
                    index.columns << table.columns.at(column).name;
            }
            if (!index.columns.isEmpty())
                table.indexes.append(index);
        }
        tables.append(table);
    }
    return tables;
}

QList<Relation> JetFile::relations()
{
    const QString name = QStringLiteral("MSysRelationships");
    MdbCatalogEntry *entry = entryOf(name);
    if (!entry)
        return {};
    Table table{name, {}, {}, 0};
    std::map<QString, qsizetype> places;
    {
        const TableHandle handle = open(entry);
        for (unsigned int column = 0; column < handle->num_cols; ++column) {
            const auto *found = itemOf<MdbColumn>(handle->columns, column);
            places[QString::fromUtf8(found->name)] = table.columns.size();
            table.columns.append({QString::fromUtf8(found->name), typeOf(found->col_type)});
        }
    }
    const auto text = [&](const Row &row, const char *column) {
        const auto found = places.find(QString::fromLatin1(column));
        return found == places.end() ? QString() : row.at(found->second).toString();
    };
    std::map<QString, Relation> found; // a row is one column of a relation, which has a name
    read(table, [&](const Row &row) {
        Relation &relation = found[text(row, "szRelationship")];
        relation.table = text(row, "szObject");
        relation.owner = text(row, "szReferencedObject");
        relation.columns << text(row, "szColumn");
        relation.ownerColumns << text(row, "szReferencedColumn");
        return true;
    });
    QList<Relation> relations;
    for (const auto &[relationName, relation] : found) {
        if (!relation.table.startsWith(u"MSys"))
            relations.append(relation);
    }
    return relations;
}

QVariant JetFile::memoAt(const MdbColumn &column) const
{
    // libmdb cuts what is longer than the room that it was told of.
    const auto length = static_cast<quint32>(mdb_get_int32(m_handle->pg_buf, column.cur_value_start)) & memoLengthBits;
    mdb_set_bind_size(m_handle.get(), std::max<std::size_t>(usualText, std::size_t(length) * bytesOfUtf8 + 1));
    const auto restore = qScopeGuard([this] { mdb_set_bind_size(m_handle.get(), usualText); });
    return taken(mdb_col_to_string(m_handle.get(), m_handle->pg_buf, column.cur_value_start, column.col_type,
                                   column.cur_value_len));
}

QVariant JetFile::valueOf(const MdbColumn &column, void *bound) const
{
    MdbHandle *file = m_handle.get();
    const int start = column.cur_value_start;
    if (column.col_type == MDB_BOOL)
        return column.cur_value_len == 0; // libmdb keeps there whether the bit of Null is set, which is False
    if (start == 0)
        return {};
    switch (column.col_type) {
    case MDB_BYTE: return qint64(mdb_get_byte(file->pg_buf, start));
    case MDB_INT: return qint64(static_cast<qint16>(mdb_get_int16(file->pg_buf, start)));
    case MDB_LONGINT: return qint64(static_cast<qint32>(mdb_get_int32(file->pg_buf, start)));
    case MDB_FLOAT: return mdb_get_single(file->pg_buf, start);
    case MDB_DOUBLE:
    case MDB_DATETIME: return mdb_get_double(file->pg_buf, start);
    case MDB_MONEY: return taken(mdb_money_to_string(file, start));
    case MDB_NUMERIC: return taken(mdb_numeric_to_string(file, start, column.col_scale, column.col_prec));
    case MDB_BINARY: return QByteArray(reinterpret_cast<const char *>(file->pg_buf) + start, column.cur_value_len);
    case MDB_OLE: {
        std::size_t size = 0;
        auto *bytes =
            static_cast<char *>(bound ? mdb_ole_read_full(file, const_cast<MdbColumn *>(&column), &size) : nullptr);
        const auto release = qScopeGuard([bytes] { g_free(bytes); });
        return bytes ? QVariant(QByteArray(bytes, static_cast<qsizetype>(size))) : QVariant();
    }
    case MDB_REPID: return taken(mdb_uuid_to_string_fmt(file->pg_buf, start, MDB_BRACES_4_2_2_8));
    case MDB_MEMO: return memoAt(column);
    default: return taken(mdb_col_to_string(file, file->pg_buf, start, column.col_type, column.cur_value_len));
    }
}

void JetFile::read(const Table &table, const std::function<bool(const Row &)> &take)
{
    const TableHandle handle = open(entryOf(table.name));
    // The parts of OLE fields are looked for in what was bound.
    std::vector<std::array<char, MDB_BIND_SIZE>> bound(handle->num_cols);
    for (unsigned int column = 0; column < handle->num_cols; ++column) {
        if (itemOf<MdbColumn>(handle->columns, column)->col_type == MDB_OLE)
            mdb_bind_column(handle.get(), static_cast<int>(column) + 1, bound[column].data(), nullptr);
    }
    mdb_rewind_table(handle.get());
    while (mdb_fetch_row(handle.get())) {
        Row row;
        for (unsigned int column = 0; column < handle->num_cols; ++column) {
            const auto *found = itemOf<MdbColumn>(handle->columns, column);
            row << valueOf(*found, found->bind_ptr);
        }
        if (!take(row))
            return;
    }
}

} // namespace

std::unique_ptr<Contents> openJetFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(ErrorNumber::FileNotFound, fileName + QStringLiteral(": ") + file.errorString());
    // libmdb believes what a file says of itself.
    const QByteArray head = file.read(32);
    const QByteArray mark = head.mid(4, 15);
    if (mark != QByteArrayLiteral("Standard Jet DB"))
        throw RunTimeError(ErrorNumber::UnrecognizedDatabaseFormat, fileName + QStringLiteral(": no .mdb file"));
    file.close();
    Handle handle(mdb_open(QFile::encodeName(fileName).constData(), MDB_NOFLAGS), mdb_close);
    if (!handle)
        throw RunTimeError(ErrorNumber::UnrecognizedDatabaseFormat, fileName + QStringLiteral(": no .mdb file"));
    mdb_set_bind_size(handle.get(), usualText);
    return std::make_unique<JetFile>(std::move(handle));
}

} // namespace kor::mdb
