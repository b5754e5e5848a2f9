// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/pagestage.h"
#include "pages/recordingcontrols.h"
#include "support/runtimeerrors.h"

#include <KorDaoUC/KorNumber>
#include <KorDaoUC/UserControl>

#include <QtGui/QAccessible>
#include <QtTest/QtTest>

using namespace kor;
using namespace kor::test;

//! What all pages are, and the list of them.
class tst_PropertyPage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void pagesAreMadeByTheirNames();
    void aControlHasItsPages_data();
    void aControlHasItsPages();
    void aPageIsUsedByTheNamesOfItsMembers();
    void aPageWithoutASelectionReadsAndWritesNothing_data() { pages(); }
    void aPageWithoutASelectionReadsAndWritesNothing();
    void aMissingMemberIsError438AtTheCaller_data() { pages(); }
    void aMissingMemberIsError438AtTheCaller();
    void aDeletedControlIsSurvived_data() { pages(); }
    void aDeletedControlIsSurvived();
    void everyFieldIsReachedByTabAndHasAName_data() { pages(); }
    void everyFieldIsReachedByTabAndHasAName();
    void propertiesAreWrittenByWhoeverIsSet();
    void applyIsDueAsLongAsThePageIsChanged();
    void editsThatWereNotAppliedEndWithTheSelection();
    void editsMeantForOthersEndWhereTheNextOneCannotBeRead();
    void whoeverWritesPropertiesIsAskedForMethodsToo();
    void theHandlerOfAnEditMayDeleteThePage();

private:
    static void pages();
};

namespace {

//! One object with the members of all pages.
std::unique_ptr<QObject> controlFor(const QString &page)
{
    if (page == QLatin1String("pagKorNumber"))
        return std::make_unique<RecordedNumber>();
    if (page == QLatin1String("pagKorCombo"))
        return std::make_unique<RecordedCombo>();
    return std::make_unique<RecordedGrid>();
}

} // namespace

void tst_PropertyPage::pages()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"pagKorNumber", "pagKorCombo", "pagKorGrid1", "pagKorGrid2"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_PropertyPage::pagesAreMadeByTheirNames()
{
    QCOMPARE(ControlRegistry::pageNames().mid(0, 4),
             QStringList({QStringLiteral("pagKorNumber"), QStringLiteral("pagKorCombo"), QStringLiteral("pagKorGrid1"),
                          QStringLiteral("pagKorGrid2")}));
    for (const QString &name : ControlRegistry::pageNames()) {
        QWidget parent;
        const PropertyPage *page = ControlRegistry::createPage(name, &parent);
        QVERIFY(page);
        QCOMPARE(page->objectName(), name);
        QCOMPARE(page->parentWidget(), &parent);
        QVERIFY(!page->windowTitle().isEmpty());
        QVERIFY(!page->Changed());
        QVERIFY(page->SelectedControls().isEmpty());
        const std::unique_ptr<PropertyPage> qualified(ControlRegistry::createPage(QStringLiteral("KorDaoUC.") + name));
        QVERIFY(qualified);
    }
    QCOMPARE(ControlRegistry::createPage(QStringLiteral("pagKorDate")), nullptr);
    QCOMPARE(ControlRegistry::createPage(QStringLiteral("pagkornumber")), nullptr);
}

void tst_PropertyPage::aControlHasItsPages_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("own");
    QTest::newRow("number") << "KorNumber"
                            << "pagKorNumber";
    QTest::newRow("combo") << "KorCombo"
                           << "pagKorCombo";
    QTest::newRow("grid") << "KorGrid"
                          << "pagKorGrid1 pagKorGrid2";
    QTest::newRow("date, without a page of its own") << "KorDate"
                                                     << "";
}

void tst_PropertyPage::aControlHasItsPages()
{
    QFETCH(QString, control);
    QFETCH(QString, own);
    const QStringList pages = ControlRegistry::pagesOf(control);
    const QStringList first = own.split(u' ', Qt::SkipEmptyParts);
    QCOMPARE(pages.mid(0, first.size()), first);
    for (const QString &page : pages)
        QCOMPARE(page.startsWith(QLatin1String("pagKor")), first.contains(page));
    const std::unique_ptr<UserControl> made(ControlRegistry::create(control));
    QCOMPARE(ControlRegistry::pagesOf(made.get()), pages);
    QCOMPARE(ControlRegistry::pagesOf(QStringLiteral("KorDaoUC.") + control), pages);
    QVERIFY(ControlRegistry::pagesOf(static_cast<const QObject *>(this)).isEmpty());
    QVERIFY(ControlRegistry::pagesOf(QStringLiteral("QLineEdit")).isEmpty());
}

