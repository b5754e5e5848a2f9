// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "pages/fieldrow.h"
#include "pages/pagefield.h"

#include <KorDaoUC/propertypage.h>

#include <QtCore/QPointer>
#include <QtCore/QVariant>

#include <functional>
#include <memory>
#include <vector>

class QAbstractButton;
class QFormLayout;

namespace kor {

//! A page that is made from its table.
class TablePage : public PropertyPage
{
    Q_OBJECT

public:
    //! The table must outlive the page.
    TablePage(const PageTable &table, QWidget *parent);

protected:
    void readControls() override;
    void writeControls() override;

    //! A member of the control that the page shows, and how it is set: as a property, unless a page says otherwise.
    [[nodiscard]] virtual QVariant read(QObject &control, const char *member);
    virtual void write(QObject &control, const char *member, const QVariant &value);
    //! Somebody has edited a field.
    virtual void edited(const FieldRow &row);

    //! What is written where. Noted down before anything is, for the handlers of a control may change or delete all.
    struct Writing {
        QPointer<QObject> control;
        const char *member;
        QVariant value;
    };
    [[nodiscard]] Writing writing(QObject *control, const FieldRow &row) const;
    //! Writes in this order what still has its control. The page may be gone afterwards.
    void writeAll(const std::vector<Writing> &all);
    //! Reads a member and shows it. The page may be gone afterwards.
    void showMember(QObject &control, const FieldRow &row);

    [[nodiscard]] const PageTable &table() const { return m_table; }
    [[nodiscard]] PageField &field(const char *name) const;
    [[nodiscard]] PageField &field(const FieldRow &row) const;
    [[nodiscard]] QAbstractButton &button(const char *name) const;
    //! Runs what a click does; an error becomes the page's event.
    void onClick(const char *button, std::function<void()> deed);

private:
    void makeRow(const FieldRow &row);
    [[nodiscard]] const FieldRow &rowOf(const QByteArray &member) const;
    [[nodiscard]] QFormLayout *placeOf(const FieldRow &row) const;

    const PageTable &m_table;
    std::vector<std::unique_ptr<PageField>> m_fields; //!< one for each row, none for a button
};

} // namespace kor
