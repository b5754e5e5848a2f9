// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/datesuite.h"
#include "support/contrast.h"
#include "support/eventlog.h"
#include "support/heard.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/Locale>
#include <KorDaoUC/UserControl>

#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

using namespace kor;
using namespace kor::test;

//! The window of a date field's calendar: its place and looks, and what becomes of it when the field goes away.
class tst_KorDatePopup : public CalendarSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    // going away
    void focusInTheBoxClosesTheCalendar();
    void theCalendarClosesWithItsField_data();
    void theCalendarClosesWithItsField();
    void aFieldTakenAwayOnOpeningLeavesNoCalendar_data();
    void aFieldTakenAwayOnOpeningLeavesNoCalendar();
    void deletingTheFieldUnloadsTheCalendar();
    void aFieldThatIsGoneLeavesTheCalendarAsItIs();

    // looks
    void namesAndWeeksFollowTheLocale_data();
    void namesAndWeeksFollowTheLocale();
    void directionIsTheForms();
    void todayIsMarked();
    void daysAreReadableInEveryTheme_data();
    void daysAreReadableInEveryTheme();
    void opensWhollyOnTheScreen_data();
    void opensWhollyOnTheScreen();
    void isNamedForScreenReaders();
    void aDayIsReadAsAWholeDate();
    void screenReadersGetNameValueAndState();
};

void tst_KorDatePopup::init() { setUp(); }
void tst_KorDatePopup::cleanup() { tearDown(); }

// --- going away

void tst_KorDatePopup::focusInTheBoxClosesTheCalendar()
{
    QVERIFY(enter());
    press(Qt::Key_F4);
    m_box->setFocus();
    QVERIFY(!isOpen());
    press(Qt::Key_F4);
    QTest::mouseClick(m_box, Qt::LeftButton);
    QVERIFY(!isOpen());
}

void tst_KorDatePopup::theCalendarClosesWithItsField_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"field disabled", "form disabled", "field hidden", "form hidden", "form closed",
                            "field disabled under the list of months", "calendar closed by the window system"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_KorDatePopup::theCalendarClosesWithItsField()
{
    QFETCH(QString, way);
    QVERIFY(enter(QDate(1999, 3, 15)));
    press(Qt::Key_F4);
    press(Qt::Key_Right);
    if (way.contains(u"list of months"))
        view()->findChild<QToolButton *>(QStringLiteral("qt_calendar_monthbutton"))->menu()->popup(QCursor::pos());
    if (way.startsWith(u"field disabled"))
        m_date->setEnabled(false);
    else if (way == u"form disabled")
        m_stage->setEnabled(false);
    else if (way == u"field hidden")
        m_date->hide();
    else if (way == u"form hidden")
        m_stage->hide();
    else if (way == u"form closed")
        m_stage->close();
    else
        month()->close();
    settle();
    QVERIFY(!isOpen());
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(m_date->Text(), QStringLiteral("16.03.1999")); // what was written stays

    m_stage->setEnabled(true);
    m_date->setEnabled(true);
    m_date->show();
    QVERIFY(m_stage->open());
    QTRY_COMPARE(QApplication::activeWindow(), m_stage.get());
    m_date->setFocus();
    settle();
    press(Qt::Key_F4);
    QVERIFY(isOpen());
    QCOMPARE(view()->selectedDate(), QDate(1999, 3, 16));
    press(Qt::Key_Escape);
    QVERIFY(!isOpen());
}

