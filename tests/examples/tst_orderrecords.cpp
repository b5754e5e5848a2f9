// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "examples/orderfiles.h"
#include "orders/conflictdialog.h"
#include "orders/orderlines.h"
#include "orders/productchooser.h"
#include "orders/recordtables.h"
#include "orders/recordwindow.h"
#include "orders/searchdialog.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/SqlDatabase>
#include <KorDaoUC/Variant>

#include <QtWidgets/QTreeWidget>

using namespace orders;
using namespace orders::test;

//! Customers and products in the hands of a clerk who leaves the mouse alone.
class tst_OrderRecords : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        m_database = std::make_unique<kor::SqlDatabase>(m_store->connection());
        m_catalogue = std::make_unique<Catalogue>(m_store->connection());
    }
    void cleanup()
    {
        m_records.reset();
        m_catalogue.reset();
        m_database.reset();
        close();
    }

    void opensByItsKeyOnWhatTheOrderHas_data();
    void opensByItsKeyOnWhatTheOrderHas();
    void everyLetterIsUsedOnce_data() { tables(); }
    void everyLetterIsUsedOnce();
    void typingFindsAndArrowsWalk();
    void nothingFoundLeavesTheRecord();
    void tabWalksThroughTheFields_data();
    void tabWalksThroughTheFields();
    void lookingChangesNothing_data() { tables(); }
    void lookingChangesNothing();
    void aCustomerIsAddedByKeysAlone();
    void aProductIsAddedByKeysAlone();
    void enterSaves();
    void whatIsWrongIsToldAndStays_data();
    void whatIsWrongIsToldAndStays();
    void asksAboutChanges_data();
    void asksAboutChanges();
    void undoBringsTheSavedRecordBack();
    void whatWasSavedIsSeenThoughItWasNotSearchedFor();
    void whatHasOrdersIsNotDeleted();
    void deletingAsksFirstAndGoesOn();
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
    void tables()
    {
        QTest::addColumn<QString>("table");
        QTest::newRow("customers") << "customers";
        QTest::newRow("products") << "products";
    }
    void show(const QString &table, qint64 id = 0)
    {
        m_records = table == u"customers" ? std::make_unique<RecordWindow>(*m_store, customersTable(),
                                                                           customersToSearch(*m_store), *m_database)
                                          : std::make_unique<RecordWindow>(*m_store, productsTable(23),
                                                                           productsToSearch(*m_catalogue), *m_database);
        if (id != 0)
            m_records->go(id);
        m_records->show();
        m_records->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_records.get()));
        kor::test::settle();
    }
    template <class Widget>
    Widget *field(const char *name) const
    {
        return m_records->findChild<Widget *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QString text(const char *name) const { return field<QLineEdit>(name)->text(); }
    void enter(const char *name)
    {
        field<QWidget>(name)->setFocus(Qt::TabFocusReason);
        kor::test::settle();
    }
    [[nodiscard]] QTreeWidget *list() const { return m_records->findChild<QTreeWidget *>(); }
    [[nodiscard]] QString chosen() const
    {
        return list()->currentItem() ? list()->currentItem()->text(list()->columnCount() == 3 ? 0 : 1) : QString();
    }
    [[nodiscard]] Record saved(const QString &table, qint64 id) const
    {
        return RecordStore(m_store->connection(), table == u"customers" ? customersTable() : productsTable(23))
            .record(id)
            .value_or(Record());
    }
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

    std::unique_ptr<kor::SqlDatabase> m_database;
    std::unique_ptr<Catalogue> m_catalogue;
    std::unique_ptr<RecordWindow> m_records;
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

void tst_OrderRecords::everyLetterIsUsedOnce()
{
    QFETCH(const QString, table);
    show(table);
    const QHash<QChar, QStringList> users = lettersOf(*m_records);
    for (const QStringList &texts : users)
        QVERIFY2(texts.size() == 1, qPrintable(texts.join(u' ')));
    QVERIFY(users.size() >= 12);
}

void tst_OrderRecords::typingFindsAndArrowsWalk()
{
    show(QStringLiteral("customers"));
    const int all = list()->topLevelItemCount();
    QCOMPARE(all, 240);
    QCOMPARE(text("name"), chosen());
    type(QStringLiteral("slusarski"));
    QVERIFY(list()->topLevelItemCount() > 1 && list()->topLevelItemCount() < all);
    QVERIFY2(chosen().contains(QStringLiteral("Ślusarski")), qPrintable(chosen()));
    QCOMPARE(text("name"), chosen());
    const QString first = chosen();
    press(Qt::Key_Down);
    QVERIFY(chosen() != first);
    QCOMPARE(text("name"), chosen());
    press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), field<QLineEdit>("name"));
    QVERIFY(!m_records->isWindowModified());
    QVERIFY(m_records->isVisible());
}

