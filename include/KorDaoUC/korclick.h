// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/usercontrol.h>

#include <QtCore/QVariant>

#include <memory>

//! Field for a value that is chosen elsewhere: the button, F4, Alt+Left and Alt+Down ask the host to open its chooser
//! (event `Click`), and the host writes the choice back as a shown `Text` and a hidden `Value`.
//!
//! The two are independent; neither is derived from the other. A locked field is filled by the host only, and can
//! still be cleared with Delete.
class KORDAOUC_EXPORT KorClick final : public kor::UserControl
{
    Q_OBJECT
    Q_PROPERTY(kor::BorderStyleType BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(kor::AppearanceType Appearance READ Appearance WRITE setAppearance)
    Q_PROPERTY(QVariant Value READ Value WRITE setValue NOTIFY Change DESIGNABLE false USER true)
    Q_PROPERTY(bool BlockUpDown READ BlockUpDown WRITE setBlockUpDown)
    Q_PROPERTY(bool DataChanged READ DataChanged WRITE setDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(QString Text READ Text WRITE setText)
    Q_PROPERTY(bool Locked READ Locked WRITE setLocked)
    Q_PROPERTY(int SelLength READ SelLength WRITE setSelLength DESIGNABLE false STORED false)
    Q_PROPERTY(QString SelText READ SelText WRITE setSelText DESIGNABLE false STORED false)
    Q_PROPERTY(int SelStart READ SelStart WRITE setSelStart DESIGNABLE false STORED false)
    Q_PROPERTY(int hWnd READ hWnd DESIGNABLE false STORED false)
    Q_PROPERTY(int MaxLength READ MaxLength WRITE setMaxLength)
    Q_PROPERTY(bool EnabledClick READ EnabledClick WRITE setEnabledClick)
    Q_PROPERTY(QString ToolButText READ ToolButText WRITE setToolButText)

public:
    explicit KorClick(QWidget *parent = nullptr);
    ~KorClick() override;

    [[nodiscard]] kor::BorderStyleType BorderStyle() const;
    void setBorderStyle(kor::BorderStyleType style);
    [[nodiscard]] kor::AppearanceType Appearance() const;
    void setAppearance(kor::AppearanceType appearance);

    //! The hidden value of the choice, as the host gave it; Null when nothing is chosen. Raises no `Change`.
    [[nodiscard]] QVariant Value() const;
    void setValue(const QVariant &value);
    //! Whether Up and Down, plain or with Ctrl, are reported and go no further: for hosts that move between rows.
    [[nodiscard]] bool BlockUpDown() const;
    void setBlockUpDown(bool block);
    //! Set by every change of the text, cleared by the host.
    [[nodiscard]] bool DataChanged() const;
    void setDataChanged(bool changed);

    //! What the choice is shown as. Setting it raises `Change` when it becomes another, and leaves `Value`.
    [[nodiscard]] QString Text() const;
    void setText(const QString &text);
    //! Whether the user is kept from changing the text, but for Delete, which clears text and `Value`.
    [[nodiscard]] bool Locked() const;
    void setLocked(bool locked);
    //! How many characters are selected. Setting it selects so many behind `SelStart`, as far as there are.
    [[nodiscard]] int SelLength() const;
    void setSelLength(int length);
    //! The selected text. Setting it replaces the selection.
    [[nodiscard]] QString SelText() const;
    void setSelText(const QString &text);
    //! Where the selection begins, or the caret is. Setting it selects nothing.
    [[nodiscard]] int SelStart() const;
    void setSelStart(int start);
    //! The identifier of the native window that the field is drawn in.
    [[nodiscard]] int hWnd() const;
    //! The most characters the user can type or paste; 0 is no limit. Error 380 below 0.
    [[nodiscard]] int MaxLength() const;
    void setMaxLength(int length);
    //! Whether the host can be asked. When not, the button is grey and the keys that stand for it do nothing.
    [[nodiscard]] bool EnabledClick() const;
    void setEnabledClick(bool enabled);
    //! The text on the button; without one it shows three dots.
    [[nodiscard]] QString ToolButText() const;
    void setToolButText(const QString &text);

    void initProperties() override;
    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    //! The text was changed, by the user or the program. `Value` alone raises nothing.
    void Change();
    //! The button has lost the focus to another widget of the form; not to a chooser that was opened from `Click`.
    void CmdLostFocus();
    //! The button was pressed, or a key that stands for it: the program opens its chooser, and sets `Text` and `Value`.
    void Click();
    void DblClick();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);

protected:
    void layoutConstituents() override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
