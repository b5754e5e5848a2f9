// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/usercontrol.h>

#include <QtCore/QDate>
#include <QtCore/QVariant>

#include <memory>

//! One-line entry field for a date that is typed in a loose form, stepped by keys, or picked from a month calendar.
//!
//! The text is checked and completed when the field is left; until then `Value` stays what it was. A text that is no
//! date brings a message and the user back. An empty field is Null.
class KORDAOUC_EXPORT KorDate final : public kor::UserControl
{
    Q_OBJECT
    Q_PROPERTY(kor::BorderStyleType BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(QString Text READ Text WRITE setText)
    Q_PROPERTY(QVariant Value READ Value WRITE setValue NOTIFY Change DESIGNABLE false USER true)
    Q_PROPERTY(int WhatsThisHelpID READ WhatsThisHelpID WRITE setWhatsThisHelpID)
    Q_PROPERTY(bool Locked READ Locked WRITE setLocked)
    Q_PROPERTY(bool DataChanged READ DataChanged WRITE setDataChanged DESIGNABLE false STORED false)
    Q_PROPERTY(bool CurrentDate READ CurrentDate WRITE setCurrentDate)
    Q_PROPERTY(bool BlockUpDown READ BlockUpDown WRITE setBlockUpDown)
    Q_PROPERTY(kor::AppearanceType Appearance READ Appearance WRITE setAppearance)
    Q_PROPERTY(bool EnabledClick READ EnabledClick WRITE setEnabledClick)
    Q_PROPERTY(QString FormatMask READ FormatMask WRITE setFormatMask)
    Q_PROPERTY(QString ToolTipText READ ToolTipText WRITE setToolTipText)

public:
    explicit KorDate(QWidget *parent = nullptr);
    ~KorDate() override;

    //! One border around box and button.
    [[nodiscard]] kor::BorderStyleType BorderStyle() const;
    void setBorderStyle(kor::BorderStyleType style);
    //! The text as it is shown.
    [[nodiscard]] QString Text() const;
    //! Reads a date as if it were typed and left. What is no date makes `Value` Null and leaves the text as it was; no
    //! message is shown.
    void setText(const QString &text);
    //! Null or a date; whatever else a program set is kept as it is, except that "", "0" and 0 are Null.
    [[nodiscard]] QVariant Value() const;
    //! Shows a value through `FormatMask`, without a check. A missing argument is Null.
    void setValue(const QVariant &value);
    [[nodiscard]] int WhatsThisHelpID() const;
    void setWhatsThisHelpID(int id);
    //! Whether the user is kept from changing the date, by keys and by the calendar. The program may still.
    [[nodiscard]] bool Locked() const;
    void setLocked(bool locked);
    //! The control's own dirty flag: set by any change, cleared by leaving the field as it was entered, and by the
    //! host.
    [[nodiscard]] bool DataChanged() const;
    void setDataChanged(bool changed);
    //! Whether the control takes today's date when it is loaded and when it is shown for the first time after that.
    [[nodiscard]] bool CurrentDate() const;
    void setCurrentDate(bool current);
    //! Whether Up and Down, alone or with Ctrl, are left to the host instead of stepping the date.
    [[nodiscard]] bool BlockUpDown() const;
    void setBlockUpDown(bool block);
    [[nodiscard]] kor::AppearanceType Appearance() const;
    void setAppearance(kor::AppearanceType appearance);
    //! Whether the calendar can be opened, by its button or by F4.
    [[nodiscard]] bool EnabledClick() const;
    void setEnabledClick(bool enabled);
    //! The mask that dates are written with, "Short Date" at first. Takes effect the next time a date is written.
    [[nodiscard]] QString FormatMask() const;
    void setFormatMask(const QString &mask);
    [[nodiscard]] QString ToolTipText() const;
    void setToolTipText(const QString &text);

    void initProperties() override;
    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    //! The text or the value has changed, and whenever the field is left, changed or not.
    void Change();
    //! A click on the text; or the calendar was opened, by the button or F4.
    void Click();
    void DblClick();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void layoutConstituents() override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
