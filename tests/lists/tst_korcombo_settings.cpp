// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/settings.h"
#include "support/stage.h"

#include <KorDaoUC/Color>
#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/Database>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

using namespace kor;
using namespace kor::test;

namespace {

void setEverything(KorCombo &combo)
{
    combo.setBackColor(0x00C0FFFF);
    combo.setForeColor(0x00FF0000);
    combo.setEnabled(false);
    QFont font = combo.Font();
    font.setPointSize(font.pointSize() + 5);
    combo.setFont(font);
    combo.setSQL(QStringLiteral("LIST 1;Tak|0;Nie"));
    combo.setSlownik(QStringLiteral("TakNie"));
    combo.setCanBeNull(true);
    combo.setNullString(QStringLiteral("(brak)"));
    combo.setToolTipText(QStringLiteral("Wybierz"));
    combo.setBlockUpDown(true);
    combo.setBlockClick(true);
}

QComboBox *boxOf(const QWidget &control) { return control.findChild<QComboBox *>(QStringLiteral("cmbCombo")); }

//! A database that only counts how often it is asked.
class CountingDatabase final : public Database
{
public:
    std::unique_ptr<Recordset> OpenRecordset(const QString &, int) override
    {
        ++asked;
        throw RunTimeError(ErrorNumber::DatabaseFailed);
    }
    int asked = 0;
};

} // namespace

//! What is saved, and how the control looks and measures.
class tst_KorComboSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void aFreshComboStoresNothing();
    void settingsAreWrittenInTheirOrder();
    void settingsAreReadInTheirOrderAndEnabledTwice();
    void settingsRoundTrip();
    void toolTipIsWrittenUnderBothKeys();
    void helpTextIsLostWithoutToolTipText();
    void loadingAddsTheNullEntryAtOnce();
    void loadingAgainStartsFromAnEmptyList();
    void loadingTouchesNoDatabaseAndRaisesNothing();
    void everyLetReportsItsProperty();
    void registryCreatesIt();

    void heightFollowsTheFont();
    void heightIsTheListsOwnInsideALayout();
    void colorsReachFieldAndList();
    void fontIsTheConstituents();
    void listIsMadeWhenItIsOpened();
    void listLooksAsTheFieldHoweverItWasMade_data();
    void listLooksAsTheFieldHoweverItWasMade();
    void wideNamesWidenTheOpenList();
    void manyEntriesOpenBelowTheField();
    void looksLikeTheApplicationsStyle_data();
    void looksLikeTheApplicationsStyle();
    void opensBelowTheFieldUnderAnApplicationStyleSheet();
};

void tst_KorComboSettings::init()
{
    // The offscreen platform can't raise a pop-up and says so each time.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
}

void tst_KorComboSettings::aFreshComboStoresNothing()
{
    KorCombo fresh;
    const PropertyBag bag = settingsOf(fresh);
    QCOMPARE(keysOf(bag).join(QLatin1Char(' ')), QString());
    KorCombo loaded;
    loaded.readProperties(bag);
    QCOMPARE(settingsOf(loaded), bag);
    QCOMPARE(loaded.NullString(), fresh.NullString());
}

void tst_KorComboSettings::settingsAreWrittenInTheirOrder()
{
    KorCombo combo;
    setEverything(combo);
    const PropertyBag bag = settingsOf(combo);
    QCOMPARE(keysOf(bag).join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled HelpText Font SQL Slownik CanBeNull NullString "
                            "ToolTipText BlockUpDown BlockClick"));
    QCOMPARE(bag.ReadProperty(QStringLiteral("BackColor")).typeId(), int(QMetaType::Int));
    QCOMPARE(bag.ReadProperty(QStringLiteral("CanBeNull")).typeId(), int(QMetaType::Bool));
}

void tst_KorComboSettings::settingsAreReadInTheirOrderAndEnabledTwice()
{
    KorCombo combo;
    setEverything(combo);
    const PropertyBag bag = settingsOf(combo);
    KorCombo loaded;
    QStringList applied;
    connect(&loaded, &UserControl::PropertyChanged, this, [&](const QString &name) { applied << name; });
    loaded.readProperties(bag);
    QCOMPARE(applied.join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled ToolTipText Font SQL Slownik CanBeNull NullString "
                            "ToolTipText Enabled BlockUpDown BlockClick"));
}

