// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/listcontrol.h>

#include <memory>

//! List of keys and names with one entry selected, or none.
class KORDAOUC_EXPORT KorList final : public kor::ListControl
{
    Q_OBJECT
    Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex NOTIFY Click DESIGNABLE false STORED false)
    Q_PROPERTY(QVariant Value READ Value WRITE setValue NOTIFY Click DESIGNABLE false STORED false USER true)
    Q_PROPERTY(QString Text READ Text WRITE setText NOTIFY Click DESIGNABLE false STORED false)

public:
    explicit KorList(QWidget *parent = nullptr);
    ~KorList() override;

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
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);
    void Refreshed();

protected:
    void raiseClick() override { Q_EMIT Click(); }
    void raiseKeyDown(int &code, int &shift) override { Q_EMIT KeyDown(code, shift); }
    void raiseRefreshed() override { Q_EMIT Refreshed(); }

private:
    class Private;
};
