// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/latebound.h"

#include <QtCore/QMetaMethod>
#include <QtSql/QSqlDatabase>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <memory>

using namespace kor::test;

//! Grid and sheet, filled and read by a host that knows the names of their members only.
class tst_LateBindingComposites : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        auto connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("shop"));
        connection.setDatabaseName(QStringLiteral(":memory:"));
        QVERIFY(connection.open());
    }
    void init() { m_form = std::make_unique<QWidget>(); }
    void cleanup() { m_form.reset(); }

    void aGridIsFilledByName();
    void allTwelveArgumentsOfAColumnArePassedByName();
    void aSheetIsFilledByName();
    void allFourteenArgumentsOfAParameterArePassedByName();

private:
    [[nodiscard]] bool focused()
    {
        m_form->show();
        m_form->activateWindow();
        if (!QTest::qWaitForWindowActive(m_form.get()))
            return false;
        m_control->setFocus();
        QCoreApplication::processEvents();
        return QApplication::focusWidget();
    }

    std::unique_ptr<QWidget> m_form;
    QWidget *m_control = nullptr;
};

// --- grid

void tst_LateBindingComposites::aGridIsFilledByName()
{
    m_control = create(QStringLiteral("KorGrid"), m_form.get());
    QVERIFY(m_control);
    int number = 0;
    const auto add = [&](const char *type, const char *title) {
        return QMetaObject::invokeMethod(m_control, "AddColumn", Q_RETURN_ARG(int, number),
                                         Q_ARG(QString, QString::fromLatin1(type)),
                                         Q_ARG(QString, QString::fromLatin1(title)), Q_ARG(int, 1200), Q_ARG(int, 0));
    };
    QVERIFY(add("TEXT", "Towar"));
    QCOMPARE(number, 1);
    QVERIFY(add("NUMBER", "Cena"));
    QCOMPARE(number, 2);
    QVERIFY(QMetaObject::invokeMethod(m_control, "AddRow"));
    QVERIFY(QMetaObject::invokeMethod(m_control, "AddRow", Q_ARG(int, 5)));
    QCOMPARE(m_control->property("Rows"), QVariant(6));
    const auto write = [&](int row, int column, const QString &text) {
        return QMetaObject::invokeMethod(m_control, "setTextMatrix", Q_ARG(int, row), Q_ARG(int, column),
                                         Q_ARG(QString, text));
    };
    const auto text = [&](int row, int column) {
        QString result;
        QMetaObject::invokeMethod(m_control, "TextMatrix", Q_RETURN_ARG(QString, result), Q_ARG(int, row),
                                  Q_ARG(int, column));
        return result;
    };
    QVERIFY(write(1, 1, QStringLiteral("deska")));
    QCOMPARE(text(1, 1), QStringLiteral("deska"));
    QCOMPARE(text(0, 2), QStringLiteral("Cena"));
    QVERIFY(QMetaObject::invokeMethod(m_control, "setTextControl", Q_ARG(int, 0), Q_ARG(int, 2),
                                      Q_ARG(QString, QStringLiteral("Netto"))));
    QCOMPARE(text(0, 2), QStringLiteral("Netto"));
    QVERIFY(QMetaObject::invokeMethod(m_control, "setValue", Q_ARG(int, 1), Q_ARG(int, 2), Q_ARG(QVariant, 3)));
    QVariant value;
    QVERIFY(QMetaObject::invokeMethod(m_control, "Value", Q_RETURN_ARG(QVariant, value), Q_ARG(int, 1), Q_ARG(int, 2)));
    QCOMPARE(value, QVariant(3.0));
    float sum = 0;
    QVERIFY(QMetaObject::invokeMethod(m_control, "SumColumn", Q_RETURN_ARG(float, sum), Q_ARG(int, 2)));
    QCOMPARE(sum, 3.0F);
    QVERIFY(QMetaObject::invokeMethod(m_control, "MaxColumn", Q_RETURN_ARG(float, sum), Q_ARG(int, 2)));
    QCOMPARE(sum, 3.0F);
    QVERIFY(focused());
    bool isOpen = false;
    QVERIFY(
        QMetaObject::invokeMethod(m_control, "SetFocusCell", Q_RETURN_ARG(bool, isOpen), Q_ARG(int, 1), Q_ARG(int, 1)));
    QVERIFY(isOpen);
    QVERIFY(m_control->findChild<QLineEdit *>(QStringLiteral("TxtBox"))->isVisible());
    QVERIFY(QMetaObject::invokeMethod(m_control, "DelRow", Q_ARG(int, 2)));
    QVERIFY(QMetaObject::invokeMethod(m_control, "DelRow", Q_ARG(int, 2), Q_ARG(int, 3)));
    QCOMPARE(m_control->property("Rows"), QVariant(3));
    QVERIFY(QMetaObject::invokeMethod(m_control, "setdatabase", Q_ARG(QString, QStringLiteral("shop"))));
    QVERIFY(QMetaObject::invokeMethod(m_control, "CmbRefresh"));
    QCOMPARE(errorOf([&] { (void)text(9, 1); }), 381);
}

