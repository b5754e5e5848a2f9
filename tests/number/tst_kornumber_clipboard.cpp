// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "number/numbersuite.h"
#include "support/eventlog.h"

#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Locale>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QDropEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

using namespace kor;
using namespace kor::test;

//! The ways into the field and out of it that are not typing: all keep the rules of Ctrl+C, Ctrl+X and Ctrl+V.
class tst_KorNumberClipboard : public NumberSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void menuPastesOverTheWholeText();
    void menuCutsTheSelectionAndEmptiesTheField();
    void menuCopiesTheSelection();
    void menuUndoesAndDeletes();
    void menuOfALockedFieldChangesNothing();
    void menuMayEndTheControl_data();
    void menuMayEndTheControl();
    void menuEndsWithTheControl();
    void otherKeysOfTheSystemActLikeTheirTwins();
    void dropReplacesTheWholeText();
    void dropOnALockedFieldChangesNothing();
    void middleClickPastesTheX11Selection();
    void disabledFieldTakesNothing();
    void spreadsheetTextIsRead_data();
    void spreadsheetTextIsRead();
    void onlyNumbersAreTypedWhateverTheKeySends_data();
    void onlyNumbersAreTypedWhateverTheKeySends();
    void lettersOfMenusAreNotTyped_data();
    void lettersOfMenusAreNotTyped();
    void copyingNothingEmptiesTheClipboard();
    void whatNoDoubleHoldsIsNoNumber_data();
    void whatNoDoubleHoldsIsNoNumber();
    void aTextThatNoDoubleHoldsIsNoNumber_data();
    void aTextThatNoDoubleHoldsIsNoNumber();

private:
    [[nodiscard]] bool enter(const QString &state);
    [[nodiscard]] QMenu *openMenu();
    [[nodiscard]] bool choose(const QString &word);
    void drop(const QString &text);
};

bool tst_KorNumberClipboard::enter(const QString &state)
{
    if (!FieldSuite::enter())
        return false;
    QTest::keyClicks(m_box, QString(state).remove(QLatin1Char('[')).remove(QLatin1Char(']')).remove(QLatin1Char('|')));
    setField(m_box, state);
    return QApplication::focusWidget() == m_box && field(m_box) == state;
}

QMenu *tst_KorNumberClipboard::openMenu()
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), m_box->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(m_box, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

bool tst_KorNumberClipboard::choose(const QString &word)
{
    const QPointer<QMenu> menu = openMenu();
    if (!menu)
        return false;
    const auto actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text().remove(QLatin1Char('&')).section(QLatin1Char('\t'), 0, 0) != word)
            continue;
        const bool isOffered = action->isEnabled();
        action->trigger();
        if (menu)
            menu->close();
        settle();
        return isOffered;
    }
    menu->close();
    return false;
}

void tst_KorNumberClipboard::drop(const QString &text)
{
    QMimeData data;
    data.setText(text);
    const QPoint at(5, 5);
    QDragEnterEvent in(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_box, &in);
    QDragMoveEvent over(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_box, &over);
    QDropEvent let(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_box, &let);
    settle();
}

void tst_KorNumberClipboard::menuPastesOverTheWholeText()
{
    QVERIFY(enter(QStringLiteral("1|2")));
    QGuiApplication::clipboard()->setText(QStringLiteral("7,5"));
    EventLog log(m_number);
    QVERIFY(choose(QStringLiteral("Paste")));
    QCOMPARE(field(m_box), QStringLiteral("|7,5"));
    QCOMPARE(m_number->Value(), QVariant(7.5));
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorNumberClipboard::menuCutsTheSelectionAndEmptiesTheField()
{
    QVERIFY(enter(QStringLiteral("1[23]4")));
    EventLog log(m_number);
    QVERIFY(choose(QStringLiteral("Cut")));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("23"));
    QCOMPARE(field(m_box), QStringLiteral("|"));
    QVERIFY(isNull(m_number->Value()));
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorNumberClipboard::menuCopiesTheSelection()
{
    QVERIFY(enter(QStringLiteral("1[23]4")));
    EventLog log(m_number);
    QVERIFY(choose(QStringLiteral("Copy")));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("23"));
    QCOMPARE(field(m_box), QStringLiteral("1[23]4"));
    QCOMPARE(log.take(), QString());
}

