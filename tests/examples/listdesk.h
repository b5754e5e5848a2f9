// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "examples/rememberingdesk.h"
#include "orders/listwindow.h"

#include <KorDaoUC/KorGrid>

#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTableView>

namespace orders::test {

//! An order desk with the list of its orders.
class ListDesk : public RememberingDesk
{
protected:
    void openList()
    {
        press(Qt::Key_L, Qt::ControlModifier);
        m_list = nullptr;
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *list = qobject_cast<ListWindow *>(window))
                m_list = list;
        }
        QVERIFY(m_list);
        bringUp(*m_list);
    }

    [[nodiscard]] KorGrid *grid() const { return m_list->findChild<KorGrid *>(); }
    [[nodiscard]] QTableView *view() const { return grid()->findChild<QTableView *>(QStringLiteral("grid")); }
    [[nodiscard]] QString sums() const { return m_list->findChild<QLabel *>(QStringLiteral("lblSums"))->text(); }
    [[nodiscard]] QString said() const { return m_list->findChild<QStatusBar *>()->currentMessage(); }
    [[nodiscard]] QString cell(int row, ListColumn column) const { return grid()->TextMatrix(row, int(column)); }
    [[nodiscard]] QString current(ListColumn column) const { return cell(grid()->Row(), column); }
    [[nodiscard]] QStringList column(ListColumn column) const
    {
        QStringList texts;
        for (int row = 1; row < grid()->Rows(); ++row)
            texts << cell(row, column);
        return texts;
    }
    void goTo(const QString &number)
    {
        const int place = static_cast<int>(column(ListColumn::Number).indexOf(number));
        QVERIFY(place >= 0);
        grid()->setRow(place + 1);
        QCOMPARE(current(ListColumn::Number), number);
    }
    void enter(const char *field, const QString &text)
    {
        m_list->findChild<QWidget *>(QString::fromLatin1(field))->setFocus(Qt::TabFocusReason);
        kor::test::settle();
        if (qstrcmp(field, "lstTerms") == 0)
            press(Qt::Key_Down); // to the first one
        type(text);
    }

    ListWindow *m_list = nullptr;
};

} // namespace orders::test