void tst_OrderRecords::nothingFoundLeavesTheRecord()
{
    show(QStringLiteral("products"), 7);
    const QString name = text("name");
    type(QStringLiteral("qqqq"));
    QCOMPARE(list()->topLevelItemCount(), 0);
    QCOMPARE(text("name"), name);
    for (int times = 0; times < 4; ++times)
        press(Qt::Key_Backspace);
    QCOMPARE(list()->topLevelItemCount(), 500);
}

void tst_OrderRecords::tabWalksThroughTheFields_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("stops");
    QTest::newRow("customers") << "customers"
                               << "name group_id nip street postal_code city";
    QTest::newRow("products") << "products"
                              << "name symbol category_id unit_id net_price vat";
}

void tst_OrderRecords::tabWalksThroughTheFields()
{
    QFETCH(const QString, table);
    QFETCH(const QString, stops);
    show(table, 7);
    enter("name");
    QStringList seen;
    for (int presses = 0; presses < 6; ++presses) {
        seen << focusName();
        press(Qt::Key_Tab);
    }
    QCOMPARE(seen.join(u' '), stops);
    QVERIFY(!m_records->isWindowModified()); // looking changes nothing
}

void tst_OrderRecords::lookingChangesNothing()
{
    QFETCH(const QString, table);
    show(table);
    for (int row = 1; row < 60; ++row) {
        press(Qt::Key_Down);
        QVERIFY2(!m_records->isWindowModified(), qPrintable(chosen()));
        QCOMPARE(text("name"), chosen());
    }
    QVERIFY(m_records->close());
    QVERIFY(m_clerk->heard().isEmpty());
    QVERIFY(!m_records->hasSaved());
}

void tst_OrderRecords::aCustomerIsAddedByKeysAlone()
{
    show(QStringLiteral("customers"));
    press(Qt::Key_N, Qt::ControlModifier);
    for (const char *typed : {"Żółw i Spółka", "f", "123-456-32-18", "Prosta 1/3", "00950", "Łódź"}) {
        type(QString::fromUtf8(typed));
        press(Qt::Key_Tab);
    }
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_clerk->heard(), QString());
    QCOMPARE(saved(QStringLiteral("customers"), 241).values,
             (QVariantList{QStringLiteral("Żółw i Spółka"), qint64(2), QStringLiteral("1234563218"),
                           QStringLiteral("Prosta 1/3"), QStringLiteral("00-950"), QStringLiteral("Łódź")}));
    QCOMPARE(chosen(), QStringLiteral("Żółw i Spółka"));
    QCOMPARE(text("nip"), QStringLiteral("1234563218")); // as it was saved
    QVERIFY(!m_records->isWindowModified());
    QVERIFY(m_records->hasSaved());
    QCOMPARE(m_store->findCustomers(QStringLiteral("zolw"), 5).size(), 1);
}

void tst_OrderRecords::aProductIsAddedByKeysAlone()
{
    show(QStringLiteral("products"));
    press(Qt::Key_N, Qt::ControlModifier);
    type(QStringLiteral("Ździebełko"));
    press(Qt::Key_Tab);
    type(QStringLiteral("Z1"));
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    press(Qt::Key_Tab);
    type(QStringLiteral("12,5"));
    press(Qt::Key_S, Qt::ControlModifier); // in the number
    QCOMPARE(m_clerk->heard(), QString());
    const std::optional<Product> product = m_catalogue->productOf(QStringLiteral("z1"));
    QVERIFY(product);
    QCOMPARE(product->name, QStringLiteral("Ździebełko"));
    QCOMPARE(product->netPrice, 1250);
    QCOMPARE(product->vat, 23); // the usual one
    QCOMPARE(product->unit, 1);
    QCOMPARE(chosen(), QStringLiteral("Ździebełko"));
}

