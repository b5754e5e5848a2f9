// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorParam>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/UserControl>

#include <QtCore/QDate>
#include <QtCore/QMimeData>
#include <QtCore/QScopeGuard>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPlainTextEdit>

#include <functional>
#include <memory>

using namespace kor;
using namespace kor::test;

//! What every control with a text box keeps, however a text comes into it: by keys, an input method or the clipboard.
class tst_TextEntry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void aLockedFieldTakesNothingFromAnInputMethod_data() { fieldsWith("Locked"); }
    void aLockedFieldTakesNothingFromAnInputMethod();
    void aLockEndsWhatIsBeingComposed_data() { fieldsWith("Locked"); }
    void aLockEndsWhatIsBeingComposed();
    void aLockInKeyPressEndsTheCharacter_data() { fieldsWith("Locked"); }
    void aLockInKeyPressEndsTheCharacter();
    void aLockedFieldIsLeftAsTheProgramFilledIt_data();
    void aLockedFieldIsLeftAsTheProgramFilledIt();
    void aLimitCutsNoCharacterInTwo_data();
    void aLimitCutsNoCharacterInTwo();
    void whatCannotBePastedLeavesTheSelection_data();
    void whatCannotBePastedLeavesTheSelection();
    void whatNoDoubleHoldsIsASlip_data();
    void whatNoDoubleHoldsIsASlip();
    void noHandlerSeesHalfACharacter_data() { fieldsWith("MaxLength"); }
    void noHandlerSeesHalfACharacter();
    void aCaretStandsBesideCharacters();
    void whatComesPastAnInputMethodEndsItsWork_data();
    void whatComesPastAnInputMethodEndsItsWork();
    void aKeyHeldForTheNextLetterEndsNoComposition_data() { fieldsWith("Locked"); }
    void aKeyHeldForTheNextLetterEndsNoComposition();
    void theMenuEndsWithWhatItOffered_data();
    void theMenuEndsWithWhatItOffered();

    void aLockedEditorTakesNothingFromAnInputMethod();
    void theEditorCutsNoCharacterInTwo_data();
    void theEditorCutsNoCharacterInTwo();

private:
    static void fieldsWith(const char *property);
    [[nodiscard]] bool enter(const QString &name);
    [[nodiscard]] QPlainTextEdit *openEditor();

    std::unique_ptr<Stage> m_stage;
    UserControl *m_control = nullptr;
    QLineEdit *m_box = nullptr;
};

namespace {

void compose(QWidget *box, const QString &composed)
{
    QInputMethodEvent event(composed, {});
    QApplication::sendEvent(box, &event);
}

void commit(QWidget *box, const QString &text)
{
    QInputMethodEvent event{QString(), {}};
    event.setCommitString(text);
    QApplication::sendEvent(box, &event);
}

} // namespace

void tst_TextEntry::init()
{
    failOnWarnings();
    QApplication::setCursorFlashTime(0);
    m_stage = std::make_unique<Stage>();
}

void tst_TextEntry::fieldsWith(const char *property)
{
    QTest::addColumn<QString>("name");
    for (const QString &name : ControlRegistry::names()) {
        const std::unique_ptr<UserControl> control(ControlRegistry::create(name));
        if (control->metaObject()->indexOfProperty(property) >= 0 && qobject_cast<QLineEdit *>(control->focusProxy()))
            QTest::newRow(qPrintable(name)) << name;
    }
}

bool tst_TextEntry::enter(const QString &name)
{
    m_control = m_stage->place(ControlRegistry::create(name));
    m_box = qobject_cast<QLineEdit *>(m_control->focusProxy());
    if (!m_box || !m_stage->open())
        return false;
    m_control->setFocus();
    settle();
    return QApplication::focusWidget() == m_box;
}

// --- locked

void tst_TextEntry::aLockedFieldTakesNothingFromAnInputMethod()
{
    QFETCH(QString, name);
    QVERIFY(enter(name));
    const QString text = m_box->text();
    m_control->setProperty("Locked", true);
    settle();
    const QImage before = m_box->grab().toImage();
    EventLog log(m_control);
    compose(m_box, u"1"_qs);
    QCOMPARE(m_box->grab().toImage(), before);
    commit(m_box, u"12"_qs);
    QCOMPARE(m_box->text(), text);
    QVERIFY(!log.take().contains(u"Change"));
}

