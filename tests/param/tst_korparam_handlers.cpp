// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"
#include "support/deletion.h"

#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/RunTimeError>

#include <QtCore/QScopedValueRollback>

#include <functional>
#include <vector>

using namespace kor;
using namespace kor::test;

//! Whatever a host's handler does inside any event of the sheet or of its editors, the process lives.
class tst_KorParam_Handlers : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        reported.clear();
        setUnhandledErrorHandler([this](QObject *, const RunTimeError &error) { reported << error.number(); });
        setUp();
        report();
    }
    void cleanup()
    {
        tearDown();
        setUnhandledErrorHandler({});
    }

    void aHandlerMayDoAnything_data();
    void aHandlerMayDoAnything();
    void whatIsComposedMayEndTheSheet();
    void aChooserMayEndTheSheetByItsOwnChoice();
    void anErrorInAChooserLeavesTheEditorOpen();

private:
    //! Uses the sheet in every way that raises an event, as long as it is there.
    void useEverything();
    QList<int> reported;
};

void tst_KorParam_Handlers::useEverything()
{
    const std::vector<std::function<void()>> steps{
        [this] { enter(); },
        [this] { type(QStringLiteral("ab")); },
        [this] { press(Qt::Key_Down); },
        [this] { type(QStringLiteral("5")); },
        [this] { press(Qt::Key_Down); },
        [this] { type(QStringLiteral("020226")); },
        [this] { press(Qt::Key_Down); },
        [this] { type(QStringLiteral("c")); },
        [this] { press(Qt::Key_Down); },
        [this] { press(Qt::Key_F4); },
        [this] { press(Qt::Key_Delete); },
        [this] { press(Qt::Key_Escape); },
        [this] { press(Qt::Key_X); },
        [this] { press(Qt::Key_F2); },
        [this] { click(std::min(2, sheet->Rows() - 1)); },
        [this] { click(std::min(1, sheet->Rows() - 1), 1); },
        [this] { press(Qt::Key_Down); },
        [this] { press(Qt::Key_X); },
        [this] { QTest::mouseDClick(stage->windowHandle(), Qt::LeftButton, {}, inWindow(1, 1)); },
        [this] { press(Qt::Key_Tab); },
        [this] { press(Qt::Key_Backtab); },
        [this] { sheet->setRow(1); },
        [this] { sheet->setParValue(7); },
        [this] { add("COMBO", "Nowy", 1); },
        [this] { sheet->CmbRefresh(); },
        [this] { sheet->Clear(); },
        [this] { leave(); },
    };
    for (const auto &step : steps) {
        if (!sheet)
            return;
        if (!QApplication::focusWidget()) {
            stage->activateWindow(); // after a message
            QVERIFY(QTest::qWaitForWindowActive(stage.get()));
            if (!QApplication::focusWidget())
                stage->button()->setFocus();
        }
        try {
            step();
        } catch (const RunTimeError &error) {
            reported << error.number(); // a direct call tells its caller
        }
        settle();
    }
}

void tst_KorParam_Handlers::aHandlerMayDoAnything_data()
{
    QTest::addColumn<QString>("object"); // "" for the sheet itself
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    const std::vector<std::pair<const char *, const char *>> events{
        {"", "ClickClick"},    {"", "Click"},           {"", "DblClick"},     {"", "KeyDown"},
        {"", "KeyPress"},      {"", "KeyUp"},           {"", "MouseDown"},    {"", "MouseUp"},
        {"KorNum", "Change"},  {"KorNum", "KeyDown"},   {"KorDat", "Change"}, {"KorCmb", "Click"},
        {"KorCmb", "KeyDown"}, {"KorCmb", "Refreshed"}, {"KorClk", "Change"}, {"KorClk", "KeyDown"}};
    for (const auto &[object, event] : events) {
        for (const char *deed : {"deletes the sheet", "adds", "clears", "cuts all rows", "moves", "sets the value",
                                 "hides the sheet", "disables the sheet", "goes elsewhere", "throws"})
            QTest::addRow("%s%s%s %s", object, *object ? "." : "", event, deed)
                << QString::fromLatin1(object) << QString::fromLatin1(event) << QString::fromLatin1(deed);
    }
}

