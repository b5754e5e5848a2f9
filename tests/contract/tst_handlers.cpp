// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/deletion.h"
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/KorColor>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/KorUpDown>
#include <KorDaoUC/UserControl>

#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>

#include <memory>
#include <new>
#include <stdexcept>

using namespace kor;
using namespace kor::test;

namespace {

//! A form's own control around another one, which hears of its errors too.
class Composite : public QWidget
{
    Q_OBJECT
Q_SIGNALS:
    void Error(int &Number, QString &Description, bool &Handled);
};

using Throw = std::function<void()>;

} // namespace
Q_DECLARE_METATYPE(Throw)

//! Whatever a host's handler does, the process lives and the rest of the form works on.
class tst_Handlers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void whatAHandlerThrowsIsReported_data();
    void whatAHandlerThrowsIsReported();
    void deletionAndAnErrorInOne_data() { controls(); }
    void deletionAndAnErrorInOne();
    void deletionInsideTheErrorHandler_data() { controls(); }
    void deletionInsideTheErrorHandler();
    void anErrorInsideTheErrorHandlerGoesOnOutward_data() { controls(); }
    void anErrorInsideTheErrorHandlerGoesOnOutward();
    void anErrorHandlerAtWorkIsNotCalledForWhatComesOfIt();
    void anErrorInTheLastHandlerIsAWarning();
    void errorsTravelOutward_data();
    void errorsTravelOutward();

    void aRightPressIsToldBeforeItsMenu();
    void aHostsHandlerOnTheBoxThatThrowsSilencesNothing();

    void theFieldEnteredNextIsEnteredWhateverTheLastOneThrows();
    void aDialogOpenedByChangeHasFieldsThatWork();

private:
    static void controls();
    UserControl *create(const QString &name);
    void pressKey(int key = Qt::Key_F9) { QTest::keyPress(QApplication::focusWidget(), Qt::Key(key)); }
    //! The numbers of the errors that came to the host's own handler.
    [[nodiscard]] QList<int> reported() { return std::exchange(m_reported, {}); }

    std::unique_ptr<Stage> m_stage;
    QList<int> m_reported;
};

void tst_Handlers::init()
{
    failOnWarnings();
    setUnhandledErrorHandler([this](QObject *, const RunTimeError &error) { m_reported << error.number(); });
    m_reported.clear();
    m_stage = std::make_unique<Stage>();
}

void tst_Handlers::cleanup()
{
    m_stage.reset();
    setUnhandledErrorHandler({});
}

void tst_Handlers::controls()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : ControlRegistry::names())
        QTest::newRow(qPrintable(name)) << name;
}

UserControl *tst_Handlers::create(const QString &name)
{
    auto *control = m_stage->place(ControlRegistry::create(name, m_stage.get()));
    if (!m_stage->open())
        return nullptr;
    control->setFocus();
    settle();
    closeCellEditor(control);
    return control;
}

// --- errors

void tst_Handlers::whatAHandlerThrowsIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Throw>("deed");
    QTest::addColumn<int>("number");
    const std::vector<std::tuple<const char *, Throw, int>> deeds{
        {"a run-time error", [] { throw RunTimeError(ErrorNumber::Overflow); }, 6},
        {"a standard exception", [] { throw std::runtime_error("x"); }, 51},
        {"no memory", [] { throw std::bad_alloc(); }, 7},
        {"what is no exception", [] { throw 1; }, 51},
    };
    for (const QString &name : ControlRegistry::names()) {
        for (const auto &[what, deed, number] : deeds)
            QTest::addRow("%s, %s", qPrintable(name), what) << name << deed << number;
    }
}

void tst_Handlers::whatAHandlerThrowsIsReported()
{
    QFETCH(QString, name);
    QFETCH(Throw, deed);
    QFETCH(int, number);
    const QPointer<UserControl> control = create(name);
    QVERIFY(control);
    {
        const HandlerOf handler(control, QStringLiteral("KeyDown"), deed);
        pressKey();
        QCOMPARE(handler.calls(), 1);
    }
    QCOMPARE(reported(), QList<int>{number});
    const HandlerOf next(control, QStringLiteral("KeyDown"), [] {});
    pressKey();
    QCOMPARE(next.calls(), 1);
    QCOMPARE(reported(), QList<int>());
}