void tst_TextEntry::aLockEndsWhatIsBeingComposed()
{
    QFETCH(QString, name);
    QVERIFY(enter(name));
    const QString text = m_box->text();
    m_box->deselect();
    const QImage before = m_box->grab().toImage();
    compose(m_box, u"12"_qs);
    QVERIFY(m_box->grab().toImage() != before);
    m_control->setProperty("Locked", true);
    settle();
    m_control->setProperty("Locked", false);
    QCOMPARE(m_box->grab().toImage(), before); // what can't be finished is not left standing
    QCOMPARE(m_box->text(), text);
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(m_box->text(), text);
}

void tst_TextEntry::aLockInKeyPressEndsTheCharacter()
{
    QFETCH(QString, name);
    QVERIFY(enter(name));
    const QString text = m_box->text();
    class Locking : public QObject
    {
    public:
        explicit Locking(UserControl *control) : m_control(control)
        {
            const auto *type = control->metaObject();
            QMetaObject::connect(control, type->indexOfSignal("KeyPress(int&)"), this,
                                 QObject::staticMetaObject.methodCount(), Qt::DirectConnection);
        }
        int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
        {
            id = QObject::qt_metacall(call, id, arguments);
            if (id == 0 && call == QMetaObject::InvokeMetaMethod)
                m_control->setProperty("Locked", true);
            return id - 1;
        }

    private:
        UserControl *m_control;
    } locking(m_control);
    commit(m_box, u"12"_qs);
    QVERIFY(m_control->property("Locked").value<bool>());
    QCOMPARE(m_box->displayText(), text);
}

void tst_TextEntry::aLockedFieldIsLeftAsTheProgramFilledIt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("laterMask");
    const QVariant day = QDate(1999, 3, 15);
    // clang-format off
    QTest::newRow("a date written through another mask") << u"KorDate"_qs   << u"yyyy.MM.dd"_qs << day            << u"dd.MM.yyyy"_qs;
    QTest::newRow("a text that is no date")              << u"KorDate"_qs   << u"dd.MM.yyyy"_qs << QVariant(u"?"_qs) << u"dd.MM.yyyy"_qs;
    QTest::newRow("a number outside a later range")      << u"KorNumber"_qs << u"0"_qs          << QVariant(500.0) << u"0"_qs;
    // clang-format on
}

void tst_TextEntry::aLockedFieldIsLeftAsTheProgramFilledIt()
{
    QFETCH(QString, name);
    QFETCH(QString, mask);
    QFETCH(QVariant, value);
    QFETCH(QString, laterMask);
    QVERIFY(enter(name));
    const char *maskName = name == u"KorDate" ? "FormatMask" : "MaskPicture";
    m_stage->button()->setFocus();
    settle();
    m_control->setProperty(maskName, mask);
    m_control->setProperty("Value", value);
    m_control->setProperty(maskName, laterMask);
    m_control->setProperty("MaxValue", 100);
    m_control->setProperty("CheckRange", true);
    m_control->setProperty("Locked", true);
    const QString text = m_box->text();
    QVERIFY(!text.isEmpty());
    Messages messages;
    for (int round = 0; round < 2; ++round) {
        m_control->setFocus();
        settle();
        if (name == u"KorDate") {
            QTest::keyClick(m_box, Qt::Key_F4);
            settle();
            QVERIFY(QApplication::activePopupWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            settle();
            QCOMPARE(m_box->text(), text);
            QTRY_COMPARE(QApplication::focusWidget(), m_box);
        }
        m_stage->button()->setFocus();
        settle();
        QCOMPARE(QApplication::focusWidget(), m_stage->button());
        QCOMPARE(messages.take(), QStringList());
        QCOMPARE(m_box->text(), text);
        QCOMPARE(m_control->property("Value"), value);
    }
}

// --- limits and halves

void tst_TextEntry::aLimitCutsNoCharacterInTwo_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("shown");
    for (const QString &name : ControlRegistry::names()) {
        const std::unique_ptr<UserControl> control(ControlRegistry::create(name));
        const bool isLimited = control->metaObject()->indexOfProperty("MaxLength") >= 0;
        if (!isLimited || !qobject_cast<QLineEdit *>(control->focusProxy()) || name == u"KorNumber") // digits only
            continue;
        for (const char *way : {"committed", "pasted", "dropped"}) {
            const QString how = QString::fromLatin1(way);
            const auto row = [&](const char *what, const QString &given, const QString &shown) {
                QTest::addRow("%s, %s %s", qPrintable(name), what, way) << name << how << given << shown;
            };
            row("a pair over the limit", u"ab😀"_qs, u"ab"_qs);
            row("a pair within the limit", u"a😀"_qs, u"a😀"_qs);
            row("a pair behind the limit", u"abc😀"_qs, u"abc"_qs);
        }
        QTest::addRow("%s, an accent over the limit pasted", qPrintable(name))
            << name << u"pasted"_qs << u"abe\u0301"_qs << u"ab"_qs;
    }
}