void tst_KorComboSettings::settingsRoundTrip()
{
    KorCombo combo;
    setEverything(combo);
    const PropertyBag bag = settingsOf(combo);
    KorCombo loaded;
    loaded.readProperties(bag);
    QCOMPARE(settingsOf(loaded), bag);
    QVERIFY(!loaded.Enabled());
    QCOMPARE(loaded.ToolTipText(), QStringLiteral("Wybierz"));
    QVERIFY(loaded.BlockUpDown() && loaded.BlockClick() && loaded.CanBeNull());
}

void tst_KorComboSettings::toolTipIsWrittenUnderBothKeys()
{
    KorCombo combo;
    combo.setToolTipText(QStringLiteral("Wybierz"));
    const PropertyBag bag = settingsOf(combo);
    QCOMPARE(keysOf(bag).join(QLatin1Char(' ')), QStringLiteral("HelpText ToolTipText"));
    QCOMPARE(boxOf(combo)->toolTip(), QStringLiteral("Wybierz"));
}

void tst_KorComboSettings::helpTextIsLostWithoutToolTipText()
{
    PropertyBag bag;
    bag.append(QStringLiteral("HelpText"), QStringLiteral("stary"));
    KorCombo combo;
    combo.readProperties(bag);
    QCOMPARE(combo.ToolTipText(), QString());
    bag.append(QStringLiteral("ToolTipText"), QStringLiteral("nowy"));
    combo.readProperties(bag);
    QCOMPARE(combo.ToolTipText(), QStringLiteral("nowy"));
}

void tst_KorComboSettings::loadingAddsTheNullEntryAtOnce()
{
    PropertyBag bag;
    bag.append(QStringLiteral("CanBeNull"), true);
    bag.append(QStringLiteral("NullString"), QStringLiteral("(brak)"));
    KorCombo combo;
    combo.readProperties(bag);
    QVERIFY(combo.HasValues());
    QCOMPARE(combo.ListCount(), 1);
    QCOMPARE(boxOf(combo)->itemText(0), QStringLiteral("(brak)"));
    QCOMPARE(combo.ListIndex(), -1);
    combo.setListIndex(0);
    QVERIFY(isNull(combo.Value()));
}

void tst_KorComboSettings::loadingAgainStartsFromAnEmptyList()
{
    PropertyBag bag;
    bag.append(QStringLiteral("CanBeNull"), true);
    KorCombo combo;
    combo.AddEntry(1, QStringLiteral("jeden"));
    combo.readProperties(bag);
    combo.readProperties(bag);
    QCOMPARE(combo.ListCount(), 1);
    QCOMPARE(combo.Exists(1), QVariant(false));
}

void tst_KorComboSettings::loadingTouchesNoDatabaseAndRaisesNothing()
{
    PropertyBag bag;
    bag.append(QStringLiteral("SQL"), QStringLiteral("SELECT 1, 'x'"));
    bag.append(QStringLiteral("CanBeNull"), true);
    CountingDatabase database;
    KorCombo combo;
    combo.setdatabase(&database);
    combo.setDataChanged(true);
    EventLog log(&combo);
    combo.readProperties(bag);
    settle();
    QCOMPARE(database.asked, 0);
    QCOMPARE(log.take(), QString());
    QVERIFY(!combo.DataChanged());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("3146: ")));
    combo.Refresh();
    QCOMPARE(database.asked, 1);
}

void tst_KorComboSettings::everyLetReportsItsProperty()
{
    KorCombo combo;
    QStringList reported;
    connect(&combo, &UserControl::PropertyChanged, this, [&](const QString &name) { reported << name; });
    setEverything(combo);
    QCOMPARE(reported.join(QLatin1Char(' ')), QStringLiteral("BackColor ForeColor Enabled Font SQL Slownik CanBeNull "
                                                             "NullString ToolTipText BlockUpDown BlockClick"));
    reported.clear();
    combo.AddEntry(1, QStringLiteral("a"));
    combo.setListIndex(0);
    combo.setValue(1);
    combo.setText(QStringLiteral("a"));
    combo.setDataChanged(false);
    QCOMPARE(reported, QStringList()); // nothing of it is saved
}

void tst_KorComboSettings::registryCreatesIt()
{
    const std::unique_ptr<UserControl> control(ControlRegistry::create(QStringLiteral("KorDaoUC.KorCombo")));
    QVERIFY(qobject_cast<KorCombo *>(control.get()));
}

// --- look and size

