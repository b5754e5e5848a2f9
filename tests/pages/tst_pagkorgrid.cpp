// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/pagestage.h"
#include "pages/recordingcontrols.h"
#include "support/runtimeerrors.h"

#include <KorDaoUC/KorGrid>
#include <KorDaoUC/Locale>

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>

using namespace kor;
using namespace kor::test;

namespace {

//! Types a name into the next file dialog that opens, or closes it.
class FileUser : public QObject
{
public:
    explicit FileUser(QString typed) : m_typed(std::move(typed))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible() || isUsed)
                return;
            isUsed = true;
            title = dialog->windowTitle();
            filters = dialog->nameFilters();
            name = dialog->objectName();
            flags = dialog->property("Flags");
            auto *edit = dialog->findChild<QLineEdit *>();
            offered = edit->text();
            if (m_typed.isNull()) {
                QTest::keyClick(dialog, Qt::Key_Escape);
                return;
            }
            edit->setText(m_typed);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        m_timer.start(10);
    }
    bool isUsed = false;
    QString title;
    QString name;
    QString offered;
    QStringList filters;
    QVariant flags;

private:
    QString m_typed;
    QTimer m_timer;
};

QStringList entriesOf(const QComboBox *list)
{
    QStringList all;
    for (int i = 0; i < list->count(); ++i)
        all << list->itemText(i);
    return all;
}

} // namespace

//! The two pages of a grid that is bound to a database.
class tst_PagKorGrid : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void captionsAreTheContracts_data();
    void captionsAreTheContracts();
    void theGridOfTheLibraryHasNoneOfTheMembers_data();
    void theGridOfTheLibraryHasNoneOfTheMembers();

    // The database
    void bindingIsReadAndWrittenInItsOrder();
    void everyFieldOfTheBindingMarks();
    void aChosenFileGoesIntoTheField();
    void noFileLeavesTheField_data();
    void noFileLeavesTheField();
    void aFileChosenAgainMarksToo();
    void thePageMayGoWhileTheDialogIsOpen();
    void retrievingAsksTheControl();
    void anErrorBehindAClickIsTheEventOfThePage();

    // The columns
    void attributesAreReadInTheirOrder();
    void attributesAreWrittenInTheirOrderLockedTwice();
    void valuesAreShownByTheirKind_data();
    void valuesAreShownByTheirKind();
    void listsAreTheContracts();
    void theTypeShowsItsFrame_data();
    void theTypeShowsItsFrame();
    void fourFieldsDoNotMark();
    void whatDoesNotMarkIsSavedWithTheRest();
    void steppingAppliesAndReadsTheOtherColumn();
    void steppingStopsAtBothEnds();
    void aColumnThatIsNoneIsNeitherReadNorWritten_data();
    void aColumnThatIsNoneIsNeitherReadNorWritten();
    void whatIsShownIsSavedAsTheColumnThatStandsThere();
    void anIndexThatIsNoneIsAnError();
    void anErrorOfTheControlStopsTheStep();
};

