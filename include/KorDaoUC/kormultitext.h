// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/usercontrol.h>

#include <memory>

//! One-line field for a long or multi-line text, with a button that opens a larger editor next to it.
//!
//! The editor takes over text, caret and selection and gives them back when it is closed. Tab, F4, Alt+Up, Alt+Down,
//! Escape and a click beside it close it; line breaks come back as they came in.
class KORDAOUC_EXPORT KorMultiText final : public kor::UserControl
{
    Q_OBJECT
    Q_PROPERTY(kor::BorderStyleType BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(kor::AlignmentType Alignment READ Alignment WRITE setAlignment)
    Q_PROPERTY(kor::OpenDirectionType OpenDrection READ OpenDrection WRITE setOpenDrection)
    Q_PROPERTY(bool EnabledClick READ EnabledClick WRITE setEnabledClick)
    Q_PROPERTY(QString Text READ Text WRITE setText NOTIFY Change USER true)
    Q_PROPERTY(int MaxLength READ MaxLength WRITE setMaxLength)
    Q_PROPERTY(int OpenLines READ OpenLines WRITE setOpenLines)
    Q_PROPERTY(bool DataChanged READ DataChanged WRITE setDataChanged DESIGNABLE false)

public:
    explicit KorMultiText(QWidget *parent = nullptr);
    ~KorMultiText() override;

    [[nodiscard]] kor::BorderStyleType BorderStyle() const;
    void setBorderStyle(kor::BorderStyleType style);
    [[nodiscard]] kor::AlignmentType Alignment() const;
    void setAlignment(kor::AlignmentType alignment);
    //! Stored for the form. The editor opens below the field unless the screen ends there, whatever this says.
    [[nodiscard]] kor::OpenDirectionType OpenDrection() const;
    void setOpenDrection(kor::OpenDirectionType direction);
    //! Whether the button works; it is grey otherwise.
    [[nodiscard]] bool EnabledClick() const;
    void setEnabledClick(bool enabled);

    //! The whole text; line breaks are as they came in. Setting another one raises `Change`.
    [[nodiscard]] QString Text() const;
    void setText(const QString &text);
    //! The most characters the user can type or paste; 0 is no limit. Error 380 below 0. The editor takes the limit
    //! over when it is opened for the first time.
    [[nodiscard]] int MaxLength() const;
    void setMaxLength(int length);
    //! The height of the editor, in heights of the field, when it is opened for the first time. Error 380 below 0, and
    //! error 6 above 32,767.
    [[nodiscard]] int OpenLines() const;
    void setOpenLines(int lines);
    //! Set by every change of the text, cleared by the host, saved with the form.
    [[nodiscard]] bool DataChanged() const;
    void setDataChanged(bool changed);

    void initProperties() override;
    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void DblClick();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);
    //! The text was changed, by the user, the editor or the program.
    void Change();

protected:
    void layoutConstituents() override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
