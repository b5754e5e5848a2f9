// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramexample.h"

#include "constituents/errorguard.h"
#include "constituents/flexgrid/celltext.h"
#include "constituents/flexgrid/flexgrid.h"
#include "param/paramrecord.h"

#include <QtGui/QPainter>

namespace kor {

ParamExample::ParamExample(FlexGrid *grid) : QWidget(grid->viewport()), m_grid(grid)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void ParamExample::place(bool isWanted)
{
    const bool isShown = isWanted && m_grid->Rows() > 1 && m_grid->TextMatrix(1, ParamColumn::Name).isEmpty();
    if (isShown)
        setGeometry(m_grid->cellRect(1, ParamColumn::Name) | m_grid->cellRect(1, ParamColumn::Shown));
    setVisible(isShown);
}

void ParamExample::paintEvent(QPaintEvent *)
{
    guarded(m_grid, [this] {
        QPainter painter(this);
        painter.setFont(m_grid->font());
        QColor faint = m_grid->palette().color(QPalette::Text); // some dark themes leave placeholders dark
        faint.setAlphaF(0.5F);
        painter.setPen(faint);
        const auto draw = [&](ParamColumn::Code column, const QString &text) {
            drawCellText(painter, m_grid->cellRect(1, column).translated(-pos()),
                         {text, CellAlignmentType::LeftCenter, false});
        };
        draw(ParamColumn::Name, QStringLiteral("Przykładowy parametr"));
        draw(ParamColumn::Shown, QStringLiteral("wartość"));
    });
}

} // namespace kor
