// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/pagestage.h"
#include "pages/recordingcontrols.h"
#include "support/runtimeerrors.h"

#include <KorDaoUC/KorCombo>

#include <QtTest/QtTest>

using namespace kor;
using namespace kor::test;

namespace {

QString settingsOf(const KorCombo &combo)
{
    return QStringLiteral("%1|%2|%3|%4|%5")
        .arg(combo.ToolTipText(), combo.SQL(), combo.Slownik(), combo.NullString())
        .arg(combo.CanBeNull());
}

} // namespace

//! The dictionary of a drop-down list.
class tst_PagKorCombo : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_stage = std::make_unique<PageStage>("pagKorCombo");
        QVERIFY(m_stage->open());
    }
    void cleanup() { m_stage.reset(); }

    void theFieldsShowTheFirstOfTheSelected();
    void everyFieldMarksThePageChanged();
    void theFirstIsWrittenTwiceInTwoOrders();
    void allSelectedGetTheSameFiveValues();
    void applyingDoesNotReloadTheList();
    void theSecondIsNotMistakenForADeletedFirst();
    void handlersMayDeleteWhatIsBeingWritten_data();
    void handlersMayDeleteWhatIsBeingWritten();
    void aHandlerMayDeleteThePage();
    void aHandlerMaySelectOthers();
    void longStatementsAndLineBreaksAreKept();

private:
    std::unique_ptr<PageStage> m_stage;
};

void tst_PagKorCombo::theFieldsShowTheFirstOfTheSelected()
{
    KorCombo first;
    first.setToolTipText(QStringLiteral("Miasto odbiorcy"));
    first.setSQL(QStringLiteral("LIST 1;Tak|0;Nie"));
    first.setSlownik(QStringLiteral("miasta"));
    first.setNullString(QStringLiteral("(brak)"));
    first.setCanBeNull(true);
    KorCombo second;
    m_stage->page->setSelectedControls({&first, &second});
    QCOMPARE(m_stage->text("txtToolTipText"), first.ToolTipText());
    QCOMPARE(m_stage->text("txtSQL"), first.SQL());
    QCOMPARE(m_stage->text("txtSlownik"), first.Slownik());
    QCOMPARE(m_stage->text("txtNullString"), first.NullString());
    QVERIFY(m_stage->isChecked("chkCanBeNull"));
    m_stage->page->setSelectedControls({&second});
    QVERIFY(!m_stage->isChecked("chkCanBeNull"));
    QCOMPARE(m_stage->text("txtNullString"), QStringLiteral("..."));
}

void tst_PagKorCombo::everyFieldMarksThePageChanged()
{
    RecordedCombo combo;
    m_stage->page->setSelectedControls({&combo});
    QVERIFY(!m_stage->page->Changed());
    const QStringList fields{QStringLiteral("txtToolTipText"), QStringLiteral("chkCanBeNull"),
                             QStringLiteral("txtNullString"), QStringLiteral("txtSlownik"), QStringLiteral("txtSQL")};
    QCOMPARE(m_stage->marking(fields), fields);
}

void tst_PagKorCombo::theFirstIsWrittenTwiceInTwoOrders()
{
    RecordedCombo first;
    RecordedCombo second;
    m_stage->page->setSelectedControls({&first, &second});
    QCOMPARE(first.take(), QStringLiteral("ToolTipText SQL Slownik NullString CanBeNull"));
    QCOMPARE(second.take(), QString());
    m_stage->type("txtSlownik", QStringLiteral("x"));
    m_stage->page->ApplyChanges();
    QCOMPARE(first.take(),
             QStringLiteral("ToolTipText=\"tip\" CanBeNull=True Slownik=\"x\" NullString=\"...\" SQL=\"LIST\" "
                            "SQL=\"LIST\" ToolTipText=\"tip\" Slownik=\"x\" NullString=\"...\" CanBeNull=True"));
    QCOMPARE(second.take(),
             QStringLiteral("SQL=\"LIST\" ToolTipText=\"tip\" Slownik=\"x\" NullString=\"...\" CanBeNull=True"));
}

