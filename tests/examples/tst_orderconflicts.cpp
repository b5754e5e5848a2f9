// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "orders/conflictdialog.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/Variant>

#include <QtCore/QProcess>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

using namespace orders::test;
using orders::ConflictDialog;
using orders::Order;
using orders::OrderStore;
using orders::OrderWindow;

namespace {

void change(const QSqlDatabase &connection, const QString &statement)
{
    QSqlQuery query(connection);
    if (!query.exec(statement))
        qFatal("%s", qPrintable(query.lastError().text()));
}

int changeAsAnotherDesk(const QString &fileName, const QString &statement)
{
    const OrderStore store(fileName);
    change(store.connection(), statement);
    return 0;
}

} // namespace

//! Two desks that work on one order: the one who saves later decides, and nobody's work is lost unasked.
class tst_OrderConflicts : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        m_before = m_store->order(1).value();
        m_before.discount = 5;
        m_before.remarks = QStringLiteral("stare");
        QCOMPARE(int(m_store->save(m_before, *m_store->order(1)).kind), int(orders::Outcome::Kind::Done));
        restart();
    }
    void cleanup()
    {
        m_watch.reset();
        m_heard.clear();
        m_other.reset();
        m_otherStore.reset();
        close();
    }

    void aFieldChangedThereIsProposedAsItWasSaved()
    {
        otherProcess("UPDATE orders SET discount = 12.5 WHERE id = 1");
        typeRemarks();
        answer({Qt::Key_Return}); // as proposed
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_heard, QStringList{QStringLiteral("Rabat|Moje:|5,00 %|Zapisane tam:|12,50 %|Było:|5,00 %")});
        QVERIFY(!m_window->isWindowModified());
        Order expected = m_before;
        expected.discount = 12.5;
        expected.remarks = QStringLiteral("nowe");
        QVERIFY(*m_store->order(1) == expected);
        QCOMPARE(number("numDiscount")->Text(), QStringLiteral("12,50"));
    }

    void linesAreOneFieldOfTheChoice_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<bool>("isOurs");
        QTest::newRow("as proposed, theirs") << QList<int>{Qt::Key_Return} << false;
        QTest::newRow("ours") << QList<int>{Qt::Key_Up, Qt::Key_Return} << true;
    }
    void linesAreOneFieldOfTheChoice()
    {
        QFETCH(const QList<int>, keys);
        QFETCH(const bool, isOurs);
        otherProcess("UPDATE order_lines SET quantity = NULL, delivery_date = '2026-12-01' WHERE order_id = 1 AND "
                     "line = 1");
        const Order theirs = m_store->order(1).value();
        QVERIFY(theirs.lines != m_before.lines);
        typeRemarks();
        answer(keys);
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_heard.size(), 1);
        const QStringList texts = m_heard.first().split(u'|');
        QCOMPARE(texts.size(), 7);
        QCOMPARE(texts.at(0), QStringLiteral("Pozycje"));
        QCOMPARE(texts.at(2), texts.at(6)); // ours is as it was
        QVERIFY2(texts.at(4).contains(QStringLiteral("dostawa 01.12.2026")), qPrintable(texts.at(4)));
        QCOMPARE(texts.at(4).count(u'\n') + 1, m_before.lines.size());
        QVERIFY(m_store->order(1)->lines == (isOurs ? m_before : theirs).lines);
        QCOMPARE(m_store->order(1)->remarks, QStringLiteral("nowe"));
    }

    void oursCanBeKept()
    {
        otherProcess("UPDATE orders SET discount = NULL WHERE id = 1");
        typeRemarks();
        answer({Qt::Key_Up, Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_heard, QStringList{QStringLiteral("Rabat|Moje:|5,00 %|Zapisane tam:|(puste)|Było:|5,00 %")});
        QCOMPARE(m_store->order(1)->discount, std::optional(5.0));
        QCOMPARE(m_store->order(1)->remarks, QStringLiteral("nowe"));
    }

    void aFieldChangedAtBothHasToBeDecided_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<QString>("remarks");

        // clang-format off
        QTest::newRow("keep mine")   << QList<int>{Qt::Key_Return, Qt::Key_Space, Qt::Key_Return} << "nowe";
        QTest::newRow("take theirs") << QList<int>{Qt::Key_Return, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return} << "ich";
        // clang-format on
    }
    void aFieldChangedAtBothHasToBeDecided()
    {
        QFETCH(const QList<int>, keys); // the first Enter is of no avail
        QFETCH(const QString, remarks);
        otherProcess("UPDATE orders SET remarks = 'ich', priority = 5 WHERE id = 1");
        typeRemarks();
        answer(keys);
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_heard.size(), 1);
        QVERIFY2(m_heard.first().contains(QStringLiteral("Uwagi|Moje:|nowe|Zapisane tam:|ich|Było:|stare")),
                 qPrintable(m_heard.first()));
        QCOMPARE(m_store->order(1)->remarks, remarks);
        QCOMPARE(m_store->order(1)->priority, 5);
        QCOMPARE(part<KorMultiText>("txtRemarks")->Text(), remarks);
    }

    void goingBackKeepsTheFormAsItIs()
    {
        otherProcess("UPDATE orders SET discount = 12.5, remarks = 'ich' WHERE id = 1");
        focus("numTotal");
        type(QStringLiteral("9000"));
        typeRemarks();
        const Order typed = m_window->form().order();
        answer({Qt::Key_Escape, Qt::Key_Escape});
        for (int times = 0; times < 2; ++times) {
            press(Qt::Key_S, Qt::ControlModifier);
            QTRY_VERIFY(m_window->isActiveWindow());
            QVERIFY(m_window->form().order() == typed);
            QVERIFY(m_window->isWindowModified());
            QCOMPARE(focusName(), QStringLiteral("txtRemarks"));
            QCOMPARE(m_store->order(1)->remarks, QStringLiteral("ich"));
        }
        QCOMPARE(m_heard.size(), 2); // and it is told again
    }

    void twoWindowsOfOneProgram()
    {
        openOther();
        bringUp(*m_window);
        focus("numDiscount");
        type(QStringLiteral("7"));
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(m_heard.isEmpty());
        bringUp(*m_other);
        m_other->findChild<KorMultiText *>(QStringLiteral("txtRemarks"))->setFocus(Qt::TabFocusReason);
        kor::test::settle();
        type(QStringLiteral("nowe"));
        answer({Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_heard.size(), 1);
        QCOMPARE(m_store->order(1)->discount, std::optional(7.0));
        QCOMPARE(m_store->order(1)->remarks, QStringLiteral("nowe"));
    }

    void linesTypedInTwoWindowsAreDecided_data()
    {
        QTest::addColumn<QList<int>>("keys"); // the first Enter is of no avail
        QTest::addColumn<double>("quantity");
        QTest::newRow("mine") << QList<int>{Qt::Key_Return, Qt::Key_Space, Qt::Key_Return} << 222.0;
        QTest::newRow("theirs") << QList<int>{Qt::Key_Return, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return} << 111.0;
        QTest::newRow("back to the form") << QList<int>{Qt::Key_Escape} << 111.0;
    }
    void linesTypedInTwoWindowsAreDecided()
    {
        QFETCH(const QList<int>, keys);
        QFETCH(const double, quantity);
        openOther();
        const auto typeQuantity = [](OrderWindow &window, const char *number) {
            bringUp(window);
            press(Qt::Key_J, Qt::AltModifier);
            press(Qt::Key_Home, Qt::ControlModifier);
            press(Qt::Key_Tab);
            press(Qt::Key_Tab);
            type(QString::fromLatin1(number));
        };
        typeQuantity(*m_window, "111");
        typeQuantity(*m_other, "222");
        bringUp(*m_window);
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->lines.first().quantity, std::optional(111.0));
        bringUp(*m_other);
        answer(keys);
        press(Qt::Key_S, Qt::ControlModifier); // while the number is still being typed
        QCOMPARE(m_heard.size(), 1);
        QVERIFY(m_heard.first().startsWith(QStringLiteral("Pozycje|Moje:|1. ")));
        const bool isBack = keys.size() == 1;
        QCOMPARE(m_store->order(1)->lines.first().quantity, std::optional(quantity));
        QCOMPARE(m_other->form().order().lines.first().quantity, std::optional(isBack ? 222.0 : quantity));
        QCOMPARE(m_other->isWindowModified(), isBack);
    }

    void theSameChangeAtBothIsNoConflict()
    {
        otherProcess("UPDATE orders SET remarks = 'nowe' WHERE id = 1");
        typeRemarks();
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(m_heard.isEmpty());
        QVERIFY(!m_window->isWindowModified());
    }

    void aChoiceThatMakesNoOrderIsMadeAnew()
    {
        otherProcess("UPDATE orders SET total = 100, advance = 0 WHERE id = 1");
        focus("numAdvance");
        type(QStringLiteral("50"));
        m_clerk->willPress({Qt::Key_Return});
        // The total as it is there does not cover our advance.
        answer({Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape});
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_heard.size(), 2);
        QCOMPARE(m_clerk->heard(), QStringLiteral("Zaliczka nie może przekraczać wartości zamówienia."));
        QCOMPARE(m_store->order(1)->total, std::optional<qint64>(100));
        QCOMPARE(m_window->form().order().advance, std::optional<qint64>(5000));
    }

    void anOrderDeletedThereCanBeSavedAsNew()
    {
        otherProcess("DELETE FROM orders WHERE id = 1");
        typeRemarks();
        m_clerk->willPress({Qt::Key_Escape, Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(m_clerk->heard().contains(QStringLiteral("usunięto tymczasem na innym stanowisku")));
        QTRY_VERIFY(m_window->isActiveWindow());
        QCOMPARE(m_window->form().order().remarks, QStringLiteral("nowe"));
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_S, Qt::ControlModifier);
        const Order saved = m_window->form().loaded();
        QVERIFY(saved.id > 1);
        Order expected = m_before;
        expected.id = saved.id;
        expected.number = saved.number;
        expected.remarks = QStringLiteral("nowe");
        QVERIFY(m_store->order(saved.id) == expected);
        QCOMPARE(position(), QStringLiteral("1000 z 1000"));
    }

    void deletingWhatWasChangedThereAsksAgain()
    {
        otherProcess("UPDATE orders SET discount = 12.5 WHERE id = 1");
        m_clerk->willPress({Qt::Key_U, Qt::Key_A, Qt::Key_U, Qt::Key_U});
        press(Qt::Key_D, Qt::ControlModifier);
        QVERIFY(m_store->order(1));
        QVERIFY(m_clerk->heard().contains(QStringLiteral("Usunąć je mimo to?")));
        QTRY_VERIFY(m_window->isActiveWindow());
        press(Qt::Key_D, Qt::ControlModifier);
        QTRY_VERIFY(!m_store->order(1));
    }

    void aFailureKeepsTheFormAsItIs_data()
    {
        QTest::addColumn<QString>("trouble");
        QTest::addColumn<QString>("words");
        QTest::newRow("another desk writes") << ""
                                             << "Spróbuj ponownie za chwilę.";
        QTest::newRow("the disk is full") << "PRAGMA max_page_count = 1"
                                          << "nie ma już miejsca";
    }
    void aFailureKeepsTheFormAsItIs()
    {
        QFETCH(const QString, trouble);
        QFETCH(const QString, words);
        OrderStore other(file());
        change(m_store->connection(), QStringLiteral("PRAGMA busy_timeout = 0"));
        if (trouble.isEmpty())
            change(other.connection(), QStringLiteral("BEGIN IMMEDIATE"));
        else
            change(m_store->connection(), trouble);
        part<KorMultiText>("txtRemarks")->setText(QString(50000, u'x')); // more than the file has room for
        focus("numTotal");
        type(QStringLiteral("9000"));
        const Order typed = m_window->form().order();
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY2(m_clerk->heard().contains(words), qPrintable(m_clerk->heard()));
        QTRY_VERIFY(m_window->isActiveWindow());
        QVERIFY(m_window->form().order() == typed);
        QVERIFY(m_window->isWindowModified());
        QVERIFY(*m_store->order(1) == m_before);
        if (trouble.isEmpty())
            change(other.connection(), QStringLiteral("ROLLBACK"));
        else
            change(m_store->connection(), QStringLiteral("PRAGMA max_page_count = 1000000"));
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(m_store->order(1)->total, std::optional<qint64>(900000));
    }

private:
    void typeRemarks()
    {
        focus("txtRemarks");
        type(QStringLiteral("nowe"));
    }

    void otherProcess(const char *statement)
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--change"), file(), QString::fromLatin1(statement)});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitCode(), 0);
    }

    void openOther()
    {
        m_otherStore = std::make_unique<OrderStore>(file());
        m_other = std::make_unique<OrderWindow>(*m_otherStore);
        m_other->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_other.get()));
    }

    //! Answers the dialogs about changes by these keys, and notes what they say.
    void answer(const QList<int> &keys)
    {
        m_keys = keys;
        m_heard.clear();
        m_watch = std::make_unique<QTimer>();
        connect(m_watch.get(), &QTimer::timeout, this, [this] {
            auto *dialog = qobject_cast<ConflictDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isActiveWindow())
                return;
            note(*dialog);
            if (m_keys.isEmpty())
                dialog->reject(); // nobody knows what to answer
            while (!m_keys.isEmpty() && dialog->isVisible()) {
                const int key = m_keys.takeFirst();
                QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
            }
        });
        m_watch->start(5);
    }

    void note(const ConflictDialog &dialog)
    {
        QStringList fields;
        for (const auto *box : dialog.findChildren<QGroupBox *>()) {
            QStringList texts{box->title()};
            const auto *grid = box->layout();
            for (int at = 0; at < grid->count(); ++at)
                texts << grid->itemAt(at)->widget()->property("text").value<QString>();
            fields << texts.join(u'|');
        }
        m_heard << fields.join(u'/');
    }

    Order m_before;
    std::unique_ptr<OrderStore> m_otherStore;
    std::unique_ptr<OrderWindow> m_other;
    std::unique_ptr<QTimer> m_watch;
    QList<int> m_keys;
    QStringList m_heard;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], "--change") == 0)
        return changeAsAnotherDesk(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    tst_OrderConflicts test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_orderconflicts.moc"
