// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/listdesk.h"
#include "examples/orderfiles.h"
#include "orders/paymentterms.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorListCheck>

#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHeaderView>

using namespace orders;
using namespace orders::test;

//! The list of orders beside the order's window, by keyboard alone.
class tst_ListWindow : public ListDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        openList();
    }
    void cleanup() { end(); }

    void itOpensWithTheNewestOrders();
    void enterOpensTheOrder();
    void aDoubleClickOpensTheOrder();
    void changesAreAskedAboutFirst_data();
    void changesAreAskedAboutFirst();
    void aFilterByKeyboard_data();
    void aFilterByKeyboard();
    void theGroupNarrowsTheCustomers();
    void theTermsAreThoseOfTheOrder();
    void tabLeadsFromTheFilterIntoTheListAndBack();
    void keysLeadToTheFilterAndTheList();
    void aWrongFilterKeepsTheListAndTheClerk_data();
    void aWrongFilterKeepsTheListAndTheClerk();
    void noOrderIsSaid();
    void theFilterIsCleared();
    void sortingByKey();
    void sortingByTheTitles();
    void sortedTextsAreInPolishOrder();
    void itIsThereAgainTomorrow();
    void escapeClosesAndComesBackToTheOrder();
    void closingTheDeskClosesTheList();
    void theListIsExported();
    void theListIsPrinted();

private:
    [[nodiscard]] QHeaderView *titles() const { return view()->horizontalHeader(); }
    [[nodiscard]] QStringList numbersWhere(const QString &condition) const
    {
        QStringList numbers;
        for (const QVariantList &row :
             rows(file(), QStringLiteral("SELECT o.number FROM orders o LEFT JOIN customers c ON c.id = o.customer_id "
                                         "WHERE %1 ORDER BY o.order_date DESC, o.id DESC")
                              .arg(condition)))
            numbers << row.first().toString();
        return numbers;
    }
    [[nodiscard]] QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    //! Answers the next question for a file by a name.
    void answerWith(const QString &name)
    {
        inNextDialog([name](QWidget &dialog) {
            auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            edit->setText(name); // as if it were typed; the dialog would complete it
            QTest::keyClick(edit, Qt::Key_Enter);
        });
    }
};

void tst_ListWindow::itOpensWithTheNewestOrders()
{
    QCOMPARE(focusName(), QStringLiteral("grdOrders"));
    QCOMPARE(column(ListColumn::Number), numbersWhere(QStringLiteral("1 = 1")));
    QCOMPARE(grid()->Row(), 1);
    const Order newest = m_store
                             ->order(rows(file(), QStringLiteral("SELECT id FROM orders ORDER BY order_date DESC, "
                                                                 "id DESC LIMIT 1"))
                                         .first()
                                         .first()
                                         .toLongLong())
                             .value();
    QCOMPARE(cell(1, ListColumn::Place), QStringLiteral("1"));
    QCOMPARE(grid()->Value(1, int(ListColumn::Date)).toDate(), newest.date);
    QCOMPARE(cell(1, ListColumn::Customer), newest.customer ? m_store->nameOf(*newest.customer) : QString());
    QCOMPARE(qRound64(grid()->Value(1, int(ListColumn::Total)).toDouble() * 100), newest.total.value_or(0));
    QVERIFY2(sums().startsWith(QStringLiteral("Zamówień: 1\u00A0000 z 1\u00A0000, netto: ")), qPrintable(sums()));
}

void tst_ListWindow::enterOpensTheOrder()
{
    press(Qt::Key_Down);
    const QString number = current(ListColumn::Number);
    press(Qt::Key_Enter);
    QTRY_VERIFY(m_window->isActiveWindow());
    QCOMPARE(m_window->form().order().number, number);
    QVERIFY(m_list->isVisible());
    openList(); // the same one comes to the front
    QCOMPARE(current(ListColumn::Number), number);
}

