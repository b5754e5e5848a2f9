// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderfiles.h"
#include "examples/recorddesk.h"
#include "orders/conflictdialog.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorMultiText>

using namespace orders;
using namespace orders::test;

//! Customers and products that others have as well: the order that opened them, and the desks beside this one.
class tst_OrderRecords : public RecordDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        begin();
    }
    void cleanup() { end(); }

    void opensByItsKeyOnWhatTheOrderHas_data();
    void opensByItsKeyOnWhatTheOrderHas();
    void whatWasChangedElsewhereIsDecided_data();
    void whatWasChangedElsewhereIsDecided();
    void aFieldChangedElsewhereOnlyIsProposedSo();
    void whatWasDeletedElsewhereCanBeAddedAnew();
    void refreshingShowsWhatOthersSaved();
    void refreshingKeepsWhatIsTyped();
    void aFailureKeepsWhatIsTyped();
    void theOrderShowsItsCustomerAnewAndKeepsWhatIsTyped();
    void anOrderOfADeletedCustomerIsTold();
    void linesShowTheirProductsAnewAndKeepWhatWasAgreed_data();
    void linesShowTheirProductsAnewAndKeepWhatWasAgreed();

private:
    [[nodiscard]] QVariant value(const char *statement) const
    {
        return rows(file(), QString::fromUtf8(statement)).value(0).value(0);
    }
    //! Answers the next choice between two desks by these keys.
    void decide(const QList<Qt::Key> &keys)
    {
        auto *look = new QTimer(m_records.get());
        connect(look, &QTimer::timeout, look, [look, keys, this] {
            auto *dialog = qobject_cast<ConflictDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isActiveWindow())
                return;
            look->stop();
            for (const auto *box : dialog->findChildren<QGroupBox *>())
                m_conflicts << box->title();
            for (const Qt::Key key : keys) {
                if (dialog->isVisible())
                    QTest::keyClick(QApplication::focusWidget(), key);
            }
        });
        look->start(5);
    }

    QStringList m_conflicts;
};

void tst_OrderRecords::opensByItsKeyOnWhatTheOrderHas_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("title");
    QTest::newRow("customers") << Qt::Key_K << "%1[*] – Klienci";
    QTest::newRow("products") << Qt::Key_T << "%1[*] – Towary";
}

void tst_OrderRecords::opensByItsKeyOnWhatTheOrderHas()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const QString, title);
    const Order order = m_store->order(1).value();
    const QString name =
        key == Qt::Key_K ? m_store->nameOf(*order.customer) : m_catalogue->product(*order.lines.first().product)->name;
    QString seen;
    QString focused;
    inNextDialog([&](QWidget &dialog) {
        seen = dialog.windowTitle();
        focused = QString::fromLatin1(QApplication::focusWidget()->metaObject()->className());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    });
    press(key, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(seen, title.arg(name));
    QCOMPARE(focused, QStringLiteral("QLineEdit")); // that of the search
    QTRY_VERIFY(m_window->isActiveWindow());
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(m_clerk->heard().isEmpty());
}

void tst_OrderRecords::whatWasChangedElsewhereIsDecided_data()
{
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<QString>("city");
    QTest::addColumn<bool>("isSaved");
    // The first Enter is of no avail: nobody but the clerk can tell which is right.
    QTest::newRow("mine") << QList<Qt::Key>{Qt::Key_Return, Qt::Key_Space, Qt::Key_Return} << "Moje" << true;
    QTest::newRow("theirs") << QList<Qt::Key>{Qt::Key_Return, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return} << "Ich"
                            << true;
    QTest::newRow("back to the form") << QList<Qt::Key>{Qt::Key_Escape} << "Ich" << false;
}

void tst_OrderRecords::whatWasChangedElsewhereIsDecided()
{
    QFETCH(const QList<Qt::Key>, keys);
    QFETCH(const QString, city);
    QFETCH(const bool, isSaved);
    show(QStringLiteral("customers"), 7);
    enter("city");
    type(QStringLiteral("Moje"));
    change(file(), {QStringLiteral("UPDATE customers SET city = 'Ich' WHERE id = 7")});
    m_conflicts.clear();
    decide(keys);
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_conflicts, QStringList{QStringLiteral("Miejscowość")});
    QCOMPARE(value("SELECT city FROM customers WHERE id = 7").value<QString>(), city);
    QCOMPARE(m_records->isWindowModified(), !isSaved);
    QCOMPARE(text("city"), isSaved ? city : QStringLiteral("Moje"));
}

