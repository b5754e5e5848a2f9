// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/usercontrol.h>

#include <QtCore/QVariant>

#include <memory>

//! One-line entry field for a number, shown through a display mask while it is not edited.
//!
//! An empty field is Null, not zero. While the field has the focus the bare number is shown with the locale's decimal
//! separator; on leaving, `MaskPicture` formats it. A number too wide for the field is shown as a run of "#" and keeps
//! its full value.
class KORDAOUC_EXPORT KorNumber final : public kor::UserControl
{
    Q_OBJECT
    Q_PROPERTY(bool Locked READ Locked WRITE setLocked)
    Q_PROPERTY(bool DataChanged READ DataChanged WRITE setDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(QVariant Value READ Value WRITE setValue NOTIFY Change DESIGNABLE false USER true)
    Q_PROPERTY(int hWnd READ hWnd DESIGNABLE false STORED false)
    Q_PROPERTY(QString Text READ Text WRITE setText)
    Q_PROPERTY(int MaxLength READ MaxLength WRITE setMaxLength)
    Q_PROPERTY(int WhatsThisHelpID READ WhatsThisHelpID WRITE setWhatsThisHelpID)
    Q_PROPERTY(kor::BorderStyleType BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(kor::AlignmentType Alignment READ Alignment WRITE setAlignment)
    Q_PROPERTY(QString MaskPicture READ MaskPicture WRITE setMaskPicture)
    Q_PROPERTY(QVariant MaxValue READ MaxValue WRITE setMaxValue DESIGNABLE false)
    Q_PROPERTY(QVariant MinValue READ MinValue WRITE setMinValue DESIGNABLE false)
    Q_PROPERTY(bool CheckRange READ CheckRange WRITE setCheckRange)
    Q_PROPERTY(kor::AppearanceType Appearance READ Appearance WRITE setAppearance)
    Q_PROPERTY(bool BlockChange READ BlockChange WRITE setBlockChange)
    Q_PROPERTY(QString ToolTipText READ ToolTipText WRITE setToolTipText)

public:
    explicit KorNumber(QWidget *parent = nullptr);
    ~KorNumber() override;

    //! Whether the user is kept from changing the text. The program may still.
    [[nodiscard]] bool Locked() const;
    void setLocked(bool locked);
    //! The control's own dirty flag: set by a program's Value or Text, cleared by the host. Typing does not set it.
    [[nodiscard]] bool DataChanged() const;
    void setDataChanged(bool changed);

    //! The number: Null (none), a Double, or a Single after clamping to the range.
    [[nodiscard]] QVariant Value() const;
    //! Shows a number. Null, a missing argument, "" and a text that is no number empty the field. With `CheckRange`,
    //! a number outside the range becomes the nearer bound, without a message.
    void setValue(const QVariant &value);
    //! The text as it is shown: formatted, bare, or a run of "#".
    [[nodiscard]] QString Text() const;
    //! Reads a number from a text, with grouping, percent sign and currency allowed; what is no number is Null.
    void setText(const QString &text);

    //! The identifier of the native window that the field is drawn in.
    [[nodiscard]] int hWnd() const;
    //! The most characters the user can type; 0 is no limit.
    [[nodiscard]] int MaxLength() const;
    void setMaxLength(int length);
    [[nodiscard]] int WhatsThisHelpID() const;
    void setWhatsThisHelpID(int id);
    [[nodiscard]] kor::BorderStyleType BorderStyle() const;
    void setBorderStyle(kor::BorderStyleType style);
    [[nodiscard]] kor::AlignmentType Alignment() const;
    void setAlignment(kor::AlignmentType alignment);
    [[nodiscard]] kor::AppearanceType Appearance() const;
    void setAppearance(kor::AppearanceType appearance);
    [[nodiscard]] QString ToolTipText() const;
    void setToolTipText(const QString &text);

    //! The mask of the display, "#,##0.00" at first. Takes effect the next time the number is formatted.
    [[nodiscard]] QString MaskPicture() const;
    void setMaskPicture(const QString &mask);
    //! The bounds of the range, Singles. A text is read by the locale's rules: error 13 for what is no number, and for
    //! a grouping character without three digits behind it.
    [[nodiscard]] QVariant MaxValue() const;
    void setMaxValue(const QVariant &bound);
    //! The lower bound; see MaxValue().
    [[nodiscard]] QVariant MinValue() const;
    void setMinValue(const QVariant &bound);
    //! Whether the bounds hold: a program's value is clamped silently, a typed one brings a message when the field is
    //! left.
    [[nodiscard]] bool CheckRange() const;
    void setCheckRange(bool check);
    //! While True, a change of the text neither updates `Value` nor raises `Change`. Every entry into the field leaves
    //! it False.
    [[nodiscard]] bool BlockChange() const;
    void setBlockChange(bool block);

    void initProperties() override;
    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;

Q_SIGNALS:
    //! The text has changed, typed or set by the program; under `BlockChange` only by a `Text` that is no number.
    void Change();
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);
    void Click();
    void DblClick();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);

private:
    class Private;
    std::unique_ptr<Private> d;
};