void tst_KorDatePopup::aFieldTakenAwayOnOpeningLeavesNoCalendar_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"disabled", "hidden", "deleted", "form closed"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_KorDatePopup::aFieldTakenAwayOnOpeningLeavesNoCalendar()
{
    QFETCH(QString, way);
    QVERIFY(enter(QDate(1999, 3, 15)));
    connect(m_date, &KorDate::Click, this, [this, way] {
        if (way == u"disabled")
            m_date->setEnabled(false);
        else if (way == u"hidden")
            m_date->hide();
        else if (way == u"deleted")
            delete m_date;
        else
            m_stage->close();
    });
    m_button->click();
    settle();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KorDatePopup::deletingTheFieldUnloadsTheCalendar()
{
    QVERIFY(enter());
    press(Qt::Key_F4);
    const QPointer<QWidget> window = month();
    delete m_date;
    QVERIFY(!window);
    settle();
}

void tst_KorDatePopup::aFieldThatIsGoneLeavesTheCalendarAsItIs()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    QObject stranger; // has no "Text"
    month()->setProperty("ParentControl", QVariant::fromValue<QObject *>(&stranger));
    press(Qt::Key_Right);
    QVERIFY(isOpen());
    month()->setProperty("ParentControl", QVariant::fromValue<QObject *>(nullptr));
    press(Qt::Key_Right);
    QCOMPARE(view()->selectedDate(), QDate(2004, 2, 17));
    QCOMPARE(m_box->text(), QStringLiteral("15.02.2004"));
}

// --- looks

void tst_KorDatePopup::namesAndWeeksFollowTheLocale_data()
{
    QTest::addColumn<Locale>("locale");
    QTest::addColumn<QString>("month");
    QTest::addColumn<int>("firstDay");
    QTest::newRow("Polish") << Locale::polish() << QStringLiteral("luty") << int(Qt::Monday);
    QTest::newRow("English") << Locale::english() << QStringLiteral("February") << int(Qt::Sunday);
    QTest::newRow("German") << Locale::german() << QStringLiteral("Februar") << int(Qt::Monday);
}

void tst_KorDatePopup::namesAndWeeksFollowTheLocale()
{
    QFETCH(Locale, locale);
    QFETCH(int, firstDay);
    delete m_date;
    Locale::setSystemDefault(locale);
    m_date = m_stage->place(new KorDate);
    m_box = m_date->findChild<QLineEdit *>(QStringLiteral("txtDate"));
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    QTEST(view()->findChild<QToolButton *>(QStringLiteral("qt_calendar_monthbutton"))->text(), "month");
    QCOMPARE(int(view()->firstDayOfWeek()), firstDay);
    QCOMPARE(view()->verticalHeaderFormat(), QCalendarWidget::ISOWeekNumbers);
}

void tst_KorDatePopup::directionIsTheForms()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    QCOMPARE(view()->layoutDirection(), Qt::LeftToRight);
    const auto back = [this] {
        return view()->findChild<QToolButton *>(QStringLiteral("qt_calendar_prevmonth"))->icon().pixmap(32).toImage();
    };
    const QImage toTheLeft = back();
    press(Qt::Key_Escape);
    m_stage->setLayoutDirection(Qt::RightToLeft);
    press(Qt::Key_F4);
    QCOMPARE(view()->layoutDirection(), Qt::RightToLeft);
    QVERIFY(back() != toTheLeft);
    QVERIFY(m_button->geometry().right() < m_box->geometry().left());
    press(Qt::Key_Left); // the days run to the left
    QCOMPARE(m_box->text(), QStringLiteral("16.02.2004"));
}

void tst_KorDatePopup::todayIsMarked()
{
    QVERIFY(enter(QDate(2024, 3, 20)));
    press(Qt::Key_F4);
    const auto picture = [this] { return days()->grab().toImage(); };
    const QImage marked = picture();
    Clock::setSource([] { return QDate(2024, 3, 12); });
    days()->update();
    const QImage movedOn = picture();
    QVERIFY(marked != movedOn);
    const auto cell = [this](const QImage &image, QDate day) {
        QRect around(0, 0, 12, 12);
        around.moveCenter(placeOf(day));
        return image.copy(around.adjusted(-8, -4, 8, 4));
    };
    QCOMPARE(cell(marked, QDate(2024, 3, 27)), cell(movedOn, QDate(2024, 3, 27)));
}

void tst_KorDatePopup::daysAreReadableInEveryTheme_data()
{
    QTest::addColumn<QColor>("paper");
    QTest::addColumn<QColor>("ink");
    QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("dark") << QColor(35, 35, 35) << QColor(240, 240, 240);
}