// --- sheet

void tst_LateBindingComposites::aSheetIsFilledByName()
{
    m_control = create(QStringLiteral("KorParam"), m_form.get());
    QVERIFY(m_control);
    const QString text = QStringLiteral("TEXT");
    QVERIFY(QMetaObject::invokeMethod(m_control, "AddParam", Q_ARG(QString, QStringLiteral("Tytuł")),
                                      Q_ARG(QString, QStringLiteral("t")), Q_ARG(QString, text)));
    QVERIFY(QMetaObject::invokeMethod(m_control, "AddParam", Q_ARG(QString, QStringLiteral("Liczba")),
                                      Q_ARG(QString, QStringLiteral("l")), Q_ARG(QString, QStringLiteral("NUMBER")),
                                      Q_ARG(QVariant, 7)));
    bool result = true;
    const QVariant leftOut(QMetaType::fromName("kor::Missing"), nullptr);
    QVERIFY(QMetaObject::invokeMethod(
        m_control, "AddParam", Q_RETURN_ARG(bool, result), Q_ARG(QString, QStringLiteral("Zgoda")),
        Q_ARG(QString, QStringLiteral("z")), Q_ARG(QString, QStringLiteral("COMBO")), Q_ARG(QVariant, leftOut),
        Q_ARG(QString, QStringLiteral("Long")), Q_ARG(int, 0), Q_ARG(QString, QStringLiteral("pole")),
        Q_ARG(QString, QStringLiteral("LIST 1;tak|0;nie")), Q_ARG(QString, QString())));
    QVERIFY(!result);
    QCOMPARE(m_control->property("Rows"), QVariant(4));
    QCOMPARE(m_control->property("Row"), QVariant(0));
    m_control->setProperty("Row", 1);
    QCOMPARE(m_control->property("ParValue").userType(), QMetaType::fromName("kor::Missing").id());
    m_control->setProperty("Row", 2);
    QCOMPARE(m_control->property("ParName"), QVariant(QStringLiteral("Liczba")));
    QCOMPARE(m_control->property("ParSymbol"), QVariant(QStringLiteral("l")));
    QCOMPARE(m_control->property("ParText"), QVariant(QStringLiteral("7")));
    QCOMPARE(m_control->property("ParValue"), QVariant(7));
    m_control->setProperty("Row", 3);
    QCOMPARE(m_control->property("ParText"), QVariant(QStringLiteral("tak")));
    QCOMPARE(m_control->property("ParType"), QVariant(QStringLiteral("Long")));
    QCOMPARE(m_control->property("ParField"), QVariant(QStringLiteral("pole")));
    QVERIFY(m_control->setProperty("ParValue", 0));
    QCOMPARE(m_control->property("ParValue"), QVariant(0));
    QVERIFY(!m_control->setProperty("ParText", QStringLiteral("nie"))); // read-only
    QCOMPARE(m_control->property("Slownik"), QVariant(QString()));
    QVERIFY(m_control->setProperty("ClickText", QStringLiteral("a")));
    QVERIFY(m_control->setProperty("ClickValue", nullVariant()));
    QCOMPARE(m_control->property("ClickValue"), nullVariant());
    QVERIFY(QMetaObject::invokeMethod(m_control, "setdatabase", Q_ARG(QString, QStringLiteral("shop"))));
    QVERIFY(QMetaObject::invokeMethod(m_control, "CmbRefresh"));
    QVERIFY(QMetaObject::invokeMethod(m_control, "Refresh"));
    QVERIFY(QMetaObject::invokeMethod(m_control, "Clear"));
    QCOMPARE(m_control->property("ParName"), QVariant(QString()));
    QCOMPARE(errorOf([&] { m_control->setProperty("Row", 9); }), 380);
    m_form->setProperty("UserMode", false);
    QCOMPARE(errorOf([&] { m_control->setProperty("ParValue", 1); }), 387);
    m_form->setProperty("UserMode", true);
}