void tst_KorNumberClipboard::menuUndoesAndDeletes()
{
    QVERIFY(enter(QStringLiteral("1[23]4")));
    EventLog log(m_number);
    QVERIFY(choose(QStringLiteral("Delete")));
    QCOMPARE(field(m_box), QStringLiteral("1|4"));
    QCOMPARE(m_number->Value(), QVariant(14.0));
    QVERIFY(choose(QStringLiteral("Undo")));
    QCOMPARE(m_number->Value(), QVariant(1234.0));
    QVERIFY(choose(QStringLiteral("Redo")));
    QCOMPARE(m_number->Value(), QVariant(14.0));
    QVERIFY(choose(QStringLiteral("Select All")));
    QCOMPARE(field(m_box), QStringLiteral("[14]"));
    QCOMPARE(log.take(), QStringLiteral("Change Change Change"));
}

void tst_KorNumberClipboard::menuOfALockedFieldChangesNothing()
{
    QVERIFY(enter(QStringLiteral("1[2]")));
    m_number->setLocked(true);
    QGuiApplication::clipboard()->setText(QStringLiteral("7"));
    for (const auto &word : {QStringLiteral("Paste"), QStringLiteral("Cut"), QStringLiteral("Delete"),
                             QStringLiteral("Undo"), QStringLiteral("Redo")})
        QVERIFY2(!choose(word), qPrintable(word));
    QCOMPARE(field(m_box), QStringLiteral("1[2]"));
    QVERIFY(choose(QStringLiteral("Copy")));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("2"));
}

void tst_KorNumberClipboard::menuMayEndTheControl_data()
{
    QTest::addColumn<QString>("word");
    for (const char *word : {"Undo", "Cut", "Paste", "Delete"})
        QTest::newRow(word) << QString::fromLatin1(word);
}

void tst_KorNumberClipboard::menuMayEndTheControl()
{
    QFETCH(QString, word);
    QVERIFY(enter(QStringLiteral("1[2]")));
    QGuiApplication::clipboard()->setText(QStringLiteral("7"));
    connect(m_number, &KorNumber::Change, this, [this] { delete m_number.data(); });
    QVERIFY(choose(word));
    QVERIFY(!m_number);
}

