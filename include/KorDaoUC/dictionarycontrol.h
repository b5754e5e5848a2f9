// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/database.h>
#include <KorDaoUC/usercontrol.h>

#include <QtCore/QVariant>

#include <cstddef>
#include <functional>
#include <memory>

namespace kor {

class EntryBox;
struct DictionaryRules;

//! What the lists of keys and names are: each entry has a hidden key and a shown name. Users see the names, programs
//! the keys.
//!
//! `SQL` says where the entries come from: a SELECT statement (first column the key, second the name), or the entries
//! themselves: LIST 1;Tak|0;Nie. The list is filled by Refresh() and by the F5 key only. `CanBeNull` puts an entry
//! before them whose key is Null and whose name is `NullString`. A key keeps the type in which it came; Null is found
//! nowhere, Empty is 0 and "".
class KORDAOUC_EXPORT DictionaryControl : public UserControl
{
    Q_OBJECT
    Q_PROPERTY(bool HasValues READ HasValues DESIGNABLE false STORED false)
    Q_PROPERTY(QString SQL READ SQL WRITE setSQL)
    Q_PROPERTY(QString NullString READ NullString WRITE setNullString)
    Q_PROPERTY(QString Slownik READ Slownik WRITE setSlownik)
    Q_PROPERTY(bool DataChanged READ DataChanged WRITE setDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(bool CanBeNull READ CanBeNull WRITE setCanBeNull)
    Q_PROPERTY(bool BlockUpDown READ BlockUpDown WRITE setBlockUpDown)
    Q_PROPERTY(int ListCount READ ListCount DESIGNABLE false STORED false)
    Q_PROPERTY(bool BlockClick READ BlockClick WRITE setBlockClick)

public:
    ~DictionaryControl() override;

    //! The place of the selected entry, -1 for none. Error 380 for a place that the list does not have.
    [[nodiscard]] int ListIndex() const;
    void setListIndex(int index);
    //! How many entries there are, the null entry included.
    [[nodiscard]] int ListCount() const;
    //! Whether there is at least one entry, the null entry included.
    [[nodiscard]] bool HasValues() const;

    //! Where SELECT statements run. The host's; may end before the control does. Write-only. By its name, an open
    //! connection of the toolkit's Qt SQL will do.
    Q_INVOKABLE void setdatabase(kor::Database *database);
    //! The same for hosts that know it as an object only. Null takes it away; what is no kor::Database is left out.
    Q_INVOKABLE void setdatabase(QObject *database);
    //! The open connection of the toolkit that was added under this name.
    Q_INVOKABLE void setdatabase(const QString &connectionName);
    //! Takes the database away.
    void setdatabase(std::nullptr_t) { setdatabase(static_cast<kor::Database *>(nullptr)); }

    //! Where the entries come from; taken up by the next Refresh().
    [[nodiscard]] QString SQL() const;
    void setSQL(const QString &source);
    //! The name of the dictionary that the field shows. For the host alone.
    [[nodiscard]] QString Slownik() const;
    void setSlownik(const QString &name);
    //! Whether the next Refresh() puts a null entry first, and by what name it is shown ("..." at first).
    [[nodiscard]] bool CanBeNull() const;
    void setCanBeNull(bool canBeNull);
    //! By what name the null entry is shown.
    [[nodiscard]] QString NullString() const;
    void setNullString(const QString &name);

    //! The key of the selected entry, Null when none is selected.
    [[nodiscard]] QVariant Value() const;
    //! Selects the first entry of this key, and entry 0 for a key that no entry has: Null and a missing argument among
    //! them. Finding it at place 0 raises `Click` in any case, and once more if the selection moved there.
    void setValue(const QVariant &key);
    //! The name of the selected entry.
    [[nodiscard]] QString Text() const;
    //! The same for the first entry of exactly this name.
    void setText(const QString &name);
    //! Whether there is an entry of this key: a Boolean.
    [[nodiscard]] Q_INVOKABLE QVariant Exists(const QVariant &val) const;

    //! Appends one entry; its key is kept as it is.
    Q_INVOKABLE void AddEntry(const QVariant &wartosc, const QString &nazwa);
    //! Removes all entries. Raises nothing.
    Q_INVOKABLE void Clear();
    //! Fills the list from `SQL` and selects again the key that was selected. `Click` is raised when that key is gone,
    //! and `Refreshed` at the end. A statement that gives no rows or fails leaves nothing selected, raises neither, and
    //! shows no message; a failing one is a warning in the log. What the program does to the list while its database
    //! waits comes later and holds: the rows of this call are dropped when another one, or Clear(), came meanwhile.
    //! Without a database a SELECT leaves the list as it is.
    void Refresh() override;
    //! For a control that lays this one over its cells: F5 asks it to refresh the list, in place of doing so at once.
    void setRefreshedBy(std::function<void()> refresh);

    //! Set by every change of the selection that may raise `Click`, blocked or not; cleared by Refresh() and the host.
    [[nodiscard]] bool DataChanged() const;
    void setDataChanged(bool changed);
    //! While True, no change of the selection raises `Click`; `DataChanged` is set all the same.
    [[nodiscard]] bool BlockClick() const;
    void setBlockClick(bool block);
    //! Whether Up and Down are kept from the selection (KorCombo), or from being raised as `KeyDown` (the open lists).
    [[nodiscard]] bool BlockUpDown() const;
    void setBlockUpDown(bool block);

    void initProperties() override;

protected:
    DictionaryControl(QWidget *parent, const DictionaryRules &rules);

    //! Names the constituent that shows the entries; a widget of the control's own.
    void setEntryBox(EntryBox *box);
    //! The key of an entry, Null where there is none. Good until the entries change.
    [[nodiscard]] const QVariant &keyAt(int place) const;

    //! The box reports that its selection has changed.
    void boxClicked();
    //! The box offers a key; 0 for the code swallows it.
    void boxKeyDown(int &code, int &shift);

    //! The two halves of loading saved settings: no entries at first; the null entry when all about it is known.
    void loadNoEntries();
    //! The second one; takes up the saved null entry.
    void loadNullEntry();

    //! Whether Refresh() has a source that it can fill the list from. One that begins with a blank gets a warning.
    [[nodiscard]] bool canReload() const;
    //! Fills the list anew and selects the same key again. False when that came to an early end, was overtaken by
    //! another call or Clear(), or the control was deleted meanwhile.
    [[nodiscard]] bool reload();

    virtual void raiseClick() = 0;
    virtual void raiseKeyDown(int &code, int &shift) = 0;
    virtual void raiseRefreshed() = 0;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace kor
