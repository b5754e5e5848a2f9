// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/fieldsuite.h"

#include <KorDaoUC/KorClick>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

using namespace kor;
using namespace kor::test;

//! The text of the click field, driven by keyboard and mouse.
class tst_KorClick : public FieldSuite<KorClick>
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { tearDown(); }

    void textAndValueAreIndependent();
    void keysRaiseTheirEvents_data();
    void keysRaiseTheirEvents();
    void handlersChangeTheKey_data();
    void handlersChangeTheKey();
    void deleteInAnUnlockedFieldDeletesCharactersOnly();
    void deleteInALockedFieldClearsTextAndValue();
    void handlersFindBothClearedOnDelete();
    void backspaceInALockedFieldDoesNothing();
    void lockedFieldTakesNoTypingNorPaste();
    void maxLengthCutsTypingAndPastingNotTheProgram();
    void clipboardKeysActBeforeKeyDown_data();
    void clipboardKeysActBeforeKeyDown();
    void enabledClickOffSilencesButtonAndKeys();
    void mouseEventsComeFromTheText();
    void mouseEventsCarryButtonsShiftAndTwips_data();
    void mouseEventsCarryButtonsShiftAndTwips();
    void wheelChangesNothing();
    void typingSetsDataChanged();
    void selectionIsDelegated();

private:
    QPointer<KorClick> &m_click = m_control;
    QPushButton *m_button = nullptr;
    //! The keys that the form is offered, but for Shift, Ctrl and Alt themselves.
    const QList<int> *putOnAFormThatHears();
};

void tst_KorClick::init()
{
    setUp("txtClick");
    m_button = m_click->findChild<QPushButton *>(QStringLiteral("cmdClick"));
    QVERIFY(m_click->findChild<QWidget *>(QStringLiteral("picBack")));
}

const QList<int> *tst_KorClick::putOnAFormThatHears()
{
    class Form : public Stage
    {
    public:
        QList<int> keys;

    protected:
        void keyPressEvent(QKeyEvent *event) override
        {
            if (event->key() < Qt::Key_Shift || event->key() > Qt::Key_Alt)
                keys << event->key();
        }
    };
    auto form = std::make_unique<Form>();
    const QList<int> *keys = &form->keys;
    form->place(m_click.data());
    m_stage = std::move(form);
    return keys;
}

void tst_KorClick::textAndValueAreIndependent()
{
    QVERIFY(isNull(m_click->Value()));
    m_click->setText(QStringLiteral("Hurtownia Rolna"));
    QVERIFY(isNull(m_click->Value()));
    EventLog log(m_click);
    m_click->setValue(17);
    QCOMPARE(m_click->Text(), QStringLiteral("Hurtownia Rolna"));
    QCOMPARE(log.take(), QString());
    m_click->setText(QString());
    QCOMPARE(m_click->Value(), QVariant(17));
    QCOMPARE(m_click->Value().typeId(), int(QMetaType::Int));
}

