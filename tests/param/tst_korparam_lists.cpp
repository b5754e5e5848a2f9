// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"

#include <KorDaoUC/Database>
#include <KorDaoUC/Recordset>
#include <KorDaoUC/RunTimeError>

#include <functional>
#include <utility>

using namespace kor;
using namespace kor::test;

namespace {

class Rows final : public Recordset
{
public:
    explicit Rows(int rows) : m_rows(rows) {}
    int RecordCount() const override { return m_rows > 0 ? 1 : 0; }
    bool Eof() const override { return m_at >= m_rows; }
    void MoveNext() override { ++m_at; }
    int FieldCount() const override { return 2; }
    QVariant FieldValue(int index) const override
    {
        return index == 0 ? QVariant(m_at + 1) : QVariant(QStringLiteral("klient %1").arg(m_at + 1));
    }
    QString FieldName(int) const override { return {}; }
    void Close() override {}

private:
    int m_rows;
    int m_at = 0;
};

//! A database that remembers what it was asked, and breaks when it is told to.
class Customers final : public Database
{
public:
    std::unique_ptr<Recordset> OpenRecordset(const QString &source, int) override
    {
        asked << source;
        if (const auto happens = std::exchange(meanwhile, {}))
            happens();
        if (breaks)
            throw RunTimeError(ErrorNumber::DatabaseFailed, QStringLiteral("przerwane"));
        return std::make_unique<Rows>(rows);
    }
    [[nodiscard]] int takeCount() { return static_cast<int>(std::exchange(asked, {}).size()); }

    QStringList asked;
    std::function<void()> meanwhile; //!< once, as in a host's own database that runs an event loop
    int rows = 4;
    bool breaks = false;
};

} // namespace

//! COMBO parameters and the lists that they are chosen from.
class tst_KorParam_Lists : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        database = std::make_unique<Customers>();
        sheet->setdatabase(database.get());
    }
    void cleanup()
    {
        tearDown();
        database.reset();
    }

    void aListIsReadOncePerStepThatAsksForIt();
    void theEntryForNoneIsNull();
    void withoutANameForNoneThereIsNoSuchEntry();
    void withoutASourceTheListStaysAsItWas();
    void aListThatCouldNotBeReadChangesNothing_data();
    void aListThatCouldNotBeReadChangesNothing();
    void theUserMayChooseFromALeftOverListAllTheSame();
    void aRefreshThatFailsKeepsTheChoice();
    void aKeyThatIsGoneBecomesTheFirstEntry();
    void theListIsReadAnewByItsKeyAndByTheProgram();
    void aLongListOpensAtOnce();
    void atDesignTimeNoDatabaseIsAsked();
    void aDatabaseThatWaitsLetsAnythingHappen_data();
    void aDatabaseThatWaitsLetsAnythingHappen();
    void whoGoesElsewhereMeanwhileIsNotCalledBack_data();
    void whoGoesElsewhereMeanwhileIsNotCalledBack();
    void aKeyOnAListIsNotTypedElsewhere();
    void aDatabaseThatIsGoneIsNotAsked();

private:
    void addCustomer(const char *name, const QVariant &key, const char *none = "",
                     const char *source = "SELECT id, nazwa FROM klient")
    {
        sheet->AddParam(QString::fromUtf8(name), QStringLiteral("kl"), QStringLiteral("COMBO"), key, QString(), 0,
                        QString(), QString::fromLatin1(source), QString::fromUtf8(none), 0, 0, QString(),
                        QStringLiteral("klient"));
        settle();
    }
    std::unique_ptr<Customers> database;
};

void tst_KorParam_Lists::aListIsReadOncePerStepThatAsksForIt()
{
    for (int i = 1; i < 4; ++i)
        addCustomer("Klient", i);
    QCOMPARE(database->takeCount(), 3); // each parameter by itself
    QCOMPARE(allShown(), QStringLiteral("klient 1|klient 2|klient 3"));
    for (int row = 1; row < 4; ++row)
        (void)valueOf(row);
    QCOMPARE(database->takeCount(), 0);
    sheet->setRow(1);
    enter();
    QCOMPARE(database->takeCount(), 1);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QCOMPARE(database->takeCount(), 2);
    press(Qt::Key_Down); // the last one: stays open
    type(QStringLiteral("k"));
    leave();
    QCOMPARE(database->takeCount(), 0);
    add("TEXT", "Tytuł");
    add("CLICK", "Magazyn");
    QCOMPARE(database->takeCount(), 0);
}

void tst_KorParam_Lists::theEntryForNoneIsNull()
{
    addCustomer("Klient", 2, "(wszyscy)");
    enter();
    const auto *box = editor<QComboBox>("cmbCombo");
    QCOMPARE(box->count(), 5);
    QCOMPARE(box->itemText(0), QStringLiteral("(wszyscy)"));
    press(Qt::Key_Home);
    QCOMPARE(sheet->ParText(), QStringLiteral("(wszyscy)"));
    QVERIFY(isNull(sheet->ParValue()));
    leave();
    QVERIFY(isNull(valueOf(1)));
    QCOMPARE(shown(1), QStringLiteral("(wszyscy)"));
}