void tst_KorNumberClipboard::menuEndsWithTheControl()
{
    QVERIFY(enter(QStringLiteral("1[2]")));
    QVERIFY(openMenu());
    delete m_number.data();
    settle();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KorNumberClipboard::otherKeysOfTheSystemActLikeTheirTwins()
{
    QVERIFY(enter(QStringLiteral("1|2")));
    QGuiApplication::clipboard()->setText(QStringLiteral("7"));
    int tried = 0;
    for (const QKeySequence::StandardKey meaning : {QKeySequence::Paste, QKeySequence::Cut}) {
        for (const QKeySequence &keys : QKeySequence::keyBindings(meaning)) {
            setField(m_box, QStringLiteral("[1]2"));
            const auto key = keys[0];
            QTest::sendKeyEvent(QTest::Press, m_box, key.key(), QString(), key.keyboardModifiers());
            QCOMPARE(m_box->text(), meaning == QKeySequence::Cut ? QString() : QGuiApplication::clipboard()->text());
            ++tried;
        }
    }
    QVERIFY(tried >= 4);
}

void tst_KorNumberClipboard::dropReplacesTheWholeText()
{
    QVERIFY(enter(QStringLiteral("12|")));
    EventLog log(m_number);
    drop(QStringLiteral("34"));
    QCOMPARE(field(m_box), QStringLiteral("|34"));
    QCOMPARE(m_number->Value(), QVariant(34.0));
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorNumberClipboard::dropOnALockedFieldChangesNothing()
{
    QVERIFY(enter(QStringLiteral("12|")));
    m_number->setLocked(true);
    drop(QStringLiteral("34"));
    QCOMPARE(m_box->text(), QStringLiteral("12"));
}

void tst_KorNumberClipboard::middleClickPastesTheX11Selection()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (!clipboard->supportsSelection())
        QSKIP("only X11 has a selection to paste");
    QVERIFY(enter(QStringLiteral("12|")));
    clipboard->setText(QStringLiteral("56"), QClipboard::Selection);
    EventLog log(m_number);
    log.ignore({QStringLiteral("MouseMove")});
    QTest::mouseClick(m_box, Qt::MiddleButton, {}, QPoint(5, 5));
    QCOMPARE(field(m_box), QStringLiteral("|56"));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(4,0) Change MouseUp(4,0)"));
    m_number->setLocked(true);
    clipboard->setText(QStringLiteral("78"), QClipboard::Selection);
    QTest::mouseClick(m_box, Qt::MiddleButton, {}, QPoint(5, 5));
    QCOMPARE(m_box->text(), QStringLiteral("56"));
}

void tst_KorNumberClipboard::disabledFieldTakesNothing()
{
    QVERIFY(enter(QStringLiteral("12|")));
    m_number->setEnabled(false);
    settle();
    const QString shown = m_number->Text();
    EventLog log(m_number);
    QTest::mouseClick(m_box, Qt::LeftButton);
    QTest::mouseClick(m_box, Qt::MiddleButton);
    QTest::keyClick(m_box, Qt::Key_5);
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    drop(QStringLiteral("34"));
    QCOMPARE(m_number->Text(), shown);
    QCOMPARE(log.take(), QString());
}

void tst_KorNumberClipboard::spreadsheetTextIsRead_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("left");
    // clang-format off
    QTest::newRow("cell with its line end")      << QStringLiteral("12,5\r\n")         << QStringLiteral("12,50");
    QTest::newRow("full stop")                   << QStringLiteral("33.3")             << QStringLiteral("33,30");
    QTest::newRow("grouped by no-break space")   << QStringLiteral("1\u00A0234,50")    << QStringLiteral("1\u00A0234,50");
    QTest::newRow("grouped by space")            << QStringLiteral("1 234,50")         << QStringLiteral("1\u00A0234,50");
    QTest::newRow("currency")                    << QStringLiteral("12,50\u00A0zł")    << QStringLiteral("12,50");
    QTest::newRow("tab behind")                  << QStringLiteral("7\t")              << QStringLiteral("7,00");
    QTest::newRow("no number")                   << QStringLiteral("7 szt.")           << QString();
    // clang-format on
}

void tst_KorNumberClipboard::spreadsheetTextIsRead()
{
    QFETCH(QString, pasted);
    QVERIFY(enter(QStringLiteral("|")));
    QGuiApplication::clipboard()->setText(pasted);
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(m_box, Qt::Key_Tab);
    settle();
    QTEST(m_number->Text(), "left");
}

void tst_KorNumberClipboard::onlyNumbersAreTypedWhateverTheKeySends_data()
{
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("typed");
    // clang-format off
    QTest::newRow("emoji")                       << QString::fromUtf8("\xF0\x9F\x98\x80")  << QStringLiteral("1|");
    QTest::newRow("zero-width joiner")           << QString(QChar(0x200D))                 << QStringLiteral("1|");
    QTest::newRow("private character")           << QString(QChar(0xE000))                 << QStringLiteral("1|");
    QTest::newRow("accent that found no letter") << QStringLiteral("´2")                   << QStringLiteral("12|");
    QTest::newRow("two digits")                  << QStringLiteral("23")                   << QStringLiteral("123|");
    // clang-format on
}

void tst_KorNumberClipboard::onlyNumbersAreTypedWhateverTheKeySends()
{
    QFETCH(QString, sent);
    QFETCH(QString, typed);
    QVERIFY(enter(QStringLiteral("1|")));
    QTest::sendKeyEvent(QTest::Click, m_box, Qt::Key_unknown, sent, Qt::NoModifier);
    QCOMPARE(field(m_box), typed);
    setField(m_box, QStringLiteral("1|"));
    QInputMethodEvent composed;
    composed.setCommitString(sent);
    QApplication::sendEvent(m_box, &composed);
    QCOMPARE(field(m_box), typed);
}

