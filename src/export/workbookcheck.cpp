// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "export/workbookcheck.h"

#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <zlib.h>

namespace kor {

namespace {

constexpr qsizetype chunk = 64 * 1024;
const QByteArray beginOfCell = QByteArrayLiteral("<c r=");
const QByteArray endOfSheet = QByteArrayLiteral("</worksheet>");

template <class Number>
std::optional<Number> numberAt(QByteArrayView bytes, qsizetype place)
{
    if (place < 0 || place + qsizetype(sizeof(Number)) > bytes.size())
        return std::nullopt;
    return qFromLittleEndian<Number>(bytes.data() + place);
}

//! The packed bytes of a file in an archive, by its directory.
std::optional<QByteArrayView> packedFile(QByteArrayView archive, QByteArrayView name)
{
    constexpr int entrySize = 46;
    const qsizetype end = archive.lastIndexOf("PK\5\6");
    const auto entries = numberAt<quint16>(archive, end + 10);
    const auto directory = numberAt<quint32>(archive, end + 16);
    if (end < 0 || !entries || !directory)
        return std::nullopt;
    qsizetype place = *directory;
    for (int entry = 0; entry < *entries; ++entry) {
        const auto size = numberAt<quint32>(archive, place + 20);
        const auto nameLength = numberAt<quint16>(archive, place + 28);
        const auto extraLength = numberAt<quint16>(archive, place + 30);
        const auto commentLength = numberAt<quint16>(archive, place + 32);
        const auto header = numberAt<quint32>(archive, place + 42);
        if (!size || !nameLength || !extraLength || !commentLength || !header ||
            place + entrySize + *nameLength > archive.size())
            return std::nullopt;
        if (archive.sliced(place + entrySize, *nameLength) == name) {
            const auto ownName = numberAt<quint16>(archive, *header + 26);
            const auto ownExtra = numberAt<quint16>(archive, *header + 28);
            if (!ownName || !ownExtra)
                return std::nullopt;
            const qsizetype begin = qsizetype(*header) + 30 + *ownName + *ownExtra;
            return begin + *size <= archive.size() ? std::optional(archive.sliced(begin, *size)) : std::nullopt;
        }
        place += entrySize + *nameLength + *extraLength + *commentLength;
    }
    return std::nullopt;
}

//! Unpacks bit by bit.
class Unpacking
{
public:
    explicit Unpacking(QByteArrayView packed)
    {
        m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.data()));
        m_stream.avail_in = static_cast<uInt>(packed.size());
        m_isGood = inflateInit2(&m_stream, -MAX_WBITS) == Z_OK;
    }
    ~Unpacking() { inflateEnd(&m_stream); }
    Q_DISABLE_COPY_MOVE(Unpacking)

    //! Empty at the end, or where it cannot go on.
    [[nodiscard]] QByteArrayView next()
    {
        if (!m_isGood || m_isWhole)
            return {};
        m_stream.next_out = m_out.data();
        m_stream.avail_out = static_cast<uInt>(m_out.size());
        const int state = inflate(&m_stream, Z_NO_FLUSH);
        m_isGood = state == Z_OK || state == Z_STREAM_END;
        m_isWhole = state == Z_STREAM_END;
        return {m_out.data(), qsizetype(m_out.size() - m_stream.avail_out)};
    }
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

private:
    z_stream m_stream = {};
    std::array<Bytef, chunk> m_out{};
    bool m_isGood = false;
    bool m_isWhole = false;
};

} // namespace

std::optional<qint64> cellsInWorkbook(QByteArrayView workbook)
{
    const auto packed = packedFile(workbook, "xl/worksheets/sheet1.xml");
    if (!packed)
        return std::nullopt;
    Unpacking sheet(*packed);
    qint64 cells = 0;
    QByteArray tail; // a word may go on in the next part
    for (QByteArrayView part = sheet.next(); !part.isEmpty(); part = sheet.next()) {
        cells += (tail.right(beginOfCell.size() - 1) + part.toByteArray()).count(beginOfCell);
        tail = (tail + part.last(std::min(part.size(), endOfSheet.size())).toByteArray()).right(endOfSheet.size());
    }
    return sheet.isWhole() && tail == endOfSheet ? std::optional(cells) : std::nullopt;
}

} // namespace kor
