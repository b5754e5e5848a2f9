// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/fieldsuite.h"
#include "support/runtimeerrors.h"
#include "support/settings.h"

#include <KorDaoUC/KorList>
#include <KorDaoUC/Locale>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QVBoxLayout>

using namespace kor;
using namespace kor::test;

namespace {

const QString abc = QStringLiteral("LIST a;Alfa|b;Beta|c;Celina");

} // namespace

//! What is saved, and how the list measures.
class tst_KorListSettings : public FieldSuite<KorList, QListView>
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp("Lista", 160, 100); }
    void cleanup() { tearDown(); }

    void settingsAreWrittenInTheirOrder();
    void settingsRoundTrip();
    void aFreshListStoresNothing();
    void loadingAddsTheNullEntryAtOnce();
    void toolTipTextAndHelpTextAreSeparate();
    void tipsAreTheListsOwnOrACutName_data();
    void tipsAreTheListsOwnOrACutName();
    void settingsOutOfRangeAreRefused();
    void heightSnapsToWholeRows();
    void heightFollowsTheFont();
    void heightComesBackWithTheFontAndTheFrame();
    void savedHeightIsLoadedAsItWas();
    void layoutsGiveRoomForALargerFont();

private:
    [[nodiscard]] bool enter(const QString &source);
    [[nodiscard]] QStringList names() const;

    QPointer<KorList> &m_list = m_control;
};

bool tst_KorListSettings::enter(const QString &source)
{
    m_list->setSQL(source);
    m_list->Refresh();
    return FieldSuite::enter();
}

QStringList tst_KorListSettings::names() const
{
    QStringList shown;
    for (int i = 0; i < m_box->model()->rowCount(); ++i)
        shown << m_box->model()->index(i, 0).data().value<QString>();
    return shown;
}

void tst_KorListSettings::settingsAreWrittenInTheirOrder()
{
    m_list->setBackColor(0x00C0FFFF);
    m_list->setForeColor(0x00FF0000);
    m_list->setEnabled(false);
    m_box->setToolTip(QStringLiteral("Wybierz"));
    QFont font = m_list->Font();
    font.setBold(true);
    m_list->setFont(font);
    m_list->setSQL(abc);
    m_list->setSlownik(QStringLiteral("Imiona"));
    m_list->setCanBeNull(true);
    m_list->setNullString(QStringLiteral("(brak)"));
    m_list->setAppearance(AppearanceType::Flat);
    m_list->setBorderStyle(BorderStyleType::FixedSingle);
    m_list->setBlockUpDown(true);
    m_list->setBlockClick(true);
    m_list->setToolTipText(QStringLiteral("imię"));
    const PropertyBag bag = settingsOf(*m_list);
    QCOMPARE(keysOf(bag).join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled HelpText Font SQL Slownik CanBeNull NullString "
                            "BackColor Appearance BorderStyle BlockUpDown BlockClick ToolTipText"));
    QCOMPARE(bag.ReadProperty(QStringLiteral("Appearance")), QVariant::fromValue(short(0)));
    QCOMPARE(bag.ReadProperty(QStringLiteral("BorderStyle")).typeId(), int(QMetaType::Short));

    KorList loaded;
    QStringList applied;
    connect(&loaded, &UserControl::PropertyChanged, this, [&](const QString &name) { applied << name; });
    loaded.readProperties(bag);
    QCOMPARE(applied.join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled Font SQL Slownik CanBeNull NullString BackColor Appearance "
                            "BorderStyle BlockUpDown BlockClick ToolTipText"));
}

void tst_KorListSettings::settingsRoundTrip()
{
    PropertyBag bag;
    bag.append(QStringLiteral("BackColor"), 0x00C0FFFF);
    bag.append(QStringLiteral("HelpText"), QStringLiteral("Wybierz"));
    bag.append(QStringLiteral("SQL"), abc);
    bag.append(QStringLiteral("NullString"), QStringLiteral("(brak)"));
    bag.append(QStringLiteral("BackColor"), 0x00C0FFFF);
    bag.append(QStringLiteral("Appearance"), QVariant::fromValue(short(0)));
    bag.append(QStringLiteral("BlockClick"), true);
    bag.append(QStringLiteral("ToolTipText"), QStringLiteral("imię"));
    m_list->readProperties(bag);
    const PropertyBag again = settingsOf(*m_list);
    QCOMPARE(again, bag);
    QCOMPARE(m_list->Appearance(), AppearanceType::Flat);
    QCOMPARE(m_list->ListCount(), 0); // nothing is filled until Refresh
}

