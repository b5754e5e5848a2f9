// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/listbox.h"

#include <vector>

namespace kor {

class CheckedEntryModel;

//! A list with a check box before each entry. The space bar toggles the selected entry, a click on a box that entry.
//!
//! Toggling raises ItemCheck and no Click; a click on the box of another entry selects it as well, and Click follows.
class CheckListBox final : public ListBox
{
    Q_OBJECT

public:
    explicit CheckListBox(QWidget *parent);

    void Clear() override;

    //! Whether an entry is checked. Error 381 for one that does not exist.
    [[nodiscard]] bool Selected(int index) const;
    void setSelected(int index, bool checked);
    //! Whether each entry is to be checked, from the first on. Ends early when a handler removes the entries.
    void setSelected(const std::vector<bool> &checks);
    //! The same without raising ItemCheck, many times as fast.
    void setSelectedSilently(std::vector<bool> checks);
    //! How many entries are checked.
    [[nodiscard]] int SelCount() const;

Q_SIGNALS:
    //! An entry was checked or its check taken away, by the user's or the program's doing.
    void ItemCheck(int &Item);

protected:
    [[nodiscard]] QStyleOptionViewItem entryOption() const override;
    void pressedAt(const QPoint &place) override;
    void releasedAt(const QPoint &place) override;
    bool pressSpace() override;

private:
    CheckListBox(CheckedEntryModel *entries, QWidget *parent);

    void raiseItemCheck(int index);
    //! The entry on whose check box a place is, -1 for none.
    [[nodiscard]] int boxAt(const QPoint &place) const;

    CheckedEntryModel *m_checks;
    int m_pressedBox = -1;
    int m_clearings = 0; //!< how often the entries were removed
};

} // namespace kor