void tst_KorParam_Lists::withoutANameForNoneThereIsNoSuchEntry()
{
    addCustomer("Klient", 2, "(wszyscy)");
    addCustomer("Płatnik", missing());
    QCOMPARE(shown(2), QStringLiteral("klient 1"));
    QVERIFY(isMissing(valueOf(2))); // until it was edited
    click(2);
    QCOMPARE(editor<KorCombo>("KorCmb")->ListCount(), 4);
    QVERIFY(!editor<KorCombo>("KorCmb")->CanBeNull());
    QCOMPARE(editor<KorCombo>("KorCmb")->NullString(), QString());
    leave();
    QCOMPARE(valueOf(2), QVariant(1)); // what the user saw and left as it was
}

void tst_KorParam_Lists::withoutASourceTheListStaysAsItWas()
{
    addCustomer("Pusty", 7, "", "");
    QCOMPARE(shown(1), QString()); // empty
    addCustomer("Klient", 2);
    addCustomer("Znów pusty", 3, "(nic)", "");
    QCOMPARE(shown(3), QStringLiteral("klient 3")); // of the list before
    QCOMPARE(database->takeCount(), 1);
    click(3);
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
    QCOMPARE(editor<KorCombo>("KorCmb")->ListCount(), 4);
    QCOMPARE(database->takeCount(), 0);
    click(1);
    leave();
    QCOMPARE(valueOf(1), QVariant(7)); // which that list does not have
    QCOMPARE(valueOf(3), QVariant(3));
}

void tst_KorParam_Lists::aListThatCouldNotBeReadChangesNothing_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("none");
    for (const char *fault : {"the statement fails", "there are no rows", "there is no database"}) {
        QTest::addRow("%s", fault) << QString::fromLatin1(fault) << QString();
        QTest::addRow("%s, with an entry for none", fault) << QString::fromLatin1(fault) << QStringLiteral("(brak)");
    }
}

void tst_KorParam_Lists::aListThatCouldNotBeReadChangesNothing()
{
    QFETCH(QString, fault);
    QFETCH(QString, none);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("przerwane")));
    addCustomer("Klient", 3, none.toUtf8().constData());
    addCustomer("Płatnik", 2, none.toUtf8().constData());
    if (fault == u"the statement fails") {
        database->breaks = true;
    } else {
        qWarning("przerwane"); // no complaint of its own
        if (fault == u"there are no rows")
            database->rows = 0;
        else
            sheet->setdatabase(nullptr);
    }
    click(1);
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
    leave();
    QCOMPARE(shown(1), QStringLiteral("klient 3"));
    QCOMPARE(valueOf(1), QVariant(3));
    database->breaks = false;
    database->rows = 4;
    sheet->setdatabase(database.get());
    click(1);
    leave();
    QCOMPARE(shown(1), QStringLiteral("klient 3"));
    QCOMPARE(valueOf(1), QVariant(3));
}

void tst_KorParam_Lists::theUserMayChooseFromALeftOverListAllTheSame()
{
    addCustomer("Klient", 3);
    addCustomer("Bez listy", 9, "", "");
    click(2);
    press(Qt::Key_End);
    leave();
    QCOMPARE(valueOf(2), QVariant(4));
    QCOMPARE(shown(2), QStringLiteral("klient 4"));
}

void tst_KorParam_Lists::aRefreshThatFailsKeepsTheChoice()
{
    addCustomer("Klient", 3, "(brak)");
    enter();
    press(Qt::Key_End);
    QCOMPARE(sheet->ParValue(), QVariant(4));
    database->breaks = true;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("przerwane")));
    press(Qt::Key_F5);
    QCOMPARE(editor<KorCombo>("KorCmb")->ListIndex(), -1);
    leave();
    QCOMPARE(shown(1), QStringLiteral("klient 4"));
    QCOMPARE(valueOf(1), QVariant(4));
}

void tst_KorParam_Lists::aKeyThatIsGoneBecomesTheFirstEntry()
{
    addCustomer("Klient", 4);
    database->rows = 2;
    enter();
    QCOMPARE(editor<KorCombo>("KorCmb")->Text(), QStringLiteral("klient 1"));
    leave();
    QCOMPARE(valueOf(1), QVariant(1));
    QCOMPARE(shown(1), QStringLiteral("klient 1"));
}

void tst_KorParam_Lists::theListIsReadAnewByItsKeyAndByTheProgram()
{
    addCustomer("Klient", 2);
    enter();
    (void)database->takeCount();
    database->rows = 6;
    press(Qt::Key_F5);
    QCOMPARE(editor<KorCombo>("KorCmb")->ListCount(), 6);
    database->rows = 7;
    sheet->CmbRefresh();
    QCOMPARE(editor<KorCombo>("KorCmb")->ListCount(), 7);
    QCOMPARE(database->takeCount(), 2);
    QCOMPARE(sheet->ParValue(), QVariant(2));
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
}