void tst_KorListSettings::aFreshListStoresNothing()
{
    KorList fresh;
    const PropertyBag bag = settingsOf(fresh);
    QVERIFY(bag.isEmpty());
    KorList loaded;
    loaded.readProperties(bag);
    const PropertyBag again = settingsOf(loaded);
    QVERIFY(again.isEmpty());
    QCOMPARE(loaded.NullString(), QStringLiteral("..."));
    QCOMPARE(loaded.Appearance(), AppearanceType::A3D);
}

void tst_KorListSettings::loadingAddsTheNullEntryAtOnce()
{
    PropertyBag bag;
    bag.append(QStringLiteral("CanBeNull"), true);
    bag.append(QStringLiteral("NullString"), QStringLiteral("(brak)"));
    m_list->setDataChanged(true);
    EventLog log(m_list);
    m_list->readProperties(bag);
    m_list->readProperties(bag);
    QCOMPARE(names(), QStringList{QStringLiteral("(brak)")});
    QCOMPARE(m_list->ListIndex(), -1);
    QVERIFY(!m_list->DataChanged());
    QCOMPARE(log.take(), QString());
}

void tst_KorListSettings::toolTipTextAndHelpTextAreSeparate()
{
    PropertyBag bag;
    bag.append(QStringLiteral("HelpText"), QStringLiteral("Wybierz"));
    m_list->readProperties(bag);
    QCOMPARE(m_box->toolTip(), QStringLiteral("Wybierz"));
    QCOMPARE(m_list->ToolTipText(), QString());
    m_list->setToolTipText(QStringLiteral("imię"));
    QCOMPARE(m_box->toolTip(), QStringLiteral("Wybierz"));
}

void tst_KorListSettings::tipsAreTheListsOwnOrACutName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("helpText");
    QTest::addColumn<QString>("tip");
    // clang-format off
    const QString longName = QStringLiteral("Zakład Usługowo-Handlowy \"Bławatek\" <Łódź> sp. z o.o.");
    const QString whole = QStringLiteral("<p>Zakład Usługowo-Handlowy &quot;Bławatek&quot; &lt;Łódź&gt; sp. z o.o.");
    QTest::newRow("name that fits")              << "Łódź"   << ""        << "";
    QTest::newRow("name that fits, list's own")  << "Łódź"   << "Wybierz" << "Wybierz";
    QTest::newRow("name cut short")              << longName << ""        << whole;
    QTest::newRow("name cut short, list's own")  << longName << "Wybierz" << whole;
    // clang-format on
}

void tst_KorListSettings::tipsAreTheListsOwnOrACutName()
{
    QFETCH(QString, name);
    QFETCH(QString, helpText);
    PropertyBag bag;
    bag.append(QStringLiteral("HelpText"), helpText);
    bag.append(QStringLiteral("SQL"), QStringLiteral("LIST 1;") + name);
    m_list->readProperties(bag);
    m_list->Refresh();
    QVERIFY(m_stage->open());
    settle();
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    const QPoint place = m_box->visualRect(m_box->model()->index(0, 0)).center();
    QHelpEvent help(QEvent::ToolTip, place, m_box->viewport()->mapToGlobal(place));
    QApplication::sendEvent(m_box->viewport(), &help);
    QTEST(QToolTip::isVisible() ? QToolTip::text() : QString(), "tip");
    QToolTip::hideText();
}