void tst_PagKorGrid::captionsAreTheContracts_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    // clang-format off
    QTest::newRow("title of the database page")     << "pagKorGrid1" << ""                << "General";
    QTest::newRow("database label")                 << "pagKorGrid1" << "lblDatabaseName" << "Nazwa bazy danych";
    QTest::newRow("source label")                   << "pagKorGrid1" << "lblRecordSource" << "Komenda SQL";
    QTest::newRow("read-only box")                  << "pagKorGrid1" << "chkReadOnly"     << "ReadOnly";
    QTest::newRow("dictionary label")               << "pagKorGrid1" << "labSlownik"      << "Słownik";
    QTest::newRow("button for the fields")          << "pagKorGrid1" << "cmdRetrive"      << "&Retrive Fields";
    QTest::newRow("title of the column page")       << "pagKorGrid2" << ""                << "Columns";
    QTest::newRow("number label")                   << "pagKorGrid2" << "labIndex"        << "Nr kolumny";
    QTest::newRow("title label")                    << "pagKorGrid2" << "labTitle"        << "Tytuł";
    QTest::newRow("type label")                     << "pagKorGrid2" << "labType"         << "Typ";
    QTest::newRow("width label")                    << "pagKorGrid2" << "labWidth"        << "Szerokość";
    QTest::newRow("alignment label")                << "pagKorGrid2" << "labAlign"        << "Wyrównanie";
    QTest::newRow("locked box")                     << "pagKorGrid2" << "cbLocked"        << "Blokada edycji (indeks)";
    QTest::newRow("combo frame")                    << "pagKorGrid2" << "fraCombo"        << "KorCombo Właściwości";
    QTest::newRow("statement label")                << "pagKorGrid2" << "Label3"          << "Komenda SQL";
    QTest::newRow("null box")                       << "pagKorGrid2" << "cbNull"          << "Dopuść wart. puste";
    QTest::newRow("null text label")                << "pagKorGrid2" << "Label2"          << "Wartość pusta";
    QTest::newRow("column's dictionary label")      << "pagKorGrid2" << "Label1"          << "Słownik";
    QTest::newRow("number frame")                   << "pagKorGrid2" << "fraNumber"       << "KorNumber - Właściwości";
    QTest::newRow("range box")                      << "pagKorGrid2" << "cbNumCheck"      << "Sprawdzaj zakres liczby";
    QTest::newRow("mask label")                     << "pagKorGrid2" << "lblNumMask"      << "Format liczby";
    QTest::newRow("label of the lower bound")       << "pagKorGrid2" << "lblNumMin"       << "Wartość minimalna";
    QTest::newRow("label of the upper bound")       << "pagKorGrid2" << "lblNumMax"       << "Wartość maksymalna";
    // clang-format on
}

void tst_PagKorGrid::captionsAreTheContracts()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    QFETCH(QString, caption);
    const PageStage stage(qPrintable(page));
    auto *widget = name.isEmpty() ? stage.page.data() : stage.find<QWidget>(qPrintable(name));
    QVERIFY(widget);
    if (name.isEmpty())
        QCOMPARE(widget->windowTitle(), caption);
    else
        QCOMPARE(widget->property(qobject_cast<QGroupBox *>(widget) ? "title" : "text").toString(), caption);
}

void tst_PagKorGrid::theGridOfTheLibraryHasNoneOfTheMembers_data()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("database page") << "pagKorGrid1";
    QTest::newRow("column page") << "pagKorGrid2";
}

void tst_PagKorGrid::theGridOfTheLibraryHasNoneOfTheMembers()
{
    QFETCH(QString, page);
    PageStage stage(qPrintable(page));
    QVERIFY(stage.open());
    KorGrid grid;
    QCOMPARE(errorOf([&] {
                 stage.page->setSelectedControls({&grid});
                 return 0;
             }),
             438);
    stage.page->setChanged(true);
    QCOMPARE(errorOfCall(stage.page, "ApplyChanges"), 438);
    const bool isDatabase = page == QLatin1String("pagKorGrid1");
    stage.click(isDatabase ? "cmdRetrive" : "cmdNext");
    QCOMPARE(stage.takeUnhandled(), std::vector<int>{438});
}

void tst_PagKorGrid::bindingIsReadAndWrittenInItsOrder()
{
    PageStage stage("pagKorGrid1");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    QCOMPARE(grid.take(), QStringLiteral("ReadOnly RecordSource DatabaseName Slownik"));
    QVERIFY(stage.isChecked("chkReadOnly"));
    QCOMPARE(stage.text("txtDatabaseName"), QStringLiteral("C:\\dane.mdb"));
    stage.click("chkReadOnly");
    stage.type("txtSlownik", QStringLiteral("x"));
    stage.page->ApplyChanges();
    QCOMPARE(grid.take(), QStringLiteral("ReadOnly=False RecordSource=\"SELECT 1\" DatabaseName=\"C:\\dane.mdb\" "
                                         "Slownik=\"x\""));
}

void tst_PagKorGrid::everyFieldOfTheBindingMarks()
{
    PageStage stage("pagKorGrid1");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    const QStringList fields{QStringLiteral("chkReadOnly"), QStringLiteral("txtRecordSource"),
                             QStringLiteral("txtDatabaseName"), QStringLiteral("txtSlownik")};
    QCOMPARE(stage.marking(fields), fields);
}

