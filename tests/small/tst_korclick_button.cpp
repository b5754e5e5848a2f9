// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/fieldsuite.h"
#include "support/listeningform.h"

#include <KorDaoUC/KorClick>

#include <QtGui/QAccessible>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QPushButton>

using namespace kor;
using namespace kor::test;

//! The button of the click field: what it asks, where the keyboard goes, how it lies beside the text.
class tst_KorClick_Button : public FieldSuite<KorClick>
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { tearDown(); }

    void theButtonAsksTheHost();
    void clicksOnADisabledButtonStayInside();
    void leavingTheButtonRaisesCmdLostFocus();
    void theButtonLosesTheFocusInEveryWay_data();
    void theButtonLosesTheFocusInEveryWay();
    void tabGoesThroughTextAndButtonBothWays();
    void aChooserOpenedFromClickIsNoLossOfFocus();
    void enterPressesTheFocusedButton();
    void enterInTheTextGoesToTheDialogsDefaultButton();
    void buttonShowsItsText();
    void screenReadersHearWhatTheButtonDoes();
    void layoutFollowsSizeAndDirection();
    void layoutFollowsTheFormsFont();

private:
    QPointer<KorClick> &m_click = m_control;
    QPushButton *m_button = nullptr;
};

void tst_KorClick_Button::init()
{
    setUp("txtClick");
    m_button = m_click->findChild<QPushButton *>(QStringLiteral("cmdClick"));
    QVERIFY(m_click->findChild<QWidget *>(QStringLiteral("picBack")));
}

void tst_KorClick_Button::theButtonAsksTheHost()
{
    QVERIFY(enter());
    connect(m_click, &KorClick::Click, this, [this] {
        m_click->setText(QStringLiteral("Kowalski"));
        m_click->setValue(3);
    });
    EventLog log(m_click);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QCOMPARE(m_click->Text(), QStringLiteral("Kowalski"));
    QCOMPARE(m_click->Value(), QVariant(3));
    QCOMPARE(log.take(), QStringLiteral("Change Click")); // the log listens after the host
    QTRY_COMPARE(QApplication::focusWidget(), m_button);
}

void tst_KorClick_Button::clicksOnADisabledButtonStayInside()
{
    ListeningForm form;
    m_click->setParent(&form);
    m_click->setGeometry(10, 10, 160, 26);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    m_click->setEnabledClick(false);
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, m_button->mapTo(&form, m_button->rect().center()));
    QTest::mouseDClick(form.windowHandle(), Qt::LeftButton, {}, m_button->mapTo(&form, m_button->rect().center()));
    QCOMPARE(form.presses, 0);
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(form.presses, 2);
    delete m_click;
}

void tst_KorClick_Button::leavingTheButtonRaisesCmdLostFocus()
{
    QVERIFY(enter());
    EventLog log(m_click);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown")});
    QTest::keyClick(m_box, Qt::Key_Tab);
    settle();
    QTRY_COMPARE(QApplication::focusWidget(), m_button);
    QCOMPARE(log.take(), QString());
    QTest::keyClick(m_button, Qt::Key_Tab);
    settle();
    QTRY_COMPARE(QApplication::focusWidget(), m_stage->button());
    QCOMPARE(log.take(), QStringLiteral("CmdLostFocus"));
    m_button->setFocus();
    settle();
    m_box->setFocus();
    settle();
    QCOMPARE(log.take(), QStringLiteral("CmdLostFocus")); // also when it stays in the control
}

void tst_KorClick_Button::theButtonLosesTheFocusInEveryWay_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("events");
    const QString lost = QStringLiteral("CmdLostFocus");
    QTest::newRow("a handler of Click moves on") << QStringLiteral("handler") << QStringLiteral("Click CmdLostFocus");
    QTest::newRow("EnabledClick is set to False") << QStringLiteral("EnabledClick") << lost;
    QTest::newRow("the control is hidden") << QStringLiteral("hidden") << lost;
    QTest::newRow("a click into the text")
        << QStringLiteral("text") << QStringLiteral("CmdLostFocus MouseDown(1,0) MouseUp(1,0)");
    QTest::newRow("another window has it for a while") << QStringLiteral("window") << QString();
}

void tst_KorClick_Button::theButtonLosesTheFocusInEveryWay()
{
    QFETCH(QString, way);
    QVERIFY(enter());
    m_button->setFocus();
    settle();
    EventLog log(m_click);
    if (way == u"handler") {
        connect(m_click, &KorClick::Click, this, [this] { m_stage->button()->setFocus(); });
        QTest::keyClick(m_button, Qt::Key_Return);
    } else if (way == u"EnabledClick") {
        m_click->setEnabledClick(false);
    } else if (way == u"hidden") {
        m_click->hide();
    } else if (way == u"text") {
        QTest::mouseClick(m_stage->windowHandle(), Qt::LeftButton, {},
                          m_box->mapTo(m_stage.get(), m_box->rect().center()));
        log.ignore({QStringLiteral("MouseMove")});
    } else {
        Stage other;
        QVERIFY(other.open());
        settle();
        other.hide();
        QVERIFY(m_stage->open());
    }
    settle();
    QString events = log.take();
    events.remove(QStringLiteral("MouseMove(0,0) "));
    QTEST(events, "events");
}