void tst_OrderRecords::enterSaves()
{
    show(QStringLiteral("products"), 7);
    enter("net_price");
    type(QStringLiteral("9,99"));
    press(Qt::Key_Return);
    QCOMPARE(m_catalogue->product(7)->netPrice, 999);
    QVERIFY(!m_records->isWindowModified());
    QVERIFY(m_records->isVisible());
}

void tst_OrderRecords::whatIsWrongIsToldAndStays_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("said");
    // clang-format off
    QTest::newRow("half a tax number")       << "customers" << "nip"         << "12345"      << "10 cyfr";
    QTest::newRow("a wrong tax number")      << "customers" << "nip"         << "1234563219" << "cyfra kontrolna";
    QTest::newRow("another's tax number")    << "customers" << "nip"         << "9990032379" << "już występuje w bazie: Zakład Tapicerski G. Pietrzak";
    QTest::newRow("half a postal code")      << "customers" << "postal_code" << "00-9"       << "00-000";
    QTest::newRow("no name")                 << "customers" << "name"        << ""           << "Podaj nazwę";
    QTest::newRow("another's symbol")        << "products"  << "symbol"      << "t0002"      << "już występuje w bazie";
    QTest::newRow("no price")                << "products"  << "net_price"   << ""           << "Podaj cenę";
    QTest::newRow("a price of nothing")      << "products"  << "net_price"   << "0,00"       << "większa od zera";
    // clang-format on
}

void tst_OrderRecords::whatIsWrongIsToldAndStays()
{
    QFETCH(const QString, table);
    QFETCH(const QString, name);
    QFETCH(const QString, typed);
    QFETCH(const QString, said);
    show(table, 7);
    const Record before = saved(table, 7);
    enter(qPrintable(name));
    press(Qt::Key_Delete);
    type(typed);
    m_clerk->willPress({Qt::Key_Return});
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY2(m_clerk->heard().contains(said), qPrintable(m_clerk->heard()));
    QTRY_VERIFY(m_records->isActiveWindow());
    kor::test::settle();
    QCOMPARE(focusName(), name);
    QCOMPARE(qobject_cast<QLineEdit *>(QApplication::focusWidget())->text(), typed);
    QVERIFY(m_records->isWindowModified());
    QVERIFY(saved(table, 7) == before);
}

void tst_OrderRecords::asksAboutChanges_data()
{
    QTest::addColumn<QString>("act");
    QTest::addColumn<Qt::Key>("answer");
    QTest::addColumn<bool>("isSaved");
    QTest::addColumn<bool>("isLeft");
    for (const char *act : {"the next one", "a search", "a new one", "closing"}) {
        const QString name = QString::fromLatin1(act);
        QTest::addRow("%s, saved", act) << name << Qt::Key_Z << true << true;
        QTest::addRow("%s, not saved", act) << name << Qt::Key_N << false << true;
        QTest::addRow("%s, stayed", act) << name << Qt::Key_Escape << false << false;
    }
}