void tst_PropertyPage::aPageIsUsedByTheNamesOfItsMembers()
{
    QWidget *page = ControlRegistry::createPage(QStringLiteral("pagKorNumber"));
    const std::unique_ptr<QWidget> owner(page);
    RecordedNumber number;
    const QObjectList selected{&number};
    QVERIFY(QMetaObject::invokeMethod(page, "setSelectedControls", Q_ARG(QObjectList, selected)));
    QCOMPARE(number.take(), QStringLiteral("CheckRange MaskPicture MinValue MaxValue"));
    QObjectList told;
    QVERIFY(QMetaObject::invokeMethod(page, "SelectedControls", Q_RETURN_ARG(QObjectList, told)));
    QCOMPARE(told, selected);
    page->findChild<QLineEdit *>(QStringLiteral("txtMaska"))->setText(QStringLiteral("0"));
    QCOMPARE(page->property("Changed"), QVariant(true));
    QVERIFY(QMetaObject::invokeMethod(page, "ApplyChanges"));
    QCOMPARE(page->property("Changed"), QVariant(false));
    QCOMPARE(number.MaskPicture(), QVariant(QStringLiteral("0")));
    QVERIFY(page->setProperty("Changed", true));
    QVERIFY(QMetaObject::invokeMethod(page, "SelectionChanged"));
    QCOMPARE(page->property("Changed"), QVariant(false));
}

void tst_PropertyPage::aPageWithoutASelectionReadsAndWritesNothing()
{
    QFETCH(QString, name);
    PageStage stage(qPrintable(name));
    QVERIFY(stage.open());
    stage.page->setChanged(true);
    QCOMPARE(errorOfCall(stage.page, "ApplyChanges"), 0);
    QVERIFY(!stage.page->Changed());
    QCOMPARE(errorOfCall(stage.page, "SelectionChanged"), 0);
    stage.page->setSelectedControls({});
    for (auto *button : stage.page->findChildren<QPushButton *>()) {
        if (button->objectName() != QLatin1String("cmdDatabaseName") && button->parentWidget() == stage.page)
            button->click();
    }
    QVERIFY(stage.takeUnhandled().empty());
}

void tst_PropertyPage::aMissingMemberIsError438AtTheCaller()
{
    QFETCH(QString, name);
    PageStage stage(qPrintable(name));
    QObject nothing;
    QCOMPARE(errorOf([&] {
                 stage.page->setSelectedControls({&nothing});
                 return 0;
             }),
             438);
    QCOMPARE(stage.page->SelectedControls(), QObjectList{&nothing});
    QCOMPARE(errorOfCall(stage.page, "SelectionChanged"), 438);
    stage.page->setChanged(true);
    QCOMPARE(errorOfCall(stage.page, "ApplyChanges"), 438);
    QVERIFY(stage.page->Changed());
    QVERIFY(stage.takeUnhandled().empty());
}

void tst_PropertyPage::aDeletedControlIsSurvived()
{
    QFETCH(QString, name);
    PageStage stage(qPrintable(name));
    QVERIFY(stage.open());
    std::unique_ptr<QObject> control = controlFor(name);
    stage.page->setSelectedControls({control.get()});
    stage.page->setChanged(true);
    control.reset();
    QVERIFY(stage.page->SelectedControls().isEmpty());
    QCOMPARE(errorOfCall(stage.page, "ApplyChanges"), 0);
    QCOMPARE(errorOfCall(stage.page, "SelectionChanged"), 0);
    if (name == QLatin1String("pagKorGrid2"))
        stage.click("cmdNext");
    QVERIFY(stage.takeUnhandled().empty());
}

void tst_PropertyPage::everyFieldIsReachedByTabAndHasAName()
{
    QFETCH(QString, name);
    PageStage stage(qPrintable(name));
    QVERIFY(stage.open());
    QList<QWidget *> fields;
    for (auto *widget : stage.page->findChildren<QWidget *>()) {
        const bool isField = qobject_cast<QLineEdit *>(widget) || qobject_cast<QAbstractButton *>(widget) ||
                             qobject_cast<QComboBox *>(widget);
        if (isField && widget->window() == stage.page->window() && widget->isVisible() &&
            !widget->objectName().startsWith(QLatin1String("qt_")))
            fields << widget;
    }
    QVERIFY(fields.size() >= 4);
    QSet<QWidget *> reached;
    fields.first()->setFocus();
    for (qsizetype i = 0; i < fields.size(); ++i) {
        reached << QApplication::focusWidget();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
    }
    for (QWidget *field : fields) {
        QVERIFY2(reached.contains(field), qPrintable(field->objectName()));
        const QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(field);
        QVERIFY2(!seen->text(QAccessible::Name).isEmpty(), qPrintable(field->objectName()));
    }
}

