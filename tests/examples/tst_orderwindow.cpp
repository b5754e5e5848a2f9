// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "orders/deskicon.h"
#include "orders/pictures.h"
#include "support/contrast.h"

#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/Variant>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <functional>

using orders::OrderWindow;
using namespace orders::test;

Q_DECLARE_METATYPE(std::function<void(OrderWindow &)>)

//! The order desk in the hands of a clerk who leaves the mouse alone.
class tst_OrderWindow : public orders::test::OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void startsOnTheFirstOrder()
    {
        QCOMPARE(m_window->windowTitle(), QStringLiteral("ZAM/2025/0001[*] – Zamówienia"));
        QCOMPARE(position(), QStringLiteral("1 z 1000"));
        QCOMPARE(number("numTotal")->Text(), grouped("3 575,99"));
        QCOMPARE(number("numDue")->Text(), grouped("1 795,99"));
        QCOMPARE(focusName(), QStringLiteral("cmbCustomer"));
        QVERIFY(!m_window->isWindowModified());
    }

    void theIconIsSeenOnEveryGround_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QColor>("ground");
        for (const int size : {16, 32, 48, 256}) {
            QTest::addRow("%d dots on white", size) << size << QColor(Qt::white);
            QTest::addRow("%d dots on a dark theme's ground", size) << size << QColor(45, 45, 48);
            QTest::addRow("%d dots on black", size) << size << QColor(Qt::black);
        }
    }
    void theIconIsSeenOnEveryGround()
    {
        QFETCH(const int, size);
        QFETCH(const QColor, ground);
        const QPixmap icon = orders::deskIcon().pixmap(QSize(size, size), 1);
        QCOMPARE(icon.size(), QSize(size, size));
        QImage picture(size, size, QImage::Format_ARGB32);
        picture.fill(ground);
        QPainter(&picture).drawPixmap(0, 0, icon);
        const auto seenIn = [&](const QRect &part) { return kor::test::contrastIn(picture, part, ground); };
        QVERIFY(seenIn({0, 0, size, 2 * size / 16}) >= 3);                         // the edge above
        QVERIFY(seenIn({0, 0, 3 * size / 16, size}) >= 3);                         // and on the left
        QVERIFY(seenIn({10 * size / 16, 8 * size / 16, size / 4, size / 2}) >= 3); // the tick
        QCOMPARE(picture.pixelColor(size - 1, 0), ground);
    }

    void theFirstFieldShowsItsFocus_data()
    {
        QTest::addColumn<std::function<void(OrderWindow &)>>("come");
        const auto come = [](const char *name, std::function<void(OrderWindow &)> way) {
            QTest::newRow(name) << std::move(way);
        };
        come("when the window opens", [](OrderWindow &) {});
        come("new record by its key", [](OrderWindow &) { press(Qt::Key_N, Qt::ControlModifier); });
        come("new record by the mouse",
             [](OrderWindow &window) { QTest::mouseClick(window.form().button("cmdNew"), Qt::LeftButton); });
    }
    void theFirstFieldShowsItsFocus()
    {
        QFETCH(std::function<void(OrderWindow &)>, come);
        come(*m_window);
        kor::test::settle();
        QCOMPARE(focusName(), QStringLiteral("cmbCustomer"));
        auto *customer = part<KorCombo>("cmbCustomer");
        const QImage with = customer->grab().toImage();
        focus("numTotal");
        QVERIFY(customer->grab().toImage() != with);
    }

    void arrowsOnButtonsAreSeen_data()
    {
        QTest::addColumn<QPalette>("theme");
        QTest::newRow("light") << QApplication::palette();
        QTest::newRow("dark") << kor::test::darkTheme();
    }
    void arrowsOnButtonsAreSeen()
    {
        QFETCH(QPalette, theme);
        const QPalette before = QApplication::palette();
        QApplication::setPalette(theme);
        QPushButton *next = m_window->form().button("cmdNext");
        kor::test::settle();
        const QImage picture = next->grab().toImage();
        const QColor ground = picture.pixelColor(4, next->height() / 2);
        const double seen = kor::test::contrastIn(picture, next->rect().adjusted(10, 8, -10, -8), ground);
        QVERIFY2(seen >= 3, qPrintable(QString::number(seen)));
        QApplication::setPalette(before);
    }

    void arrowsPointAsTheButtonsLie()
    {
        const auto arrowOf = [this](const char *name) { return part<QPushButton>(name)->icon().pixmap(16).toImage(); };
        const QImage back = arrowOf("cmdPrevious");
        const QImage on = arrowOf("cmdNext");
        QVERIFY(back != on);
        QApplication::setLayoutDirection(Qt::RightToLeft);
        const QImage mirroredOn = arrowOf("cmdNext");
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(mirroredOn, back);
    }

    void tabWalksThroughTheFields()
    {
        focus("datOrder");
        QStringList stops;
        for (int presses = 0; presses < 11; ++presses) {
            stops << focusName();
            press(Qt::Key_Tab);
        }
        QCOMPARE(stops.join(u' '),
                 QStringLiteral("datOrder datDelivery cmbCustomer clkAddress cmbTerms numDiscount spnPriority "
                                "numTotal numAdvance txtRemarks txtRemarks"));
        QVERIFY(!m_window->isWindowModified()); // looking changes nothing
    }

    void checkedGroupsNarrowTheCustomersAndLoseNone()
    {
        auto *groups = part<KorListCheck>("lstGroups");
        auto *customer = part<KorCombo>("cmbCustomer");
        const int all = customer->ListCount();
        const QVariant own = customer->Value();
        QVERIFY(groups->ListCount() > 2);
        QCOMPARE(groups->ListIndex(), -1);
        focus("lstGroups");
        press(Qt::Key_Down);
        press(Qt::Key_Space);
        const int first = customer->ListCount();
        QVERIFY(first > 1 && first < all);
        QCOMPARE(customer->Value(), own);
        press(Qt::Key_Down);
        press(Qt::Key_Space);
        QVERIFY(customer->ListCount() > first && customer->ListCount() < all);
        QCOMPARE(groups->SelCount(), 2);
        QVERIFY(!m_window->isWindowModified());
        for (int order = 0; order < 20; ++order) { // customers of all groups
            press(Qt::Key_PageDown, Qt::ControlModifier);
            QVERIFY(!kor::isNull(customer->Value()));
            QVERIFY(!m_window->isWindowModified());
        }
        press(Qt::Key_Space);
        press(Qt::Key_Up);
        press(Qt::Key_Space);
        QCOMPARE(customer->ListCount(), all);
    }

    void ordersAreThoseOfTheCustomer()
    {
        auto *orders = part<KorList>("lstOrders");
        const auto texts = [&] {
            const QAbstractItemModel *names = orders->findChild<QListView *>()->model();
            QStringList all;
            for (int row = 0; row < names->rowCount(); ++row)
                all << names->index(row, 0).data().value<QString>();
            return all;
        };
        QVERIFY2(texts().last().startsWith(QStringLiteral("ZAM/2025/0001  ")), qPrintable(texts().join(u' ')));
        const QStringList before = texts();
        press(Qt::Key_Home); // no customer
        QVERIFY(texts().isEmpty());
        m_clerk->willPress({Qt::Key_C});
        press(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(texts(), before);
        press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(orders->ListCount(), 0);
    }

    void lettersLeadToTheFields_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("name");

        // clang-format off
        QTest::newRow("K for Klient")   << int(Qt::Key_K) << "cmbCustomer";
        QTest::newRow("D for Data")     << int(Qt::Key_D) << "datOrder";
        QTest::newRow("O for Dostawa")  << int(Qt::Key_O) << "datDelivery";
        QTest::newRow("P for Płatność") << int(Qt::Key_P) << "cmbTerms";
        QTest::newRow("T for Priorytet") << int(Qt::Key_T) << "spnPriority";
        QTest::newRow("Y for Etykieta") << int(Qt::Key_Y) << "clrLabel";
        QTest::newRow("R for Rabat")    << int(Qt::Key_R) << "numDiscount";
        QTest::newRow("W for Wartość")  << int(Qt::Key_W) << "numTotal";
        QTest::newRow("Z for Zaliczka") << int(Qt::Key_Z) << "numAdvance";
        QTest::newRow("G for Uwagi")    << int(Qt::Key_G) << "txtRemarks";
        QTest::newRow("J for Pozycje")  << int(Qt::Key_J) << "KorClick"; // the editor in the first cell
        // clang-format on
    }
    void lettersLeadToTheFields()
    {
        QFETCH(const int, key);
        QFETCH(const QString, name);
        part<QWidget>(name == u"numTotal" ? "numAdvance" : "numTotal")->setFocus();
        kor::test::settle();
        press(static_cast<Qt::Key>(key), Qt::AltModifier);
        QCOMPARE(focusName(), name);
    }

    void everyLetterIsUsedOnce()
    {
        const QHash<QChar, QStringList> users = lettersOf(*m_window);
        for (const QStringList &texts : users)
            QVERIFY2(texts.size() == 1, qPrintable(texts.join(u' ')));
        QVERIFY(users.size() >= 12);
    }

    void keysMoveAmongTheOrders()
    {
        const std::pair<Qt::Key, int> keys[] = {
            {Qt::Key_PageDown, 2},    {Qt::Key_PageDown, 3}, {Qt::Key_PageUp, 2}, {Qt::Key_End, 1000},
            {Qt::Key_PageDown, 1000}, {Qt::Key_Home, 1},     {Qt::Key_PageUp, 1},
        };
        for (const auto &[key, place] : keys) {
            const bool isPage = key == Qt::Key_PageUp || key == Qt::Key_PageDown;
            press(key, isPage ? Qt::ControlModifier : Qt::AltModifier);
            QCOMPARE(position(), QStringLiteral("%1 z 1000").arg(place));
        }
        QVERIFY(m_clerk->heard().isEmpty());
        QVERIFY(!m_window->findChild<QPushButton *>(QStringLiteral("cmdPrevious"))->isEnabled());
        QVERIFY(m_window->findChild<QPushButton *>(QStringLiteral("cmdNext"))->isEnabled());
    }

    void noOrderOfTheSampleLooksChangedWhenItIsShown()
    {
        for (int place = 1; place < 120; ++place) {
            press(Qt::Key_PageDown, Qt::ControlModifier);
            QVERIFY2(!m_window->isWindowModified(), qPrintable(position()));
            QVERIFY(m_window->form().order() == m_store->order(m_window->form().order().id));
        }
    }

    void asksAboutChanges_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("saved");

        // clang-format off
        QTest::newRow("save and go on")           << int(Qt::Key_Z)      << "2 z 1000" << "nowe";
        QTest::newRow("Enter saves")              << int(Qt::Key_Return) << "2 z 1000" << "nowe";
        QTest::newRow("go on without saving")     << int(Qt::Key_N)      << "2 z 1000" << "";
        QTest::newRow("stay")                     << int(Qt::Key_A)      << "1 z 1000" << "";
        QTest::newRow("Escape stays")             << int(Qt::Key_Escape) << "1 z 1000" << "";
        // clang-format on
    }
    void asksAboutChanges()
    {
        QFETCH(const int, answer);
        QFETCH(const QString, place);
        QFETCH(const QString, saved);
        focus("txtRemarks");
        type(QStringLiteral("nowe"));
        m_clerk->willPress({answer});
        press(Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(m_clerk->heard(), QStringLiteral("Zapisać zmiany?"));
        QTRY_COMPARE(position(), place);
        QCOMPARE(m_store->order(1)->remarks, saved);
        QCOMPARE(m_window->isWindowModified(), place.startsWith(QStringLiteral("1 ")));
    }

    void closingAsksToo()
    {
        focus("txtRemarks");
        type(QStringLiteral("x"));
        m_clerk->willPress({Qt::Key_A, Qt::Key_N});
        QVERIFY(!m_window->close());
        QVERIFY(m_window->isVisible());
        QVERIFY(m_window->close());
        QCOMPARE(m_clerk->heard(), QStringLiteral("Zapisać zmiany?|Zapisać zmiany?"));
        QCOMPARE(m_store->order(1)->remarks, QString());
    }

    void closingWithoutChangesAsksNothing()
    {
        QVERIFY(m_window->close());
        QVERIFY(m_clerk->heard().isEmpty());
    }

    void undoAsksFirstAndBringsTheSavedOrderBack()
    {
        focus("numTotal");
        type(QStringLiteral("1"));
        QVERIFY(m_window->isWindowModified());
        m_clerk->willPress({Qt::Key_Escape, Qt::Key_C});
        press(Qt::Key_R, Qt::ControlModifier);
        QTRY_VERIFY(m_window->isActiveWindow());
        QCOMPARE(m_clerk->heard(), QStringLiteral("Cofnąć wszystkie zmiany od ostatniego zapisu?"));
        QCOMPARE(number("numTotal")->Text(), QStringLiteral("1"));
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_R, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(m_window->form().order() == m_store->order(1));
    }

    void deletingAsksFirst()
    {
        m_clerk->willPress({Qt::Key_A, Qt::Key_U});
        press(Qt::Key_D, Qt::ControlModifier);
        QVERIFY(m_store->order(1));
        QTRY_VERIFY(m_window->isActiveWindow());
        press(Qt::Key_D, Qt::ControlModifier);
        QTRY_VERIFY(!m_store->order(1));
        QCOMPARE(m_clerk->heard(), QStringLiteral("Usunąć zamówienie ZAM/2025/0001 razem z jego pozycjami?|Usunąć "
                                                  "zamówienie ZAM/2025/0001 razem z jego pozycjami?"));
        QCOMPARE(position(), QStringLiteral("1 z 999"));
        QCOMPARE(m_window->form().order().number, QStringLiteral("ZAM/2025/0002"));
    }

    void searchGoesToTheOrderChosen()
    {
        QString choice;
        inNextDialog([&choice](const QWidget &dialog) {
            QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("25/0123"));
            const auto *list = dialog.findChild<QTreeWidget *>();
            choice = list->currentItem() ? list->currentItem()->text(0) : QString();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(choice, QStringLiteral("ZAM/2025/0123"));
        QCOMPARE(m_window->form().order().number, choice);
        QCOMPARE(position(), QStringLiteral("123 z 1000"));
    }

    void searchGivenUpChangesNothing()
    {
        inNextDialog([](QWidget &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
        press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(position(), QStringLiteral("1 z 1000"));
    }

    void anOrderThatAnotherDeskDeletedIsSkipped()
    {
        (void)m_store->remove(*m_store->order(2));
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(m_clerk->heard(), QStringLiteral("Zamówienie zostało tymczasem usunięte."));
        QCOMPARE(m_window->form().order().number, QStringLiteral("ZAM/2025/0003"));
    }

    void aLostDatabaseIsAMessage()
    {
        QFile::remove(file());
        QSqlDatabase connection = m_store->connection();
        connection.close();
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(m_clerk->heard().contains(QStringLiteral("Odczytanie zamówienia")));
        QVERIFY(m_window->isVisible());
    }

    void picturesShowEveryWindow()
    {
        m_clerk.reset(); // the photographer answers the messages
        const QTemporaryDir folder;
        QVERIFY(orders::takePictures(*m_window, folder.path()));
        const QStringList files = QDir(folder.path()).entryList({QStringLiteral("*.png")});
        QCOMPARE(files.join(u' '), QStringLiteral("calendar.png customers.png lines.png list.png order.png orders.png "
                                                  "product.png products.png question.png "
                                                  "range.png report.png search.png settings.png"));
        for (const QString &name : files) {
            const QImage picture(folder.filePath(name));
            QVERIFY2(picture.width() > 700 && picture.height() > 400, qPrintable(name));
        }
        QVERIFY(m_store->order(100).has_value());
        QVERIFY(!m_window->isWindowModified());
    }
};

QTEST_MAIN(tst_OrderWindow)
#include "tst_orderwindow.moc"