void tst_TextEntry::aLimitCutsNoCharacterInTwo()
{
    QFETCH(QString, name);
    QFETCH(QString, way);
    QFETCH(QString, given);
    QVERIFY(enter(name));
    m_control->setProperty("Text", QString());
    m_control->setProperty("MaxLength", 3);
    if (way == u"committed") {
        commit(m_box, given);
    } else if (way == u"pasted") {
        QGuiApplication::clipboard()->setText(given);
        QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    } else {
        QMimeData mime;
        mime.setText(given);
        QDragEnterEvent enter(m_box->rect().center(), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_box, &enter);
        QDropEvent drop(m_box->rect().center(), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_box, &drop);
    }
    QTEST(m_box->text(), "shown");
}

void tst_TextEntry::whatCannotBePastedLeavesTheSelection_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<int>("limit");
    for (const char *name : {"KorClick", "KorUpDown", "KorMultiText"}) {
        const QString control = QString::fromLatin1(name);
        QTest::addRow("%s, no text in the clipboard", name) << control << QString() << 0;
        if (control != u"KorUpDown")
            QTest::addRow("%s, no room beside a program's longer text", name) << control << u"9"_qs << 2;
    }
}

void tst_TextEntry::whatCannotBePastedLeavesTheSelection()
{
    QFETCH(QString, name);
    QFETCH(QString, clipboard);
    QFETCH(int, limit);
    QVERIFY(enter(name));
    m_control->setProperty("Text", u"1234"_qs);
    if (limit > 0)
        m_control->setProperty("MaxLength", limit);
    QGuiApplication::clipboard()->setText(clipboard);
    EventLog log(m_control);
    for (const char *state : {"12[3]4", "1234|"}) {
        setField(m_box, QString::fromLatin1(state));
        (void)log.take();
        QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(field(m_box), QString::fromLatin1(state));
        QVERIFY(!log.take().contains(u"Change"));
    }
}

void tst_TextEntry::whatNoDoubleHoldsIsASlip_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    const auto row = [](const QString &name, const QString &kind) {
        for (const char *text : {"1e400", "-1E400", "1e308", "-1d308", "1e-400", "99999999999999999999",
                                 "&HFFFFFFFFFFFFFFFFFF", "1e2147483648", "2958466", "-657435"})
            QTest::addRow("%s %s, %s", qPrintable(name), qPrintable(kind), text)
                << name << kind << QString::fromLatin1(text);
    };
    for (const QString &name : ControlRegistry::names()) {
        const std::unique_ptr<UserControl> control(ControlRegistry::create(name));
        if (qobject_cast<QLineEdit *>(control->focusProxy()))
            row(name, QString());
    }
    for (const char *composite : {"KorGrid", "KorParam"}) {
        for (const char *kind : {"NUMBER", "DATE", "CLICK"})
            row(QString::fromLatin1(composite), QString::fromLatin1(kind));
    }
}

// Pasted by mistake it may be refused as a date, and it may become nothing; a programmer's error it is not.
void tst_TextEntry::whatNoDoubleHoldsIsASlip()
{
    QFETCH(const QString, name);
    QFETCH(const QString, kind);
    QFETCH(const QString, text);
    QStringList errors;
    setUnhandledErrorHandler([&errors](QObject *, const RunTimeError &error) { errors += error.description(); });
    const auto restored = qScopeGuard([] { setUnhandledErrorHandler({}); });
    Messages messages;
    m_control = m_stage->place(ControlRegistry::create(name), 300, kind.isEmpty() ? 26 : 120);
    QVERIFY(m_stage->open());
    m_stage->button()->setFocus();
    settle();
    if (auto *grid = qobject_cast<KorGrid *>(m_control)) {
        grid->AddColumn(kind, u"Kolumna"_qs, 2500, 0);
        grid->setRows(4);
    } else if (auto *sheet = qobject_cast<KorParam *>(m_control)) {
        sheet->AddParam(u"Parametr"_qs, u"p"_qs, kind);
        settle();
        sheet->setRow(1);
    }
    m_control->setFocus(Qt::TabFocusReason); // which opens the editor of a cell
    settle();
    auto *box = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(box);
    box->selectAll();
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    settle();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    settle();
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(errors, QStringList());
    const QStringList said = messages.take();
    QVERIFY2(said.isEmpty() || (said.first().contains(u"data") && said.size() <= 2), qPrintable(said.join(u'|')));
}

