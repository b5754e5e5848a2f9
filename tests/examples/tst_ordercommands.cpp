// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"

#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QTreeWidget>

using namespace orders::test;

//! What a clerk meets who gives commands by key and types on.
class tst_OrderCommands : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void afterEveryCommandTheFieldIsAsIfEntered_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QKeyCombination>("keys");
        QTest::addColumn<int>("answer");

        const int noQuestion = 0;
        // clang-format off
        QTest::newRow("save a number")        << "numTotal"    << "7000,5" << (Qt::CTRL | Qt::Key_S)        << noQuestion;
        QTest::newRow("save a date")          << "datDelivery" << "011226" << (Qt::CTRL | Qt::Key_S)        << noQuestion;
        QTest::newRow("save remarks")         << "txtRemarks"  << "pilne"  << (Qt::CTRL | Qt::Key_S)        << noQuestion;
        QTest::newRow("save a priority")      << "spnPriority" << "4"      << (Qt::CTRL | Qt::Key_S)        << noQuestion;
        QTest::newRow("undo a number")        << "numTotal"    << "7"      << (Qt::CTRL | Qt::Key_R)        << int(Qt::Key_C);
        QTest::newRow("undo a half date")     << "datDelivery" << "0112"   << (Qt::CTRL | Qt::Key_R)        << int(Qt::Key_C);
        QTest::newRow("undo, stayed")         << "numTotal"    << "7000"   << (Qt::CTRL | Qt::Key_R)        << int(Qt::Key_A);
        QTest::newRow("next")                 << "numTotal"    << ""       << (Qt::CTRL | Qt::Key_PageDown) << noQuestion;
        QTest::newRow("previous at the end")  << "numTotal"    << ""       << (Qt::CTRL | Qt::Key_PageUp)   << noQuestion;
        QTest::newRow("last")                 << "datOrder"    << ""       << (Qt::ALT | Qt::Key_End)       << noQuestion;
        QTest::newRow("next, saved")          << "numTotal"    << "7000"   << (Qt::CTRL | Qt::Key_PageDown) << int(Qt::Key_Z);
        QTest::newRow("next, not saved")      << "numTotal"    << "7000"   << (Qt::CTRL | Qt::Key_PageDown) << int(Qt::Key_N);
        QTest::newRow("next, stayed")         << "numTotal"    << "7000"   << (Qt::CTRL | Qt::Key_PageDown) << int(Qt::Key_A);
        QTest::newRow("delete")               << "numAdvance"  << ""       << (Qt::CTRL | Qt::Key_D)        << int(Qt::Key_U);
        // clang-format on
    }
    void afterEveryCommandTheFieldIsAsIfEntered()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, typed);
        QFETCH(const QKeyCombination, keys);
        QFETCH(const int, answer);
        focus(qPrintable(name));
        auto *box = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(box);
        type(typed);
        if (answer != 0)
            m_clerk->willPress({answer});
        press(keys.key(), keys.keyboardModifiers());
        QTRY_VERIFY(m_window->isActiveWindow());
        QCOMPARE(QApplication::focusWidget(), box);
        const QString afterwards = kor::test::field(box);
        m_window->form().setFocus(); // out of the field and in again
        focus("clrLabel");
        focus(qPrintable(name));
        if (answer != int(Qt::Key_A)) // what is typed and neither saved nor given up stands as it was typed
            QCOMPARE(afterwards, kor::test::field(box));
        QVERIFY2(afterwards.startsWith(u'[') && afterwards.endsWith(u']'), qPrintable(afterwards));
    }

    void theNextDigitAfterSavingReplacesTheNumber()
    {
        focus("numTotal");
        type(QStringLiteral("5000"));
        press(Qt::Key_S, Qt::ControlModifier);
        type(QStringLiteral("7"));
        QCOMPARE(number("numTotal")->Text(), QStringLiteral("7"));
    }

    void theCommandsKeysBelongToNoField_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"cmbCustomer", "datOrder", "clkAddress", "numDiscount", "spnPriority", "txtRemarks",
                                 "clrLabel", "lstGroups", "lstOrders"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void theCommandsKeysBelongToNoField()
    {
        QFETCH(const QString, name);
        focus(qPrintable(name));
        QCOMPARE(focusName(), name);
        int keys = 0;
        for (const QAction *command : m_window->findChildren<QAction *>()) {
            if (command->shortcut().isEmpty())
                continue;
            const QKeyCombination key = command->shortcut()[0];
            QKeyEvent asked(QEvent::ShortcutOverride, key.key(), key.keyboardModifiers());
            asked.ignore();
            QApplication::sendEvent(QApplication::focusWidget(), &asked); // a field that accepts keeps the key
            QVERIFY2(!asked.isAccepted(), qPrintable(command->shortcut().toString()));
            ++keys;
        }
        QVERIFY(keys >= 14);
    }

    void searchesOpenWithSomethingToChoose()
    {
        const auto look = [this](const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers, int count) {
            QList<int> counts;
            inNextDialog([&counts](QWidget &dialog) {
                const auto *list = dialog.findChild<QTreeWidget *>();
                const auto shown = [list](int before) { // once the search has come round
                    (void)QTest::qWaitFor([&] { return list->topLevelItemCount() != before; }, 2000);
                    return list->topLevelItemCount();
                };
                counts << list->topLevelItemCount();
                QTest::keyClicks(dialog.focusWidget(), QStringLiteral("qqq"));
                counts << shown(counts.last());
                for (int erased = 0; erased < 3; ++erased)
                    QTest::keyClick(dialog.focusWidget(), Qt::Key_Backspace);
                counts << shown(counts.last());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            });
            focus(name);
            press(key, modifiers);
            QCOMPARE(counts, (QList<int>{count, 0, count}));
            QTRY_VERIFY(m_window->isActiveWindow());
        };
        look("cmbCustomer", Qt::Key_F, Qt::ControlModifier, 200); // the newest
        look("clkAddress", Qt::Key_F4, Qt::NoModifier, 240);      // all of them
    }
};

QTEST_MAIN(tst_OrderCommands)
#include "tst_ordercommands.moc"
