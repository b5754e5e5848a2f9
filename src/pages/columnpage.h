// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "pages/tablepage.h"

namespace kor {

//! The columns of a grid, one at a time, chosen by number. Their attributes are read and saved by key.
class ColumnPage final : public TablePage
{
    Q_OBJECT

public:
    explicit ColumnPage(QWidget *parent);

protected:
    void readControls() override;
    void writeControls() override;
    [[nodiscard]] QVariant read(QObject &control, const char *key) override;
    void write(QObject &control, const char *key, const QVariant &value) override;
    void edited(const FieldRow &row) override;

private:
    //! The number in the field; 0 for none.
    [[nodiscard]] int number() const;
    //! Takes the number in the field. False when the control has no such column.
    [[nodiscard]] bool takeColumn();
    void step(int by);
    void showFrames();

    int m_column = 1; //!< that is being read or written
};

} // namespace kor