void tst_KorComboSettings::heightFollowsTheFont()
{
    Stage stage;
    auto *combo = stage.place(new KorCombo, 160, 90);
    QVERIFY(stage.open());
    const QComboBox *box = boxOf(*combo);
    const int before = combo->height();
    QVERIFY(before < 90);
    QCOMPARE(box->geometry(), QRect(0, 0, 160, before));
    QFont font = combo->Font();
    font.setPointSize(font.pointSize() * 2);
    combo->setFont(font);
    QVERIFY(combo->height() > before);
    QCOMPARE(box->geometry(), QRect(0, 0, 160, combo->height()));
    combo->resize(200, 10);
    QCOMPARE(box->geometry(), QRect(0, 0, 200, combo->height()));
}

void tst_KorComboSettings::heightIsTheListsOwnInsideALayout()
{
    QWidget form;
    auto *layout = new QVBoxLayout(&form);
    auto *combo = new KorCombo;
    layout->addWidget(combo);
    form.resize(300, 300);
    form.show();
    settle();
    QCOMPARE(combo->height(), boxOf(*combo)->sizeHint().height());
    QVERIFY(combo->width() > 250);
    QVERIFY(combo->minimumSizeHint().width() < combo->sizeHint().width());
}

void tst_KorComboSettings::colorsReachFieldAndList()
{
    KorCombo combo;
    combo.setBackColor(0x00C0FFFF);
    combo.setForeColor(0x000000FF);
    const QPalette palette = boxOf(combo)->view()->palette();
    QCOMPARE(palette.color(QPalette::Base), QColor(0xFF, 0xFF, 0xC0));
    QCOMPARE(palette.color(QPalette::Text), QColor(0xFF, 0, 0));
    combo.setListIndex(-1);
    const QImage picture = combo.grab().toImage();
    QCOMPARE(picture.pixelColor(picture.width() / 3, picture.height() / 2).blue() < 0xF0, true);
}

void tst_KorComboSettings::fontIsTheConstituents()
{
    KorCombo combo;
    QFont font = combo.Font();
    font.setBold(!font.bold());
    combo.setFont(font);
    QCOMPARE(boxOf(combo)->font(), combo.Font());
    QCOMPARE(boxOf(combo)->view()->font().bold(), font.bold());
}

void tst_KorComboSettings::listIsMadeWhenItIsOpened()
{
    Stage stage;
    QFont larger = stage.font();
    larger.setPointSize(larger.pointSize() + 5);
    auto *combo = stage.place(new KorCombo, 100);
    setEverything(*combo);
    combo->setEnabled(true);
    combo->setFont(larger);
    combo->AddEntry(1, QStringLiteral("a"));
    combo->setValue(1);
    QVERIFY(stage.open());
    combo->setFocus();
    combo->setFont(QFont());
    stage.setFont(larger);
    stage.setStyleSheet(QStringLiteral("QWidget { margin: 0 }"));
    settle();
    QVERIFY(!combo->findChild<QAbstractItemView *>()); // a form of a hundred fields would wait for as many lists
    boxOf(*combo)->showPopup();
    QVERIFY(combo->findChild<QAbstractItemView *>());
    boxOf(*combo)->hidePopup();
}

void tst_KorComboSettings::listLooksAsTheFieldHoweverItWasMade_data()
{
    QTest::addColumn<bool>("isMadeEarly");
    QTest::newRow("made when it is opened") << false;
    QTest::newRow("made by an assistive tool before") << true;
}

void tst_KorComboSettings::listLooksAsTheFieldHoweverItWasMade()
{
    QFETCH(bool, isMadeEarly);
    Stage stage;
    auto *combo = stage.place(new KorCombo, 100);
    QComboBox *box = boxOf(*combo);
    for (const char *name : {"Alfa", "Beta"})
        combo->AddEntry(QString::fromLatin1(name), QString::fromLatin1(name));
    if (isMadeEarly)
        QVERIFY(box->view());
    QFont larger = stage.font();
    larger.setPointSize(larger.pointSize() + 7);
    combo->setFont(larger);
    combo->setForeColor(0x000000FF);
    stage.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(stage.open());
    EventLog log(combo);
    box->showPopup();
    QCOMPARE(box->view()->font(), box->font());
    QCOMPARE(box->view()->font().pointSize(), larger.pointSize());
    QCOMPARE(box->view()->palette().color(QPalette::Text), QColor(0xFF, 0, 0));
    QCOMPARE(box->view()->layoutDirection(), Qt::RightToLeft);
    QVERIFY(qobject_cast<QListView *>(box->view())->uniformItemSizes());
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    QVERIFY(!box->view()->isVisible());
    combo->setFont(QFont());
    box->showPopup();
    QCOMPARE(box->view()->font().pointSize(), box->font().pointSize());
    QVERIFY(box->font().pointSize() < larger.pointSize());
    box->hidePopup();
}

