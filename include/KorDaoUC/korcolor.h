// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/usercontrol.h>

#include <memory>

//! Choice of a colour from a list of names or, by the button or F6, any other one from the colour dialog.
//!
//! The patch beside the list shows the colour of the selected entry, which is `Value`. The bar on the button shows the
//! colour that was last set by the program or chosen in the dialog; the dialog starts from it.
class KORDAOUC_EXPORT KorColor final : public kor::UserControl
{
    Q_OBJECT
    Q_PROPERTY(int Value READ Value WRITE setValue NOTIFY Click USER true)
    Q_PROPERTY(QString ToolTipText READ ToolTipText WRITE setToolTipText)

public:
    explicit KorColor(QWidget *parent = nullptr);
    ~KorColor() override;

    //! The colour of the selected entry.
    [[nodiscard]] kor::OLE_COLOR Value() const;
    //! Selects the first entry of this colour. A colour that is neither in the list nor the dialog's last one selects
    //! "Inny kolor...", and `Value` is then that entry's colour.
    void setValue(kor::OLE_COLOR color);
    [[nodiscard]] QString ToolTipText() const;
    void setToolTipText(const QString &text);

    void initProperties() override;
    //! Applies the saved settings but the colour, which is saved and never read back: a loaded control shows the entry
    //! of a new one.
    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    //! An entry was selected, by the user or the program.
    void Click();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    //! The mouse events come from the control's own surface, around list and button.
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);

protected:
    void layoutConstituents() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
