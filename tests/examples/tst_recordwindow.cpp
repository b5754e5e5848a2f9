// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderfiles.h"
#include "examples/recorddesk.h"

using namespace orders;
using namespace orders::test;

//! Customers and products in the hands of a clerk who leaves the mouse alone.
class tst_RecordWindow : public RecordDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        begin();
    }
    void cleanup() { end(); }

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

private:
    static void tables()
    {
        QTest::addColumn<QString>("table");
        QTest::newRow("customers") << "customers";
        QTest::newRow("products") << "products";
    }
};

void tst_RecordWindow::everyLetterIsUsedOnce()
{
    QFETCH(const QString, table);
    show(table);
    const QHash<QChar, QStringList> users = lettersOf(*m_records);
    for (const QStringList &texts : users)
        QVERIFY2(texts.size() == 1, qPrintable(texts.join(u' ')));
    QVERIFY(users.size() >= 12);
}

void tst_RecordWindow::typingFindsAndArrowsWalk()
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

void tst_RecordWindow::nothingFoundLeavesTheRecord()
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

void tst_RecordWindow::tabWalksThroughTheFields_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("stops");
    QTest::newRow("customers") << "customers"
                               << "name group_id nip street postal_code city";
    QTest::newRow("products") << "products"
                              << "name symbol category_id unit_id net_price vat";
}

void tst_RecordWindow::tabWalksThroughTheFields()
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

void tst_RecordWindow::lookingChangesNothing()
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

void tst_RecordWindow::aCustomerIsAddedByKeysAlone()
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

void tst_RecordWindow::aProductIsAddedByKeysAlone()
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

void tst_RecordWindow::enterSaves()
{
    show(QStringLiteral("products"), 7);
    enter("net_price");
    type(QStringLiteral("9,99"));
    press(Qt::Key_Return);
    QCOMPARE(m_catalogue->product(7)->netPrice, 999);
    QVERIFY(!m_records->isWindowModified());
    QVERIFY(m_records->isVisible());
}

void tst_RecordWindow::whatIsWrongIsToldAndStays_data()
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

void tst_RecordWindow::whatIsWrongIsToldAndStays()
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

void tst_RecordWindow::asksAboutChanges_data()
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

void tst_RecordWindow::asksAboutChanges()
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

void tst_RecordWindow::undoBringsTheSavedRecordBack()
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

void tst_RecordWindow::whatWasSavedIsSeenThoughItWasNotSearchedFor()
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

void tst_RecordWindow::whatHasOrdersIsNotDeleted()
{
    show(QStringLiteral("customers"), 1);
    m_clerk->willPress({Qt::Key_U, Qt::Key_Return});
    press(Qt::Key_D, Qt::ControlModifier);
    QVERIFY2(m_clerk->heard().contains(QStringLiteral("nie można go usunąć")), qPrintable(m_clerk->heard()));
    QVERIFY(saved(QStringLiteral("customers"), 1).id == 1);
    QCOMPARE(text("name"), saved(QStringLiteral("customers"), 1).values.first().toString());
}

void tst_RecordWindow::deletingAsksFirstAndGoesOn()
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

QTEST_MAIN(tst_RecordWindow)
#include "tst_recordwindow.moc"
