// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/entrymodel.h"

#include <vector>

namespace kor {

//! Names with a check box before each; a new entry is not checked. A check takes one bit.
class CheckedEntryModel final : public EntryModel
{
    Q_OBJECT

public:
    using EntryModel::EntryModel;

    void clear() override;

    [[nodiscard]] bool isChecked(int index) const
    {
        const auto place = static_cast<std::size_t>(index);
        return index >= 0 && place < m_checks.size() && m_checks[place];
    }
    //! How many entries are checked.
    [[nodiscard]] int checkedCount() const { return m_checkedCount; }
    //! Checks one entry or takes its check away. False when it was like that already. The views learn of it by
    //! announce(), so that many checks cost them one look.
    bool setChecked(int index, bool checked);
    void announce(int first, int last);
    //! Gives each entry its check, from the first on, and takes it from those beyond the last one given. Announced.
    void setChecked(std::vector<bool> checks);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    //! Takes a check, as assistive tools give it.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

Q_SIGNALS:
    //! A check was given or taken through the model's own interface.
    void toggled(int index);

private:
    std::vector<bool> m_checks; //!< as far as an entry was ever checked
    int m_checkedCount = 0;
};

} // namespace kor
