// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <utility>

namespace kor {

//! The saved settings of one control: named values in the order in which they were written.
//!
//! A name may stand more than once, because some controls write a setting twice and saved forms must stay identical.
//! Reading gives the last one, as the later line of a form file overrules the earlier.
class KORDAOUC_EXPORT PropertyBag
{
    Q_GADGET

public:
    //! Key and value.
    using Entry = std::pair<QString, QVariant>;

    //! Keeps the value under the key, unless it equals the default in type and value. An invalid default (no default)
    //! keeps every value.
    Q_INVOKABLE void WriteProperty(const QString &key, const QVariant &value, const QVariant &defaultValue = {});
    //! The value kept under the key, else the default.
    [[nodiscard]] Q_INVOKABLE QVariant ReadProperty(const QString &key, const QVariant &defaultValue = {}) const;

    //! Adds an entry as it is, as a form file does while it is read.
    Q_INVOKABLE void append(const QString &key, const QVariant &value);
    //! All entries in their order, repeated keys included.
    [[nodiscard]] const QList<Entry> &entries() const { return m_entries; }
    //! Whether there is an entry of this key; case counts.
    [[nodiscard]] Q_INVOKABLE bool contains(const QString &key) const;
    //! Whether there is no entry at all.
    [[nodiscard]] Q_INVOKABLE bool isEmpty() const { return m_entries.isEmpty(); }
    //! The number of entries, and one of them by its 0-based place: for hosts that reach the bag by name only. Error 9
    //! for a place that there is not.
    [[nodiscard]] Q_INVOKABLE int count() const { return static_cast<int>(m_entries.size()); }
    //! The key at a place; error 9 as count() says.
    [[nodiscard]] Q_INVOKABLE QString keyAt(int index) const { return entryAt(index).first; }
    //! The value at a place; error 9 as count() says.
    [[nodiscard]] Q_INVOKABLE QVariant valueAt(int index) const { return entryAt(index).second; }

    //! Whether both hold the same settings (in type and value) in the same order.
    bool operator==(const PropertyBag &other) const;

private:
    [[nodiscard]] const Entry &entryAt(int index) const;

    QList<Entry> m_entries;
};

//! Whether two values are the same setting: equal in type and in value.
[[nodiscard]] KORDAOUC_EXPORT bool isSameSetting(const QVariant &left, const QVariant &right);

} // namespace kor

Q_DECLARE_METATYPE(kor::PropertyBag)
