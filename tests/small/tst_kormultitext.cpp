// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/multitextsuite.h"
#include "support/eventlog.h"

#include <KorDaoUC/KorMultiText>

#include <QtGui/QClipboard>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>

using namespace kor;
using namespace kor::test;

//! The multi-line text field and its pop-up editor, driven by keyboard and mouse.
class tst_KorMultiText : public MultiTextSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void textCaretAndSelectionGoOverAndBack();
    void closingKeysGiveTheTextBack_data();
    void closingKeysGiveTheTextBack();
    void theFieldTakesTheTextWhenItGetsTheFocus_data();
    void theFieldTakesTheTextWhenItGetsTheFocus();
    void theTextComesBackWhenTheControlGoesAway_data();
    void theTextComesBackWhenTheControlGoesAway();
    void aWindowAskedToCloseMeetsTheText_data();
    void aWindowAskedToCloseMeetsTheText();
    void aWindowAskedToCloseMayEndTheControl();
    void theEditorsTextWinsOverTheProgramsMeanwhile();
    void plainArrowsAndEnterEdit();
    void aTrailingTabIsDropped();
    void onlyOneTrailingTabIsDropped();
    void eachOpeningArmsOneTakingBack();
    void reopeningShowsTheFieldsTextAgain();
    void lineBreaksComeBackAsTheyCameIn();
    void aLongTextIsNeverCut();
    void everyCharacterComesBack_data();
    void everyCharacterComesBack();
    void maxLengthLimitsTheEditorToo();
    void maxLengthLimitsInputMethodsToo();
    void aKeyEndsWhatIsBeingComposed_data();
    void aKeyEndsWhatIsBeingComposed();
    void aHugeTextIsPastedAtOnce();
    void everyChangeSetsDataChanged();
    void eventsComeFromTheField();
};

void tst_KorMultiText::textCaretAndSelectionGoOverAndBack()
{
    m_text->setText(QStringLiteral("Proszę dzwonić"));
    m_box->setSelection(2, 3);
    QVERIFY(open());
    QCOMPARE(editor()->toPlainText(), QStringLiteral("Proszę dzwonić"));
    QCOMPARE(editor()->textCursor().selectionStart(), 2);
    QCOMPARE(editor()->textCursor().selectionEnd(), 5);
    QTest::keyClicks(editor(), QStringLiteral("X"));
    QTest::keyClick(editor(), Qt::Key_Right, Qt::ShiftModifier);
    EventLog log(m_text);
    QTest::keyClick(editor(), Qt::Key_F4);
    settle();
    QCOMPARE(field(m_box), QStringLiteral("PrX[ę] dzwonić"));
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorMultiText::closingKeysGiveTheTextBack_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0;
    QTest::newRow("Tab") << int(Qt::Key_Tab) << 0;
    QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab) << int(Qt::ShiftModifier);
    QTest::newRow("F4") << int(Qt::Key_F4) << 0;
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << int(Qt::AltModifier);
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier);
}

void tst_KorMultiText::closingKeysGiveTheTextBack()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("nowy"));
    QCOMPARE(m_text->Text(), QString()); // not yet
    EventLog log(m_text);
    QTest::keyClick(editor(), static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    settle();
    QVERIFY(!popup()->isVisible());
    QCOMPARE(field(m_box), QStringLiteral("nowy|"));
    QCOMPARE(log.take(), QStringLiteral("Change"));
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("!"));
    QCOMPARE(m_text->Text(), QStringLiteral("nowy!"));
}

void tst_KorMultiText::theFieldTakesTheTextWhenItGetsTheFocus_data()
{
    QTest::addColumn<QString>("from");
    for (const char *from : {"field", "button", "elsewhere"})
        QTest::newRow(from) << QString::fromLatin1(from);
}

