// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/dictionarycontrol.h>

#include <memory>

//! Drop-down list of keys and names; what it shares with the other lists is told there.
//!
//! Keys are found by the run-time's loose equality: the text 1 is the number 1. The height is the list's own, by its
//! font. `BlockUpDown` keeps Up and Down, alone or with Ctrl, from moving the selection of the closed list; `KeyDown`
//! is raised for them.
class KORDAOUC_EXPORT KorCombo final : public kor::DictionaryControl
{
    Q_OBJECT
    Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex NOTIFY Click DESIGNABLE false STORED false)
    Q_PROPERTY(QVariant Value READ Value WRITE setValue NOTIFY Click DESIGNABLE false STORED false USER true)
    Q_PROPERTY(QString Text READ Text WRITE setText NOTIFY Click DESIGNABLE false STORED false)
    Q_PROPERTY(QString ToolTipText READ ToolTipText WRITE setToolTipText)

public:
    explicit KorCombo(QWidget *parent = nullptr);
    ~KorCombo() override;

    [[nodiscard]] QString ToolTipText() const;
    void setToolTipText(const QString &text);

    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;
    [[nodiscard]] QSize givenSize() const override;

Q_SIGNALS:
    //! Another entry was selected, by the user or the program; and also when `Value` or `Text` finds the entry at place
    //! 0. Not raised under `BlockClick`.
    void Click();
    //! A key on the closed list, except F5. A handler may change the code; 0 swallows the key.
    void KeyDown(int &KeyCode, int &Shift);
    void Refreshed();

protected:
    void layoutConstituents() override;
    void raiseClick() override { Q_EMIT Click(); }
    void raiseKeyDown(int &code, int &shift) override { Q_EMIT KeyDown(code, shift); }
    void raiseRefreshed() override { Q_EMIT Refreshed(); }

private:
    class Private;
    std::unique_ptr<Private> d;
};