void tst_PagKorCombo::allSelectedGetTheSameFiveValues()
{
    KorCombo first;
    first.setSlownik(QStringLiteral("miasta"));
    KorCombo second;
    second.setSlownik(QStringLiteral("towary"));
    second.setCanBeNull(true);
    m_stage->page->setSelectedControls({&first, &second});
    m_stage->type("txtToolTipText", QStringLiteral("Wybierz"));
    m_stage->page->ApplyChanges();
    QCOMPARE(settingsOf(first), QStringLiteral("Wybierz||miasta|...|0"));
    QCOMPARE(settingsOf(second), settingsOf(first));
}

void tst_PagKorCombo::applyingDoesNotReloadTheList()
{
    KorCombo combo;
    combo.setSQL(QStringLiteral("LIST 1;Tak|0;Nie"));
    combo.Refresh();
    m_stage->page->setSelectedControls({&combo});
    m_stage->type("txtSQL", QStringLiteral("LIST a;Alfa"));
    m_stage->page->ApplyChanges();
    QCOMPARE(combo.ListCount(), 2);
    combo.Refresh();
    QCOMPARE(combo.ListCount(), 1);
}

void tst_PagKorCombo::theSecondIsNotMistakenForADeletedFirst()
{
    auto first = std::make_unique<RecordedCombo>();
    RecordedCombo second;
    m_stage->page->setSelectedControls({first.get(), &second});
    m_stage->type("txtSlownik", QStringLiteral("x"));
    first.reset();
    QCOMPARE(m_stage->page->SelectedControls(), QObjectList{&second});
    m_stage->page->ApplyChanges();
    QVERIFY(second.take().startsWith(QLatin1String("SQL="))); // as one of all, once
    m_stage->page->SelectionChanged();
    QCOMPARE(second.take(), QString());
}

void tst_PagKorCombo::handlersMayDeleteWhatIsBeingWritten_data()
{
    QTest::addColumn<bool>("first");
    QTest::newRow("the control that is written") << true;
    QTest::newRow("the one that comes next") << false;
}

void tst_PagKorCombo::handlersMayDeleteWhatIsBeingWritten()
{
    QFETCH(bool, first);
    QPointer<RecordedCombo> one = new RecordedCombo;
    QPointer<RecordedCombo> next = new RecordedCombo;
    m_stage->page->setSelectedControls({one, next});
    one->then = [&] { return [=](const QString &) { delete (first ? one : next).data(); }; }();
    m_stage->page->ApplyChanges();
    QCOMPARE(one.isNull(), first);
    QCOMPARE(next.isNull(), !first);
    QVERIFY(!m_stage->page->Changed());
    delete one;
    delete next;
}

void tst_PagKorCombo::aHandlerMayDeleteThePage()
{
    RecordedCombo combo;
    for (const char *call : {"SelectionChanged", "ApplyChanges"}) {
        m_stage = std::make_unique<PageStage>("pagKorCombo");
        m_stage->page->setSelectedControls({&combo});
        (void)combo.take();
        combo.then = [this](const QString &) { delete m_stage->page.data(); };
        QCOMPARE(errorOfCall(m_stage->page, call), 0);
        QVERIFY(m_stage->page.isNull());
        QVERIFY(!combo.take().contains(u' ')); // nothing after the first
        combo.then = {};
    }
}

void tst_PagKorCombo::aHandlerMaySelectOthers()
{
    RecordedCombo combo;
    RecordedCombo other;
    m_stage->page->setSelectedControls({&combo});
    combo.then = [&](const QString &) {
        combo.then = {};
        m_stage->page->setSelectedControls({&other});
    };
    (void)combo.take();
    m_stage->page->ApplyChanges();
    QCOMPARE(combo.take().count(QLatin1Char('=')), 10); // what was begun is ended
    QVERIFY(!other.take().contains(QLatin1Char('=')));
}

void tst_PagKorCombo::longStatementsAndLineBreaksAreKept()
{
    const QString statement =
        QStringLiteral("SELECT id,\n\tname\r\nFROM city WHERE note = 'ąę & „x”'  ") + QString(40000, QLatin1Char('a'));
    KorCombo combo;
    combo.setSQL(statement);
    m_stage->page->setSelectedControls({&combo});
    m_stage->click("chkCanBeNull");
    m_stage->page->ApplyChanges();
    QCOMPARE(combo.SQL(), statement);
}

QTEST_MAIN(tst_PagKorCombo)

#include "tst_pagkorcombo.moc"