void tst_TextEntry::noHandlerSeesHalfACharacter()
{
    QFETCH(QString, name);
    QVERIFY(enter(name));
    QStringList seen;
    connect(m_box, &QLineEdit::textChanged, this, [&](const QString &text) { seen << text; });
    EventLog log(m_control);
    log.ignore({u"Change"_qs, u"DataChange"_qs});
    commit(m_box, u"😀"_qs);
    QVERIFY(log.take().startsWith(u"KeyPress(55357) KeyPress(56832)") || name == u"KorNumber"); // both halves are told
    QTest::sendKeyEvent(QTest::Click, m_box, Qt::Key_unknown, u"😀"_qs, Qt::NoModifier);
    m_box->home(false);
    QTest::keyClick(m_box, Qt::Key_Delete);
    m_box->end(false);
    QTest::keyClick(m_box, Qt::Key_Backspace);
    for (const QString &text : seen)
        QVERIFY2(text.isValidUtf16(), qPrintable(text));
    QVERIFY(seen.size() >= 2 || name == u"KorNumber");
}

void tst_TextEntry::aCaretStandsBesideCharacters()
{
    QVERIFY(enter(u"KorClick"_qs));
    m_control->setProperty("Text", u"a😀b"_qs);
    m_control->setProperty("SelStart", 2);
    QCOMPARE(m_control->property("SelStart").value<int>(), 1);
    m_control->setProperty("SelLength", 1);
    QCOMPARE(m_control->property("SelText").value<QString>(), QString());
    m_control->setProperty("SelStart", 0);
    m_control->setProperty("SelLength", 2);
    QCOMPARE(m_control->property("SelText").value<QString>(), u"a"_qs);
    m_control->setProperty("SelText", u"x"_qs);
    QCOMPARE(m_box->text(), u"x😀b"_qs);
}

// --- what is being composed

void tst_TextEntry::whatComesPastAnInputMethodEndsItsWork_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("way");
    for (const QString &name : ControlRegistry::names()) {
        const std::unique_ptr<UserControl> control(ControlRegistry::create(name));
        if (!qobject_cast<QLineEdit *>(control->focusProxy()) || control->metaObject()->indexOfProperty("Locked") < 0)
            continue;
        for (const char *way : {"Left", "Right", "End", "click", "double click", "drop", "limited drop"})
            QTest::addRow("%s, %s", qPrintable(name), way) << name << QString::fromLatin1(way);
    }
}

void tst_TextEntry::whatComesPastAnInputMethodEndsItsWork()
{
    QFETCH(QString, name);
    QFETCH(QString, way);
    QVERIFY(enter(name));
    m_box->deselect();
    m_box->end(false);
    const QImage before = m_box->grab().toImage();
    compose(m_box, u"123456"_qs);
    QVERIFY(m_box->grab().toImage() != before);
    const QPoint behind(m_box->width() - 3, m_box->height() / 2);
    if (way == u"click") {
        QTest::mouseClick(m_box, Qt::LeftButton, {}, behind);
        QTest::mouseClick(m_box, Qt::LeftButton, {}, behind);
    } else if (way == u"double click") {
        QTest::mouseDClick(m_box, Qt::LeftButton, {}, behind);
    } else if (way.endsWith(u"drop")) {
        if (way.startsWith(u"limited"))
            m_control->setProperty("MaxLength", 20);
        QMimeData mime;
        QDropEvent drop(behind, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_box, &drop);
    } else {
        QTest::keyClick(m_box, static_cast<Qt::Key>(QKeySequence(way)[0].key()));
    }
    settle();
    const auto length = static_cast<int>(m_box->text().size());
    QVERIFY2(m_box->cursorPosition() <= length, qPrintable(QString::number(m_box->cursorPosition())));
    QVERIFY(m_box->selectedText().isEmpty() || m_box->selectionEnd() <= length);
    QVERIFY(!m_box->text().contains(u"123456"));
    m_box->deselect();
    m_box->end(false);
    m_box->setFocus();
    QCOMPARE(m_box->grab().toImage(), before); // nothing is left standing
}