void tst_PagKorGrid::aChosenFileGoesIntoTheField()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("zamówienia 2026.mdb"));
    PageStage stage("pagKorGrid1");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    const FileUser user(file);
    stage.click("cmdDatabaseName");
    QVERIFY(user.isUsed);
    QCOMPARE(user.name, QStringLiteral("CMD"));
    QCOMPARE(user.title, QStringLiteral("Database Name"));
    QCOMPARE(user.offered, QStringLiteral("*.mdb"));
    QCOMPARE(user.filters, QStringList{QStringLiteral("MS Access Database (*.mdb)")});
    QCOMPARE(user.flags, QVariant(44096));
    QCOMPARE(stage.text("txtDatabaseName"), file);
    QVERIFY(stage.page->Changed());
}

void tst_PagKorGrid::noFileLeavesTheField_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("cancelled") << QString();
    QTest::newRow("the offered name") << "*.mdb";
    QTest::newRow("the offered name with its folder") << QDir::tempPath() + QStringLiteral("/*.mdb");
}

void tst_PagKorGrid::noFileLeavesTheField()
{
    QFETCH(QString, typed);
    PageStage stage("pagKorGrid1");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    const FileUser user(typed);
    stage.click("cmdDatabaseName");
    QVERIFY(user.isUsed);
    QCOMPARE(stage.text("txtDatabaseName"), QStringLiteral("C:\\dane.mdb"));
    QVERIFY(!stage.page->Changed());
}

void tst_PagKorGrid::aFileChosenAgainMarksToo()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.mdb"));
    PageStage stage("pagKorGrid1");
    QVERIFY(stage.open());
    RecordedGrid grid;
    grid.setDatabaseName(file);
    stage.page->setSelectedControls({&grid});
    const FileUser user(file);
    stage.click("cmdDatabaseName");
    QVERIFY(user.isUsed);
    QVERIFY(stage.page->Changed());
}

void tst_PagKorGrid::thePageMayGoWhileTheDialogIsOpen()
{
    PageStage stage("pagKorGrid1");
    QVERIFY(stage.open());
    QTimer::singleShot(100, stage.page, [&] { delete stage.page.data(); });
    stage.click("cmdDatabaseName");
    QVERIFY(stage.page.isNull());
}

void tst_PagKorGrid::retrievingAsksTheControl()
{
    PageStage stage("pagKorGrid1");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    (void)grid.take();
    stage.click("cmdRetrive");
    QCOMPARE(grid.take(), QStringLiteral("RetriveFields"));
    bool isAsked = false;
    grid.then = [&](const QString &line) { isAsked = line == QLatin1String("RetriveFields"); };
    stage.box("txtSlownik")->setFocus();
    QTest::keyClick(stage.box("txtSlownik"), Qt::Key_R, Qt::AltModifier);
    QTRY_VERIFY(isAsked);
    QVERIFY(!stage.page->Changed());
}

void tst_PagKorGrid::anErrorBehindAClickIsTheEventOfThePage()
{
    PageStage stage("pagKorGrid1");
    QVERIFY(stage.open());
    QObject nothing;
    (void)errorOf([&] {
        stage.page->setSelectedControls({&nothing});
        return 0;
    });
    int number = 0;
    connect(stage.page, &PropertyPage::Error, this, [&](int &Number, QString &, bool &Handled) {
        number = Number;
        Handled = true;
    });
    stage.click("cmdRetrive");
    QCOMPARE(number, 438);
    QVERIFY(stage.takeUnhandled().empty());
}

void tst_PagKorGrid::attributesAreReadInTheirOrder()
{
    PageStage stage("pagKorGrid2");
    RecordedGrid grid;
    QCOMPARE(stage.text("txtIndex"), QStringLiteral("1"));
    stage.page->setSelectedControls({&grid});
    QCOMPARE(grid.take(), QStringLiteral("1.Title 1.Type 1.Width 1.Align 1.CmbSQL 1.CmbNull 1.CmbNullValue "
                                         "1.CmbSlownik 1.NumCheck 1.Locked 1.NumMin 1.NumMax 1.NumMask"));
    QCOMPARE(stage.text("txtTitle"), QStringLiteral("Kolumna 1"));
    QVERIFY(!stage.page->Changed());
}

