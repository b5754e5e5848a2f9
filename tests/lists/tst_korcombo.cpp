// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/fieldsuite.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/Locale>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>

using namespace kor;
using namespace kor::test;

namespace {

const QString yesNo = QStringLiteral("LIST 1;Tak|0;Nie");

} // namespace

//! Entries and selection, by program.
class tst_KorCombo : public FieldSuite<KorCombo, QComboBox>
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp("cmbCombo"); }
    void cleanup() { tearDown(); }

    void aFreshListIsEmptyAndNothingIsSelected();
    void addEntryWorksAtOnceAndSelectsNothing();
    void keysKeepTheirTypes_data();
    void keysKeepTheirTypes();
    void clearRaisesNothing();
    void listIndexOutOfRangeIsRefused_data();
    void listIndexOutOfRangeIsRefused();
    void listIndexRaisesClickOnlyWhenItChanged();
    void valueFindsKeysLoosely_data();
    void valueFindsKeysLoosely();
    void existsNeverFindsNull();
    void duplicateKeysGiveTheFirst();
    void firstEntryClicksTwiceFromAnotherAndOnceFromItself();
    void unknownValueFallsBackToTheFirstEntry();
    void valueOnAnEmptyListDoesNothing();
    void textIsFoundExactly();
    void blockClickStillMarksTheChange();
    void fieldIsPaintedWithoutASelection();
    void everyMemberIsReachedByName();

private:
    void load(const QString &source, bool canBeNull = false);
    [[nodiscard]] QStringList names() const;

    QPointer<KorCombo> &m_combo = m_control;
};

void tst_KorCombo::load(const QString &source, bool canBeNull)
{
    m_combo->setSQL(source);
    m_combo->setCanBeNull(canBeNull);
    m_combo->Refresh();
}

QStringList tst_KorCombo::names() const
{
    QStringList shown;
    for (int i = 0; i < m_box->count(); ++i)
        shown << m_box->itemText(i);
    return shown;
}

void tst_KorCombo::aFreshListIsEmptyAndNothingIsSelected()
{
    QCOMPARE(m_combo->ListCount(), 0);
    QCOMPARE(m_combo->ListIndex(), -1);
    QVERIFY(!m_combo->HasValues());
    QVERIFY(isNull(m_combo->Value()));
    QCOMPARE(m_combo->Text(), QString());
    QCOMPARE(m_combo->NullString(), QStringLiteral("..."));
    QVERIFY(!m_combo->CanBeNull() && !m_combo->DataChanged() && !m_combo->BlockClick() && !m_combo->BlockUpDown());
}

void tst_KorCombo::addEntryWorksAtOnceAndSelectsNothing()
{
    EventLog log(m_combo);
    m_combo->AddEntry(10, QStringLiteral("dziesięć"));
    m_combo->AddEntry(20, QStringLiteral("dwadzieścia"));
    QVERIFY(m_stage->open());
    m_combo->setFocus();
    settle();
    QCOMPARE(m_combo->ListIndex(), -1);
    QVERIFY(isNull(m_combo->Value()));
    QCOMPARE(m_combo->Text(), QString());
    QCOMPARE(names(), (QStringList{QStringLiteral("dziesięć"), QStringLiteral("dwadzieścia")}));
    QCOMPARE(log.take(), QString());
    m_combo->setListIndex(1);
    QCOMPARE(m_combo->Value(), QVariant(20));
}

