// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/eventlog.h"
#include "support/stage.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Locale>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

#include <memory>

namespace kor::test {

//! A grid on a stage, with the keyboard on the button beside it, and Polish signs.
class GridSuite : public QObject
{
protected:
    // The columns of orderColumns().
    enum Column { Product = 1, Price, Unit, Delivery, Store, Exact, Remark, Number };

    void setUp(int width = 640, int height = 220)
    {
        failOnWarnings();
        Locale::setSystemDefault(Locale::polish());
        Clock::setSource([] { return QDate(2026, 11, 21); });
        stage = std::make_unique<Stage>();
        grid = stage->place(new KorGrid, width, height);
        stage->resize(width + 20, height + 80);
        messages = std::make_unique<Messages>();
        QVERIFY(stage->open());
        stage->button()->setFocus();
        settle();
        log = std::make_unique<EventLog>(grid.data());
        log->ignore({QStringLiteral("MouseMove")});
    }
    void tearDown()
    {
        log.reset();
        messages.reset();
        stage.reset();
        Clock::setSource({});
    }

    //! The lines of an order: product, price with its value column, unit, delivery, store, the hidden exact price, a
    //! remark that wraps, and a locked running number.
    void orderColumns(int rows = 6)
    {
        const QString units = QStringLiteral("LIST S;sztuka|K;karton|P;paleta");
        grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0);
        grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Cena"), 1200, 1, false, QStringLiteral("#,##0.00"), 0,
                        0, QString(), QString(), Exact);
        grid->AddColumn(QStringLiteral("COMBO"), QStringLiteral("J.m."), 1000, 0, false, QString(), 0, 0, units,
                        QStringLiteral("jednostki"));
        grid->AddColumn(QStringLiteral("DATE"), QStringLiteral("Dostawa"), 1300, 2);
        grid->AddColumn(QStringLiteral("CLICK"), QStringLiteral("Magazyn"), 1300, 0);
        grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Cena dokładna"), 0, 0);
        grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Uwagi"), 1300, 0, false, QString(), 0, 0, QString(),
                        QString(), 0, true);
        grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Lp."), 600, 1, true);
        grid->setRows(rows);
        settle();
        (void)log->take();
    }

    [[nodiscard]] QTableView *view() const { return grid->findChild<QTableView *>(QStringLiteral("grid")); }
    [[nodiscard]] QRect cellRect(int row, int column) const
    {
        return view()->visualRect(view()->model()->index(row - 1, column - 1));
    }
    //! Through the window, so that a handler may delete the grid between press and release.
    void click(int row, int column)
    {
        QTest::mouseClick(stage->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow(row, column));
        settle();
    }
    [[nodiscard]] QPoint inWindow(int row, int column) const
    {
        return view()->viewport()->mapTo(stage.get(), cellRect(row, column).center());
    }
    //! The names of the editors that are shown, in no doubt "" or one of them.
    [[nodiscard]] QString openEditor() const
    {
        QStringList shown;
        for (const char *name : {"TxtBox", "TxtMBox", "KorNum", "KorDate", "KorCmb", "KorClick"}) {
            const auto *editor = grid->findChild<QWidget *>(QString::fromLatin1(name));
            if (editor && editor->isVisible())
                shown << QString::fromLatin1(name);
        }
        return shown.join(u' ');
    }
    template <class Editor = QWidget>
    [[nodiscard]] Editor *editor(const char *name) const
    {
        return grid->findChild<Editor *>(QString::fromLatin1(name));
    }
    [[nodiscard]] bool hasKeyboard(const char *name) const
    {
        const QWidget *focused = QApplication::focusWidget();
        return focused && (focused == editor(name) || editor(name)->isAncestorOf(focused));
    }
    void type(const QString &text)
    {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
    //! The texts of a row's data cells, "|" between them.
    [[nodiscard]] QString row(int row) const
    {
        QStringList texts;
        for (int column = 1; column < grid->Cols(); ++column)
            texts << grid->TextMatrix(row, column);
        return texts.join(u'|');
    }
    //! The texts of a column's data cells.
    [[nodiscard]] QString column(int column) const
    {
        QStringList texts;
        for (int row = 1; row < grid->Rows(); ++row)
            texts << grid->TextMatrix(row, column);
        return texts.join(u'|');
    }
    [[nodiscard]] QString place() const { return QStringLiteral("%1,%2").arg(grid->Row()).arg(grid->Col()); }

    std::unique_ptr<Stage> stage;
    std::unique_ptr<Messages> messages;
    std::unique_ptr<EventLog> log;
    QPointer<KorGrid> grid;
};

} // namespace kor::test