void tst_LateBindingComposites::allFourteenArgumentsOfAParameterArePassedByName()
{
    m_control = create(QStringLiteral("KorParam"), m_form.get());
    const int method = m_control->metaObject()->indexOfMethod(
        "AddParam(QString,QString,QString,QVariant,QString,int,QString,QString,QString,float,float,QString,QString,"
        "QString)");
    QVERIFY(method >= 0);
    bool result = true;
    QString name = QStringLiteral("Kwota");
    QString symbol = QStringLiteral("kw");
    QString kind = QStringLiteral("NUMBER");
    QVariant value = 2.5;
    QString type = QStringLiteral("Double");
    int length = 8;
    QString field = QStringLiteral("pole");
    QString sql;
    QString none;
    float least = 0.5F;
    float most = 9;
    QString clickText;
    QString dictionary = QStringLiteral("slow");
    QString format = QStringLiteral("0.00");
    void *arguments[] = {&result, &name, &symbol, &kind, &value,     &type,       &length, &field,
                         &sql,    &none, &least,  &most, &clickText, &dictionary, &format};
    QMetaObject::metacall(m_control, QMetaObject::InvokeMetaMethod, method, arguments);
    QVERIFY(!result);
    m_control->setProperty("Row", 1);
    QCOMPARE(m_control->property("ParText").toString().size(), 4); // two, separator, five, nought
    QCOMPARE(m_control->property("ParValue"), QVariant(2.5));
}

// The toolkit's invokeMethod() takes ten arguments; a column has twelve.
void tst_LateBindingComposites::allTwelveArgumentsOfAColumnArePassedByName()
{
    m_control = create(QStringLiteral("KorGrid"), m_form.get());
    const int method = m_control->metaObject()->indexOfMethod(
        "AddColumn(QString,QString,int,int,bool,QString,int,int,QString,QString,int,bool)");
    QVERIFY(method >= 0);
    int number = 0;
    QString type = QStringLiteral("NUMBER");
    QString title = QStringLiteral("Cena");
    int width = 1200;
    int align = 1;
    bool isLocked = false;
    QString format = QStringLiteral("0.0");
    int color = 0;
    int length = 0;
    QString sql;
    QString dictionary;
    int valueColumn = 2;
    bool wraps = false;
    void *arguments[] = {&number, &type,   &title, &width,      &align,       &isLocked, &format,
                         &color,  &length, &sql,   &dictionary, &valueColumn, &wraps};
    QMetaObject::metacall(m_control, QMetaObject::InvokeMetaMethod, method, arguments);
    QCOMPARE(number, 1);
    m_control->setProperty("Cols", 3);
    QVERIFY(QMetaObject::invokeMethod(m_control, "setValue", Q_ARG(int, 1), Q_ARG(int, 1), Q_ARG(QVariant, 2.75)));
    QString raw;
    QVERIFY(
        QMetaObject::invokeMethod(m_control, "TextMatrix", Q_RETURN_ARG(QString, raw), Q_ARG(int, 1), Q_ARG(int, 2)));
    QCOMPARE(raw.size(), 4); // two, separator, seven, five
}

QTEST_MAIN(tst_LateBindingComposites)
#include "tst_latebinding_composites.moc"