void tst_KorParam_Handlers::aHandlerMayDoAnything()
{
    QFETCH(QString, object);
    QFETCH(QString, event);
    QFETCH(QString, deed);
    int depth = 0;
    QObject *heard = object.isEmpty() ? sheet.data() : sheet->findChild<QObject *>(object);
    const HandlerOf handler(heard, event, [&] {
        if (!sheet || depth > 0)
            return; // what the deed raises itself
        const QScopedValueRollback nested(depth, depth + 1);
        if (deed == u"deletes the sheet")
            delete sheet.data();
        else if (deed == u"adds")
            add("NUMBER", "Z obsługi", 5);
        else if (deed == u"clears")
            sheet->Clear();
        else if (deed == u"cuts all rows")
            sheet->setRows(1);
        else if (deed == u"moves")
            sheet->setRow(sheet->Rows() - 1);
        else if (deed == u"sets the value")
            sheet->setParValue(12);
        else if (deed == u"hides the sheet")
            sheet->hide();
        else if (deed == u"disables the sheet")
            sheet->setEnabled(false);
        else if (deed == u"goes elsewhere")
            stage->button()->setFocus();
        else
            throw RunTimeError(ErrorNumber::Overflow);
    });
    QVERIFY(handler.isListening());
    if (deed == u"deletes the sheet")
        log.reset();
    useEverything();
    QVERIFY2(handler.calls() > 0, "the event was raised");
    if (deed == u"throws")
        QVERIFY(reported.contains(6));
    else if (deed == u"deletes the sheet")
        QVERIFY(!sheet);
    if (!sheet)
        return;
    sheet->setEnabled(true); // and it works on
    sheet->show();
    QVERIFY(sheet->Rows() >= 1);
    while (sheet->Row() != 0)
        sheet->setRow(0);
}

void tst_KorParam_Handlers::whatIsComposedMayEndTheSheet()
{
    click(Number);
    press(Qt::Key_Escape); // the sheet itself has the keyboard now
    const DeletionOn deletion(editor("KorNum"), QStringLiteral("Change"));
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("7"));
    QApplication::sendEvent(view(), &composed);
    QVERIFY(deletion.isDone());
    settle();
}

void tst_KorParam_Handlers::aChooserMayEndTheSheetByItsOwnChoice()
{
    click(Click);
    log.reset();
    const HandlerOf onChange(editor("KorClk"), QStringLiteral("Change"), [this] { delete sheet.data(); });
    connect(sheet, &KorParam::ClickClick, this,
            [this](const QString &) { sheet->setClickText(QStringLiteral("Gdańsk")); });
    press(Qt::Key_F4);
    QVERIFY(!sheet);
}

void tst_KorParam_Handlers::anErrorInAChooserLeavesTheEditorOpen()
{
    connect(sheet, &KorParam::ClickClick, this,
            [](const QString &) { throw RunTimeError(ErrorNumber::InvalidProcedureCall); });
    click(Click);
    press(Qt::Key_F4);
    QCOMPARE(reported, QList<int>{5});
    QCOMPARE(openEditor(), QStringLiteral("KorClk"));
    sheet->setClickText(QStringLiteral("Gdańsk"));
    QCOMPARE(shown(Click), QStringLiteral("Gdańsk"));
    leave();
    sheet->setClickText(QStringLiteral("nigdzie")); // the chooser is over
    QCOMPARE(shown(Click), QStringLiteral("Gdańsk"));
}

QTEST_MAIN(tst_KorParam_Handlers)
#include "tst_korparam_handlers.moc"