void tst_KorCombo::keysKeepTheirTypes_data()
{
    QTest::addColumn<QVariant>("key");
    QTest::newRow("Long") << QVariant(7);
    QTest::newRow("Integer") << QVariant::fromValue(short(7));
    QTest::newRow("Double") << QVariant(7.0);
    QTest::newRow("Single") << QVariant(7.0F);
    QTest::newRow("text") << QVariant(QStringLiteral("7"));
    QTest::newRow("Boolean") << QVariant(true);
    QTest::newRow("Date") << QVariant(QDate(2024, 2, 29));
    QTest::newRow("Null") << null();
    QTest::newRow("Empty") << QVariant();
    QTest::newRow("64 bits of the host") << QVariant(qlonglong(5'000'000'000));
    QTest::newRow("64 bits beyond a Double") << QVariant(qlonglong(9'007'199'254'740'993));
}

void tst_KorCombo::keysKeepTheirTypes()
{
    QFETCH(QVariant, key);
    m_combo->AddEntry(QStringLiteral("x"), QStringLiteral("pierwszy"));
    m_combo->AddEntry(key, QStringLiteral("drugi"));
    m_combo->setListIndex(1);
    QCOMPARE(m_combo->Value().metaType(), key.metaType());
    QCOMPARE(m_combo->Value(), key);
}

void tst_KorCombo::clearRaisesNothing()
{
    load(yesNo);
    EventLog log(m_combo);
    m_combo->Clear();
    settle();
    QCOMPARE(log.take(), QString());
    QVERIFY(!m_combo->HasValues());
    QCOMPARE(m_combo->ListCount(), 0);
    QCOMPARE(m_combo->ListIndex(), -1);
}

void tst_KorCombo::listIndexOutOfRangeIsRefused_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("behind the last") << 2;
    QTest::newRow("below none") << -2;
    QTest::newRow("far") << 100'000;
}

void tst_KorCombo::listIndexOutOfRangeIsRefused()
{
    QFETCH(int, index);
    load(yesNo);
    m_combo->setListIndex(1);
    EventLog log(m_combo);
    try {
        m_combo->setListIndex(index);
        QFAIL("no error was raised");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 380);
    }
    QCOMPARE(m_combo->ListIndex(), 1);
    QCOMPARE(log.take(), QString());
}

void tst_KorCombo::listIndexRaisesClickOnlyWhenItChanged()
{
    load(yesNo);
    EventLog log(m_combo);
    m_combo->setListIndex(1);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    m_combo->setListIndex(1);
    QCOMPARE(log.take(), QString());
    m_combo->setListIndex(0);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    m_combo->setListIndex(-1);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    QVERIFY(isNull(m_combo->Value()));
    QCOMPARE(m_combo->Text(), QString());
}

void tst_KorCombo::valueFindsKeysLoosely_data()
{
    QTest::addColumn<QVariant>("wanted");
    QTest::addColumn<int>("index");
    // clang-format off
    QTest::newRow("number finds its text")            << QVariant(1)                                   << 1;
    QTest::newRow("text finds its number")            << QVariant(QStringLiteral("2"))                 << 2;
    QTest::newRow("text with the locale's comma")     << QVariant(QStringLiteral("2,5"))               << 3;
    QTest::newRow("text that is no number")           << QVariant(QStringLiteral("abc"))               << 4;
    QTest::newRow("texts in their case")              << QVariant(QStringLiteral("ABC"))               << 0;
    QTest::newRow("text beside a text is exact")      << QVariant(QStringLiteral("01"))                << 0;
    QTest::newRow("Single")                           << QVariant(2.5F)                                << 3;
    QTest::newRow("Boolean True is -1")               << QVariant(true)                                << 5;
    QTest::newRow("64 bits")                          << QVariant(qlonglong(2))                        << 2;
    QTest::newRow("64 bits beyond a Double")          << QVariant(qlonglong(9'007'199'254'740'993))    << 8;
    QTest::newRow("their text")                       << QVariant(QStringLiteral("9007199254740993"))  << 8;
    QTest::newRow("the Double nearest to them")       << QVariant(9'007'199'254'740'992.0)             << 7;
    QTest::newRow("64 bits that are no key")          << QVariant(qlonglong(9'007'199'254'740'995))    << 0;
    QTest::newRow("Null finds not even Null")         << null()                                        << 0;
    QTest::newRow("missing argument counts as Null")  << missing()                                     << 0;
    QTest::newRow("unknown")                          << QVariant(99)                                  << 0;
    // clang-format on
}

void tst_KorCombo::valueFindsKeysLoosely()
{
    QFETCH(QVariant, wanted);
    m_combo->AddEntry(QStringLiteral("zero"), QStringLiteral("0"));
    m_combo->AddEntry(QStringLiteral("1"), QStringLiteral("1"));
    m_combo->AddEntry(2, QStringLiteral("2"));
    m_combo->AddEntry(2.5, QStringLiteral("3"));
    m_combo->AddEntry(QStringLiteral("abc"), QStringLiteral("4"));
    m_combo->AddEntry(-1, QStringLiteral("5"));
    m_combo->AddEntry(null(), QStringLiteral("6"));
    m_combo->AddEntry(qlonglong(9'007'199'254'740'992), QStringLiteral("7"));
    m_combo->AddEntry(qlonglong(9'007'199'254'740'993), QStringLiteral("8"));
    m_combo->setValue(wanted);
    QTEST(m_combo->ListIndex(), "index");
}

void tst_KorCombo::existsNeverFindsNull()
{
    QCOMPARE(m_combo->Exists(1), QVariant(false));
    load(yesNo, true);
    QCOMPARE(m_combo->Exists(1), QVariant(true));
    QCOMPARE(m_combo->Exists(QStringLiteral("0")), QVariant(true));
    QCOMPARE(m_combo->Exists(2), QVariant(false));
    QCOMPARE(m_combo->Exists(null()), QVariant(false));
    QCOMPARE(m_combo->Exists(missing()), QVariant(false));
    m_combo->AddEntry(0, QStringLiteral("zero"));
    QCOMPARE(m_combo->Exists(QVariant()), QVariant(true));
}

void tst_KorCombo::duplicateKeysGiveTheFirst()
{
    load(QStringLiteral("LIST 9;x|5;a|5;b"));
    m_combo->setValue(5);
    QCOMPARE(m_combo->Text(), QStringLiteral("a"));
}

void tst_KorCombo::firstEntryClicksTwiceFromAnotherAndOnceFromItself()
{
    load(yesNo);
    m_combo->setListIndex(1);
    EventLog log(m_combo);
    m_combo->setValue(1);
    QCOMPARE(log.take(), QStringLiteral("Click Click"));
    m_combo->setValue(1);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    m_combo->setText(QStringLiteral("Tak"));
    QCOMPARE(log.take(), QStringLiteral("Click"));
    m_combo->setText(QStringLiteral("Nie"));
    QCOMPARE(log.take(), QStringLiteral("Click"));
    m_combo->setText(QStringLiteral("Nie"));
    QCOMPARE(log.take(), QString());
    m_combo->setText(QStringLiteral("Tak"));
    QCOMPARE(log.take(), QStringLiteral("Click Click"));
}

void tst_KorCombo::unknownValueFallsBackToTheFirstEntry()
{
    load(yesNo);
    m_combo->setListIndex(1);
    EventLog log(m_combo);
    m_combo->setValue(99);
    QCOMPARE(m_combo->ListIndex(), 0);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    m_combo->setValue(99);
    QCOMPARE(log.take(), QString());
    m_combo->setListIndex(-1);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    m_combo->setValue(null());
    QCOMPARE(m_combo->ListIndex(), 0);
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorCombo::valueOnAnEmptyListDoesNothing()
{
    EventLog log(m_combo);
    m_combo->setValue(1);
    m_combo->setText(QStringLiteral("Tak"));
    QCOMPARE(m_combo->ListIndex(), -1);
    QVERIFY(!m_combo->DataChanged());
    QCOMPARE(log.take(), QString());
}

void tst_KorCombo::textIsFoundExactly()
{
    load(QStringLiteral("LIST 9;...|1;Tak|2;Tak|0;Nie"));
    m_combo->setText(QStringLiteral("Tak"));
    QCOMPARE(m_combo->ListIndex(), 1);
    m_combo->setText(QStringLiteral("tak"));
    QCOMPARE(m_combo->ListIndex(), 0);
    m_combo->setText(QStringLiteral("Nie"));
    QCOMPARE(m_combo->Value(), QVariant(QStringLiteral("0")));
    m_combo->setText(QStringLiteral("Nie "));
    QCOMPARE(m_combo->ListIndex(), 0);
}

void tst_KorCombo::blockClickStillMarksTheChange()
{
    load(yesNo);
    m_combo->setDataChanged(false);
    m_combo->setBlockClick(true);
    EventLog log(m_combo);
    m_combo->setListIndex(1);
    QCOMPARE(log.take(), QString());
    QVERIFY(m_combo->DataChanged());
}

void tst_KorCombo::fieldIsPaintedWithoutASelection()
{
    m_combo->AddEntry(1, QStringLiteral("Tak"));
    QVERIFY(m_stage->open());
    const QImage empty = m_combo->grab().toImage();
    m_combo->setListIndex(0);
    QVERIFY(m_combo->grab().toImage() != empty);
    m_combo->setListIndex(-1);
    QCOMPARE(m_combo->grab().toImage(), empty);
}

void tst_KorCombo::everyMemberIsReachedByName()
{
    QObject *control = m_combo;
    QVERIFY(QMetaObject::invokeMethod(control, "AddEntry", Q_ARG(QVariant, 5), Q_ARG(QString, QStringLiteral("pięć"))));
    QVERIFY(control->setProperty("Value", 5));
    QCOMPARE(control->property("Text"), QVariant(QStringLiteral("pięć")));
    QVariant exists;
    QVERIFY(QMetaObject::invokeMethod(control, "Exists", Q_RETURN_ARG(QVariant, exists), Q_ARG(QVariant, 5)));
    QCOMPARE(exists, QVariant(true));
    QCOMPARE(control->property("ListCount"), QVariant(1));
    QCOMPARE(control->property("HasValues"), QVariant(true));
    QVERIFY(QMetaObject::invokeMethod(control, "Clear"));
    QCOMPARE(control->property("ListIndex"), QVariant(-1));
    for (const char *name : {"SQL", "NullString", "Slownik", "DataChanged", "CanBeNull", "BackColor", "ForeColor",
                             "Font", "ToolTipText", "Enabled", "BlockUpDown", "BlockClick"}) {
        const QVariant value = control->property(name);
        QVERIFY2(value.isValid() && control->setProperty(name, value), name);
    }
    QCOMPARE(QByteArray(control->metaObject()->userProperty().name()), QByteArray("Value"));
    QStringList events;
    for (int i = control->metaObject()->methodOffset(); i < control->metaObject()->methodCount(); ++i) {
        const QMetaMethod method = control->metaObject()->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            events << QString::fromLatin1(method.methodSignature());
    }
    QCOMPARE(events, (QStringList{QStringLiteral("Click()"), QStringLiteral("KeyDown(int&,int&)"),
                                  QStringLiteral("Refreshed()")}));
}

QTEST_MAIN(tst_KorCombo)
#include "tst_korcombo.moc"
