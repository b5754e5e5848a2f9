// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/usercontrol.h>

#include <memory>

//! Entry box for a whole number, with arrows that step it.
//!
//! Text and value are two things: the value follows the text as far as it lies in the range, and the text shows every
//! value that is set or stepped to. A number out of the range is clamped when the box is left.
class KORDAOUC_EXPORT KorUpDown final : public kor::UserControl
{
    Q_OBJECT
    Q_PROPERTY(int BackStyle READ BackStyle WRITE setBackStyle)
    Q_PROPERTY(kor::BorderStyleType BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(QString Text READ Text WRITE setText)
    Q_PROPERTY(int Value READ Value WRITE setValue NOTIFY Change USER true)
    Q_PROPERTY(int Max READ Max WRITE setMax DESIGNABLE false STORED false)
    Q_PROPERTY(int MaxLength READ MaxLength WRITE setMaxLength)
    Q_PROPERTY(int Min READ Min WRITE setMin DESIGNABLE false STORED false)
    Q_PROPERTY(int Increment READ Increment WRITE setIncrement)

public:
    explicit KorUpDown(QWidget *parent = nullptr);
    ~KorUpDown() override;

    //! 1: the box has a background of its own; 0: the form shows through it. Error 380 for anything else.
    [[nodiscard]] int BackStyle() const;
    void setBackStyle(int style);
    [[nodiscard]] kor::BorderStyleType BorderStyle() const;
    void setBorderStyle(kor::BorderStyleType style);

    //! The text as it stands in the box, number or not.
    [[nodiscard]] QString Text() const;
    //! Shows any text. The value follows if the text begins with a number in the range.
    void setText(const QString &text);
    //! The last number that was in the range; 0 at first.
    [[nodiscard]] int Value() const;
    //! Sets the value; one below 1 is 0. Error 380, and no change, outside the range.
    void setValue(int value);
    //! The range, 0 to 10 at first. It is not saved with the form, so the program sets it each time. A value that is
    //! left outside becomes the bound next to it; the text stays until the box is left.
    [[nodiscard]] int Max() const;
    void setMax(int max);
    //! The lower bound; see Max().
    [[nodiscard]] int Min() const;
    void setMin(int min);
    //! The most characters the user can type or paste; 0 is no limit. Error 380 below 0.
    [[nodiscard]] int MaxLength() const;
    void setMaxLength(int length);
    //! The step of the arrows. Error 380 below 1.
    [[nodiscard]] int Increment() const;
    void setIncrement(int increment);

    void initProperties() override;
    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    //! The text or the value has changed, by the user or the program.
    void Change();
    void Click();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    //! The mouse events come from the control's own surface, which text and arrows leave free.
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);

protected:
    void layoutConstituents() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