void tst_OrderRecords::aFieldChangedElsewhereOnlyIsProposedSo()
{
    show(QStringLiteral("products"), 7);
    enter("name");
    type(QStringLiteral("Moja nazwa"));
    change(file(), {QStringLiteral("UPDATE products SET net_price = 777, unit_id = 3 WHERE id = 7")});
    m_conflicts.clear();
    decide({Qt::Key_Return});
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_conflicts, (QStringList{QStringLiteral("Jednostka miary"), QStringLiteral("Cena netto [zł]")}));
    const Product product = m_catalogue->product(7).value();
    QCOMPARE(product.name, QStringLiteral("Moja nazwa"));
    QCOMPARE(product.netPrice, 777);
    QCOMPARE(product.unit, 3);
    QVERIFY(!m_records->isWindowModified());
}

void tst_OrderRecords::whatWasDeletedElsewhereCanBeAddedAnew()
{
    change(file(), {QStringLiteral("INSERT INTO products (id, name, symbol, category_id, unit_id, net_price, vat) "
                                   "VALUES (900, 'Abażur', 'A1', 1, 1, 100, 23)")});
    show(QStringLiteral("products"), 900);
    enter("net_price");
    type(QStringLiteral("2"));
    change(file(), {QStringLiteral("DELETE FROM products WHERE id = 900")});
    m_clerk->willPress({Qt::Key_Escape, Qt::Key_D});
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY2(m_clerk->heard().contains(QStringLiteral("„Abażur” usunięto tymczasem")), qPrintable(m_clerk->heard()));
    QTRY_VERIFY(m_records->isActiveWindow());
    QVERIFY(m_records->isWindowModified());
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_catalogue->productOf(QStringLiteral("A1"))->netPrice, 200);
    QVERIFY(!m_records->isWindowModified());
}

void tst_OrderRecords::refreshingShowsWhatOthersSaved()
{
    show(QStringLiteral("customers"), 7);
    const int groups = field<KorCombo>("group_id")->ListCount();
    change(file(), {QStringLiteral("UPDATE customers SET name = 'Inna nazwa' WHERE id = 7"),
                    QStringLiteral("INSERT INTO customer_groups (name) VALUES ('Nowa grupa')")});
    press(Qt::Key_F5);
    QCOMPARE(text("name"), QStringLiteral("Inna nazwa"));
    QCOMPARE(chosen(), QStringLiteral("Inna nazwa"));
    QCOMPARE(field<KorCombo>("group_id")->ListCount(), groups + 1);
    QVERIFY(!m_records->isWindowModified());
}

void tst_OrderRecords::refreshingKeepsWhatIsTyped()
{
    show(QStringLiteral("customers"), 7);
    enter("street");
    type(QStringLiteral("Nowa 1"));
    change(file(), {QStringLiteral("UPDATE customers SET name = 'Inna nazwa' WHERE id = 7")});
    press(Qt::Key_F5);
    QCOMPARE(chosen(), QStringLiteral("Inna nazwa"));
    QCOMPARE(text("street"), QStringLiteral("Nowa 1"));
    QVERIFY(m_records->isWindowModified());
    QVERIFY(m_clerk->heard().isEmpty());
    m_clerk->willPress({Qt::Key_N});
    m_records->close();
}

void tst_OrderRecords::aFailureKeepsWhatIsTyped()
{
    show(QStringLiteral("customers"), 7);
    OrderStore other(file());
    QSqlQuery(m_store->connection()).exec(QStringLiteral("PRAGMA busy_timeout = 0"));
    QSqlQuery(other.connection()).exec(QStringLiteral("BEGIN IMMEDIATE"));
    enter("street");
    type(QStringLiteral("Nowa 1"));
    m_clerk->willPress({Qt::Key_Return});
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY2(m_clerk->heard().contains(QStringLiteral("Spróbuj ponownie za chwilę.")), qPrintable(m_clerk->heard()));
    QTRY_VERIFY(m_records->isActiveWindow());
    QCOMPARE(text("street"), QStringLiteral("Nowa 1"));
    QVERIFY(m_records->isWindowModified());
    QSqlQuery(other.connection()).exec(QStringLiteral("ROLLBACK"));
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(value("SELECT street FROM customers WHERE id = 7").value<QString>(), QStringLiteral("Nowa 1"));
}