void tst_PagKorGrid::attributesAreWrittenInTheirOrderLockedTwice()
{
    PageStage stage("pagKorGrid2");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    (void)grid.take();
    stage.type("txtWidth", QStringLiteral("1200"));
    stage.click("cbLocked");
    stage.page->ApplyChanges();
    QCOMPARE(grid.take(),
             QStringLiteral("1.Title=\"Kolumna 1\" 1.Type=0 1.Width=\"1200\" 1.Align=0 1.Locked=1% 1.CmbSQL=\"\" "
                            "1.CmbNull=0% 1.CmbNullValue=\"\" 1.CmbSlownik=\"\" 1.NumCheck=0% 1.Locked=1% "
                            "1.NumMin=\"\" 1.NumMax=\"\" 1.NumMask=\"\""));
    QVERIFY(!stage.page->Changed());
}

void tst_PagKorGrid::valuesAreShownByTheirKind_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("shown");
    // clang-format off
    QTest::newRow("width as a number")              << "Width"    << QVariant(1200)                    << "txtWidth"     << "1200";
    QTest::newRow("bound in the locale's writing")  << "NumMin"   << QVariant(0.5)                     << "txtNumMin"    << "0,5";
    QTest::newRow("checked by 1")                   << "Locked"   << QVariant::fromValue(short(1))     << "cbLocked"     << "true";
    QTest::newRow("checked by its text")            << "CmbNull"  << QVariant(QStringLiteral("1"))     << "cbNull"       << "true";
    QTest::newRow("text that is no number")         << "CmbNull"  << QVariant(QStringLiteral("tak"))   << "cbNull"       << "false";
    QTest::newRow("checked by True")                << "NumCheck" << QVariant(true)                    << "cbNumCheck"   << "true";
    QTest::newRow("nothing is unchecked")           << "NumCheck" << QVariant()                        << "cbNumCheck"   << "false";
    QTest::newRow("index as a text")                << "Align"    << QVariant(QStringLiteral("3"))     << "cmbAlign"     << "3";
    QTest::newRow("index rounded")                  << "Type"     << QVariant(1.5)                     << "cmbType"      << "2";
    QTest::newRow("text of a combo column")         << "CmbSQL"   << QVariant(QStringLiteral("LIST"))  << "txtSQL"       << "LIST";
    // clang-format on
}

void tst_PagKorGrid::valuesAreShownByTheirKind()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QString, field);
    QFETCH(QString, shown);
    Locale::setSystemDefault(Locale::polish());
    PageStage stage("pagKorGrid2");
    RecordedGrid grid;
    grid.attributes[QStringLiteral("1.") + key] = value;
    stage.page->setSelectedControls({&grid});
    const auto *widget = stage.find<QWidget>(qPrintable(field));
    const char *property = qobject_cast<const QCheckBox *>(widget)   ? "checked"
                           : qobject_cast<const QComboBox *>(widget) ? "currentIndex"
                                                                     : "text";
    QCOMPARE(widget->property(property).toString(), shown);
    QVERIFY(!stage.page->Changed());
}

void tst_PagKorGrid::listsAreTheContracts()
{
    const PageStage stage("pagKorGrid2");
    QCOMPARE(entriesOf(stage.find<QComboBox>("cmbType")).join(u'|'),
             QStringLiteral("Text Box|KorCombo|KorNumber|KorData|Check Box|AutoIncrement"));
    QCOMPARE(entriesOf(stage.find<QComboBox>("cmbAlign")).join(u'|'), QStringLiteral("General|Left|Right|Center"));
}

void tst_PagKorGrid::theTypeShowsItsFrame_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("combo");
    QTest::addColumn<bool>("number");
    QTest::newRow("text") << 0 << false << false;
    QTest::newRow("combo") << 1 << true << false;
    QTest::newRow("number") << 2 << false << true;
    QTest::newRow("date") << 3 << false << false;
    QTest::newRow("check box") << 4 << false << false;
    QTest::newRow("counter") << 5 << false << false;
}

