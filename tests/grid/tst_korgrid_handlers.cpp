// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"
#include "support/deletion.h"

#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/RunTimeError>

#include <functional>

using namespace kor;
using namespace kor::test;

//! Whatever a host's handler does inside any event of the grid, the process lives, and what was typed stands.
class tst_KorGrid_Handlers : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        reported.clear();
        setUnhandledErrorHandler([this](QObject *, const RunTimeError &error) { reported << error.number(); });
        setUp();
        orderColumns();
        grid->setTextControl(3, Price, QStringLiteral("1234,5")); // rewritten when it is entered
    }
    void cleanup()
    {
        tearDown();
        setUnhandledErrorHandler({});
    }

    void whatIsComposedMayEndTheGrid();
    void anythingMayHappenUnderTheMessage_data();
    void anythingMayHappenUnderTheMessage();
    void aPressMayEndTheGrid_data();
    void aPressMayEndTheGrid();
    void beingEnteredMayEndTheGrid_data();
    void beingEnteredMayEndTheGrid();
    void aHandlerMayDoAnything_data();
    void aHandlerMayDoAnything();
    void aHandlerSwallowsAndChangesKeys();
    void changeSeesTheCellAlreadyWritten();

private:
    //! Uses the grid in every way that raises an event, as long as it is there.
    void useEverything();
    QList<int> reported;
};

void tst_KorGrid_Handlers::aPressMayEndTheGrid_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("right press on a cell") << 2 << int(Product);
    QTest::newRow("right press on a title") << 0 << int(Product);
    QTest::newRow("right press on the fixed column") << 2 << 0;
    QTest::newRow("right press on the corner") << 0 << 0;
}

//! To the window, as the window system does it: the context menu comes right after the press.
void tst_KorGrid_Handlers::aPressMayEndTheGrid()
{
    QFETCH(int, row);
    QFETCH(int, column);
    const DeletionOn deletion(grid, QStringLiteral("MouseDown"));
    QPoint place = inWindow(std::max(row, 1), std::max(column, 1));
    const QPoint corner = view()->viewport()->mapTo(stage.get(), QPoint(-4, -4));
    place = {column == 0 ? corner.x() : place.x(), row == 0 ? corner.y() : place.y()};
    QTest::mouseClick(stage->windowHandle(), Qt::RightButton, Qt::NoModifier, place);
    settle();
    QVERIFY(deletion.isDone());
}

void tst_KorGrid_Handlers::beingEnteredMayEndTheGrid_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"by the program", "by Tab", "by a click"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_KorGrid_Handlers::beingEnteredMayEndTheGrid()
{
    QFETCH(QString, way);
    const DeletionOn deletion(grid, QStringLiteral("SelChange"));
    if (way == u"by the program")
        grid->setFocus();
    else if (way == u"by Tab")
        QTest::keyClick(stage->windowHandle(), Qt::Key_Tab);
    else
        QTest::mouseClick(stage->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow(2, Price));
    settle();
    QVERIFY(deletion.isDone());
    QVERIFY(stage->isActiveWindow());
}

void tst_KorGrid_Handlers::useEverything()
{
    const std::vector<std::function<void()>> steps{
        [this] { click(2, Product); },
        [this] { type(QStringLiteral("ab")); },
        [this] { press(Qt::Key_Tab); },
        [this] { press(Qt::Key_Down); },
        [this] { type(QStringLiteral("5")); },
        [this] { press(Qt::Key_Escape); },
        [this] { press(Qt::Key_Right); },
        [this] { press(Qt::Key_F2); },
        [this] { click(2, Store); },
        [this] { press(Qt::Key_F4); },
        [this] { click(2, Number); },
        [this] { press(Qt::Key_X); },
        [this] { QTest::mouseDClick(stage->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow(2, Number)); },
        [this] { QTest::mouseMove(stage->windowHandle(), inWindow(2, Number)); },
        [this] { grid->setTextMatrix(1, Price, QStringLiteral("7")); },
        [this] { grid->setRow(1); },
        [this] { (void)grid->SetFocusCell(2, 1); },
        [this] { grid->AddRow(0, 1, 2); },
        [this] { grid->DelRow(1, 2); },
        [this] { stage->button()->setFocus(); },
    };
    for (const auto &step : steps) {
        if (!grid)
            return;
        const QPointer<QWidget> focused = QApplication::focusWidget();
        if (!focused)
            stage->button()->setFocus();
        try {
            step();
        } catch (const RunTimeError &error) {
            reported << error.number(); // a direct call tells its caller
        } catch (const std::exception &) {
            reported << 51;
        }
        settle();
    }
}

void tst_KorGrid_Handlers::aHandlerMayDoAnything_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    for (const char *event : {"ClickClick", "Change", "SelChange", "Click", "DblClick", "KeyDown", "KeyPress", "KeyUp",
                              "MouseDown", "MouseMove", "MouseUp", "MouseDownRow"}) {
        for (const char *deed : {"deletes the grid", "deletes a row", "deletes all rows", "cuts the columns", "moves",
                                 "writes the cell", "hides the grid", "disables the grid", "throws"})
            QTest::addRow("%s %s", event, deed) << QString::fromLatin1(event) << QString::fromLatin1(deed);
    }
}

