// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "pages/tablepage.h"

class QFileDialog;

namespace kor {

//! What a grid is filled from: database file, statement, dictionary.
class DatabasePage final : public TablePage
{
    Q_OBJECT

public:
    explicit DatabasePage(QWidget *parent);

private:
    void prepareDialog();
    void chooseFile();

    QFileDialog *m_dialog;
};

} // namespace kor
