// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/UserControl>

#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <memory>

using namespace kor;
using namespace kor::test;

//! What everything keeps that pops up from a control: calendars, editors and lists.
class tst_Popups : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void aControlTakenAwayKeepsNoFocus_data();
    void aControlTakenAwayKeepsNoFocus();
    void aControlThatComesBackWorks_data() { controls(); }
    void aControlThatComesBackWorks();
    void aClickOutsideLeavesTheFocusInTheForm_data() { controls(); }
    void aClickOutsideLeavesTheFocusInTheForm();
    void popupsStayOnTheScreen_data();
    void popupsStayOnTheScreen();

private:
    static QStringList names();
    static void controls();
    [[nodiscard]] bool open(const QString &name);
    [[nodiscard]] bool popUp();

    std::unique_ptr<Stage> m_stage;
    QWidget *m_panel = nullptr;
    UserControl *m_control = nullptr;
    QPushButton *m_other = nullptr;
};

void tst_Popups::init()
{
    failOnWarnings();
    m_stage = std::make_unique<Stage>();
    m_control = nullptr;
    m_panel = new QWidget(m_stage.get());
    m_panel->setGeometry(0, 100, 320, 60);
    m_other = new QPushButton(m_stage.get());
    m_other->setGeometry(10, 60, 100, 26); // above, where nothing pops up
}

//! Puts the control on a panel and opens what it opens. False for a control that opens nothing.
bool tst_Popups::open(const QString &name)
{
    m_control = ControlRegistry::create(name, m_panel);
    m_control->setGeometry(10, 10, 160, 26);
    m_control->setProperty("SQL", u"LIST 1;Tak|0;Nie"_qs);
    m_control->Refresh();
    if (!m_stage->isVisible() && !m_stage->open())
        return false;
    return popUp();
}

bool tst_Popups::popUp()
{
    m_control->setFocus();
    settle();
    auto *button = m_control->findChild<QAbstractButton *>(u"cmdClick"_qs);
    if (button && qobject_cast<QLineEdit *>(m_control->focusProxy()))
        QTest::mouseClick(button, Qt::LeftButton);
    else if (QWidget *box = QApplication::focusWidget())
        QTest::keyClick(box, Qt::Key_F4);
    settle();
    return QApplication::activePopupWidget();
}

QStringList tst_Popups::names() { return {u"KorDate"_qs, u"KorCombo"_qs, u"KorColor"_qs, u"KorMultiText"_qs}; }

void tst_Popups::controls()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : names())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Popups::aControlTakenAwayKeepsNoFocus_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("way");
    for (const QString &name : names()) {
        for (const char *way : {"hidden", "disabled", "panel hidden", "panel disabled", "deleted"})
            QTest::addRow("%s %s", qPrintable(name), way) << name << QString::fromLatin1(way);
    }
}

void tst_Popups::aControlTakenAwayKeepsNoFocus()
{
    QFETCH(QString, name);
    QFETCH(QString, way);
    QVERIFY(open(name));
    const QPointer<UserControl> control = m_control;
    if (way == u"hidden")
        m_control->hide();
    else if (way == u"disabled")
        m_control->setEnabled(false);
    else if (way == u"panel hidden")
        m_panel->hide();
    else if (way == u"panel disabled")
        m_panel->setEnabled(false);
    else
        delete m_control;
    settle();
    QVERIFY(!QApplication::activePopupWidget());
    for (QWidget *focus : {QApplication::focusWidget(), m_stage->focusWidget()}) {
        if (!focus) {
            QVERIFY2(!way.contains(u"hidden"), "the keyboard goes nowhere");
            continue; // as the toolkit leaves it when something is disabled
        }
        QVERIFY2(focus->isVisible() && focus->isEnabled(), qPrintable(focus->objectName()));
        QVERIFY(!control || !control->isAncestorOf(focus));
    }
    QTest::keyClick(m_stage->windowHandle(), Qt::Key_F4);
    QTest::keyClick(m_stage->windowHandle(), Qt::Key_A);
    settle();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_Popups::aControlThatComesBackWorks()
{
    QFETCH(QString, name);
    QVERIFY(open(name));
    m_control->hide();
    settle();
    m_control->show();
    QVERIFY(popUp());
    m_stage->hide();
    settle();
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(m_stage->open());
    QTRY_COMPARE(QApplication::activeWindow(), m_stage.get());
    QVERIFY(popUp());
    QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), Qt::Key_Escape);
    settle();
    QVERIFY(!QApplication::activePopupWidget());
    QTRY_COMPARE(QApplication::focusWidget(), m_control->focusProxy());
}

void tst_Popups::aClickOutsideLeavesTheFocusInTheForm()
{
    QFETCH(QString, name);
    for (QWidget *hit : std::initializer_list<QWidget *>{m_stage.get(), m_other}) {
        QVERIFY(m_control ? popUp() : open(name));
        const QPoint place = hit == m_other ? m_other->geometry().center() : QPoint(300, 20);
        // As the window system sends it: to the window under the pointer, while the pop-up is open.
        QTest::mouseClick(m_stage->windowHandle(), Qt::LeftButton, {}, place);
        settle();
        QVERIFY(!QApplication::activePopupWidget());
        QTRY_VERIFY(QApplication::focusWidget());
        QTRY_COMPARE(QApplication::focusWidget()->window(), m_stage.get());
        QVERIFY(QApplication::focusWidget()->isVisible());
    }
}

void tst_Popups::popupsStayOnTheScreen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("corner");
    QTest::addColumn<int>("fontSize");
    for (const QString &name : names()) {
        for (const char *corner : {"top left", "top right", "bottom left", "bottom right"}) {
            QTest::addRow("%s, %s", qPrintable(name), corner) << name << QString::fromLatin1(corner) << 9;
            QTest::addRow("%s in huge letters, %s", qPrintable(name), corner)
                << name << QString::fromLatin1(corner) << 90;
        }
    }
}

void tst_Popups::popupsStayOnTheScreen()
{
    QFETCH(QString, name);
    QFETCH(QString, corner);
    QFETCH(int, fontSize);
    m_stage->setWindowFlag(Qt::FramelessWindowHint);
    const QRect screen = m_stage->screen()->availableGeometry();
    m_stage->move(corner.contains(u"left") ? screen.left() - 40 : screen.right() - 120,
                  corner.contains(u"top") ? screen.top() - 100 : screen.bottom() - 120);
    QFont font = m_stage->font();
    font.setPointSize(fontSize);
    m_stage->setFont(font);
    m_control = ControlRegistry::create(name, m_panel);
    m_control->setProperty("OpenLines", 32767);
    m_control->setGeometry(10, 10, 160, 26);
    m_control->setProperty("SQL", u"LIST 1;Tak|0;Nie|2;Nie wiadomo, ale długo"_qs);
    m_control->Refresh();
    QVERIFY(m_stage->open());
    QVERIFY(popUp());
    QRect popup = QApplication::activePopupWidget()->frameGeometry();
    constexpr int borderOffscreen = 2; // which that platform keeps beside a window though it draws none
    if (QGuiApplication::platformName() == u"offscreen" && popup.x() == borderOffscreen)
        popup.moveLeft(0);
    QVERIFY2(screen.contains(popup), qPrintable(QDebug::toString(popup)));
}

QTEST_MAIN(tst_Popups)
#include "tst_popups.moc"