void tst_KorClick::keysRaiseTheirEvents_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("blockUpDown");
    QTest::addColumn<QString>("events");
    QTest::addColumn<bool>("offered"); // to the form, when the field has no use for it
    const int none = 0;
    const int shift = Qt::ShiftModifier;
    const int ctrl = Qt::ControlModifier;
    const int alt = Qt::AltModifier;
    const int keypad = Qt::KeypadModifier;
    // clang-format off
    QTest::newRow("Down passes")                        << int(Qt::Key_Down)  << none  << false << QStringLiteral("KeyDown(40,0)") << true;
    QTest::newRow("Down, blocked, is only reported")    << int(Qt::Key_Down)  << none  << true  << QStringLiteral("KeyDown(40,0)") << false;
    QTest::newRow("Up, blocked, is only reported")      << int(Qt::Key_Up)    << none  << true  << QStringLiteral("KeyDown(38,0)") << false;
    QTest::newRow("Ctrl+Down, blocked")                 << int(Qt::Key_Down)  << ctrl  << true  << QStringLiteral("KeyDown(40,2)") << false;
    QTest::newRow("Ctrl+Up, blocked")                   << int(Qt::Key_Up)    << ctrl  << true  << QStringLiteral("KeyDown(38,2)") << false;
    QTest::newRow("the keypad's Down, blocked")         << int(Qt::Key_Down)  << keypad << true << QStringLiteral("KeyDown(40,0)") << false;
    QTest::newRow("Alt+Up, blocked, passes")            << int(Qt::Key_Up)    << alt   << true  << QStringLiteral("KeyDown(38,4)") << true;
    QTest::newRow("Shift+Down, blocked, passes")        << int(Qt::Key_Down)  << shift << true  << QStringLiteral("KeyDown(40,1)") << true;
    QTest::newRow("Alt+Down asks")                      << int(Qt::Key_Down)  << alt   << false << QStringLiteral("Click") << false;
    QTest::newRow("Alt+Down, blocked, asks")            << int(Qt::Key_Down)  << alt   << true  << QStringLiteral("Click") << false;
    QTest::newRow("Alt+Left asks")                      << int(Qt::Key_Left)  << alt   << false << QStringLiteral("Click") << false;
    QTest::newRow("Alt+Right is a key")                 << int(Qt::Key_Right) << alt   << false << QStringLiteral("KeyDown(39,4)") << true;
    QTest::newRow("Alt+Shift+Down is a key")            << int(Qt::Key_Down)  << (alt | shift) << false << QStringLiteral("KeyDown(40,5)") << true;
    QTest::newRow("Left is a key")                      << int(Qt::Key_Left)  << none  << false << QStringLiteral("KeyDown(37,0)") << false;
    QTest::newRow("F4 asks")                            << int(Qt::Key_F4)    << none  << false << QStringLiteral("Click") << false;
    QTest::newRow("Shift+F4 asks")                      << int(Qt::Key_F4)    << shift << false << QStringLiteral("Click") << false;
    QTest::newRow("Ctrl+F4 asks")                       << int(Qt::Key_F4)    << ctrl  << true  << QStringLiteral("Click") << false;
    QTest::newRow("Alt+F4 is the window system's")      << int(Qt::Key_F4)    << alt   << false << QStringLiteral("KeyDown(115,4)") << true;
    QTest::newRow("the keypad's Left with Alt asks")    << int(Qt::Key_Left)  << (alt | keypad) << false << QStringLiteral("Click") << false;
    QTest::newRow("F5 is a key")                        << int(Qt::Key_F5)    << none  << false << QStringLiteral("KeyDown(116,0)") << true;
    QTest::newRow("a letter")                           << int(Qt::Key_A)     << none  << false << QStringLiteral("KeyDown(65,0) KeyPress(97) Change") << false;
    // clang-format on
}

void tst_KorClick::keysRaiseTheirEvents()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, blockUpDown);
    const QList<int> *formKeys = putOnAFormThatHears();
    QVERIFY(enter());
    m_click->setBlockUpDown(blockUpDown);
    EventLog log(m_click);
    QTest::keyPress(m_box, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QTEST(log.take(), "events");
    QTEST(formKeys->contains(key), "offered");
    QTest::keyRelease(m_box, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QVERIFY(log.take().startsWith(QStringLiteral("KeyUp(")));
}

void tst_KorClick::handlersChangeTheKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("changed");
    QTest::addColumn<QString>("left"); // of the text a|b
    // clang-format off
    QTest::newRow("a letter to nothing")               << int(Qt::Key_X)    << 0  << QStringLiteral("a|b");
    QTest::newRow("a letter to another one")           << int(Qt::Key_X)    << 89 << QStringLiteral("ay|b");
    QTest::newRow("a letter to Delete")                << int(Qt::Key_X)    << 46 << QStringLiteral("a|");
    QTest::newRow("Delete to Backspace")               << int(Qt::Key_Delete) << 8 << QStringLiteral("|b");
    QTest::newRow("blocked Down to a letter, too late") << int(Qt::Key_Down) << 89 << QStringLiteral("a|b");
    QTest::newRow("blocked Up to End, too late")       << int(Qt::Key_Up)   << 35 << QStringLiteral("a|b");
    QTest::newRow("Home to End")                       << int(Qt::Key_Home) << 35 << QStringLiteral("ab|");
    // clang-format on
}

void tst_KorClick::handlersChangeTheKey()
{
    QFETCH(int, key);
    QFETCH(int, changed);
    const QList<int> *formKeys = putOnAFormThatHears();
    QVERIFY(enter());
    m_click->setBlockUpDown(true);
    setField(m_box, QStringLiteral("a|b"));
    connect(m_click, &KorClick::KeyDown, this, [changed](int &code, int &) { code = changed; });
    QTest::keyPress(m_box, static_cast<Qt::Key>(key));
    QTEST(field(m_box), "left");
    QVERIFY(formKeys->isEmpty());
}

