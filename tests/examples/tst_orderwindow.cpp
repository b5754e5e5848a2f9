// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "orders/pictures.h"
#include "support/contrast.h"

#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorColor>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/KorUpDown>
#include <KorDaoUC/Variant>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <functional>

using orders::Order;
using orders::OrderStore;
using orders::OrderWindow;
using namespace orders::test;

namespace {

//! A number as the Polish locale groups it.
QString grouped(const char *number) { return QString::fromLatin1(number).replace(u' ', u'\u00A0'); }

} // namespace

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
        QHash<QChar, QStringList> users;
        const auto note = [&users](const QString &text) {
            const qsizetype at = text.indexOf(u'&');
            if (at >= 0)
                users[text.at(at + 1).toUpper()] << text;
        };
        for (const auto *label : m_window->findChildren<QLabel *>())
            note(label->text());
        for (const auto *button : m_window->findChildren<QPushButton *>())
            note(button->text());
        for (const auto *action : m_window->menuBar()->actions())
            note(action->text());
        for (const auto *frame : m_window->findChildren<QGroupBox *>())
            note(frame->title());
        for (const QStringList &texts : users)
            QVERIFY2(texts.size() == 1, qPrintable(texts.join(u' ')));
        QVERIFY(users.size() >= 12);
    }

    void aClerkEntersAndSavesAnOrder()
    {
        press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(position(), QStringLiteral("nowe (1001)"));
        QCOMPARE(focusName(), QStringLiteral("cmbCustomer"));
        press(Qt::Key_Down); // the first customer behind the null entry
        press(Qt::Key_Tab);
        press(Qt::Key_Tab);  // past the address
        press(Qt::Key_Home); // cash
        press(Qt::Key_Tab);
        type(QStringLiteral("2.5")); // the point types the comma
        press(Qt::Key_Tab);
        press(Qt::Key_Down); // more urgent
        press(Qt::Key_Tab);
        type(QStringLiteral("1234,567"));
        press(Qt::Key_Tab);
        QCOMPARE(number("numTotal")->Text(), grouped("1 234,57"));
        type(QStringLiteral("100"));
        press(Qt::Key_Tab);
        QCOMPARE(number("numDue")->Text(), grouped("1 134,57"));
        type(QStringLiteral("Zażółć"));
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_S, Qt::ControlModifier);

        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(position(), QStringLiteral("1001 z 1001"));
        restart();
        press(Qt::Key_End, Qt::AltModifier);
        const Order saved = m_window->form().order();
        QCOMPARE(saved.number, QStringLiteral("ZAM/2026/0340"));
        QCOMPARE(saved.date, QDate(2026, 11, 21));
        QVERIFY(saved.customer);
        QCOMPARE(saved.paymentTerms, QStringLiteral("G"));
        QCOMPARE(saved.discount, std::optional(2.5));
        QCOMPARE(saved.priority, 2);
        QCOMPARE(saved.total, 123457);
        QCOMPARE(saved.advance, 10000);
        QCOMPARE(saved.remarks, QStringLiteral("Zażółć"));
        QVERIFY(m_store->order(saved.id) == saved);
    }

    void aClerkEntersTheDates()
    {
        focus("datOrder");
        type(QStringLiteral("010226"));
        press(Qt::Key_Tab);
        QCOMPARE(date("datOrder")->Text(), QStringLiteral("01.02.2026"));
        QCOMPARE(focusName(), QStringLiteral("datDelivery"));
        press(Qt::Key_Insert);
        press(Qt::Key_PageUp);
        QCOMPARE(date("datDelivery")->Text(), QStringLiteral("28.11.2026"));
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());
        restart();
        const Order saved = m_window->form().order();
        QCOMPARE(saved.date, QDate(2026, 2, 1));
        QCOMPARE(saved.delivery, QDate(2026, 11, 28));
        QCOMPARE(saved.number, QStringLiteral("ZAM/2025/0001")); // a number once given stays
    }

    void noDeliveryIsKeptAsNone()
    {
        focus("datDelivery");
        press(Qt::Key_Delete);
        press(Qt::Key_Tab);
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_store->order(1)->delivery);
        restart();
        QVERIFY(kor::isNull(date("datDelivery")->Value()));
        QVERIFY(!m_window->isWindowModified());
        focus("datDelivery");
        press(Qt::Key_Tab);
        QVERIFY(!m_window->isWindowModified()); // looking is no change
    }

    void savesWhileTheDateIsStillBeingTyped()
    {
        focus("datDelivery");
        type(QStringLiteral("011226"));
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->delivery, QDate(2026, 12, 1));
        QVERIFY(!m_window->isWindowModified());
    }

    void deliveryBeforeTheOrderIsNotSaved()
    {
        const Order before = m_store->order(1).value();
        focus("datDelivery");
        type(QStringLiteral("01.01.1999"));
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_clerk->heard(), QStringLiteral("Dostawa nie może być wcześniejsza niż zamówienie."));
        QTRY_COMPARE(focusName(), QStringLiteral("datDelivery"));
        QVERIFY(m_store->order(1) == before);
    }

    void savesWhileTheNumberIsStillBeingTyped()
    {
        focus("numTotal");
        type(QStringLiteral("5000,5"));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->total, 500050);
        QVERIFY(!m_window->isWindowModified());
        press(Qt::Key_Tab);
        QVERIFY(!m_window->isWindowModified());
    }

    void anEmptyNumberStaysEmpty_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"numDiscount", "numTotal", "numAdvance"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void anEmptyNumberStaysEmpty()
    {
        QFETCH(const QString, name);
        focus("numAdvance"); // nothing is paid of a total that is not known
        press(Qt::Key_Delete);
        focus(qPrintable(name));
        press(Qt::Key_Delete);
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());
        restart();
        QVERIFY(kor::isNull(number(qPrintable(name))->Value()));
        QCOMPARE(number(qPrintable(name))->Text(), QString());
        QCOMPARE(number("numDue")->Text().isEmpty(), name == u"numTotal");
        focus(qPrintable(name));
        press(Qt::Key_Tab);
        QVERIFY(!m_window->isWindowModified()); // looking is no change
        const Order saved = *m_store->order(1);
        QVERIFY(!saved.advance);
        QCOMPARE(saved.total.has_value(), name != u"numTotal");
        QCOMPARE(saved.discount.has_value(), name != u"numDiscount");
    }

    void aNewOrderHasNoAmountsUntilTheyAreTyped()
    {
        press(Qt::Key_N, Qt::ControlModifier);
        for (const char *name : {"numDiscount", "numTotal", "numAdvance", "numDue"})
            QCOMPARE(number(name)->Text(), QString());
        press(Qt::Key_S, Qt::ControlModifier);
        const Order saved = *m_store->order(m_store->ids().last());
        QVERIFY(!saved.discount && !saved.total && !saved.advance);
    }

    void whatTheFormRoundsIsNotSavedRounded()
    {
        Order order = *m_store->order(1);
        order.discount = 2.555;
        (void)m_store->save(order, *m_store->order(1));
        restart();
        QCOMPARE(number("numDiscount")->Text(), QStringLiteral("2,56"));
        focus("txtRemarks");
        type(QStringLiteral("nowe"));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->remarks, QStringLiteral("nowe"));
        QCOMPARE(m_store->order(1)->discount, std::optional(2.555));
    }

    void theNullEntryIsAnOrderWithoutCustomer()
    {
        press(Qt::Key_Home);
        QCOMPARE(part<KorCombo>("cmbCustomer")->Text(), QStringLiteral("(bez klienta)"));
        QCOMPARE(part<KorClick>("clkAddress")->Text(), QString());
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_store->order(1)->customer);
    }

    void aDiscountOutOfItsRangeGoesBackToTheField()
    {
        focus("numDiscount");
        type(QStringLiteral("150"));
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_Tab);
        QTRY_COMPARE(m_clerk->heard(),
                     QStringLiteral("Przekroczony zakres liczby. Wprowadź liczbę z zakresu: [0...100]."));
        QTRY_COMPARE(focusName(), QStringLiteral("numDiscount"));
    }

    void theLargestAmountsAreShownWhole()
    {
        const auto isWhole = [this](const char *name) { return !number(name)->Text().contains(u'#'); };
        focus("numTotal");
        type(QStringLiteral("999999999999"));
        focus("numAdvance");
        QVERIFY(isWhole("numTotal"));
        QVERIFY(isWhole("numDue"));
        type(QStringLiteral("999999999999"));
        focus("numTotal");
        QVERIFY(isWhole("numAdvance"));
    }

    void anAdvanceAboveTheTotalIsNotSaved()
    {
        focus("numAdvance");
        type(QStringLiteral("9999"));
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_clerk->heard(), QStringLiteral("Zaliczka nie może przekraczać wartości zamówienia."));
        QTRY_COMPARE(focusName(), QStringLiteral("numAdvance"));
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_store->order(1)->advance, 178000);
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

    void undoBringsTheSavedOrderBack()
    {
        focus("numTotal");
        type(QStringLiteral("1"));
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
        QTimer::singleShot(100, this, [&choice] {
            QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("25/0123"));
            const auto *list = QApplication::activeModalWidget()->findChild<QTreeWidget *>();
            choice = list->currentItem() ? list->currentItem()->text(0) : QString();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(choice, QStringLiteral("ZAM/2025/0123"));
        QCOMPARE(m_window->form().order().number, choice);
        QCOMPARE(position(), QStringLiteral("123 z 1000"));
    }

    void theAddressFieldChoosesACustomer()
    {
        QString choice;
        const auto choose = [&](const char *text, Qt::Key key) {
            QTimer::singleShot(100, this, [&choice, text, key] {
                QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
                const auto *list = QApplication::activeModalWidget()->findChild<QTreeWidget *>();
                choice = list->currentItem() ? list->currentItem()->text(0) : QString();
                QTest::keyClick(QApplication::focusWidget(), key);
            });
        };
        focus("clkAddress");
        choose("hurt", Qt::Key_Return);
        press(Qt::Key_F4);
        QVERIFY(!choice.isEmpty());
        QCOMPARE(part<KorCombo>("cmbCustomer")->Text(), choice);
        const auto customer = m_window->form().order().customer;
        QVERIFY(customer);
        QCOMPARE(part<KorClick>("clkAddress")->Text(), m_store->addressOf(*customer));
        QVERIFY(m_window->isWindowModified());

        choose("zak", Qt::Key_Escape);
        m_window->activateWindow();
        focus("clkAddress");
        press(Qt::Key_F4);
        QCOMPARE(m_window->form().order().customer, customer);

        m_window->activateWindow();
        focus("clkAddress");
        press(Qt::Key_Delete);
        QVERIFY(!m_window->form().order().customer);
        QCOMPARE(part<KorClick>("clkAddress")->Text(), QString());
    }

    void priorityRemarksAndLabelAreSaved()
    {
        focus("spnPriority");
        part<QLineEdit>("txtUpDown")->selectAll();
        type(QStringLiteral("9")); // clamped on leaving
        press(Qt::Key_Tab);
        QCOMPARE(part<KorUpDown>("spnPriority")->Text(), QStringLiteral("5"));
        focus("clrLabel");
        press(Qt::Key_Home);
        press(Qt::Key_Down);
        press(Qt::Key_Down); // blue
        auto *remarks = part<KorMultiText>("txtRemarks");
        remarks->findChild<QAbstractButton *>(QStringLiteral("cmdClick"))->click();
        kor::test::settle();
        type(QStringLiteral("jeden"));
        press(Qt::Key_Return);
        type(QStringLiteral("dwa"));
        press(Qt::Key_Tab);
        QCOMPARE(remarks->Text(), QStringLiteral("jeden\ndwa"));
        press(Qt::Key_S, Qt::ControlModifier);
        const Order saved = *m_store->order(1);
        QCOMPARE(saved.priority, 5);
        QCOMPARE(saved.labelColor, std::optional<int>(0x800000));
        QCOMPARE(saved.remarks, QStringLiteral("jeden\ndwa"));
    }

    void aLabelColorOutsideTheListIsNotLost()
    {
        Order order = *m_store->order(1);
        order.labelColor = 0x123456;
        QCOMPARE(int(m_store->save(order, *m_store->order(1)).kind), int(orders::Outcome::Kind::Done));
        restart();
        QVERIFY(!m_window->isWindowModified());
        focus("numAdvance");
        type(QStringLiteral("5"));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->labelColor, std::optional<int>(0x123456));
        focus("clrLabel");
        press(Qt::Key_Home); // no label
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_store->order(1)->labelColor);
    }

    void searchGivenUpChangesNothing()
    {
        QTimer::singleShot(100, this, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
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
        QCOMPARE(
            files.join(u' '),
            QStringLiteral(
                "calendar.png lines.png list.png order.png product.png question.png range.png report.png search.png"));
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
