// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/stage.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/Locale>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

#include <memory>

using namespace kor;
using namespace kor::test;

namespace {

constexpr int patience = 50; // milliseconds from letter to letter of one name

//! Presses the keys of a text, so long one behind the other by the window system's clock.
void press(QWidget *box, const QString &text, int pause)
{
    static quint64 now = 1000;
    for (const QChar letter : text) {
        QKeyEvent key(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, letter);
        key.setTimestamp(now += pause);
        QApplication::sendEvent(box, &key);
    }
}

} // namespace

//! Finding a name by its first letters, in programs that are quick and in programs that are not.
class tst_ListTyping : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_interval = QApplication::keyboardInputInterval(); }
    void init();
    void cleanup();

    void lettersBelongTogetherByTheTimeOfTheirKeys_data();
    void lettersBelongTogetherByTheTimeOfTheirKeys();
    void theSameLetterGoesFromNameToName();

private:
    //! A list with the keyboard. Its program is busy with every key for longer than a clerk waits, or not.
    template <class List>
    [[nodiscard]] List *enter(bool isBusy);

    int m_interval = 0;
    std::unique_ptr<Stage> m_stage;
};

void tst_ListTyping::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
    QApplication::setKeyboardInputInterval(patience);
    m_stage = std::make_unique<Stage>();
}

void tst_ListTyping::cleanup()
{
    m_stage.reset();
    QApplication::setKeyboardInputInterval(m_interval);
}

template <class List>
List *tst_ListTyping::enter(bool isBusy)
{
    auto *list = m_stage->place(new List, 160, 80);
    list->setSQL(QStringLiteral("LIST 1;Alwernia|2;Katowice|3;Kraków|4;Radom|5;Rawicz"));
    list->Refresh();
    if (isBusy)
        connect(list, &List::KeyDown, this, [](int &, int &) { QTest::qSleep(2 * patience); });
    if (!m_stage->open())
        return nullptr;
    list->setFocus();
    settle();
    return list;
}

void tst_ListTyping::lettersBelongTogetherByTheTimeOfTheirKeys_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("pause");
    QTest::addColumn<bool>("isBusy");
    QTest::addColumn<QString>("found");
    for (const char *control : {"KorCombo", "KorCombo, open", "KorList", "KorListCheck"}) {
        const QString name = QString::fromLatin1(control);
        QTest::addRow("%s: typed at once, in a busy program", control) << name << patience / 5 << true << "Kraków";
        QTest::addRow("%s: two names, waiting for the program", control) << name << 2 * patience << false << "Radom";
    }
}

void tst_ListTyping::lettersBelongTogetherByTheTimeOfTheirKeys()
{
    QFETCH(const QString, control);
    QFETCH(const int, pause);
    QFETCH(const bool, isBusy);
    const QString typed = QStringLiteral("kr");
    if (control.startsWith(u"KorCombo")) {
        auto *combo = enter<KorCombo>(isBusy);
        QVERIFY(combo);
        auto *box = combo->findChild<QComboBox *>();
        const bool isOpen = control.endsWith(u"open");
        if (isOpen)
            box->showPopup();
        press(isOpen ? static_cast<QWidget *>(box->view()) : box, typed, pause);
        if (isOpen)
            QTest::keyClick(box->view(), Qt::Key_Return);
        QTEST(combo->Text(), "found");
    } else if (control == u"KorList") {
        auto *list = enter<KorList>(isBusy);
        QVERIFY(list);
        press(QApplication::focusWidget(), typed, pause);
        QTEST(list->Text(), "found");
    } else {
        auto *list = enter<KorListCheck>(isBusy);
        QVERIFY(list);
        press(QApplication::focusWidget(), typed, pause);
        QTEST(list->Text(), "found");
    }
}

void tst_ListTyping::theSameLetterGoesFromNameToName()
{
    auto *combo = enter<KorCombo>(false);
    QVERIFY(combo);
    press(QApplication::focusWidget(), QStringLiteral("kk"), 2 * patience);
    QCOMPARE(combo->Text(), QStringLiteral("Kraków"));
    press(QApplication::focusWidget(), QStringLiteral("kkk"), 2 * patience);
    QCOMPARE(combo->Text(), QStringLiteral("Katowice"));
}

QTEST_MAIN(tst_ListTyping)
#include "tst_listtyping.moc"