void tst_Handlers::deletionAndAnErrorInOne()
{
    QFETCH(QString, name);
    const QPointer<UserControl> control = create(name);
    QVERIFY(control);
    const HandlerOf handler(control, QStringLiteral("KeyDown"), [&] {
        delete control.data();
        throw RunTimeError(ErrorNumber::Overflow);
    });
    pressKey();
    settle();
    QVERIFY(!control);
    QCOMPARE(reported(), QList<int>{6});
}

void tst_Handlers::deletionInsideTheErrorHandler()
{
    QFETCH(QString, name);
    const QPointer<UserControl> control = create(name);
    QVERIFY(control);
    const HandlerOf handler(control, QStringLiteral("KeyDown"), [] { throw RunTimeError(ErrorNumber::Overflow); });
    const DeletionOn deletion(control, QStringLiteral("Error"));
    pressKey();
    settle();
    QVERIFY(deletion.isDone());
    QCOMPARE(reported(), QList<int>{6}); // it was not taken
}

void tst_Handlers::anErrorInsideTheErrorHandlerGoesOnOutward()
{
    QFETCH(QString, name);
    UserControl *control = create(name);
    QVERIFY(control);
    const HandlerOf handler(control, QStringLiteral("KeyDown"), [] { throw RunTimeError(ErrorNumber::Overflow); });
    const HandlerOf error(control, QStringLiteral("Error"), [] { throw 1; });
    pressKey();
    QCOMPARE(reported(), (QList<int>{6, 51}));
    pressKey();
    QCOMPARE(error.calls(), 2);
}

void tst_Handlers::anErrorHandlerAtWorkIsNotCalledForWhatComesOfIt()
{
    UserControl *control = create(QStringLiteral("KorNumber"));
    const HandlerOf handler(control, QStringLiteral("KeyDown"), [] { throw RunTimeError(ErrorNumber::Overflow); });
    const HandlerOf error(control, QStringLiteral("Error"), [this] { pressKey(); });
    pressKey();
    QCOMPARE(error.calls(), 1);
    QCOMPARE(handler.calls(), 2);
    QCOMPARE(reported(), (QList<int>{6, 6}));
}

void tst_Handlers::anErrorInTheLastHandlerIsAWarning()
{
    UserControl *control = create(QStringLiteral("KorNumber"));
    const HandlerOf handler(control, QStringLiteral("KeyDown"), [] { throw RunTimeError(ErrorNumber::Overflow); });
    setUnhandledErrorHandler([](QObject *, const RunTimeError &) { throw RunTimeError(ErrorNumber::TypeMismatch); });
    QTest::ignoreMessage(QtWarningMsg, "13: Type mismatch");
    pressKey();
    setUnhandledErrorHandler([this](QObject *, const RunTimeError &error) {
        m_reported << error.number();
        pressKey();
    });
    QTest::ignoreMessage(QtWarningMsg, "6: Overflow");
    pressKey();
    QCOMPARE(reported(), QList<int>{6});
}

void tst_Handlers::errorsTravelOutward_data()
{
    QTest::addColumn<QString>("handledBy");
    QTest::addColumn<QString>("heard");
    QTest::newRow("nobody takes it") << QString() << QStringLiteral("control, inner, outer, host");
    QTest::newRow("its own handler takes it") << QStringLiteral("control") << QStringLiteral("control");
    QTest::newRow("the one around takes it") << QStringLiteral("inner") << QStringLiteral("control, inner");
    QTest::newRow("the outermost takes it") << QStringLiteral("outer") << QStringLiteral("control, inner, outer");
}

void tst_Handlers::errorsTravelOutward()
{
    QFETCH(QString, handledBy);
    QFETCH(QString, heard);
    QStringList seen;
    auto *outer = m_stage->place(new Composite);
    auto *inner = new Composite;
    inner->setParent(outer);
    auto *number = new KorNumber(inner);
    const auto listen = [&](auto *place, const QString &name) {
        connect(place, &std::remove_pointer_t<decltype(place)>::Error, this,
                [&seen, name, handledBy](int &code, QString &, bool &handled) {
                    seen << name;
                    handled = name == handledBy;
                    code = 0; // a handler's own business
                });
    };
    listen(static_cast<UserControl *>(number), QStringLiteral("control"));
    listen(inner, QStringLiteral("inner"));
    listen(outer, QStringLiteral("outer"));
    setUnhandledErrorHandler([&](QObject *source, const RunTimeError &error) {
        seen << QStringLiteral("host");
        QCOMPARE(error.number(), 6);
        QVERIFY(number->isAncestorOf(qobject_cast<QWidget *>(source)));
    });
    QVERIFY(m_stage->open());
    number->setFocus();
    settle();
    const HandlerOf handler(number, QStringLiteral("KeyDown"), [] { throw RunTimeError(ErrorNumber::Overflow); });
    pressKey();
    QCOMPARE(seen.join(QStringLiteral(", ")), heard);
}

