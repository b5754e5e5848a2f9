// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/color.h>

#include <QtCore/QRect>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QWidget>

#include <functional>
#include <utility>

class QPainter;

namespace kor {

//! A picture box that shows nothing but its background colour. System colours follow the theme.
class ColorPatch final : public QWidget
{
    Q_OBJECT

public:
    ColorPatch(OLE_COLOR color, QWidget *parent);

    [[nodiscard]] OLE_COLOR BackColor() const { return m_color; }
    void setBackColor(OLE_COLOR color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    OLE_COLOR m_color;
};

//! Paints a patch of its colour before each name of a list.
class ColorDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using ColorOf = std::function<OLE_COLOR(int row)>;

    ColorDelegate(ColorOf colorOf, QObject *parent) : QStyledItemDelegate(parent), m_colorOf(std::move(colorOf)) {}

    //! The size of a patch beside a name in this font.
    [[nodiscard]] static QSize patchSize(const QFontMetrics &metrics);
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    ColorOf m_colorOf;
};

} // namespace kor