void tst_OrderRecords::asksAboutChanges()
{
    QFETCH(const QString, act);
    QFETCH(const Qt::Key, answer);
    QFETCH(const bool, isSaved);
    QFETCH(const bool, isLeft);
    show(QStringLiteral("customers"), 7);
    const Record before = saved(QStringLiteral("customers"), 7);
    enter("street");
    type(QStringLiteral("Nowa 1"));
    QVERIFY(m_records->isWindowModified());
    m_clerk->willPress({answer});
    if (act == u"closing") {
        press(Qt::Key_Escape);
    } else if (act == u"a new one") {
        press(Qt::Key_N, Qt::ControlModifier);
    } else {
        press(Qt::Key_S, Qt::AltModifier); // to the search
        if (act == u"a search")
            type(QStringLiteral("x"));
        else
            press(Qt::Key_Down);
    }
    QCOMPARE(m_clerk->heard(), QStringLiteral("Zapisać zmiany?"));
    Record expected = before;
    if (isSaved)
        expected.values[3] = QStringLiteral("Nowa 1");
    QVERIFY(saved(QStringLiteral("customers"), 7) == expected);
    QCOMPARE(m_records->isVisible(), act != u"closing" || !isLeft);
    if (!m_records->isVisible())
        return;
    QCOMPARE(m_records->isWindowModified(), !isLeft);
    QCOMPARE(text("name") == before.values.first().toString(), !isLeft);
    QCOMPARE(text("street") == u"Nowa 1", !isLeft);
}

void tst_OrderRecords::undoBringsTheSavedRecordBack()
{
    show(QStringLiteral("products"), 7);
    const QString name = text("name");
    enter("name");
    type(QStringLiteral("x"));
    m_clerk->willPress({Qt::Key_A, Qt::Key_C, Qt::Key_C});
    press(Qt::Key_R, Qt::ControlModifier);
    QTRY_VERIFY(m_records->isActiveWindow());
    QCOMPARE(text("name"), QStringLiteral("x"));
    press(Qt::Key_R, Qt::ControlModifier);
    QTRY_VERIFY(m_records->isActiveWindow());
    QCOMPARE(text("name"), name);
    QVERIFY(!m_records->isWindowModified());
    type(QStringLiteral("y")); // over what stands there
    QCOMPARE(text("name"), QStringLiteral("y"));
    press(Qt::Key_R, Qt::ControlModifier);
}

void tst_OrderRecords::whatWasSavedIsSeenThoughItWasNotSearchedFor()
{
    show(QStringLiteral("products"));
    type(QStringLiteral("gaśnica"));
    const QString before = chosen();
    press(Qt::Key_Return);
    type(QStringLiteral("Coś innego"));
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(chosen(), QStringLiteral("Coś innego"));
    QCOMPARE(text("name"), QStringLiteral("Coś innego"));
    QCOMPARE(list()->topLevelItemCount(), 500);
    QVERIFY(before != chosen());
}

void tst_OrderRecords::whatHasOrdersIsNotDeleted()
{
    show(QStringLiteral("customers"), 1);
    m_clerk->willPress({Qt::Key_U, Qt::Key_Return});
    press(Qt::Key_D, Qt::ControlModifier);
    QVERIFY2(m_clerk->heard().contains(QStringLiteral("nie można go usunąć")), qPrintable(m_clerk->heard()));
    QVERIFY(saved(QStringLiteral("customers"), 1).id == 1);
    QCOMPARE(text("name"), saved(QStringLiteral("customers"), 1).values.first().toString());
}

void tst_OrderRecords::deletingAsksFirstAndGoesOn()
{
    change(file(), {QStringLiteral("INSERT INTO products (id, name, symbol, category_id, unit_id, net_price, vat) "
                                   "VALUES (900, 'Abażur', 'A1', 1, 1, 100, 23)")});
    show(QStringLiteral("products"), 900);
    m_clerk->willPress({Qt::Key_Escape, Qt::Key_U});
    press(Qt::Key_D, Qt::ControlModifier);
    QVERIFY(saved(QStringLiteral("products"), 900).id == 900);
    QTRY_VERIFY(m_records->isActiveWindow());
    press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(m_clerk->heard(), QStringLiteral("Towar „Abażur”: usunąć?|Towar „Abażur”: usunąć?"));
    QVERIFY(saved(QStringLiteral("products"), 900).id == 0);
    QCOMPARE(list()->topLevelItemCount(), 500);
    QVERIFY(!chosen().isEmpty());
    QCOMPARE(text("name"), chosen());
    QVERIFY(!m_records->isWindowModified());
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
    m_database = std::make_unique<kor::SqlDatabase>(m_store->connection());
    m_catalogue = std::make_unique<Catalogue>(m_store->connection());
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