void tst_ListWindow::aDoubleClickOpensTheOrder()
{
    const QPoint place = view()->visualRect(view()->model()->index(2, 1)).center();
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, place);
    QTRY_VERIFY(m_window->isActiveWindow());
    QCOMPARE(m_window->form().order().number, cell(3, ListColumn::Number));
}

void tst_ListWindow::changesAreAskedAboutFirst_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("remarks");
    QTest::newRow("saved") << int(Qt::Key_Z) << "ZAM/2025/0002"
                           << "pilne";
    QTest::newRow("not saved") << int(Qt::Key_N) << "ZAM/2025/0002" << QString();
    QTest::newRow("stayed") << int(Qt::Key_A) << "ZAM/2025/0001" << QString();
}

void tst_ListWindow::changesAreAskedAboutFirst()
{
    QFETCH(const int, answer);
    QFETCH(const QString, number);
    QFETCH(const QString, remarks);
    change(file(), {QStringLiteral("UPDATE orders SET remarks = NULL WHERE id = 1")});
    press(Qt::Key_Escape);
    QTRY_VERIFY(m_window->isActiveWindow());
    kor::test::settle();
    press(Qt::Key_PageDown, Qt::ControlModifier);
    press(Qt::Key_PageUp, Qt::ControlModifier); // with the remarks that it has now
    focus("txtRemarks");
    type(QStringLiteral("pilne"));
    QVERIFY(m_window->isWindowModified());
    openList();
    goTo(QStringLiteral("ZAM/2025/0002"));
    m_clerk->willPress({answer});
    press(Qt::Key_Enter);
    QCOMPARE(m_clerk->heard(), QStringLiteral("Zapisać zmiany?"));
    QCOMPARE(m_window->form().order().number, number);
    QCOMPARE(m_store->order(1)->remarks, remarks);
    QCOMPARE(m_window->isWindowModified(), answer == Qt::Key_A);
}

void tst_ListWindow::aFilterByKeyboard_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("condition");
    QTest::newRow("from") << QByteArray("datFrom") << "010426"
                          << "o.order_date >= '2026-04-01'";
    QTest::newRow("to") << QByteArray("datTo") << "31012025"
                        << "o.order_date <= '2025-01-31'";
    QTest::newRow("least") << QByteArray("numLeast") << "9000,5"
                           << "o.total >= 900050";
    QTest::newRow("most") << QByteArray("numMost") << "100"
                          << "o.total <= 10000";
    QTest::newRow("text") << QByteArray("txtText") << "wąska"
                          << "o.remarks LIKE '%wąska%'";
    QTest::newRow("customer") << QByteArray("cmbCustomer") << "Firma Handlowa E"
                              << "o.customer_id = 1";
    QTest::newRow("group") << QByteArray("cmbGroup") << "War"
                           << "c.group_id = (SELECT id FROM customer_groups WHERE name LIKE 'War%')";
    QTest::newRow("terms") << QByteArray("lstTerms") << " "
                           << "o.payment_terms = 'G'";
}

void tst_ListWindow::aFilterByKeyboard()
{
    QFETCH(const QByteArray, field);
    QFETCH(const QString, text);
    QFETCH(const QString, condition);
    const QStringList expected = numbersWhere(condition);
    QVERIFY(!expected.isEmpty() && expected.size() < 1000);
    enter(field.constData(), text);
    press(Qt::Key_Enter);
    QCOMPARE(column(ListColumn::Number), expected);
    QCOMPARE(focusName(), QStringLiteral("grdOrders")); // to go on by the arrows
    QVERIFY2(sums().startsWith(QStringLiteral("Zamówień: %1 z 1\u00A0000,").arg(expected.size())), qPrintable(sums()));
}