void tst_KorDatePopup::daysAreReadableInEveryTheme()
{
    QFETCH(QColor, paper);
    QFETCH(QColor, ink);
    const QPalette before = QApplication::palette();
    QPalette theme = before;
    theme.setColor(QPalette::Base, paper);
    theme.setColor(QPalette::Text, ink);
    QApplication::setPalette(theme);
    QVERIFY(enter());
    press(Qt::Key_F4);
    for (const auto day : {Qt::Saturday, Qt::Sunday}) {
        const QColor shown = view()->weekdayTextFormat(day).foreground().color();
        QVERIFY2(contrast(shown, paper) >= 4.5, qPrintable(shown.name()));
    }
    press(Qt::Key_Escape);
    QApplication::setPalette(before);
}

void tst_KorDatePopup::opensWhollyOnTheScreen_data()
{
    QTest::addColumn<QPoint>("where"); // -1, 0, 1: at the left, in the middle, at the right
    QTest::addColumn<bool>("isBelow");
    // clang-format off
    QTest::newRow("middle")       << QPoint(0, 0)   << true;
    QTest::newRow("upper left")   << QPoint(-1, -1) << true;
    QTest::newRow("top")          << QPoint(0, -1)  << true;
    QTest::newRow("upper right")  << QPoint(1, -1)  << true;
    QTest::newRow("left")         << QPoint(-1, 0)  << true;
    QTest::newRow("right")        << QPoint(1, 0)   << true;
    QTest::newRow("lower left")   << QPoint(-1, 1)  << false;
    QTest::newRow("bottom")       << QPoint(0, 1)   << false;
    QTest::newRow("lower right")  << QPoint(1, 1)   << false;
    // clang-format on
}

void tst_KorDatePopup::opensWhollyOnTheScreen()
{
    QFETCH(QPoint, where);
    QFETCH(bool, isBelow);
    m_stage->setWindowFlag(Qt::FramelessWindowHint);
    m_stage->setFixedSize(180, 70);
    QVERIFY(m_stage->open());
    const QRect screen = m_stage->screen()->availableGeometry();
    const QSize room = screen.size() - m_stage->size();
    m_stage->move(screen.x() + room.width() * (where.x() + 1) / 2,
                  screen.y() + room.height() * (where.y() + 1) / 2 - (where.y() == 0 ? 160 : 0));
    QTRY_VERIFY(screen.contains(m_stage->frameGeometry()));
    QTest::qWait(20);
    QVERIFY(enter());
    press(Qt::Key_F4);
    QVERIFY(QTest::qWaitForWindowExposed(month()));
    const QRect calendar = month()->frameGeometry();
    const QRect control(m_date->mapToGlobal(QPoint(0, 0)), m_date->size());
    QVERIFY2(screen.contains(calendar), qPrintable(QStringLiteral("%1,%2").arg(calendar.x()).arg(calendar.y())));
    QCOMPARE(isBelow ? calendar.top() : calendar.bottom(), isBelow ? control.bottom() + 1 : control.top() - 1);
    if (control.left() + calendar.width() <= screen.right())
        QCOMPARE(calendar.left(), control.left());
    else
        QCOMPARE(calendar.right(), screen.right());
}

void tst_KorDatePopup::isNamedForScreenReaders()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    QWidget *focused = QApplication::focusWidget(); // which is where a screen reader looks
    for (const QWidget *calendar : {static_cast<QWidget *>(view()), focused}) {
        QCOMPARE(calendar->accessibleName(), QStringLiteral("Kalendarz"));
        QCOMPARE(calendar->accessibleDescription(), QStringLiteral("15 lutego 2004"));
    }
    QCOMPARE(m_button->accessibleName(), QStringLiteral("Kalendarz"));
    press(Qt::Key_Right);
    QCOMPARE(view()->accessibleDescription(), QStringLiteral("16 lutego 2004"));
    QCOMPARE(focused->accessibleDescription(), QStringLiteral("16 lutego 2004"));
    const auto nameOf = [this](const char *part) {
        auto *widget = view()->findChild<QWidget *>(QString::fromLatin1(part));
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    };
    QCOMPARE(nameOf("qt_calendar_prevmonth"), QStringLiteral("Poprzedni miesiąc"));
    QCOMPARE(nameOf("qt_calendar_nextmonth"), QStringLiteral("Następny miesiąc"));
    QCOMPARE(nameOf("qt_calendar_yearedit"), QStringLiteral("Rok"));
}