void tst_PagKorGrid::theTypeShowsItsFrame()
{
    QFETCH(int, type);
    QFETCH(bool, combo);
    QFETCH(bool, number);
    const auto check = [&](const PageStage &stage) {
        QCOMPARE(stage.find<QGroupBox>("fraCombo")->isVisibleTo(stage.page), combo);
        QCOMPARE(stage.find<QGroupBox>("fraNumber")->isVisibleTo(stage.page), number);
    };
    { // read from the control
        PageStage stage("pagKorGrid2");
        RecordedGrid grid;
        grid.attributes[QStringLiteral("1.Type")] = type;
        stage.page->setSelectedControls({&grid});
        check(stage);
        QVERIFY(!stage.page->Changed());
    }
    // Chosen by the user
    PageStage stage("pagKorGrid2");
    QVERIFY(stage.open());
    RecordedGrid grid;
    grid.attributes[QStringLiteral("1.Type")] = type == 1 ? 2 : 1;
    stage.page->setSelectedControls({&grid});
    auto *list = stage.find<QComboBox>("cmbType");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    for (int i = 0; i < type; ++i)
        QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentIndex(), type);
    check(stage);
    QVERIFY(stage.page->Changed());
}

void tst_PagKorGrid::fourFieldsDoNotMark()
{
    PageStage stage("pagKorGrid2");
    QVERIFY(stage.open());
    RecordedGrid grid;
    for (const int type : {1, 2}) {
        grid.attributes[QStringLiteral("1.Type")] = type;
        stage.page->setSelectedControls({&grid});
        const QStringList always{QStringLiteral("txtTitle"), QStringLiteral("txtWidth"), QStringLiteral("cmbAlign"),
                                 QStringLiteral("cbLocked"), QStringLiteral("txtIndex")};
        QCOMPARE(stage.marking(always), always);
        const QStringList marking = type == 1 ? QStringList{QStringLiteral("txtSQL")}
                                              : QStringList{QStringLiteral("txtNumMin"), QStringLiteral("txtNumMax"),
                                                            QStringLiteral("txtNumMask")};
        const QStringList silent = type == 1 ? QStringList{QStringLiteral("txtNullValue"), QStringLiteral("txtSlownik"),
                                                           QStringLiteral("cbNull")}
                                             : QStringList{QStringLiteral("cbNumCheck")};
        QCOMPARE(stage.marking(marking + silent), marking);
        stage.find<QLineEdit>("txtIndex")->setText(QStringLiteral("1"));
    }
}

void tst_PagKorGrid::whatDoesNotMarkIsSavedWithTheRest()
{
    PageStage stage("pagKorGrid2");
    QVERIFY(stage.open());
    RecordedGrid grid;
    grid.attributes[QStringLiteral("1.Type")] = 1;
    stage.page->setSelectedControls({&grid});
    stage.type("txtSlownik", QStringLiteral("miasta"));
    QVERIFY(!stage.page->Changed());
    stage.type("txtTitle", QStringLiteral("Miasto"));
    stage.page->ApplyChanges();
    QCOMPARE(grid.attributes.value(QStringLiteral("1.CmbSlownik")), QVariant(QStringLiteral("miasta")));
    QCOMPARE(grid.attributes.value(QStringLiteral("1.Title")), QVariant(QStringLiteral("Miasto")));
}

void tst_PagKorGrid::steppingAppliesAndReadsTheOtherColumn()
{
    PageStage stage("pagKorGrid2");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    stage.type("txtTitle", QStringLiteral("Nazwa"));
    (void)grid.take();
    stage.click("cmdNext");
    const QStringList lines = grid.take().split(u' ');
    QCOMPARE(lines.filter(QStringLiteral("1.")).size(), 14);
    QVERIFY(lines.first().startsWith(QLatin1String("1.Title=\"Nazwa\"")));
    QCOMPARE(lines.filter(QRegularExpression(QStringLiteral("^2\\."))).size(), 13);
    QCOMPARE(stage.text("txtIndex"), QStringLiteral("2"));
    QCOMPARE(stage.text("txtTitle"), QStringLiteral("Kolumna 2"));
    QVERIFY(!stage.page->Changed());
    stage.click("cmdPrev");
    QCOMPARE(stage.text("txtIndex"), QStringLiteral("1"));
    QCOMPARE(stage.text("txtTitle"), QStringLiteral("Nazwa"));
    QVERIFY(!stage.page->Changed());
}

