// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/color.h>

#include <QtCore/QString>
#include <QtWidgets/QDialog>

#include <optional>

class QColorDialog;
class QIcon;
class QListWidget;
class QTabWidget;

namespace kor {

//! What a colour is called: a system colour by its part of the screen, any other by its three bytes.
[[nodiscard]] QString colorName(OLE_COLOR color);
//! A patch of the colour, as the widget's theme shows it.
[[nodiscard]] QIcon colorPicture(OLE_COLOR color, const QWidget &widget);

//! Offers the system colours, which follow the theme, and all others.
class ColorChooser final : public QDialog
{
    Q_OBJECT

public:
    ColorChooser(OLE_COLOR color, QWidget *parent);

    //! The colour chosen on the page that is open; none when nothing is chosen there.
    [[nodiscard]] std::optional<OLE_COLOR> color() const;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QTabWidget *m_pages;
    QListWidget *m_system;
    QColorDialog *m_others;
};

} // namespace kor
