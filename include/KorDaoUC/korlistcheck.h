// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/listcontrol.h>

#include <memory>

//! List of keys and names with a check box before each entry. Which entries are checked is read and written as one
//! text, each key or name with the separator behind it: 1;5;7;
class KORDAOUC_EXPORT KorListCheck final : public kor::ListControl
{
    Q_OBJECT
    Q_PROPERTY(QVariant Value READ Value WRITE setValue NOTIFY Click DESIGNABLE false STORED false USER true)
    Q_PROPERTY(QString Text READ Text WRITE setText NOTIFY Click DESIGNABLE false STORED false)
    Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex NOTIFY Click DESIGNABLE false STORED false)
    Q_PROPERTY(
        QString ValueChecked READ ValueChecked WRITE setValueChecked NOTIFY ItemCheck DESIGNABLE false STORED false)
    Q_PROPERTY(QString Separator READ Separator WRITE setSeparator DESIGNABLE false STORED false)
    Q_PROPERTY(QString SavedSeparator READ Separator WRITE setSavedSeparator)
    Q_PROPERTY(QString TextChecked READ TextChecked NOTIFY ItemCheck DESIGNABLE false STORED false)
    Q_PROPERTY(bool Selected READ Selected WRITE setSelected NOTIFY ItemCheck DESIGNABLE false STORED false)
    Q_PROPERTY(int SelCount READ SelCount NOTIFY ItemCheck DESIGNABLE false STORED false)

public:
    explicit KorListCheck(QWidget *parent = nullptr);
    ~KorListCheck() override;

    //! The keys of the checked entries in the order of the list. A Null key is an empty text.
    [[nodiscard]] QString ValueChecked() const;
    //! Checks the entries whose keys are in the set, and no others. A last key counts only with the separator behind
    //! it; keys that no entry has are passed over. Raises `ItemCheck` for every entry that changes.
    void setValueChecked(const QString &keys);
    //! The names of the checked entries, in the same way.
    [[nodiscard]] QString TextChecked() const;
    //! What stands behind each key, ";" at first. Setting it at run time is error 382.
    [[nodiscard]] QString Separator() const;
    void setSeparator(const QString &separator);
    //! For loaders of forms, which set at run time what was chosen at design time.
    void setSavedSeparator(const QString &separator);
    //! Whether the selected entry is checked; False when none is selected. Setting it then is error 381.
    [[nodiscard]] bool Selected() const;
    void setSelected(bool checked);
    //! Checks every entry, or none. Raises `ItemCheck` for every entry that changes.
    Q_INVOKABLE void CheckAll(bool checked = true);
    //! How many entries are checked.
    [[nodiscard]] int SelCount() const;

    //! Fills the list as told at the lists' common Refresh(), and checks the entries again whose keys are still there;
    //! `ItemCheck` is raised for each, unless it is a handler of such an `ItemCheck` that calls this.
    void Refresh() override;

    void initProperties() override;
    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;

Q_SIGNALS:
    //! Another entry was selected, by the user or the program; and also when `Value` or `Text` finds the entry at place
    //! 0. Not raised under `BlockClick`.
    void Click();
    //! A double click on an entry.
    void DblClick();
    //! A key, except F5. A handler may change the code; 0 swallows the key.
    void KeyDown(int &KeyCode, int &Shift);
    //! An entry was checked or its check taken away, whoever did it. Not raised under `BlockClick`.
    void ItemCheck(int &Item);
    void Refreshed();
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);

protected:
    void raiseClick() override { Q_EMIT Click(); }
    void raiseKeyDown(int &code, int &shift) override { Q_EMIT KeyDown(code, shift); }
    void raiseRefreshed() override { Q_EMIT Refreshed(); }

private:
    void putBack(const QString &checked);

    class Private;
    std::unique_ptr<Private> d;
};