void tst_KorParam_Lists::aLongListOpensAtOnce()
{
    database->rows = 100000;
    addCustomer("Klient", 99999);
    enter();
    QCOMPARE(sheet->ParText(), QStringLiteral("klient 99999"));
    press(Qt::Key_F4);
    auto *list = editor<QComboBox>("cmbCombo")->view();
    QVERIFY(list->isVisible());
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    settle();
    QCOMPARE(sheet->ParValue(), QVariant(100000));
    QCOMPARE(database->takeCount(), 2); // added and entered
}

void tst_KorParam_Lists::atDesignTimeNoDatabaseIsAsked()
{
    UserControl::setUserMode(stage.get(), false);
    addCustomer("Klient", 2);
    sheet->CmbRefresh();
    QCOMPARE(database->takeCount(), 0);
    QCOMPARE(shown(1), QString());
    UserControl::setUserMode(stage.get(), true);
}

void tst_KorParam_Lists::aDatabaseThatWaitsLetsAnythingHappen_data()
{
    QTest::addColumn<QString>("deed");
    for (const char *deed : {"deletes the sheet", "adds", "moves", "clears", "cuts rows", "goes elsewhere", "throws"})
        QTest::newRow(deed) << QString::fromLatin1(deed);
}

void tst_KorParam_Lists::aDatabaseThatWaitsLetsAnythingHappen()
{
    QFETCH(QString, deed);
    addCustomer("Klient", 2);
    add("TEXT", "Tytuł", QStringLiteral("t"));
    log.reset();
    for (const bool byProgram : {false, true}) {
        if (!sheet)
            break;
        database->meanwhile = [&] {
            if (deed == u"deletes the sheet")
                delete sheet.data();
            else if (deed == u"adds")
                add("NUMBER", "Liczba", 5);
            else if (deed == u"moves")
                sheet->setRow(sheet->Rows() - 1);
            else if (deed == u"clears")
                sheet->Clear();
            else if (deed == u"cuts rows")
                sheet->setRows(1);
            else if (deed == u"goes elsewhere")
                stage->button()->setFocus();
            else {
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Overflow|Przepeł|przerwane")));
                throw RunTimeError(ErrorNumber::Overflow);
            }
        };
        if (byProgram)
            addCustomer("Drugi", 3);
        else
            click(1);
        settle();
        QVERIFY(!database->meanwhile);
    }
    if (sheet && deed == u"goes elsewhere")
        QCOMPARE(valueOf(1), QVariant(2));
    if (sheet) {
        leave();
        sheet->setRow(0);
    }
}

void tst_KorParam_Lists::whoGoesElsewhereMeanwhileIsNotCalledBack_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"a click", "Delete", "Tab into the sheet"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_KorParam_Lists::whoGoesElsewhereMeanwhileIsNotCalledBack()
{
    QFETCH(const QString, way);
    addCustomer("Klient", 2);
    auto *field = stage->place(new QLineEdit);
    field->show();
    if (way == u"Delete") {
        click(1);
        press(Qt::Key_Escape);
        QCOMPARE(openEditor(), QString());
    }
    database->meanwhile = [&] {
        field->setFocus();
        QTest::keyClicks(field, QStringLiteral("ab"));
    };
    if (way == u"a click")
        click(1);
    else if (way == u"Delete")
        press(Qt::Key_Delete);
    else
        enter();
    settle();
    QVERIFY(!database->meanwhile);
    QCOMPARE(QApplication::focusWidget(), field);
    QCOMPARE(field->text(), QStringLiteral("ab"));
    QCOMPARE(openEditor(), QString());
    QCOMPARE(valueOf(1), QVariant(2));
    click(1); // and it opens as ever
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
}

void tst_KorParam_Lists::aKeyOnAListIsNotTypedElsewhere()
{
    addCustomer("Klient", 2);
    add("TEXT", "Tytuł", QStringLiteral("t"));
    click(1);
    press(Qt::Key_Escape);
    QString typed;
    database->meanwhile = [&] {
        click(2);
        type(QStringLiteral("abc"));
        press(Qt::Key_Home, Qt::ControlModifier);
        typed = shown(2);
    };
    press(Qt::Key_Delete);
    QVERIFY(typed.contains(u"abc"));
    QCOMPARE(allShown(), QStringLiteral("klient 2|") + typed);
}

void tst_KorParam_Lists::aDatabaseThatIsGoneIsNotAsked()
{
    addCustomer("Klient", 2);
    database.reset();
    click(1);
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
    leave();
    QCOMPARE(valueOf(1), QVariant(2));
}

QTEST_MAIN(tst_KorParam_Lists)
#include "tst_korparam_lists.moc"
