// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/database.h>

#include <QtCore/QPointer>

#include <memory>

namespace kor {

//! The host's database, as a control holds it: no longer than it lives, and never opened or closed from here.
class DatabaseReference
{
public:
    void set(Database *database);
    //! For hosts that don't link the library. An object that is no Database leaves everything as it is.
    void setObject(QObject *database);
    //! The open connection of the toolkit that has this name; "" is none.
    void setConnection(const QString &name);

    //! Null when there is none, or no longer.
    [[nodiscard]] Database *get() const { return m_database; }
    //! The same, for as long as it is in use: one made for a connection's name outlives the host's next choice.
    [[nodiscard]] std::shared_ptr<Database> share() const;

private:
    QPointer<Database> m_database;
    std::shared_ptr<Database> m_own; //!< around a connection that the host gave by its name
};

} // namespace kor