void tst_TextEntry::aKeyHeldForTheNextLetterEndsNoComposition()
{
    QFETCH(QString, name);
    QVERIFY(enter(name));
    m_box->deselect();
    m_box->end(false);
    compose(m_box, u"´"_qs);
    const QImage composing = m_box->grab().toImage();
    QTest::keyPress(m_box, Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(m_box->grab().toImage(), composing);
    QTest::keyRelease(m_box, Qt::Key_Shift);
}

// --- the editor of several lines

QPlainTextEdit *tst_TextEntry::openEditor()
{
    if (!enter(u"KorMultiText"_qs))
        return nullptr;
    QTest::mouseClick(m_control->findChild<QWidget *>(u"cmdClick"_qs), Qt::LeftButton);
    settle();
    return m_control->findChild<QPlainTextEdit *>(u"txtMulti"_qs);
}

void tst_TextEntry::theMenuEndsWithWhatItOffered_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<std::function<void(UserControl *)>>("deed");
    const QHash<const char *, std::function<void(UserControl *)>> deeds = {
        {"locked", [](UserControl *control) { control->setProperty("Locked", true); }},
        {"disabled", [](UserControl *control) { control->setEnabled(false); }},
        {"hidden", [](UserControl *control) { control->hide(); }},
    };
    for (const QString &name : ControlRegistry::names()) {
        const std::unique_ptr<UserControl> control(ControlRegistry::create(name));
        if (control->metaObject()->indexOfProperty("Locked") < 0 || !qobject_cast<QLineEdit *>(control->focusProxy()))
            continue;
        for (auto deed = deeds.cbegin(); deed != deeds.cend(); ++deed)
            QTest::addRow("%s %s", qPrintable(name), deed.key()) << name << deed.value();
    }
}

void tst_TextEntry::theMenuEndsWithWhatItOffered()
{
    QFETCH(QString, name);
    QFETCH(std::function<void(UserControl *)>, deed);
    QVERIFY(enter(name));
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(3, 3), m_box->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(m_box, &request);
    QVERIFY(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
    deed(m_control);
    settle();
    QVERIFY(!QApplication::activePopupWidget());
}

// --- the editor of several lines

void tst_TextEntry::aLockedEditorTakesNothingFromAnInputMethod()
{
    QPlainTextEdit *editor = openEditor();
    QVERIFY(editor);
    editor->setPlainText(u"stoi"_qs);
    compose(editor, u"^"_qs);
    editor->setReadOnly(true);
    commit(editor, u"ô"_qs);
    QCOMPARE(editor->toPlainText(), u"stoi"_qs);
    compose(editor, u"^"_qs);
    QVERIFY(editor->document()->firstBlock().layout()->preeditAreaText().isEmpty());
    commit(editor, u"ô"_qs);
    QCOMPARE(editor->toPlainText(), u"stoi"_qs);
}

void tst_TextEntry::theEditorCutsNoCharacterInTwo_data()
{
    QTest::addColumn<bool>("isPasted");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("shown");
    // clang-format off
    QTest::newRow("a pair over the limit, committed") << false << u"ab😀"_qs       << u"ab"_qs;
    QTest::newRow("a pair over the limit, pasted")    << true  << u"ab😀"_qs       << u"ab"_qs;
    QTest::newRow("a pair that fits, committed")      << false << u"a😀b"_qs       << u"a😀"_qs;
    QTest::newRow("a pair that fits, pasted")         << true  << u"a😀b"_qs       << u"a😀"_qs;
    QTest::newRow("an accent over the limit, pasted") << true  << u"abe\u0301"_qs << u"ab"_qs;
    // clang-format on
}

void tst_TextEntry::theEditorCutsNoCharacterInTwo()
{
    QFETCH(bool, isPasted);
    QFETCH(QString, given);
    QVERIFY(enter(u"KorMultiText"_qs));
    m_control->setProperty("MaxLength", 3);
    QTest::mouseClick(m_control->findChild<QWidget *>(u"cmdClick"_qs), Qt::LeftButton);
    settle();
    auto *editor = m_control->findChild<QPlainTextEdit *>(u"txtMulti"_qs);
    QVERIFY(editor);
    QStringList seen;
    connect(editor, &QPlainTextEdit::textChanged, this, [&] { seen << editor->toPlainText(); });
    if (isPasted) {
        QGuiApplication::clipboard()->setText(given);
        QTest::keyClick(editor, Qt::Key_V, Qt::ControlModifier);
    } else {
        commit(editor, given);
    }
    QTEST(editor->toPlainText(), "shown");
    for (const QString &text : seen)
        QVERIFY2(text.isValidUtf16(), qPrintable(text));
}

QTEST_MAIN(tst_TextEntry)
#include "tst_textentry.moc"
