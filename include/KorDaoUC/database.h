// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/recordset.h>

#include <QtCore/QObject>

#include <memory>

namespace kor {

//! The kinds of recordset that programs ask for. The controls read forward only.
enum RecordsetType : int { OpenForwardOnly = 8 };

//! What a control needs of a database: rows for a statement.
//!
//! The host owns it and hands it to the controls, which never open or close a database themselves. It is a QObject so
//! that a control notices its end, and so that a host which does not link the library can pass it on as one. Derive
//! from it to feed the controls from anything else that answers statements.
class KORDAOUC_EXPORT Database : public QObject
{
    Q_OBJECT
public:
    explicit Database(QObject *parent = nullptr);
    ~Database() override;

    //! Runs a statement, or opens a table by its bare name. Error 3146 with the driver's text when the database
    //! refuses, 5 for a type that is not offered.
    [[nodiscard]] virtual std::unique_ptr<Recordset> OpenRecordset(const QString &source,
                                                                   int type = OpenForwardOnly) = 0;
};

} // namespace kor