void tst_KorClick_Button::tabGoesThroughTextAndButtonBothWays()
{
    QVERIFY(enter());
    for (QWidget *next : std::initializer_list<QWidget *>{m_button, m_stage->button(), m_box}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
        QCOMPARE(QApplication::focusWidget(), next);
    }
    for (QWidget *next : std::initializer_list<QWidget *>{m_stage->button(), m_button, m_box}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        settle();
        QCOMPARE(QApplication::focusWidget(), next);
    }
}

void tst_KorClick_Button::aChooserOpenedFromClickIsNoLossOfFocus()
{
    QVERIFY(enter());
    connect(m_click, &KorClick::Click, this, [this] {
        QDialog chooser(m_stage.get());
        QLineEdit search(&chooser);
        QTimer::singleShot(50, &chooser, [&] {
            QTest::keyClicks(&search, QStringLiteral("Kow"));
            QTest::keyClick(&chooser, Qt::Key_Escape);
        });
        chooser.exec();
        m_click->setText(search.text());
    });
    EventLog log(m_click);
    QTest::mouseClick(m_button, Qt::LeftButton);
    m_stage->activateWindow();
    settle();
    QCOMPARE(log.take(), QStringLiteral("Change Click"));
    QTRY_COMPARE(QApplication::focusWidget(), m_button);
    settle();
    QCOMPARE(log.take(), QString());
}

void tst_KorClick_Button::enterPressesTheFocusedButton()
{
    QVERIFY(enter());
    m_button->setFocus();
    settle();
    EventLog log(m_click);
    QTest::keyClick(m_button, Qt::Key_Return);
    QTest::keyClick(m_button, Qt::Key_Enter);
    QTest::keyClick(m_button, Qt::Key_Space);
    QCOMPARE(log.take(), QStringLiteral("Click Click Click"));
}

void tst_KorClick_Button::enterInTheTextGoesToTheDialogsDefaultButton()
{
    QDialog dialog;
    m_click->setParent(&dialog);
    auto *accept = new QPushButton(QStringLiteral("OK"), &dialog);
    accept->move(10, 60);
    connect(accept, &QPushButton::clicked, &dialog, &QDialog::accept);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    m_box->setFocus();
    settle();
    EventLog log(m_click);
    log.ignore({QStringLiteral("KeyUp")});
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(13,0)"));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    delete m_click;
}

void tst_KorClick_Button::buttonShowsItsText()
{
    QVERIFY(m_stage->open());
    const int bare = m_button->width();
    m_click->setToolButText(QStringLiteral("Wybierz"));
    QCOMPARE(m_button->text(), QStringLiteral("Wybierz"));
    QVERIFY(m_button->width() > bare);
    QVERIFY(m_button->width() > m_button->fontMetrics().horizontalAdvance(m_button->text()));
    m_click->setToolButText(QString());
    QCOMPARE(m_button->width(), bare);
}

void tst_KorClick_Button::screenReadersHearWhatTheButtonDoes()
{
    const auto heard = [this] { return QAccessible::queryAccessibleInterface(m_button)->text(QAccessible::Name); };
    QCOMPARE(heard(), QStringLiteral("Wybierz"));
    m_click->setToolButText(QStringLiteral("Klienci"));
    QCOMPARE(heard(), QStringLiteral("Klienci"));
    m_click->setToolButText(QString());
    QCOMPARE(heard(), QStringLiteral("Wybierz"));
}

void tst_KorClick_Button::layoutFollowsTheFormsFont()
{
    QVERIFY(m_stage->open());
    m_click->resize(300, 26);
    m_click->setToolButText(QStringLiteral("Wybierz"));
    QFont font = m_stage->font();
    font.setPointSize(font.pointSize() + 6);
    m_stage->setFont(font);
    QVERIFY(m_button->width() > m_button->fontMetrics().horizontalAdvance(m_button->text()));
    QCOMPARE(m_button->x(), m_box->x() + m_box->width());
}

void tst_KorClick_Button::layoutFollowsSizeAndDirection()
{
    QVERIFY(m_stage->open());
    for (const auto style : {BorderStyleType::FixedSingle, BorderStyleType::None}) {
        m_click->setBorderStyle(style);
        const int border = m_box->y();
        QCOMPARE(border > 0, style == BorderStyleType::FixedSingle);
        for (const int width : {200, 60, 21}) {
            m_click->resize(width, 30);
            QCOMPARE(m_box->width() + m_button->width(), width - 2 * border);
            QCOMPARE(m_box->height(), 30 - 2 * border);
            QVERIFY(m_button->width() <= m_box->width());
            QCOMPARE(m_button->x(), m_box->x() + m_box->width());
        }
        m_click->resize(0, 0);
    }
    m_click->resize(150, 26);
    m_stage->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(m_button->x(), 0);
    QCOMPARE(m_box->x(), m_button->width());
}

QTEST_MAIN(tst_KorClick_Button)
#include "tst_korclick_button.moc"