void tst_KorClick::deleteInAnUnlockedFieldDeletesCharactersOnly()
{
    QVERIFY(enter());
    m_click->setValue(5);
    setField(m_box, QStringLiteral("a[bc]d"));
    EventLog log(m_click);
    QTest::keyPress(m_box, Qt::Key_Delete);
    QCOMPARE(field(m_box), QStringLiteral("a|d"));
    QCOMPARE(log.take(), QStringLiteral("KeyDown(46,0) Change"));
    QCOMPARE(m_click->Value(), QVariant(5));
}

void tst_KorClick::deleteInALockedFieldClearsTextAndValue()
{
    const QList<int> *formKeys = putOnAFormThatHears();
    QVERIFY(enter());
    m_click->setLocked(true);
    m_click->setText(QStringLiteral("Kowalski"));
    m_click->setValue(5);
    m_click->setDataChanged(false);
    EventLog log(m_click);
    QTest::keyPress(m_box, Qt::Key_Delete);
    QCOMPARE(m_click->Text(), QString());
    QVERIFY(isNull(m_click->Value()));
    QVERIFY(m_click->DataChanged());
    QCOMPARE(log.take(), QStringLiteral("Change KeyDown(46,0)"));
    m_click->setText(QStringLiteral("x"));
    m_click->setValue(5);
    static_cast<void>(log.take());
    QTest::keyPress(m_box, Qt::Key_Delete, Qt::ShiftModifier | Qt::ControlModifier);
    QCOMPARE(log.take(), QStringLiteral("Change KeyDown(46,3)"));
    QVERIFY(isNull(m_click->Value()));
    QTest::keyPress(m_box, Qt::Key_Delete);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(46,0)")); // the text was empty already
    QVERIFY(formKeys->isEmpty());
}

