// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/eventlog.h"
#include "support/stage.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/KorParam>
#include <KorDaoUC/Locale>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

#include <memory>

namespace kor::test {

//! A sheet on a stage, with the keyboard on the button beside it, and Polish signs.
class ParamSuite : public QObject
{
protected:
    // The rows of report().
    enum Row { Text = 1, Number, Date, Combo, Click, Other };

    void setUp(int width = 420, int height = 240)
    {
        failOnWarnings();
        Locale::setSystemDefault(Locale::polish());
        Clock::setSource([] { return QDate(2026, 11, 21); });
        stage = std::make_unique<Stage>();
        sheet = stage->place(new KorParam, width, height);
        stage->resize(width + 20, height + 80);
        messages = std::make_unique<Messages>();
        QVERIFY(stage->open());
        stage->button()->setFocus();
        settle();
        log = std::make_unique<EventLog>(sheet.data());
    }
    void tearDown()
    {
        log.reset();
        messages.reset();
        stage.reset();
        Clock::setSource({});
    }

    //! A parameter of each kind, and one of a kind that there is not.
    void report()
    {
        add("TEXT", "Tytuł", QStringLiteral("Zestawienie"));
        sheet->AddParam(QStringLiteral("Kwota od"), QStringLiteral("kwota"), QStringLiteral("NUMBER"), 1234.5,
                        QStringLiteral("Double"), 0, QStringLiteral("z.kwota"), QString(), QString(), 0, 0, QString(),
                        QString(), QStringLiteral("#,##0.00"));
        add("DATE", "Od dnia", QDate(2026, 11, 1));
        sheet->AddParam(QStringLiteral("Klient"), QStringLiteral("klient"), QStringLiteral("COMBO"), 7, QString(), 0,
                        QStringLiteral("z.klient"), QStringLiteral("LIST 5;Abakus|7;Bartek|9;Celina"),
                        QStringLiteral("(wszyscy)"), 0, 0, QString(), QStringLiteral("klienci"));
        sheet->AddParam(QStringLiteral("Magazyn"), QStringLiteral("magazyn"), QStringLiteral("CLICK"), 3, QString(), 0,
                        QString(), QString(), QString(), 0, 0, QStringLiteral("Gdynia"));
        add("INNY", "Uwaga", QStringLiteral("bez edytora"));
        settle();
        (void)log->take();
    }
    void add(const char *kind, const char *name, const QVariant &value = missing())
    {
        sheet->AddParam(QString::fromUtf8(name), QString::fromUtf8(name).left(3).toLower(), QString::fromLatin1(kind),
                        value);
    }

    [[nodiscard]] QTableView *view() const { return sheet->findChild<QTableView *>(QStringLiteral("grid")); }
    [[nodiscard]] QRect cellRect(int row, int column) const
    {
        return view()->visualRect(view()->model()->index(row - 1, column - 1));
    }
    //! The text of a cell, hidden ones too.
    [[nodiscard]] QString cell(int row, int column) const
    {
        if (row == 0)
            return view()->model()->headerData(column - 1, Qt::Horizontal).toString();
        return view()->model()->index(row - 1, column - 1).data().toString();
    }
    [[nodiscard]] QPoint inWindow(int row, int column = 2) const
    {
        return view()->viewport()->mapTo(stage.get(), cellRect(row, column).center());
    }
    //! Through the window, so that a handler may delete the sheet between press and release.
    void click(int row, int column = 2)
    {
        QTest::mouseClick(stage->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow(row, column));
        settle();
    }
    //! The names of the editors that are shown: none or one.
    [[nodiscard]] QString openEditor() const
    {
        QStringList shown;
        for (const char *name : {"TxtBox", "KorNum", "KorDat", "KorCmb", "KorClk"}) {
            if (editor(name)->isVisible())
                shown << QString::fromLatin1(name);
        }
        return shown.join(u' ');
    }
    template <class Editor = QWidget>
    [[nodiscard]] Editor *editor(const char *name) const
    {
        return sheet->findChild<Editor *>(QString::fromLatin1(name));
    }
    [[nodiscard]] bool hasKeyboard(const char *name) const
    {
        const QWidget *focused = QApplication::focusWidget();
        return focused && (focused == editor(name) || editor(name)->isAncestorOf(focused));
    }
    void enter()
    {
        sheet->setFocus(Qt::TabFocusReason);
        settle();
    }
    void leave()
    {
        stage->button()->setFocus();
        settle();
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
    //! As a host reads the parameters. Without one that is open, nothing closes by it.
    [[nodiscard]] QString shown(int row) const { return cell(row, 2); }
    [[nodiscard]] QVariant valueOf(int row)
    {
        sheet->setRow(row);
        return sheet->ParValue();
    }
    //! The shown values of all rows.
    [[nodiscard]] QString allShown() const
    {
        QStringList texts;
        for (int row = 1; row < sheet->Rows(); ++row)
            texts << shown(row);
        return texts.join(u'|');
    }

    std::unique_ptr<Stage> stage;
    std::unique_ptr<Messages> messages;
    std::unique_ptr<EventLog> log;
    QPointer<KorParam> sheet;
};

} // namespace kor::test