void tst_OrderRecords::theOrderShowsItsCustomerAnewAndKeepsWhatIsTyped()
{
    auto *customer = part<KorCombo>("cmbCustomer");
    const QVariant key = customer->Value();
    focus("txtRemarks");
    type(QStringLiteral("pilne"));
    focus("datDelivery");
    type(QStringLiteral("0112")); // half a date
    const Order typed = m_window->form().order();
    inNextDialog([](QWidget &) {
        press(Qt::Key_Return); // from the search to the name
        type(QStringLiteral("Inna nazwa"));
        press(Qt::Key_S, Qt::ControlModifier);
        press(Qt::Key_Escape);
    });
    press(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(m_window->isActiveWindow());
    QCOMPARE(customer->Text(), QStringLiteral("Inna nazwa"));
    QCOMPARE(customer->Value(), key);
    QVERIFY(m_window->form().order() == typed);
    QCOMPARE(date("datDelivery")->Text(), QStringLiteral("0112"));
    QCOMPARE(part<KorMultiText>("txtRemarks")->Text(), QStringLiteral("pilne"));
    QCOMPARE(m_clerk->heard(), QString());
}

void tst_OrderRecords::anOrderOfADeletedCustomerIsTold()
{
    change(file(), {QStringLiteral("INSERT INTO customers (id, name, group_id, street, postal_code, city) "
                                   "VALUES (900, 'Aaa', 1, '', '00-950', 'x')")});
    restart();
    begin();
    press(Qt::Key_N, Qt::ControlModifier);
    type(QStringLiteral("aaa"));
    QCOMPARE(part<KorCombo>("cmbCustomer")->Text(), QStringLiteral("Aaa"));
    focus("txtRemarks");
    type(QStringLiteral("pilne"));
    m_clerk->willPress({Qt::Key_U, Qt::Key_Return});
    inNextDialog([](QWidget &) {
        press(Qt::Key_D, Qt::ControlModifier);
        QTest::keyClick(QApplication::activeWindow(), Qt::Key_Escape);
    });
    press(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY2(m_clerk->heard().contains(QStringLiteral("Klienta, który był wybrany w zamówieniu, usunięto")),
             qPrintable(m_clerk->heard()));
    QCOMPARE(part<KorMultiText>("txtRemarks")->Text(), QStringLiteral("pilne"));
    QVERIFY(!m_window->form().order().customer);
}

void tst_OrderRecords::linesShowTheirProductsAnewAndKeepWhatWasAgreed_data()
{
    QTest::addColumn<bool>("isInCell");
    QTest::newRow("from another field") << false;
    QTest::newRow("from the cell of the symbol itself") << true;
}

void tst_OrderRecords::linesShowTheirProductsAnewAndKeepWhatWasAgreed()
{
    QFETCH(const bool, isInCell);
    const OrderLine line = m_store->order(1)->lines.first();
    const Order before = m_window->form().order();
    if (isInCell) {
        press(Qt::Key_J, Qt::AltModifier);
        press(Qt::Key_Home, Qt::ControlModifier);
    }
    inNextDialog([](QWidget &) {
        press(Qt::Key_Return);
        type(QStringLiteral("Inna nazwa"));
        press(Qt::Key_Tab);
        type(QStringLiteral("INNY"));
        press(Qt::Key_C, Qt::AltModifier);
        type(QStringLiteral("1,23"));
        press(Qt::Key_S, Qt::ControlModifier);
        press(Qt::Key_Escape);
    });
    press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(m_window->isActiveWindow());
    kor::test::settle();
    if (isInCell)
        QCOMPARE(qobject_cast<QLineEdit *>(QApplication::focusWidget())->text(), QStringLiteral("INNY"));
    press(Qt::Key_Tab);
    QCOMPARE(m_catalogue->product(*line.product)->symbol, QStringLiteral("INNY"));
    QCOMPARE(m_catalogue->product(*line.product)->netPrice, 123);
    QCOMPARE(part<KorGrid>("grdLines")->TextMatrix(1, 1), QStringLiteral("INNY"));
    QCOMPARE(part<KorGrid>("grdLines")->TextMatrix(1, 2), line.name);
    QVERIFY(m_window->form().order() == before);
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(!m_window->form().isChanged());
    QVERIFY(m_store->order(1) == before);
}

QTEST_MAIN(tst_OrderRecords)
#include "tst_orderrecords.moc"