void tst_PagKorGrid::steppingStopsAtBothEnds()
{
    PageStage stage("pagKorGrid2");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    (void)grid.take();
    stage.click("cmdPrev");
    QCOMPARE(grid.take(), QString());
    QCOMPARE(stage.text("txtIndex"), QStringLiteral("1"));
    stage.click("cmdNext");
    stage.click("cmdNext");
    QCOMPARE(stage.text("txtIndex"), QStringLiteral("3"));
    (void)grid.take();
    stage.click("cmdNext");
    QCOMPARE(grid.take(), QString());
    QCOMPARE(stage.text("txtIndex"), QStringLiteral("3"));
}

void tst_PagKorGrid::aColumnThatIsNoneIsNeitherReadNorWritten_data()
{
    QTest::addColumn<QString>("typed");
    for (const char *typed : {"0", "-1", "4", "99999999999999", "1e400", "", "abc"})
        QTest::addRow("\"%s\"", typed) << QString::fromLatin1(typed);
}

void tst_PagKorGrid::aColumnThatIsNoneIsNeitherReadNorWritten()
{
    QFETCH(QString, typed);
    PageStage stage("pagKorGrid2");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    (void)grid.take();
    stage.type("txtIndex", typed);
    QCOMPARE(errorOfCall(stage.page, "ApplyChanges"), 0);
    QVERIFY(!stage.page->Changed());
    QCOMPARE(errorOfCall(stage.page, "SelectionChanged"), 0);
    QCOMPARE(grid.take(), QString());
    stage.type("txtIndex", QStringLiteral("3"));
    stage.page->SelectionChanged();
    QVERIFY(grid.take().startsWith(QLatin1String("3.Title ")));
}

void tst_PagKorGrid::whatIsShownIsSavedAsTheColumnThatStandsThere()
{
    PageStage stage("pagKorGrid2");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    stage.type("txtIndex", QStringLiteral("2 kolumna"));
    stage.page->ApplyChanges();
    QCOMPARE(grid.attributes.value(QStringLiteral("2.Title")), QVariant(QStringLiteral("Kolumna 1")));
    QVERIFY(!grid.attributes.contains(QStringLiteral("1.Title")));
}

void tst_PagKorGrid::anIndexThatIsNoneIsAnError()
{
    PageStage stage("pagKorGrid2");
    RecordedGrid grid;
    grid.attributes[QStringLiteral("1.Align")] = 4;
    QCOMPARE(errorOf([&] {
                 stage.page->setSelectedControls({&grid});
                 return 0;
             }),
             380);
    grid.attributes[QStringLiteral("1.Align")] = QStringLiteral("Left");
    QCOMPARE(errorOfCall(stage.page, "SelectionChanged"), 13);
    grid.attributes[QStringLiteral("1.Align")] = -1;
    QCOMPARE(errorOfCall(stage.page, "SelectionChanged"), 0);
    QCOMPARE(stage.find<QComboBox>("cmbAlign")->currentIndex(), -1);
}

void tst_PagKorGrid::anErrorOfTheControlStopsTheStep()
{
    PageStage stage("pagKorGrid2");
    QVERIFY(stage.open());
    RecordedGrid grid;
    stage.page->setSelectedControls({&grid});
    stage.type("txtTitle", QStringLiteral("x"));
    grid.then = [](const QString &line) {
        if (line.startsWith(QLatin1String("1.Width=")))
            throw RunTimeError(ErrorNumber::TypeMismatch);
    };
    stage.click("cmdNext");
    QCOMPARE(stage.takeUnhandled(), std::vector<int>{13});
    QCOMPARE(stage.text("txtIndex"), QStringLiteral("1"));
    QCOMPARE(grid.attributes.value(QStringLiteral("1.Title")), QVariant(QStringLiteral("x")));
    QVERIFY(stage.page->Changed());
}

QTEST_MAIN(tst_PagKorGrid)

#include "tst_pagkorgrid.moc"