void tst_KorDatePopup::aDayIsReadAsAWholeDate()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    Notices notices;
    press(Qt::Key_F4);
    if (Notices::areHeard())
        QVERIFY(notices.take().contains(QStringLiteral("StateChanged "))); // of the nameless field
    QCOMPARE(faultsIn(heard(month())), QString());
    QCOMPARE(heard(month())->role(), QAccessible::Dialog);
    QAccessibleInterface *days = heard(QApplication::focusWidget());
    QVERIFY(days->tableInterface() && days->focusChild());
    QCOMPARE(days->focusChild()->text(QAccessible::Name), QStringLiteral("15 lutego 2004"));
    QCOMPARE(days->focusChild()->text(QAccessible::Value), QStringLiteral("15"));
    QCOMPARE(days->focusChild()->tableCellInterface()->columnHeaderCells().value(0)->text(QAccessible::Name),
             days->tableInterface()->columnDescription(7));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    if (Notices::areHeard())
        QVERIFY(notices.take().contains(QStringLiteral("Focus 29 lutego 2004")));
    press(Qt::Key_Right); // into the next month
    QCOMPARE(days->focusChild()->text(QAccessible::Name), QStringLiteral("1 marca 2004"));
    QStringList named;
    for (int row = 1; row < 7; ++row) {
        for (int column = 1; column < 8; ++column)
            named << days->tableInterface()->cellAt(row, column)->text(QAccessible::Name);
    }
    QVERIFY(named.contains(QStringLiteral("31 marca 2004")) && named.contains(QStringLiteral("29 lutego 2004")));
    QCOMPARE(named.removeDuplicates(), 0);
    QAccessibleInterface *other = days->tableInterface()->cellAt(3, 3);
    other->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(days->focusChild(), other);
    QCOMPARE(view()->accessibleDescription(), other->text(QAccessible::Name));
}

void tst_KorDatePopup::screenReadersGetNameValueAndState()
{
    auto *label = new QLabel(QStringLiteral("&Data dostawy"), m_stage.get());
    label->setBuddy(m_date);
    m_date->setToolTipText(QStringLiteral("Dzień, w którym towar jest u klienta"));
    QVERIFY(enter(QDate(2004, 2, 15)));
    const QAccessibleInterface *field = QAccessible::queryAccessibleInterface(m_date);
    QVERIFY(field);
    QCOMPARE(field->role(), QAccessible::ComboBox);
    QCOMPARE(field->text(QAccessible::Name), QStringLiteral("Data dostawy"));
    QCOMPARE(field->text(QAccessible::Value), QStringLiteral("15.02.2004"));
    QCOMPARE(field->text(QAccessible::Description), QStringLiteral("Dzień, w którym towar jest u klienta"));
    QVERIFY(field->state().hasPopup && field->state().collapsed && field->state().editable);
    press(Qt::Key_F4);
    QVERIFY(field->state().expanded && !field->state().collapsed);
    press(Qt::Key_Escape);
    m_date->setLocked(true);
    m_date->setEnabledClick(false);
    QVERIFY(field->state().readOnly && !field->state().hasPopup);

    const QAccessibleInterface *box = QAccessible::queryAccessibleInterface(m_box);
    QCOMPARE(box->role(), QAccessible::EditableText);
    QCOMPARE(box->text(QAccessible::Name), QStringLiteral("Data dostawy"));
    QCOMPARE(box->text(QAccessible::Value), QStringLiteral("15.02.2004"));
}

QTEST_MAIN(tst_KorDatePopup)
#include "tst_kordate_popup.moc"