void tst_KorClick::handlersFindBothClearedOnDelete()
{
    QVERIFY(enter());
    m_click->setLocked(true);
    m_click->setText(QStringLiteral("Kowalski"));
    m_click->setValue(5);
    QStringList seen;
    const auto look = [&](const char *event) {
        seen << QStringLiteral("%1: '%2'%3")
                    .arg(QString::fromLatin1(event), m_click->Text(),
                         isNull(m_click->Value()) ? QString() : QStringLiteral(" and a value"));
    };
    connect(m_click, &KorClick::Change, this, [&] { look("Change"); });
    connect(m_click, &KorClick::KeyDown, this, [&](int &code, int &) {
        if (code == 46)
            look("KeyDown");
        code = 0; // too late to keep the text
    });
    QTest::keyPress(m_box, Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(seen.join(QStringLiteral(", ")), QStringLiteral("Change: '', KeyDown: ''"));
    QCOMPARE(m_click->Text(), QString());
}

void tst_KorClick::backspaceInALockedFieldDoesNothing()
{
    QVERIFY(enter());
    m_click->setLocked(true);
    m_click->setText(QStringLiteral("abc"));
    m_click->setValue(5);
    m_box->selectAll();
    EventLog log(m_click);
    QTest::keyPress(m_box, Qt::Key_Backspace);
    QCOMPARE(m_click->Text(), QStringLiteral("abc"));
    QCOMPARE(m_click->Value(), QVariant(5));
    QCOMPARE(log.take(), QStringLiteral("KeyDown(8,0) KeyPress(8)"));
}

void tst_KorClick::lockedFieldTakesNoTypingNorPaste()
{
    QVERIFY(enter());
    m_click->setText(QStringLiteral("abc"));
    m_click->setLocked(true);
    QGuiApplication::clipboard()->setText(QStringLiteral("obcy"));
    QTest::keyClicks(m_box, QStringLiteral("x"));
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(m_box, Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(m_click->Text(), QStringLiteral("abc"));
    m_box->setSelection(1, 2);
    QTest::keyClick(m_box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(m_click->Text(), QStringLiteral("abc"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("bc")); // cut copies
}

void tst_KorClick::maxLengthCutsTypingAndPastingNotTheProgram()
{
    QVERIFY(enter());
    m_click->setMaxLength(4);
    m_click->setText(QStringLiteral("Hurtownia"));
    QCOMPARE(m_click->Text(), QStringLiteral("Hurtownia"));
    QTest::keyClicks(m_box, QStringLiteral("x"));
    QCOMPARE(m_click->Text(), QStringLiteral("Hurtownia"));
    setField(m_box, QStringLiteral("a[b]c"));
    QGuiApplication::clipboard()->setText(QStringLiteral("12345"));
    EventLog log(m_click);
    QTest::keyPress(m_box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(field(m_box), QStringLiteral("a12|c"));
    QCOMPARE(log.take(), QStringLiteral("Change KeyDown(86,2)"));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_click->setMaxLength(-1));
    QCOMPARE(m_click->MaxLength(), 4);
}

void tst_KorClick::clipboardKeysActBeforeKeyDown_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QString>("events");
    constexpr int ctrl = Qt::ControlModifier;
    constexpr int shift = Qt::ShiftModifier;
    // clang-format off
    QTest::newRow("Ctrl+X")       << int(Qt::Key_X)      << ctrl  << "a|d"    << "bc" << "Change KeyDown(88,2)";
    QTest::newRow("Shift+Delete") << int(Qt::Key_Delete) << shift << "a|d"    << "bc" << "Change KeyDown(46,1)";
    QTest::newRow("Ctrl+V")       << int(Qt::Key_V)      << ctrl  << "a12|d"  << "12" << "Change KeyDown(86,2)";
    QTest::newRow("Shift+Insert") << int(Qt::Key_Insert) << shift << "a12|d"  << "12" << "Change KeyDown(45,1)";
    QTest::newRow("Ctrl+C")       << int(Qt::Key_C)      << ctrl  << "a[bc]d" << "bc" << "KeyDown(67,2)";
    QTest::newRow("Ctrl+Insert")  << int(Qt::Key_Insert) << ctrl  << "a[bc]d" << "bc" << "KeyDown(45,2)";
    // clang-format on
}

void tst_KorClick::clipboardKeysActBeforeKeyDown()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(enter());
    setField(m_box, QStringLiteral("a[bc]d"));
    QGuiApplication::clipboard()->setText(QStringLiteral("12"));
    EventLog log(m_click);
    connect(m_click, &KorClick::KeyDown, this, [](int &code) { code = 0; }); // too late for a key that has acted
    QTest::keyPress(m_box, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QTEST(field(m_box), "after");
    QTEST(QGuiApplication::clipboard()->text(), "clipboard");
    QTEST(log.take(), "events");
}

void tst_KorClick::enabledClickOffSilencesButtonAndKeys()
{
    const QList<int> *formKeys = putOnAFormThatHears();
    QVERIFY(enter());
    m_click->setEnabledClick(false);
    QVERIFY(!m_button->isEnabled());
    EventLog log(m_click);
    log.ignore({QStringLiteral("KeyUp")});
    for (const bool block : {false, true}) {
        m_click->setBlockUpDown(block);
        QTest::mouseClick(m_button, Qt::LeftButton);
        QTest::keyClick(m_box, Qt::Key_F4);
        QTest::keyClick(m_box, Qt::Key_F4, Qt::ControlModifier);
        QTest::keyClick(m_box, Qt::Key_Down, Qt::AltModifier);
        QTest::keyClick(m_box, Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(log.take(), QString());
        QVERIFY(formKeys->isEmpty()); // swallowed
    }
    QTest::keyClick(m_box, Qt::Key_Down);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(40,0)")); // other keys are as ever
    m_click->setEnabledClick(true);
    QTest::keyClick(m_box, Qt::Key_F4);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    m_click->setEnabled(false);
    QVERIFY(m_click->EnabledClick()); // its own setting, whatever the control around it
}

void tst_KorClick::mouseEventsComeFromTheText()
{
    QVERIFY(enter());
    EventLog log(m_click);
    log.ignore({QStringLiteral("MouseMove")});
    QTest::mouseClick(m_box, Qt::RightButton, Qt::ControlModifier);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(2,2) MouseUp(2,2)"));
    QTest::mouseClick(m_box, Qt::LeftButton);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0)")); // Click is the button's
    QTest::mouseDClick(m_box, Qt::LeftButton);
    QTest::mouseRelease(m_box, Qt::LeftButton);
    QCOMPARE(log.take(), QStringLiteral("DblClick MouseUp(1,0)"));
    QTest::mousePress(m_button, Qt::LeftButton);
    QTest::mouseRelease(m_button, Qt::LeftButton);
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorClick::mouseEventsCarryButtonsShiftAndTwips_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("button"); // the one that changed
    QTest::addColumn<int>("down");   // all that are down
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("heard");
    const int left = Qt::LeftButton;
    const int right = Qt::RightButton;
    const int middle = Qt::MiddleButton;
    const int press = QEvent::MouseButtonPress;
    const int move = QEvent::MouseMove;
    const int all = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    // clang-format off
    QTest::newRow("press")                    << press << left   << left                    << 0                      << QStringLiteral("MouseDown 1 0");
    QTest::newRow("press of another button")  << press << right  << (left | right)          << int(Qt::AltModifier)   << QStringLiteral("MouseDown 2 4");
    QTest::newRow("press of the middle one")  << press << middle << middle                  << int(Qt::ShiftModifier) << QStringLiteral("MouseDown 4 1");
    QTest::newRow("move without a button")    << move  << 0      << 0                       << 0                      << QStringLiteral("MouseMove 0 0");
    QTest::newRow("move with one button")     << move  << 0      << right                   << all                    << QStringLiteral("MouseMove 2 7");
    QTest::newRow("move with all buttons")    << move  << 0      << (left | right | middle) << int(Qt::MetaModifier)  << QStringLiteral("MouseMove 7 0");
    // clang-format on
}

void tst_KorClick::mouseEventsCarryButtonsShiftAndTwips()
{
    QFETCH(int, type);
    QFETCH(int, button);
    QFETCH(int, down);
    QFETCH(int, modifiers);
    QVERIFY(enter());
    QString heard;
    QPointF place;
    const auto hear = [&](const char *event) {
        return [&heard, &place, event](int &changed, int &shift, float &x, float &y) {
            heard = QStringLiteral("%1 %2 %3").arg(QString::fromLatin1(event)).arg(changed).arg(shift);
            place = {x, y};
        };
    };
    connect(m_click, &KorClick::MouseDown, this, hear("MouseDown"));
    connect(m_click, &KorClick::MouseMove, this, hear("MouseMove"));
    const QPointF at(12, 7.5);
    QMouseEvent mouse(static_cast<QEvent::Type>(type), at, m_box->mapToGlobal(at), Qt::MouseButton(button),
                      Qt::MouseButtons(down), Qt::KeyboardModifiers(modifiers));
    QApplication::sendEvent(m_box, &mouse);
    QTEST(heard, "heard");
    const double twips = 1440.0 / m_box->logicalDpiX(); // 15 a pixel on most screens
    QCOMPARE(place, at * twips);
}

void tst_KorClick::wheelChangesNothing()
{
    QVERIFY(m_stage->open());
    m_click->setText(QStringLiteral("abc"));
    EventLog log(m_click);
    const QPointF at = m_box->rect().center();
    QWheelEvent wheel(at, m_box->mapToGlobal(at), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(m_box, &wheel);
    QApplication::sendEvent(m_button, &wheel);
    QCOMPARE(m_click->Text(), QStringLiteral("abc"));
    QCOMPARE(log.take(), QString());
}

void tst_KorClick::typingSetsDataChanged()
{
    QVERIFY(enter());
    QVERIFY(!m_click->DataChanged());
    bool seen = false;
    connect(m_click, &KorClick::Change, this, [&] { seen = m_click->DataChanged(); });
    QTest::keyClicks(m_box, QStringLiteral("a"));
    QVERIFY(seen);
    m_click->setDataChanged(false);
    m_click->setText(QStringLiteral("a"));
    QVERIFY(!m_click->DataChanged()); // the text is the same
}

void tst_KorClick::selectionIsDelegated()
{
    m_click->setText(QStringLiteral("abcdef"));
    m_click->setSelStart(2);
    m_click->setSelLength(3);
    QCOMPARE(field(m_box), QStringLiteral("ab[cde]f"));
    QCOMPARE(m_click->SelText(), QStringLiteral("cde"));
    m_click->setSelText(QStringLiteral("X"));
    QCOMPARE(field(m_box), QStringLiteral("abX|f"));
    m_click->setSelLength(99);
    QCOMPARE(field(m_box), QStringLiteral("abX[f]"));
    m_click->setSelStart(1);
    QCOMPARE(field(m_box), QStringLiteral("a|bXf"));

    // A host's button asks for the selection after the focus has come to it.
    QVERIFY(enter());
    setField(m_box, QStringLiteral("a[bc]d"));
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(field(m_box), QStringLiteral("abc|d")); // shown in one field at a time
    QCOMPARE(m_click->SelStart(), 1);
    QCOMPARE(m_click->SelText(), QStringLiteral("bc"));
    m_click->setSelText(QStringLiteral("X"));
    QCOMPARE(m_click->Text(), QStringLiteral("aXd"));
    QCOMPARE(m_click->SelLength(), 0);
}

QTEST_MAIN(tst_KorClick)
#include "tst_korclick.moc"