// --- menus and boxes

void tst_Handlers::aRightPressIsToldBeforeItsMenu()
{
    UserControl *number = create(QStringLiteral("KorNumber"));
    bool isMenuThere = true;
    const HandlerOf handler(number, QStringLiteral("MouseDown"),
                            [&] { isMenuThere = QApplication::activePopupWidget(); });
    QTest::mousePress(m_stage->windowHandle(), Qt::RightButton, {}, number->geometry().center());
    QCOMPARE(handler.calls(), 1);
    QVERIFY(!isMenuThere);
    QVERIFY(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
    QApplication::activePopupWidget()->close();
    QTest::mouseRelease(m_stage->windowHandle(), Qt::RightButton, {}, number->geometry().center());
    settle();
    QCOMPARE(handler.calls(), 1);
}

void tst_Handlers::aHostsHandlerOnTheBoxThatThrowsSilencesNothing()
{
    UserControl *number = create(QStringLiteral("KorNumber"));
    const HandlerOf change(number, QStringLiteral("Change"), [] {});
    auto *box = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    const auto throwing = connect(box, &QLineEdit::textChanged, this, [] { throw 1; });
    QTest::keyClick(box, Qt::Key_5);
    QCOMPARE(reported(), QList<int>{51});
    QCOMPARE(change.calls(), 1);
    disconnect(throwing);
    QTest::keyClick(box, Qt::Key_6);
    QCOMPARE(change.calls(), 2);
    QCOMPARE(box->text(), QStringLiteral("56"));
}

// --- focus

void tst_Handlers::theFieldEnteredNextIsEnteredWhateverTheLastOneThrows()
{
    auto *date = m_stage->place(new KorDate);
    auto *number = m_stage->place(new KorNumber);
    number->setValue(1234.5);
    QVERIFY(m_stage->open());
    date->setFocus();
    settle();
    const HandlerOf change(date, QStringLiteral("Change"), [] { throw RunTimeError(ErrorNumber::Overflow); });
    number->setFocus();
    settle();
    QVERIFY(!reported().isEmpty());
    auto *box = number->findChild<QLineEdit *>();
    QVERIFY(box->text().startsWith(QLatin1String("1234"))); // the bare number
    QCOMPARE(box->selectedText(), box->text());
}

void tst_Handlers::aDialogOpenedByChangeHasFieldsThatWork()
{
    Messages messages;
    auto *date = m_stage->place(new KorDate);
    QVERIFY(m_stage->open());
    date->setFocus();
    settle();
    QVariant kept;
    bool isDone = false;
    const HandlerOf change(date, QStringLiteral("Change"), [&] {
        if (std::exchange(isDone, true))
            return;
        QDialog dialog(m_stage.get());
        auto *first = new KorNumber(&dialog);
        auto *second = new KorNumber(&dialog);
        second->move(0, 60);
        first->setCheckRange(true);
        first->setMaxValue(10);
        QTimer::singleShot(0, &dialog, [&] {
            dialog.activateWindow();
            first->setFocus();
            QTRY_VERIFY(first->isAncestorOf(QApplication::focusWidget()));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_7);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_7);
            second->setFocus();
            kor::test::settle();
            QCOMPARE(messages.take().size(), 1); // 77 is above 10
            QVERIFY(first->isAncestorOf(QApplication::focusWidget()));
            kept = first->Value();
            dialog.accept();
        });
        dialog.exec();
    });
    m_stage->button()->setFocus();
    settle();
    QVERIFY(isDone);
    QCOMPARE(kept, QVariant(77.0));
    QCOMPARE(reported(), QList<int>());
}

QTEST_MAIN(tst_Handlers)
#include "tst_handlers.moc"