void tst_KorGrid_Handlers::aHandlerMayDoAnything()
{
    QFETCH(QString, event);
    QFETCH(QString, deed);
    int depth = 0;
    const HandlerOf handler(grid, event, [&] {
        if (!grid || depth > 0)
            return; // what the deed raises itself
        const QScopedValueRollback nested(depth, depth + 1);
        if (deed == u"deletes the grid")
            delete grid.data();
        else if (deed == u"deletes a row")
            grid->DelRow(grid->Row());
        else if (deed == u"deletes all rows")
            grid->setRows(1);
        else if (deed == u"cuts the columns")
            grid->setCols(2);
        else if (deed == u"moves")
            grid->setRow(grid->Rows() - 1);
        else if (deed == u"writes the cell")
            grid->setTextControl(grid->Row(), grid->Col(), QStringLiteral("12"));
        else if (deed == u"hides the grid")
            grid->hide();
        else if (deed == u"disables the grid")
            grid->setEnabled(false);
        else
            throw RunTimeError(ErrorNumber::Overflow);
    });
    QVERIFY(handler.isListening());
    if (deed == u"deletes the grid")
        log.reset();
    useEverything();
    const bool isReached = handler.calls() > 0;
    QVERIFY2(isReached, "the event was raised");
    if (deed == u"throws")
        QVERIFY(reported.contains(6));
    else if (deed == u"deletes the grid")
        QVERIFY(!grid);
    if (grid) { // and it works on
        grid->setEnabled(true);
        grid->show();
        QVERIFY(grid->Rows() >= 1 && grid->Cols() >= 1);
    }
}

void tst_KorGrid_Handlers::aHandlerSwallowsAndChangesKeys()
{
    click(2, Number); // locked: the keys are the grid's
    connect(grid, &KorGrid::KeyDown, this, [](int &code, int &) { code = code == Qt::Key_Down ? 0 : code; });
    connect(grid, &KorGrid::KeyPress, this, [](int &ascii) { ascii = 'y'; });
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_F2);
    QVERIFY(openEditor().isEmpty() || grid->Col() != Number);
    grid->setCol(Product);
    press(Qt::Key_F2);
    QCOMPARE(openEditor(), QString());
    press(Qt::Key_X);
    QCOMPARE(grid->TextMatrix(2, Product), QStringLiteral("y"));
}

void tst_KorGrid_Handlers::changeSeesTheCellAlreadyWritten()
{
    QStringList seen;
    connect(grid, &KorGrid::Change, this, [&](int &row, int &column) {
        seen << grid->TextMatrix(row, column) + u'/' + grid->TextMatrix(row, Exact);
    });
    click(3, Price);
    type(QStringLiteral("8"));
    QCOMPARE(seen, (QStringList{QStringLiteral("1\u00a0234,50/1234,5"), QStringLiteral("8/8")}));
}

void tst_KorGrid_Handlers::whatIsComposedMayEndTheGrid()
{
    click(1, 1);
    press(Qt::Key_Escape); // the grid itself has the keyboard now
    const DeletionOn deletion(grid, QStringLiteral("SelChange"));
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("ą"));
    QApplication::sendEvent(view(), &composed);
    QVERIFY(deletion.isDone());
    settle();
}

void tst_KorGrid_Handlers::anythingMayHappenUnderTheMessage_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<bool>("stays"); // the user, in the cell
    for (const char *deed :
         {"deletes the grid", "deletes the row", "deletes a row above", "empties the grid", "cuts the columns",
          "describes the column", "moves", "hides the grid", "disables the grid"}) {
        const QString text = QString::fromLatin1(deed);
        QTest::newRow(deed) << text << (text == u"deletes a row above" || text == u"moves");
    }
}

//! A timer of the program goes off while the message about a refused date is up.
void tst_KorGrid_Handlers::anythingMayHappenUnderTheMessage()
{
    QFETCH(QString, deed);
    QFETCH(bool, stays);
    click(3, Delivery);
    type(QStringLiteral("99"));
    bool isDone = false;
    messages->beneath([&] {
        isDone = true;
        if (deed == u"deletes the grid") {
            log.reset();
            delete grid.data();
        } else if (deed == u"deletes the row") {
            grid->DelRow(3);
        } else if (deed == u"deletes a row above") {
            grid->DelRow(1);
        } else if (deed == u"empties the grid") {
            grid->setRows(1);
        } else if (deed == u"cuts the columns") {
            grid->setCols(2);
        } else if (deed == u"describes the column") {
            grid->setTextControl(0, 1, QString());
            grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Lp."), 600, 1, true);
        } else if (deed == u"moves") {
            grid->setRow(1);
        } else if (deed == u"hides the grid") {
            grid->hide();
        } else {
            grid->setEnabled(false);
        }
    });
    press(Qt::Key_Return);
    settle();
    QVERIFY(isDone);
    QCOMPARE(messages->take().size(), 1);
    if (!grid)
        return;
    QCOMPARE(openEditor(), stays ? QStringLiteral("KorDate") : QString());
    if (stays) {
        QVERIFY(hasKeyboard("KorDate"));
        QCOMPARE(grid->TextMatrix(grid->Row(), Delivery), QStringLiteral("99"));
        press(Qt::Key_Escape);
        QCOMPARE(grid->TextMatrix(grid->Row(), Delivery), QString());
    }
    if (!grid->isVisible() || !grid->isEnabled()) {
        QCOMPARE(grid->Row(), 3); // Enter goes nowhere
        QCOMPARE(grid->Col(), int(Delivery));
        grid->show();
        grid->setEnabled(true);
        settle();
        QCOMPARE(openEditor(), QString());
    }
    QVERIFY(grid->Rows() >= 1 && grid->Cols() >= 1);
    QCOMPARE(reported, QList<int>());
}

QTEST_MAIN(tst_KorGrid_Handlers)
#include "tst_korgrid_handlers.moc"
