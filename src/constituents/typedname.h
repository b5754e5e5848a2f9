// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QString>

class QKeyEvent;

namespace kor {

class EntryModel;

//! The beginning of a name that a clerk types to find it in a list. Letters whose keys follow one another quickly
//! belong together, however long the program was busy with each of them: a list whose choice is looked up on a slow
//! server finds the same name as any other.
class TypedName
{
public:
    //! Whether a key would go on with what was typed before.
    [[nodiscard]] bool goesOn(const QKeyEvent &key) const;
    //! Takes in the character of a key.
    void add(const QKeyEvent &key);
    //! The next key begins anew.
    void forget() { m_text.clear(); }
    //! The entry that was found, from the current one (-1 for none) onwards and round; -1 for none. A first letter
    //! goes on to the next entry.
    [[nodiscard]] int foundIn(const EntryModel &entries, int current) const;

private:
    QString m_text;
    quint64 m_pressed = 0;   //!< when the last key was pressed, by the window system's clock; 0: not told
    QElapsedTimer m_arrived; //!< since the last key arrived
};

} // namespace kor
