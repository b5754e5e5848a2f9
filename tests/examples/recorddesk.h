// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "examples/orderdesk.h"
#include "orders/productchooser.h"
#include "orders/recordtables.h"
#include "orders/recordwindow.h"
#include "orders/searchdialog.h"

#include <KorDaoUC/SqlDatabase>

#include <QtWidgets/QTreeWidget>

namespace orders::test {

//! An order desk with the window of its customers or products.
class RecordDesk : public OrderDesk
{
protected:
    //! After a restart as well: the window reads from the store that is open then.
    void begin()
    {
        m_database = std::make_unique<kor::SqlDatabase>(m_store->connection());
        m_catalogue = std::make_unique<Catalogue>(m_store->connection());
    }
    void end()
    {
        m_records.reset();
        m_catalogue.reset();
        m_database.reset();
        close();
    }
    void show(const QString &table, qint64 id = 0)
    {
        m_records = table == u"customers" ? std::make_unique<RecordWindow>(*m_store, customersTable(),
                                                                           customersToSearch(*m_store), *m_database)
                                          : std::make_unique<RecordWindow>(*m_store, productsTable(23),
                                                                           productsToSearch(*m_catalogue), *m_database);
        if (id != 0)
            m_records->go(id);
        bringUp(*m_records);
    }
    template <class Widget>
    Widget *field(const char *name) const
    {
        return m_records->findChild<Widget *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QString text(const char *name) const { return field<QLineEdit>(name)->text(); }
    void enter(const char *name)
    {
        field<QWidget>(name)->setFocus(Qt::TabFocusReason);
        kor::test::settle();
    }
    [[nodiscard]] QTreeWidget *list() const { return m_records->findChild<QTreeWidget *>(); }
    [[nodiscard]] QString chosen() const
    {
        return list()->currentItem() ? list()->currentItem()->text(list()->columnCount() == 3 ? 0 : 1) : QString();
    }
    [[nodiscard]] Record saved(const QString &table, qint64 id) const
    {
        return RecordStore(m_store->connection(), table == u"customers" ? customersTable() : productsTable(23))
            .record(id)
            .value_or(Record());
    }

    std::unique_ptr<kor::SqlDatabase> m_database;
    std::unique_ptr<Catalogue> m_catalogue;
    std::unique_ptr<RecordWindow> m_records;
};

} // namespace orders::test
