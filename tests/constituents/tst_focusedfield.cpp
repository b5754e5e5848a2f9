// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/stage.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/FocusedField>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/KorUpDown>
#include <KorDaoUC/Locale>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <memory>

using namespace kor;
using namespace kor::test;

namespace {

//! Pages that ask before they are turned, as docs/commands.md tells.
class AskingTabs : public QTabWidget
{
public:
    AskingTabs() { tabBar()->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool turns = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress ||
                           event->type() == QEvent::Shortcut || event->type() == QEvent::Wheel;
        if (turns && watched == tabBar() && !leaveFocusedField(this))
            return true;
        return QTabWidget::eventFilter(watched, event);
    }
};

} // namespace

//! Commands that run while the user stays in a field.
class tst_FocusedField : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        Locale::setSystemDefault(Locale::polish());
        Clock::setSource([] { return QDate(2026, 11, 21); });
        m_stage = std::make_unique<Stage>();
        m_number = m_stage->place(new KorNumber);
        m_number->setMaxValue(5000);
        m_number->setCheckRange(true);
        m_number->setValue(1234.5);
        m_date = m_stage->place(new KorDate);
        m_date->setValue(QDate(2026, 11, 5));
        m_spin = m_stage->place(new KorUpDown);
        m_remarks = m_stage->place(new KorMultiText);
        m_remarks->setText(QStringLiteral("pilne"));
        m_plain = m_stage->place(new QLineEdit(QStringLiteral("zwykłe")));
        QVERIFY(m_stage->open());
    }

    void looksAsIfEntered_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("number") << "txtNumber";
        QTest::newRow("date") << "txtDate";
        QTest::newRow("whole number with arrows") << "txtUpDown";
        QTest::newRow("remarks") << "txtText";
        QTest::newRow("the toolkit's own field") << "";
    }
    void looksAsIfEntered()
    {
        QFETCH(const QString, name);
        QLineEdit *box = name.isEmpty() ? m_plain : m_stage->findChild<QLineEdit *>(name);
        QVERIFY(box);
        box->setFocus(Qt::TabFocusReason);
        settle();
        const QString entered = field(box);
        QVERIFY2(entered.contains(u'['), qPrintable(entered));
        QVERIFY(leaveFocusedField(m_stage.get()));
        // What a command does that shows the record anew.
        m_number->setValue(1.5);
        m_number->setValue(1234.5);
        m_date->setText(m_date->Text());
        m_spin->setText(m_spin->Text());
        m_remarks->setText(QString());
        m_remarks->setText(QStringLiteral("pilne"));
        m_plain->setText(QStringLiteral("zwykłe"));
        m_plain->deselect();
        enterFocusedField(m_stage.get());
        QCOMPARE(field(box), entered);
        QCOMPARE(m_number->Value(), QVariant(1234.5));
    }

    void theNextDigitReplacesTheNumber()
    {
        enter(m_number);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("500"));
        QVERIFY(leaveFocusedField(m_stage.get()));
        QCOMPARE(m_number->Text(), QStringLiteral("500,00"));
        enterFocusedField(m_stage.get());
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
        QCOMPARE(m_number->Text(), QStringLiteral("7"));
    }

    void whatIsBeingTypedIsRead()
    {
        enter(m_date);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("010227"));
        QVERIFY(leaveFocusedField(m_stage.get()));
        QCOMPARE(m_date->Value(), QVariant(QDate(2027, 2, 1)));
        enter(m_spin);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("99"));
        QVERIFY(leaveFocusedField(m_stage.get()));
        QCOMPARE(m_spin->Text(), QStringLiteral("10"));
        enter(m_number);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-"));
        QVERIFY(leaveFocusedField(m_stage.get()));
        QCOMPARE(m_number->Text(), QString());
        QVERIFY(isNull(m_number->Value()));
    }

    void anOpenEditorIsReadAndStaysOpen_data()
    {
        QTest::addColumn<bool>("isKeyboardElsewhere");
        QTest::newRow("opened by the user") << false;
        QTest::newRow("opened by a program while the user is elsewhere") << true;
    }
    void anOpenEditorIsReadAndStaysOpen()
    {
        QFETCH(const bool, isKeyboardElsewhere);
        openEditor(isKeyboardElsewhere);
        QTest::keyClicks(editor(), QStringLiteral("jutro"));
        QVERIFY(leaveFocusedField(m_stage.get()));
        QCOMPARE(m_remarks->Text(), QStringLiteral("jutro"));
        enterFocusedField(m_stage.get());
        settle();
        QVERIFY(editor()->isVisible());
        QCOMPARE(QApplication::focusWidget(), editor());
        QTest::keyClicks(editor(), QStringLiteral(" rano"));
        QTest::keyClick(editor(), Qt::Key_Escape);
        settle();
        QCOMPARE(m_remarks->Text(), QStringLiteral("jutro rano"));
    }

    void theNextRecordIsNotGivenAnOpenEditorsText_data()
    {
        QTest::addColumn<QString>("typedSince");
        QTest::addColumn<QString>("kept");
        QTest::newRow("read") << QString() << QStringLiteral("nowy wiersz");
        QTest::newRow("typed on since, so that nobody has read it") << QStringLiteral("!") << QStringLiteral("jutro!");
    }
    void theNextRecordIsNotGivenAnOpenEditorsText()
    {
        QFETCH(const QString, typedSince);
        QFETCH(const QString, kept);
        openEditor(false);
        QTest::keyClicks(editor(), QStringLiteral("jutro"));
        QVERIFY(leaveFocusedField(m_stage.get()));
        QTest::keyClicks(editor(), typedSince);
        m_remarks->setText(QStringLiteral("nowy wiersz"));
        enterFocusedField(m_stage.get());
        settle();
        QCOMPARE(editor()->toPlainText(), kept);
        QTest::keyClick(editor(), Qt::Key_Escape);
        settle();
        QCOMPARE(m_remarks->Text(), kept);
    }

    void aHandlerMayEndTheFieldOfAnOpenEditor()
    {
        openEditor(false);
        QTest::keyClicks(editor(), QStringLiteral("jutro"));
        connect(m_remarks, &KorMultiText::Change, m_remarks, [remarks = m_remarks] { delete remarks; });
        (void)leaveFocusedField(m_stage.get());
        enterFocusedField(m_stage.get());
        QVERIFY(!m_stage->findChild<KorMultiText *>());
    }

    void aRefusedFieldStopsTheCommand()
    {
        Messages messages;
        enter(m_number);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("9000"));
        QVERIFY(!leaveFocusedField(m_stage.get()));
        QCOMPARE(messages.take().size(), 1);
        QTRY_VERIFY(m_number->isAncestorOf(QApplication::focusWidget()));
        QCOMPARE(field(m_stage->findChild<QLineEdit *>(QStringLiteral("txtNumber"))), QStringLiteral("[9000,00]"));
        enter(m_date);
        settle();
        QCOMPARE(messages.take().size(), 1); // and it is still refused when it is left
    }

    void aPageIsNotTurnedFromARefusedField_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("isTurned");
        for (const char *way : {"click", "letter of the tab"}) {
            QTest::addRow("out of range, %s", way) << QString::fromLatin1(way) << QStringLiteral("9999") << false;
            QTest::addRow("in range, %s", way) << QString::fromLatin1(way) << QStringLiteral("500") << true;
        }
    }
    void aPageIsNotTurnedFromARefusedField()
    {
        QFETCH(const QString, way);
        QFETCH(const QString, typed);
        QFETCH(const bool, isTurned);
        Messages messages;
        m_stage.reset();
        AskingTabs window;
        auto *number = new KorNumber;
        number->setMaxValue(5000);
        number->setCheckRange(true);
        window.addTab(number, QStringLiteral("&Dane"));
        window.addTab(new KorNumber, QStringLiteral("&Inne"));
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        enter(number);
        QTest::keyClicks(QApplication::focusWidget(), typed);
        if (way == u"click")
            QTest::mouseClick(window.tabBar(), Qt::LeftButton, {}, window.tabBar()->tabRect(1).center());
        else
            QTest::keyClick(&window, Qt::Key_I, Qt::AltModifier);
        settle();
        QCOMPARE(window.currentIndex(), isTurned ? 1 : 0);
        QCOMPARE(messages.take().size(), isTurned ? 0 : 1);
        QCOMPARE(number->Value().toDouble(), typed.toDouble());
        QCOMPARE(number->isAncestorOf(QApplication::focusWidget()), !isTurned);
    }

    void aWindowWithoutFocusedFieldIsNoObstacle()
    {
        QWidget empty;
        QVERIFY(leaveFocusedField(&empty));
        enterFocusedField(&empty);
        m_stage->button()->setFocus();
        settle();
        QVERIFY(leaveFocusedField(m_stage.get()));
        enterFocusedField(m_stage.get());
        QVERIFY(m_stage->button()->hasFocus());
    }

    void aHandlerMayEndTheField()
    {
        enter(m_date);
        connect(m_date, &KorDate::Change, m_date, [date = m_date] { delete date; });
        (void)leaveFocusedField(m_stage.get());
        enterFocusedField(m_stage.get());
        QVERIFY(!m_stage->findChild<KorDate *>());
    }

private:
    static void enter(QWidget *control)
    {
        control->setFocus(Qt::TabFocusReason);
        settle();
    }

    //! The editor of the remarks, which has the keyboard then.
    void openEditor(bool isKeyboardElsewhere)
    {
        auto *button = m_remarks->findChild<QAbstractButton *>(QStringLiteral("cmdClick"));
        enter(isKeyboardElsewhere ? static_cast<QWidget *>(m_number) : m_remarks);
        if (isKeyboardElsewhere)
            button->click();
        else
            QTest::mouseClick(button, Qt::LeftButton);
        settle();
        QCOMPARE(QApplication::focusWidget(), editor());
        editor()->selectAll();
    }
    [[nodiscard]] QPlainTextEdit *editor() const
    {
        return m_remarks->findChild<QPlainTextEdit *>(QStringLiteral("txtMulti"));
    }

    std::unique_ptr<Stage> m_stage;
    KorNumber *m_number = nullptr;
    KorDate *m_date = nullptr;
    KorUpDown *m_spin = nullptr;
    KorMultiText *m_remarks = nullptr;
    QLineEdit *m_plain = nullptr;
};

QTEST_MAIN(tst_FocusedField)
#include "tst_focusedfield.moc"