void tst_KorMultiText::theFieldTakesTheTextWhenItGetsTheFocus()
{
    QFETCH(QString, from);
    QVERIFY(m_stage->open());
    const QList<QWidget *> places{m_box, m_button, m_stage->button()};
    places.at(from == u"field" ? 0 : from == u"button" ? 1 : 2)->setFocus();
    settle();
    m_button->click();
    settle();
    QTest::keyClicks(editor(), QStringLiteral("nowy"));
    m_box->setFocus();
    settle();
    QVERIFY(!popup()->isVisible());
    QCOMPARE(field(m_box), QStringLiteral("nowy|"));
}

void tst_KorMultiText::theTextComesBackWhenTheControlGoesAway_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"control disabled", "form disabled", "control hidden", "form closed", "editor closed"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_KorMultiText::theTextComesBackWhenTheControlGoesAway()
{
    QFETCH(QString, way);
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("nowy"));
    EventLog log(m_text);
    if (way == u"control disabled")
        m_text->setEnabled(false);
    else if (way == u"form disabled")
        m_stage->setEnabled(false);
    else if (way == u"control hidden")
        m_text->hide();
    else if (way == u"form closed")
        m_stage->close();
    else
        popup()->close(); // as the window system does
    settle();
    QVERIFY(!popup()->isVisible());
    QCOMPARE(m_text->Text(), QStringLiteral("nowy"));
    QCOMPARE(log.take(), QStringLiteral("Change"));
    m_stage->setEnabled(true);
    m_text->setEnabled(true);
    m_text->show();
    QVERIFY(open());
}

namespace {

//! A window that looks, when it is to close, whether there is something to be saved.
class AskingWindow : public QWidget
{
public:
    QPointer<KorMultiText> text;
    QStringList met;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        met << (text ? text->Text() : QStringLiteral("(gone)"));
        event->ignore();
    }
};

} // namespace

void tst_KorMultiText::aWindowAskedToCloseMeetsTheText_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"the window", "a window inside it", "the editor before it"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_KorMultiText::aWindowAskedToCloseMeetsTheText()
{
    QFETCH(const QString, way);
    QWidget outer;
    AskingWindow window;
    window.text = m_text;
    m_text->setParent(&window);
    if (way == u"a window inside it")
        window.setParent(&outer);
    window.resize(300, 200);
    window.show();
    outer.show();
    QWidget *form = m_text->window();
    form->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(form));
    QTest::mouseClick(m_button, Qt::LeftButton);
    settle();
    QVERIFY(popup()->isVisible());
    QTest::keyClicks(editor(), QStringLiteral("nowy"));
    EventLog log(m_text);
    if (way == u"the editor before it")
        popup()->close();
    window.close();
    QCOMPARE(window.met, QStringList{QStringLiteral("nowy")});
    QCOMPARE(log.take(), QStringLiteral("Change"));
    settle();
    QVERIFY(!popup()->isVisible());
    QCOMPARE(m_text->Text(), QStringLiteral("nowy"));

    // Once more, and only what was typed meanwhile
    m_text->setText(QStringLiteral("inny"));
    window.close();
    QCOMPARE(window.met.last(), QStringLiteral("inny"));
    delete m_text.data();
}

void tst_KorMultiText::aWindowAskedToCloseMayEndTheControl()
{
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("nowy"));
    connect(m_text, &KorMultiText::Change, this, [this] { delete m_text.data(); });
    m_stage->close();
    QVERIFY(!m_text);
}

