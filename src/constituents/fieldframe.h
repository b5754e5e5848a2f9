// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/enumerations.h>

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace kor {

//! The picture box behind a field and its button: paints one border around both, in the field's own colours, and shows
//! the focus as the field alone would.
class FieldFrame final : public QWidget
{
    Q_OBJECT

public:
    explicit FieldFrame(QWidget *parent);

    //! The field whose colours and focus are shown.
    void setField(QWidget *field);
    [[nodiscard]] BorderStyleType BorderStyle() const { return m_border; }
    void setBorderStyle(BorderStyleType style);
    [[nodiscard]] AppearanceType Appearance() const { return m_appearance; }
    void setAppearance(AppearanceType appearance);

    //! The room inside the border.
    [[nodiscard]] QRect inside() const;
    //! How wide the border is on each side.
    [[nodiscard]] int borderWidth() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<QWidget> m_field;
    BorderStyleType m_border = BorderStyleType::FixedSingle;
    AppearanceType m_appearance = AppearanceType::A3D;
};

} // namespace kor
