// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "pages/tablepage.h"

#include <set>

namespace kor {

//! Colours, font, border and alignment of any controls: it shows what the first selected one has, and writes what the
//! user has edited to all that have it.
class AppearancePage final : public TablePage
{
    Q_OBJECT

public:
    explicit AppearancePage(QWidget *parent);

protected:
    void readControls() override;
    void writeControls() override;
    void edited(const FieldRow &row) override;

private:
    std::set<const FieldRow *> m_edited;
};

} // namespace kor
