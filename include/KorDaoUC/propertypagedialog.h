// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QList>
#include <QtWidgets/QDialog>

#include <memory>

namespace kor {

class PropertyPage;
class PropertyWriter;

//! The property pages that selected controls have in common, with OK, Cancel and Apply.
//!
//! A page that the controls lack the members for is there, but closed; its tab says why. OK and Apply apply the pages
//! that were edited. When a control refuses a value the dialog stays open, with that page in front.
class KORDAOUC_EXPORT PropertyPageDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit PropertyPageDialog(const QObjectList &controls, QWidget *parent = nullptr);
    ~PropertyPageDialog() override;

    //! The pages in the order of their tabs, closed ones included.
    [[nodiscard]] QList<PropertyPage *> pages() const;
    //! Has all pages write through someone else, who must outlive the dialog. One Apply is one pair of calls for him.
    void setWriter(PropertyWriter *writer);
    //! Applies the edited pages. False when a control refused something; the error went to the page's Error event.
    bool apply();

Q_SIGNALS:
    //! The user has pressed OK or Apply, and all of it was written.
    void applied();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace kor