void tst_ListWindow::theGroupNarrowsTheCustomers()
{
    const auto *customers = m_list->findChild<KorCombo *>(QStringLiteral("cmbCustomer"));
    QCOMPARE(customers->ListCount(), 241);
    enter("cmbGroup", QStringLiteral("War"));
    const auto inGroup = rows(file(), QStringLiteral("SELECT count(*) FROM customers WHERE group_id = "
                                                     "(SELECT id FROM customer_groups WHERE name LIKE 'War%')"));
    QCOMPARE(customers->ListCount(), inGroup.first().first().toInt() + 1);
    press(Qt::Key_Home); // all groups again
    QCOMPARE(customers->ListCount(), 241);
}

void tst_ListWindow::theTermsAreThoseOfTheOrder()
{
    const auto *terms = m_list->findChild<KorListCheck *>();
    auto *ofTheOrder = part<KorCombo>("cmbTerms");
    QCOMPARE(terms->ListCount(), paymentTerms().size());
    QCOMPARE(ofTheOrder->ListCount(), paymentTerms().size());
    for (const QString &code : paymentTerms()) {
        ofTheOrder->setValue(code);
        QCOMPARE(ofTheOrder->Value().toString(), code);
        QCOMPARE(ofTheOrder->Text(), nameOfTerms(code));
    }
}

void tst_ListWindow::tabLeadsFromTheFilterIntoTheListAndBack()
{
    press(Qt::Key_F6);
    const QStringList way{QStringLiteral("datFrom"),     QStringLiteral("datTo"),    QStringLiteral("numLeast"),
                          QStringLiteral("numMost"),     QStringLiteral("txtText"),  QStringLiteral("cmbGroup"),
                          QStringLiteral("cmbCustomer"), QStringLiteral("lstTerms"), QStringLiteral("cmdShow"),
                          QStringLiteral("cmdClear"),    QStringLiteral("grdOrders")};
    QStringList gone{focusName()};
    while (gone.size() < way.size()) {
        press(Qt::Key_Tab);
        gone << focusName();
    }
    QCOMPARE(gone, way);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(focusName(), QStringLiteral("cmdClear"));
}

void tst_ListWindow::keysLeadToTheFilterAndTheList()
{
    press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(focusName(), QStringLiteral("txtText"));
    press(Qt::Key_F7);
    QCOMPARE(focusName(), QStringLiteral("grdOrders"));
    press(Qt::Key_F6);
    QCOMPARE(focusName(), QStringLiteral("datFrom"));
}

void tst_ListWindow::aWrongFilterKeepsTheListAndTheClerk_data()
{
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("field");
    QTest::newRow("a period that ends before it begins")
        << QStringList{QStringLiteral("datFrom"), QStringLiteral("02012026"), QStringLiteral("datTo"),
                       QStringLiteral("01012026")}
        << "Okres kończy się, zanim się zaczyna."
        << "datTo";
    QTest::newRow("amounts the wrong way round")
        << QStringList{QStringLiteral("numMost"), QStringLiteral("5"), QStringLiteral("numLeast"), QStringLiteral("6")}
        << "Największa wartość jest mniejsza od najmniejszej."
        << "numMost";
}

void tst_ListWindow::aWrongFilterKeepsTheListAndTheClerk()
{
    QFETCH(const QStringList, typed);
    QFETCH(const QString, message);
    QFETCH(const QString, field);
    for (qsizetype at = 0; at < typed.size(); at += 2)
        enter(qPrintable(typed.at(at)), typed.at(at + 1));
    press(Qt::Key_Enter);
    QCOMPARE(m_clerk->heard(), message);
    QCOMPARE(grid()->Rows(), 1001);
    QTRY_COMPARE(focusName(), field);
}

void tst_ListWindow::noOrderIsSaid()
{
    enter("txtText", QStringLiteral("takiego nie ma"));
    press(Qt::Key_Enter);
    QCOMPARE(grid()->Rows(), 1);
    QCOMPARE(sums(), QStringLiteral("Nie ma takich zamówień."));
    QCOMPARE(focusName(), QStringLiteral("txtText")); // to try another text
    press(Qt::Key_F7);
    press(Qt::Key_Enter); // nothing to open
    QVERIFY(m_list->isActiveWindow());
}

