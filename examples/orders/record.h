// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <optional>

namespace orders {

//! A column that the clerk edits.
struct RecordField {
    //! A text is a QString, an amount whole grosze, a choice the key of another table; the latter are qint64.
    enum class Kind { Text, Amount, Choice };

    QString column;
    QString label; //!< on the form, with the letter that leads to it
    Kind kind = Kind::Text;
    int length = 0;         //!< the most characters of a text
    QString choices{};      //!< where the entries of a choice come from, as a list of the form takes it
    bool isOnce = false;    //!< no two records have the same
    bool canBeNull = false; //!< an empty text is none
    QVariant initial{};     //!< in a new record, of an amount or a choice
    //! A text as it is saved, of what was typed. Without it blanks around the text go.
    std::function<QString(const QString &typed)> tidied{};
    //! What is wrong with a value, in the clerk's words; "" for nothing.
    std::function<QString(const QVariant &value)> fault{};

    [[nodiscard]] QString name() const { return QString(label).remove(u'&').remove(u':'); }
};

//! A table of which the clerk keeps the records.
struct RecordTable {
    QString table;
    QString title;             //!< of its window: "Klienci"
    QString one;               //!< a record of it: "Klient"
    QString whom;              //!< the same as what something is done to: "Klienta"
    QString newOne;            //!< "Nowy klient"
    QString user;              //!< the table whose rows name a record of this one, which therefore stays
    QString userKey;           //!< by this column
    QString used;              //!< why it stays; %1 is the number of those rows
    QList<RecordField> fields; //!< the first text is what a record is called
};

//! A row of a table: a value for each field, invalid for NULL.
struct Record {
    qint64 id = 0; //!< 0: not saved yet
    QVariantList values;

    bool operator==(const Record &) const = default;
};

[[nodiscard]] Record newRecord(const RecordTable &table);
//! What a record is called.
[[nodiscard]] QString nameOf(const RecordTable &table, const Record &record);

//! What keeps a record from being saved, in the clerk's language, and the field to mend.
struct RecordProblem {
    qsizetype field = 0;
    QString text;
};

//! Judges what differs from the record that was loaded: what stood there before is nobody's mistake of today.
[[nodiscard]] std::optional<RecordProblem> problemOf(const RecordTable &table, const Record &record,
                                                     const Record &loaded);

//! The fields in which the saved record differs from the one that was loaded and from ours.
[[nodiscard]] QList<qsizetype> differences(const Record &loaded, const Record &ours, const Record &theirs);

} // namespace orders