void tst_KorNumberClipboard::lettersOfMenusAreNotTyped_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("modifiers");
    // clang-format off
    QTest::newRow("Alt+letter")      << int(Qt::Key_P) << QStringLiteral("p")    << int(Qt::AltModifier);
    QTest::newRow("Alt+digit")       << int(Qt::Key_5) << QStringLiteral("5")    << int(Qt::AltModifier);
    QTest::newRow("Alt+Shift+digit") << int(Qt::Key_5) << QStringLiteral("%")    << int(Qt::AltModifier | Qt::ShiftModifier);
    QTest::newRow("Ctrl+letter")     << int(Qt::Key_P) << QStringLiteral("\x10") << int(Qt::ControlModifier);
    // clang-format on
}

void tst_KorNumberClipboard::lettersOfMenusAreNotTyped()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(int, modifiers);
    QVERIFY(enter(QStringLiteral("1|")));
    EventLog log(m_number);
    QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
    QApplication::sendEvent(m_box, &press);
    QCOMPARE(field(m_box), QStringLiteral("1|"));
    const QString events = log.take();
    QVERIFY2(events.startsWith(QStringLiteral("KeyDown(%1,").arg(key)) && !events.contains(u' '), qPrintable(events));
    QVERIFY(!press.isAccepted()); // the form's
}

void tst_KorNumberClipboard::copyingNothingEmptiesTheClipboard()
{
    QVERIFY(enter(QStringLiteral("12|")));
    QGuiApplication::clipboard()->setText(QStringLiteral("7"));
    QTest::keyClick(m_box, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString());
    QCOMPARE(field(m_box), QStringLiteral("12|"));
}

namespace {

void addTextsThatNoDoubleHolds()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("mask");
    const auto row = [](const char *name, const QString &text, const char *mask) {
        QTest::newRow(name) << text << QString::fromLatin1(mask);
    };
    const QString digits(400, u'9');
    row("exponent", QStringLiteral("1e400"), "#,##0.00");
    row("negative exponent of a huge number", QStringLiteral("-1e400"), "#,##0.00");
    row("exponent of a Double", QStringLiteral("1d400"), "#,##0.00");
    row("four hundred digits", digits, "#,##0.00");
    row("four hundred digits with decimals", digits + QStringLiteral(",5"), "#,##0.00");
    row("per cent", QStringLiteral("1e400%"), "0%");
    row("amount", QStringLiteral("1e400 zł"), "Currency");
    row("without a mask", QStringLiteral("1e400"), "");
    row("hexadecimal of a hundred digits", QStringLiteral("&H") + QString(100, u'F'), "#,##0.00");
}

} // namespace

void tst_KorNumberClipboard::whatNoDoubleHoldsIsNoNumber_data() { addTextsThatNoDoubleHolds(); }

void tst_KorNumberClipboard::whatNoDoubleHoldsIsNoNumber()
{
    QFETCH(const QString, text);
    QFETCH(const QString, mask);
    QStringList errors;
    setUnhandledErrorHandler([&errors](QObject *, const RunTimeError &error) { errors += error.description(); });
    const auto restored = qScopeGuard([] { setUnhandledErrorHandler({}); });
    for (const bool isChecked : {false, true}) {
        m_number->setMaskPicture(mask);
        m_number->setMaxValue(10);
        m_number->setCheckRange(isChecked);
        QVERIFY(m_stage->open());
        m_number->setFocus();
        settle();
        m_box->selectAll();
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
        settle();
        QCOMPARE(m_number->Value(), null());
        m_stage->button()->setFocus();
        settle();
        QCOMPARE(errors, QStringList());
        QCOMPARE(m_box->text(), QString());
        QCOMPARE(m_number->Value(), null());
    }
}

void tst_KorNumberClipboard::aTextThatNoDoubleHoldsIsNoNumber_data() { addTextsThatNoDoubleHolds(); }

void tst_KorNumberClipboard::aTextThatNoDoubleHoldsIsNoNumber()
{
    QFETCH(const QString, text);
    QFETCH(const QString, mask);
    m_number->setMaskPicture(mask);
    m_number->setText(QStringLiteral("5"));
    m_number->setText(text);
    QCOMPARE(m_number->Value(), null());
    QCOMPARE(m_box->text(), QString());
    m_number->setValue(5);
    m_number->setValue(text);
    QCOMPARE(m_number->Value(), null());
    QCOMPARE(m_box->text(), QString());
}

QTEST_MAIN(tst_KorNumberClipboard)
#include "tst_kornumber_clipboard.moc"