void tst_ListWindow::theFilterIsCleared()
{
    enter("txtText", QStringLiteral("wąska"));
    enter("lstTerms", QStringLiteral(" "));
    press(Qt::Key_Enter);
    QVERIFY(grid()->Rows() < 1000);
    press(Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(grid()->Rows(), 1001);
    QCOMPARE(m_list->findChild<QLineEdit *>(QStringLiteral("txtText"))->text(), QString());
    QCOMPARE(m_list->findChild<KorListCheck *>()->SelCount(), 0);
}

void tst_ListWindow::sortingByKey()
{
    QCOMPARE(titles()->sortIndicatorSection(), int(ListColumn::Date) - 1);
    QCOMPARE(titles()->sortIndicatorOrder(), Qt::DescendingOrder);
    const QString number = current(ListColumn::Number);
    press(Qt::Key_Home);
    press(Qt::Key_F3);
    QStringList sorted = column(ListColumn::Number);
    QVERIFY(std::is_sorted(sorted.cbegin(), sorted.cend()));
    QCOMPARE(current(ListColumn::Number), number); // the cursor stays with its order
    press(Qt::Key_F3);
    sorted = column(ListColumn::Number);
    QVERIFY(std::is_sorted(sorted.crbegin(), sorted.crend()));
    QCOMPARE(cell(1, ListColumn::Place), QStringLiteral("1"));
    press(Qt::Key_F5); // and it stays so
    QCOMPARE(column(ListColumn::Number), sorted);
}

void tst_ListWindow::sortingByTheTitles()
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    const QString number = current(ListColumn::Number);
    const int section = int(ListColumn::Total) - 1;
    const QPoint title(titles()->sectionViewportPosition(section) + titles()->sectionSize(section) / 2,
                       titles()->height() / 2);
    const auto amounts = [this] {
        std::vector<double> all;
        for (int row = 1; row < grid()->Rows(); ++row)
            all.push_back(grid()->Value(row, int(ListColumn::Total)).toDouble());
        return all;
    };
    QTest::mouseClick(titles()->viewport(), Qt::LeftButton, {}, title);
    kor::test::settle();
    std::vector<double> sorted = amounts();
    QVERIFY(std::is_sorted(sorted.cbegin(), sorted.cend()));
    QCOMPARE(current(ListColumn::Number), number);
    QTest::mouseClick(titles()->viewport(), Qt::LeftButton, {}, title);
    kor::test::settle();
    sorted = amounts();
    QVERIFY(std::is_sorted(sorted.crbegin(), sorted.crend()));
    QCOMPARE(current(ListColumn::Number), number);
    QTest::mouseDClick(titles()->viewport(), Qt::LeftButton, {}, title);
    kor::test::settle();
    QVERIFY(m_list->isActiveWindow()); // no order is opened by a title
}

void tst_ListWindow::sortedTextsAreInPolishOrder()
{
    change(file(), {QStringLiteral("UPDATE customers SET name = 'Łąka' WHERE id = 1"),
                    QStringLiteral("UPDATE customers SET name = 'Luka' WHERE id = 2"),
                    QStringLiteral("UPDATE customers SET name = 'Mak' WHERE id = 3"),
                    QStringLiteral("UPDATE orders SET customer_id = id % 3 + 1")});
    press(Qt::Key_F5);
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_F3);
    QStringList names = column(ListColumn::Customer);
    names.removeDuplicates();
    QCOMPARE(names, (QStringList{QStringLiteral("Luka"), QStringLiteral("Łąka"), QStringLiteral("Mak")}));
}

