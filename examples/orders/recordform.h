// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record.h"

#include <QtWidgets/QGroupBox>

#include <functional>

class KorCombo;
class QFormLayout;

namespace kor {
class Database;
}

namespace orders {

//! A record as the clerk sees it: a field of its kind for each column, and the way to them and back.
class RecordForm : public QGroupBox
{
    Q_OBJECT

public:
    RecordForm(const RecordTable &table, kor::Database &database, QWidget *parent = nullptr);

    //! Shows a record; from now on it counts as unchanged.
    void setRecord(const Record &record);
    //! The record as it stands in the fields now. What was not touched is as it was given.
    [[nodiscard]] Record record() const;
    //! Whether the clerk has changed anything since setRecord().
    [[nodiscard]] bool isChanged() const { return read() != m_unchanged; }
    //! The record as it was given to setRecord().
    [[nodiscard]] const Record &loaded() const { return m_loaded; }
    //! How a value of a field is shown.
    [[nodiscard]] QString textOf(qsizetype field, const QVariant &value) const;

    void focusFirstField() { focusField(0); }
    void focusField(qsizetype field);
    //! Reads the lists of the fields anew. What is chosen stays.
    void refreshLists();

Q_SIGNALS:
    void edited();

private:
    struct Part {
        QWidget *widget;
        std::function<QVariant()> read;
        std::function<void(const QVariant &)> show;
    };
    [[nodiscard]] Part partFor(const RecordField &field);
    [[nodiscard]] Part textPart(const RecordField &field);
    [[nodiscard]] Part amountPart(const RecordField &field);
    [[nodiscard]] Part choicePart(const RecordField &field);
    [[nodiscard]] Record read() const;

    const RecordTable &m_table;
    kor::Database &m_database;
    QList<Part> m_parts;
    QList<KorCombo *> m_lists;
    Record m_loaded;
    Record m_unchanged; //!< as the fields gave it back
};

} // namespace orders