void tst_KorComboSettings::wideNamesWidenTheOpenList()
{
    Stage stage;
    auto *combo = stage.place(new KorCombo, 100);
    QComboBox *box = boxOf(*combo);
    combo->AddEntry(1, QStringLiteral("krótka"));
    QVERIFY(stage.open());
    box->showPopup();
    const int narrow = box->view()->width();
    QVERIFY(narrow >= 90);
    box->hidePopup();
    combo->AddEntry(2, QStringLiteral("Przedsiębiorstwo Handlowo-Usługowe „Żółw” Sp. z o.o."));
    box->showPopup();
    const int wide = box->view()->width();
    QVERIFY(wide > box->fontMetrics().horizontalAdvance(box->itemText(1)));
    box->hidePopup();
    combo->AddEntry(3, QString(5000, QLatin1Char('x')));
    box->showPopup();
    QVERIFY(box->view()->width() > wide);
    QVERIFY(box->view()->width() <= box->screen()->availableGeometry().width());
    box->hidePopup();
    combo->Clear();
    combo->AddEntry(1, QStringLiteral("krótka"));
    box->showPopup();
    QCOMPARE(box->view()->width(), narrow);
}

void tst_KorComboSettings::manyEntriesOpenBelowTheField()
{
    Stage stage;
    auto *combo = stage.place(new KorCombo);
    for (int i = 0; i < 1000; ++i)
        combo->AddEntry(i, QString::number(i));
    combo->setListIndex(700);
    QVERIFY(stage.open());
    QComboBox *box = boxOf(*combo);
    box->showPopup();
    auto *list = qobject_cast<QListView *>(box->view());
    QVERIFY(list && list->uniformItemSizes());
    settle();
    QVERIFY(list->verticalScrollBar()->isVisible());
    QVERIFY(list->viewport()->rect().intersects(list->visualRect(list->currentIndex())));
    QCOMPARE(list->currentIndex().row(), 700);
    QVERIFY(list->height() < 400);
    QVERIFY(list->mapToGlobal(QPoint()).y() >= box->mapToGlobal(QPoint(0, box->height())).y() - 2);
}

void tst_KorComboSettings::looksLikeTheApplicationsStyle_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("Windows") << QStringLiteral("windows");
    QTest::newRow("Fusion") << QStringLiteral("fusion");
}

void tst_KorComboSettings::looksLikeTheApplicationsStyle()
{
    QFETCH(QString, style);
    Stage stage;
    auto *combo = stage.place(new KorCombo);
    auto *plain = new QComboBox(&stage);
    combo->AddEntry(1, QStringLiteral("Łódź"));
    combo->setListIndex(0);
    plain->addItem(QStringLiteral("Łódź"));
    combo->move(10, 100); // both away from the mouse
    plain->move(10, 140);
    QVERIFY(stage.open());
    QApplication::setStyle(style);
    settle();
    QCOMPARE(combo->height(), plain->sizeHint().height());
    plain->resize(combo->size());
    stage.button()->setFocus();
    settle();
    const QImage ours = boxOf(*combo)->grab().toImage();
    const QImage theirs = plain->grab().toImage();
    QCOMPARE(ours, theirs);
    QCOMPARE(boxOf(*combo)->style()->styleHint(QStyle::SH_ComboBox_Popup), 0);
}

void tst_KorComboSettings::opensBelowTheFieldUnderAnApplicationStyleSheet()
{
    KorCombo before;
    qApp->setStyleSheet(QStringLiteral("QPushButton { color: red }"));
    KorCombo after;
    QCOMPARE(boxOf(before)->style()->styleHint(QStyle::SH_ComboBox_Popup), 0);
    QCOMPARE(boxOf(after)->style()->styleHint(QStyle::SH_ComboBox_Popup), 0);
    qApp->setStyleSheet(QString());
    QCOMPARE(boxOf(before)->style()->styleHint(QStyle::SH_ComboBox_Popup), 0);
}

QTEST_MAIN(tst_KorComboSettings)
#include "tst_korcombo_settings.moc"