void tst_ListWindow::itIsThereAgainTomorrow()
{
    begin();
    openList();
    enter("datFrom", QStringLiteral("01012026"));
    enter("txtText", QStringLiteral("brama, żółta"));
    enter("txtText", QStringLiteral("wąska"));
    enter("cmbCustomer", QStringLiteral("Pasieka"));
    press(Qt::Key_Home); // anyone after all
    enter("lstTerms", QStringLiteral(" "));
    press(Qt::Key_Enter);
    press(Qt::Key_F7);
    press(Qt::Key_Home);
    press(Qt::Key_F3);
    const int width = titles()->sectionSize(2);
    titles()->resizeSection(2, width - 41);
    const QRect first = m_list->geometry();
    m_list->setGeometry(2, 40, m_list->minimumSizeHint().width(), first.height() - 31);
    const QRect stood = m_list->geometry();
    const QStringList numbers = column(ListColumn::Number);
    press(Qt::Key_Escape);
    begin();
    openList();
    QCOMPARE(m_list->geometry(), stood);
    QCOMPARE(titles()->sectionSize(2), width - 41);
    QCOMPARE(column(ListColumn::Number), numbers);
    QCOMPARE(m_list->findChild<KorDate *>(QStringLiteral("datFrom"))->Text(), QStringLiteral("01.01.2026"));
    QCOMPARE(m_list->findChild<KorListCheck *>()->ValueChecked(), QStringLiteral("G;"));
    QCOMPARE(titles()->sortIndicatorSection(), int(ListColumn::Number) - 1);
    QCOMPARE(titles()->sortIndicatorOrder(), Qt::AscendingOrder);
}

void tst_ListWindow::escapeClosesAndComesBackToTheOrder()
{
    enter("txtText", QStringLiteral("wąska"));
    press(Qt::Key_Escape);
    QVERIFY(!m_list->isVisible());
    QTRY_VERIFY(m_window->isActiveWindow());
    change(file(), {QStringLiteral("DELETE FROM orders WHERE remarks LIKE '%wąska%'")});
    openList(); // with the filter as it was left, on the orders as they are now
    QCOMPARE(grid()->Rows(), 1);
}

void tst_ListWindow::closingTheDeskClosesTheList()
{
    bringUp(*m_window);
    press(Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!m_window->isVisible());
    QVERIFY(!m_list->isVisible());
}

void tst_ListWindow::theListIsExported()
{
    enter("txtText", QStringLiteral("wąska"));
    press(Qt::Key_Enter);
    answerWith(path("zamówienia.csv"));
    press(Qt::Key_F12);
    QTRY_COMPARE(said(), QStringLiteral("Zapisano plik %1.").arg(path("zamówienia.csv")));
    QFile csv(path("zamówienia.csv"));
    QVERIFY(csv.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(csv.readAll()).split(QStringLiteral("\r\n"));
    QCOMPARE(lines.size(), grid()->Rows() + 2); // titles, sums, and nothing behind the last break
    QVERIFY(lines.first().contains(QStringLiteral("Lp.;Numer;Data;Klient;")));
    QVERIFY(lines.at(1).contains(cell(1, ListColumn::Number)));
    QVERIFY(lines.at(lines.size() - 2).contains(QStringLiteral("Razem")));
}

void tst_ListWindow::theListIsPrinted()
{
    answerWith(path("zamówienia.pdf"));
    press(Qt::Key_P, Qt::ControlModifier);
    QTRY_COMPARE(said(), QStringLiteral("Zapisano plik %1.").arg(path("zamówienia.pdf")));
    QFile pdf(path("zamówienia.pdf"));
    QVERIFY(pdf.open(QIODevice::ReadOnly));
    const QByteArray bytes = pdf.readAll();
    QVERIFY(bytes.startsWith("%PDF-"));
    QVERIFY(bytes.count("/Type /Page\n") > 10);
}

QTEST_MAIN(tst_ListWindow)
#include "tst_listwindow.moc"