void tst_KorMultiText::theEditorsTextWinsOverTheProgramsMeanwhile()
{
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("nowy"));
    m_text->setText(QStringLiteral("z programu"));
    QCOMPARE(editor()->toPlainText(), QStringLiteral("nowy"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QCOMPARE(m_text->Text(), QStringLiteral("nowy"));
}

void tst_KorMultiText::plainArrowsAndEnterEdit()
{
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("ab"));
    QTest::keyClick(editor(), Qt::Key_Return);
    QTest::keyClicks(editor(), QStringLiteral("c"));
    QTest::keyClick(editor(), Qt::Key_Up);
    QTest::keyClicks(editor(), QStringLiteral("X"));
    QTest::keyClick(editor(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(popup()->isVisible());
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QCOMPARE(m_text->Text(), QStringLiteral("ab\nc"));
}

void tst_KorMultiText::aTrailingTabIsDropped()
{
    QVERIFY(open());
    editor()->insertPlainText(QStringLiteral("abc\t")); // pasted, as the key itself closes the editor
    EventLog log(m_text);
    QTest::keyClick(editor(), Qt::Key_F4);
    settle();
    QCOMPARE(field(m_box), QStringLiteral("abc|"));
    QCOMPARE(log.take(), QStringLiteral("Change Change"));
}

void tst_KorMultiText::onlyOneTrailingTabIsDropped()
{
    QVERIFY(open());
    editor()->insertPlainText(QStringLiteral("a\tb\t\t"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QCOMPARE(m_text->Text(), QStringLiteral("a\tb\t"));
}

void tst_KorMultiText::eachOpeningArmsOneTakingBack()
{
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("pierwszy"));
    QTest::keyClick(editor(), Qt::Key_Tab);
    settle();
    m_text->setText(QStringLiteral("z programu"));
    m_stage->button()->setFocus();
    settle();
    m_text->setFocus();
    settle();
    QCOMPARE(m_text->Text(), QStringLiteral("z programu"));
}

void tst_KorMultiText::reopeningShowsTheFieldsTextAgain()
{
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("pierwszy"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    m_text->setText(QStringLiteral("drugi"));
    QVERIFY(open());
    QCOMPARE(editor()->toPlainText(), QStringLiteral("drugi"));
    QTest::keyClick(editor(), Qt::Key_Z, Qt::ControlModifier); // there is nothing of the user's yet
    QCOMPARE(editor()->toPlainText(), QStringLiteral("drugi"));
}

void tst_KorMultiText::lineBreaksComeBackAsTheyCameIn()
{
    const QString stored = QStringLiteral("jeden\r\ndwa\r\ntrzy");
    m_text->setText(stored);
    m_box->setSelection(7, 3); // "dwa"
    EventLog log(m_text);
    QVERIFY(open());
    QCOMPARE(editor()->textCursor().selectedText(), QStringLiteral("dwa"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QCOMPARE(m_text->Text(), stored);
    QCOMPARE(m_box->selectedText(), QStringLiteral("dwa"));
    QCOMPARE(log.take(), QString());
    QVERIFY(open());
    QTest::keyClick(editor(), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QCOMPARE(m_text->Text(), stored + QStringLiteral("\r\n"));
}

void tst_KorMultiText::aLongTextIsNeverCut()
{
    const QString stored = QStringLiteral("wiersz długiego tekstu\r\n").repeated(4000);
    m_text->setMaxLength(10);
    m_text->setText(stored);
    QCOMPARE(m_text->Text().size(), stored.size());
    EventLog log(m_text);
    QVERIFY(open());
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QVERIFY(m_text->Text() == stored);
    QCOMPARE(log.take(), QString());
}

void tst_KorMultiText::everyCharacterComesBack_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("hard blank") << QStringLiteral("1\u00A0234,50 zł");
    QTest::newRow("tab inside") << QStringLiteral("a\tb");
    QTest::newRow("line separator") << QStringLiteral("a\u2028b");
    QTest::newRow("paragraph separator") << QStringLiteral("a\u2029b");
    QTest::newRow("picture") << QStringLiteral("a\uFFFCb");
    QTest::newRow("where the toolkit's frames begin") << QStringLiteral("a\uFDD0b");
    QTest::newRow("where the toolkit's frames end") << QStringLiteral("a\uFDD1b");
    QTest::newRow("emoji") << QStringLiteral("a😀b");
    QTest::newRow("zero") << QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b");
}

void tst_KorMultiText::everyCharacterComesBack()
{
    QFETCH(QString, stored);
    m_text->setText(stored);
    EventLog log(m_text);
    QVERIFY(open());
    QTest::keyClick(editor(), Qt::Key_Tab);
    settle();
    QCOMPARE(m_text->Text(), stored);
    QCOMPARE(log.take(), QString());
}

void tst_KorMultiText::maxLengthLimitsTheEditorToo()
{
    m_text->setMaxLength(5);
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("1234567"));
    QTest::keyClick(editor(), Qt::Key_Return);
    QCOMPARE(editor()->toPlainText(), QStringLiteral("12345"));
    editor()->selectAll();
    QApplication::clipboard()->setText(QStringLiteral("abcdefgh"));
    QTest::keyClick(editor(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(editor()->toPlainText(), QStringLiteral("abcde"));
}

void tst_KorMultiText::maxLengthLimitsInputMethodsToo()
{
    m_text->setMaxLength(4);
    m_text->setText(QStringLiteral("ab"));
    QVERIFY(open());
    QInputMethodEvent composing(QStringLiteral("zol"), {});
    QApplication::sendEvent(editor(), &composing);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("żół"));
    QApplication::sendEvent(editor(), &composed);
    QCOMPARE(editor()->toPlainText(), QStringLiteral("żóab"));
    editor()->selectAll();
    QApplication::sendEvent(editor(), &composed);
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QCOMPARE(field(m_box), QStringLiteral("żół|"));
}

void tst_KorMultiText::aKeyEndsWhatIsBeingComposed_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("selecting a page") << int(Qt::Key_PageDown) << int(Qt::ShiftModifier);
    QTest::newRow("to the end") << int(Qt::Key_End) << int(Qt::ControlModifier);
    QTest::newRow("down") << int(Qt::Key_Down) << int(Qt::NoModifier);
}

void tst_KorMultiText::aKeyEndsWhatIsBeingComposed()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    m_text->setText(QStringLiteral("ab"));
    QVERIFY(open());
    QInputMethodEvent composing(QStringLiteral("123456789"), {});
    QApplication::sendEvent(editor(), &composing);
    QTest::keyClick(editor(), static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QVERIFY(editor()->textCursor().position() <= 2);
    QVERIFY(editor()->document()->firstBlock().layout()->preeditAreaText().isEmpty());
    QApplication::sendEvent(editor(), &composing);
    QCOMPARE(editor()->toPlainText(), QStringLiteral("ab"));
}

void tst_KorMultiText::aHugeTextIsPastedAtOnce()
{
    m_text->setMaxLength(100);
    QVERIFY(open());
    QApplication::clipboard()->setText(QString(1000000, u'x'));
    QElapsedTimer clock;
    clock.start();
    QTest::keyClick(editor(), Qt::Key_V, Qt::ControlModifier);
    QVERIFY(clock.elapsed() < 2000); // not a cut at a time
    QCOMPARE(editor()->toPlainText(), QString(100, u'x'));
}

void tst_KorMultiText::everyChangeSetsDataChanged()
{
    QVERIFY(!m_text->DataChanged());
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("a"));
    QVERIFY(!m_text->DataChanged());
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QVERIFY(m_text->DataChanged());
    m_text->setDataChanged(false);
    QTest::keyClicks(m_box, QStringLiteral("b"));
    QVERIFY(m_text->DataChanged());
    m_text->setDataChanged(false);
    m_text->setText(QStringLiteral("c"));
    QVERIFY(m_text->DataChanged());
}

void tst_KorMultiText::eventsComeFromTheField()
{
    QVERIFY(open());
    EventLog log(m_text);
    log.ignore({QStringLiteral("MouseMove")});
    QTest::keyClicks(editor(), QStringLiteral("a"));
    QCOMPARE(log.take(), QString()); // the editor's keys are its own
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QCOMPARE(log.take(), QStringLiteral("Change"));
    QTest::keyClick(m_box, Qt::Key_F4);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(115,0) KeyUp(115,0)"));
    QTest::keyClick(m_box, Qt::Key_B);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(66,0) KeyPress(98) Change KeyUp(66,0)"));
    QTest::mouseClick(m_box, Qt::LeftButton);
    QTest::mouseDClick(m_box, Qt::LeftButton);
    QTest::mouseRelease(m_box, Qt::LeftButton);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) DblClick MouseUp(1,0)"));
}

QTEST_MAIN(tst_KorMultiText)
#include "tst_kormultitext.moc"
