// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "preferences.h"

#include <QtWidgets/QDialog>

class KorClick;
class KorColor;
class KorCombo;
class KorMultiText;
class KorUpDown;
class QFormLayout;

namespace orders {

//! What the clerk may set for this desk.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SettingsDialog(const Preferences &preferences, QWidget *parent = nullptr);

    //! As they stand in the fields.
    [[nodiscard]] Preferences preferences() const;

    void accept() override;
    void reject() override;

private:
    void addField(QFormLayout *layout, const QString &label, QWidget *field, const QString &name,
                  const QString &unit = {});
    void fill(const Preferences &preferences);
    void chooseFolder();

    KorMultiText *m_seller;
    KorCombo *m_terms;
    KorUpDown *m_days;
    KorCombo *m_vat;
    KorColor *m_color;
    KorClick *m_folder;
    Preferences m_given;
    Preferences m_unchanged; //!< as the fields gave them back
};

} // namespace orders
