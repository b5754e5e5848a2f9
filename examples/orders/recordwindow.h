// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "foundlist.h"
#include "recordstore.h"

#include <QtWidgets/QDialog>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace kor {
class Database;
}

namespace orders {

class OrderStore;
class RecordForm;

//! The records of a table: found while the clerk types on the left, changed on the right.
class RecordWindow : public QDialog
{
    Q_OBJECT

public:
    //! What the list finds are records of the table.
    RecordWindow(const OrderStore &store, RecordTable table, SearchSubject list, kor::Database &database,
                 QWidget *parent = nullptr);

    //! Goes to a record, as far as there is one.
    void go(qint64 id);
    //! Whether anything was saved or removed here.
    [[nodiscard]] bool hasSaved() const { return m_hasSaved; }

    void reject() override;

Q_SIGNALS:
    //! A record was saved, or is gone.
    void changed(qint64 id);

private:
    QPushButton *addCommand(const QString &text, const QKeySequence &key, const std::function<void()> &work);
    void command(const std::function<void()> &work);
    void guarded(const std::function<void()> &work);
    [[nodiscard]] bool mayLeave();
    void showChosen();
    void showRecord(const Record &record);
    void startNew();
    void undo();
    void refresh();
    //! The key of what was saved; nothing when that failed, which the clerk has been told by then.
    [[nodiscard]] std::optional<qint64> save();
    [[nodiscard]] std::optional<qint64> saveChanged(Record ours);
    [[nodiscard]] bool decide(const Record &loaded, const Record &theirs, Record &ours);
    [[nodiscard]] bool mayAddAnew(const Record &gone);
    void showSaved(const Record &saved);
    void stayOn(qint64 id);
    void sayGone();
    void refuse(const RecordProblem &problem);
    void remove();
    void updateState();
    [[nodiscard]] QString calledAs(const QString &what, const Record &record) const;

    const OrderStore &m_store;
    RecordStore m_records;
    FoundList *m_list = nullptr;
    RecordForm *m_form;
    QLabel *m_said;
    QPushButton *m_new;
    QPushButton *m_save;
    QPushButton *m_undo;
    QPushButton *m_remove;
    bool m_hasSaved = false;
};

} // namespace orders