void tst_PropertyPage::propertiesAreWrittenByWhoeverIsSet()
{
    class Writer final : public PropertyWriter
    {
    public:
        void write(QObject &control, const QString &property, const QVariant &value) override
        {
            lines << QStringLiteral("%1.%2=%3").arg(control.objectName(), property, value.toString());
            if (refuses)
                throw RunTimeError(ErrorNumber::InvalidPropertyValue);
        }
        void beginApply() override { lines << QStringLiteral("begin"); }
        void endApply() noexcept override { lines << QStringLiteral("end"); }
        QStringList lines;
        bool refuses = false;
    } writer;
    PageStage stage("pagKorNumber");
    KorNumber number;
    number.setObjectName(QStringLiteral("price"));
    stage.page->setWriter(&writer);
    stage.page->setSelectedControls({&number});
    stage.box("txtMinValue")->setText(QStringLiteral("9"));
    stage.page->ApplyChanges();
    QCOMPARE(writer.lines.join(u' '), QStringLiteral("begin price.CheckRange=false price.MaskPicture=#,##0.00 "
                                                     "price.MinValue=9 price.MaxValue=0 end"));
    QCOMPARE(number.MinValue(), QVariant(0.0F));
    writer.lines.clear();
    writer.refuses = true;
    stage.page->setChanged(true);
    QCOMPARE(errorOfCall(stage.page, "ApplyChanges"), 380);
    QCOMPARE(writer.lines.last(), QStringLiteral("end"));
    QVERIFY(stage.page->Changed());
    stage.page->setWriter(nullptr);
    stage.page->ApplyChanges();
    QCOMPARE(number.MinValue(), QVariant(9.0F));
}

void tst_PropertyPage::applyIsDueAsLongAsThePageIsChanged()
{
    PageStage stage("pagKorNumber");
    QVERIFY(stage.open());
    RecordedNumber number;
    stage.page->setSelectedControls({&number});
    QSignalSpy due(stage.page, &PropertyPage::applyDue);
    stage.type("txtMaska", QStringLiteral("0.00"));
    QCOMPARE(due, QList<QVariantList>{{true}});
    stage.page->ApplyChanges();
    QCOMPARE(due, (QList<QVariantList>{{true}, {false}}));
}

void tst_PropertyPage::editsThatWereNotAppliedEndWithTheSelection()
{
    PageStage stage("pagKorNumber");
    QVERIFY(stage.open());
    RecordedNumber number;
    stage.page->setSelectedControls({&number});
    stage.type("txtMaska", QStringLiteral("x"));
    stage.page->SelectionChanged();
    QVERIFY(!stage.page->Changed());
    QCOMPARE(stage.text("txtMaska"), QStringLiteral("0.0"));
}

void tst_PropertyPage::editsMeantForOthersEndWhereTheNextOneCannotBeRead()
{
    PageStage stage("pagKorNumber");
    QVERIFY(stage.open());
    RecordedNumber first;
    RecordedNumber next;
    next.setMinValue(QVariant::fromValue(nullptr));
    stage.page->setSelectedControls({&first});
    stage.type("txtMaxValue", QStringLiteral("7"));
    QCOMPARE(errorOf([&] {
                 stage.page->setSelectedControls({&next});
                 return 0;
             }),
             94);
    QVERIFY(!stage.page->Changed());
}

void tst_PropertyPage::whoeverWritesPropertiesIsAskedForMethodsToo()
{
    class Writer final : public PropertyWriter
    {
    public:
        void write(QObject &, const QString &, const QVariant &) override {}
        void call(QObject &, const std::function<void()> &deed) override
        {
            ++calls;
            if (calls != 3)
                deed();
        }
        int calls = 0;
    } writer;
    RecordedGrid grid;
    PageStage columns("pagKorGrid2");
    columns.page->setWriter(&writer);
    columns.page->setSelectedControls({&grid});
    (void)grid.take();
    columns.page->ApplyChanges();
    QCOMPARE(writer.calls, 14);
    QVERIFY(!grid.attributes.contains(QStringLiteral("1.Width"))); // the third, which it kept back
    QCOMPARE(grid.attributes.size(), 12);
    PageStage database("pagKorGrid1");
    QVERIFY(database.open());
    database.page->setWriter(&writer);
    database.page->setSelectedControls({&grid});
    (void)grid.take();
    database.click("cmdRetrive");
    QCOMPARE(writer.calls, 15);
    QCOMPARE(grid.take(), QStringLiteral("RetriveFields"));
}

void tst_PropertyPage::theHandlerOfAnEditMayDeleteThePage()
{
    for (const char *field : {"txtTitle", "cmbType", "cbLocked"}) {
        PageStage stage("pagKorGrid2");
        QVERIFY(stage.open());
        RecordedGrid grid;
        stage.page->setSelectedControls({&grid});
        connect(stage.page, &PropertyPage::applyDue, this, [&stage] { delete stage.page.data(); });
        auto *widget = stage.find<QWidget>(field);
        widget->setFocus();
        if (qobject_cast<QCheckBox *>(widget)) // which acts on the release
            QTest::keyClick(widget, Qt::Key_Space);
        else
            QTest::keyPress(widget, qobject_cast<QLineEdit *>(widget) ? Qt::Key_X : Qt::Key_Down);
        QVERIFY2(stage.page.isNull(), field);
        QVERIFY(stage.takeUnhandled().empty());
    }
}

QTEST_MAIN(tst_PropertyPage)

#include "tst_propertypage.moc"