void tst_KorListSettings::settingsOutOfRangeAreRefused()
{
    QCOMPARE(errorOf([this] { m_list->setBorderStyle(static_cast<BorderStyleType>(2)); }), 380);
    QCOMPARE(errorOf([this] { m_list->setAppearance(static_cast<AppearanceType>(-1)); }), 380);
    QCOMPARE(m_list->BorderStyle(), BorderStyleType::None);
    QCOMPARE(m_list->Appearance(), AppearanceType::A3D);
}

void tst_KorListSettings::heightSnapsToWholeRows()
{
    QVERIFY(enter(abc));
    const int row = m_box->visualRect(m_box->model()->index(0, 0)).height();
    const int frame = 2 * m_box->frameWidth();
    for (int height : {60, 61, 75, 100, 3}) {
        m_list->resize(200, height);
        QCOMPARE(m_list->height(), std::max(1, (height - frame) / row) * row + frame);
        QCOMPARE(m_box->geometry(), m_list->rect());
        QCOMPARE(m_box->viewport()->height() % row, 0);
    }
    const int before = m_list->height();
    m_list->Clear(); // an empty list measures the same
    m_list->resize(199, before);
    QCOMPARE(m_list->height(), before);

    QWidget form;
    auto *layout = new QVBoxLayout(&form);
    auto *list = new KorList;
    layout->addWidget(list);
    form.resize(300, 300);
    form.show();
    settle();
    QCOMPARE((list->height() - frame) % row, 0);
    QVERIFY(list->height() > 200);
}

void tst_KorListSettings::heightFollowsTheFont()
{
    QVERIFY(enter(abc));
    QFont font = m_list->Font();
    font.setPointSize(font.pointSize() * 2);
    m_list->setFont(font);
    settle();
    const int row = m_box->visualRect(m_box->model()->index(0, 0)).height();
    QVERIFY(row > m_box->fontMetrics().height()); // with room around the text
    QCOMPARE(m_box->viewport()->height() % row, 0);
    QCOMPARE(m_box->geometry(), m_list->rect());
}

void tst_KorListSettings::heightComesBackWithTheFontAndTheFrame()
{
    QVERIFY(enter(abc));
    m_list->resize(160, 120);
    const int before = m_list->height();
    const QFont font = m_list->Font();
    QFont large = font;
    large.setPointSize(font.pointSize() * 3);
    m_list->setFont(large);
    QVERIFY(m_list->height() < before);
    m_list->setFont(font);
    QCOMPARE(m_list->height(), before);
    // Here both values of Appearance give the same width; elsewhere one frame is wider than the other.
    m_stage->setStyleSheet(QStringLiteral("QListView { border: 9px solid black }"));
    QCOMPARE(m_box->frameWidth(), 9);
    m_stage->setStyleSheet(QString());
    QCOMPARE(m_list->height(), before);
    m_list->resize(160, 60); // the form's word is the last one
    m_list->setFont(large);
    m_list->setFont(font);
    QVERIFY(m_list->height() <= 60);
}

void tst_KorListSettings::savedHeightIsLoadedAsItWas()
{
    QVERIFY(enter(abc));
    QFont large = m_list->Font();
    large.setPixelSize(23);
    m_list->setFont(large);
    m_list->setAppearance(AppearanceType::Flat);
    m_list->resize(160, 150);
    const PropertyBag bag = settingsOf(*m_list);
    const int saved = m_list->height();
    auto *loaded = m_stage->place(new KorList, 160, saved);
    loaded->show(); // it is measured once before its settings are known
    settle();
    loaded->readProperties(bag);
    QCOMPARE(loaded->height(), saved);
}

void tst_KorListSettings::layoutsGiveRoomForALargerFont()
{
    QWidget form;
    auto *layout = new QVBoxLayout(&form);
    auto *list = new KorList;
    layout->addWidget(list);
    layout->addStretch(1);
    form.resize(300, 900);
    form.show();
    settle();
    QFont large = list->Font();
    large.setPointSize(large.pointSize() * 3);
    list->setFont(large);
    settle();
    QCOMPARE(list->height(), list->sizeHint().height());
}

QTEST_MAIN(tst_KorListSettings)
#include "tst_korlist_settings.moc"
