// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "random/user.h"

#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/Convert>
#include <KorDaoUC/Format>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtCore/QDate>
#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

#include <array>
#include <limits>

namespace kor::test {

namespace {

constexpr std::array keys{
    Qt::Key_Up,      Qt::Key_Down,      Qt::Key_Left,     Qt::Key_Right,  Qt::Key_Home,   Qt::Key_End,  Qt::Key_Tab,
    Qt::Key_Backtab, Qt::Key_Backspace, Qt::Key_Delete,   Qt::Key_Return, Qt::Key_Escape, Qt::Key_F4,   Qt::Key_F4,
    Qt::Key_F5,      Qt::Key_PageUp,    Qt::Key_PageDown, Qt::Key_Insert, Qt::Key_Space,  Qt::Key_1,    Qt::Key_9,
    Qt::Key_0,       Qt::Key_Comma,     Qt::Key_Period,   Qt::Key_Minus,  Qt::Key_A,      Qt::Key_T,    Qt::Key_C,
    Qt::Key_V,       Qt::Key_X,         Qt::Key_Z,        Qt::Key_F2,     Qt::Key_Menu,   Qt::Key_Enter};
const std::array<Qt::KeyboardModifiers, 8> modifiers{
    Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,
    Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier | Qt::ControlModifier};

QString textOf(unsigned what)
{
    static const QStringList texts{
        QString(),
        u"1"_qs,
        u"12,5"_qs,
        u"-7"_qs,
        u"123456789012345678901"_qs,
        u"1e400"_qs,
        u"5.3.99"_qs,
        u"05032024"_qs,
        u"31.02.2001"_qs,
        u"Zażółć gęślą"_qs,
        u"a😀b"_qs,
        u"e\u0301\u0302"_qs,
        u"x\ty"_qs,
        u"dwa\nwiersze"_qs,
        u"#####"_qs,
        u"0"_qs,
        u"-"_qs,
        u"1 234,50 zł"_qs,
        u"99%"_qs,
        QString(300, u'7'),
    };
    return texts.at(static_cast<qsizetype>(what % static_cast<unsigned>(texts.size())));
}

QVariant valueOf(unsigned what)
{
    static const QList<QVariant> values{
        QVariant(),
        null(),
        0,
        1,
        -1,
        7,
        32767,
        32768,
        std::numeric_limits<int>::max(),
        std::numeric_limits<int>::min(),
        0.5,
        1e300,
        std::numeric_limits<double>::quiet_NaN(),
        std::numeric_limits<double>::infinity(),
        true,
        false,
        QDate(1999, 3, 15),
        QDate(9999, 12, 31),
        QDate(),
        u"#,##0.00"_qs,
        u"0%"_qs,
        u"dd.MM.yyyy"_qs,
        u"Short Date"_qs,
        u"yy;\"x\""_qs,
        u"\"zł\""_qs,
        u"LIST 9;x|5;a|5;b"_qs,
        u"SELECT a, b FROM c"_qs,
        QFont(u"DejaVu Sans"_qs, 30),
        QVariant::fromValue<qlonglong>(9007199254740993),
    };
    const auto count = static_cast<unsigned>(values.size());
    const unsigned which = what % (count + count / 2);
    return which < count ? values.at(static_cast<qsizetype>(which)) : QVariant(textOf(what / 64));
}

//! A widget by its own name and those around it, innermost first.
QString pathOf(const QWidget *widget)
{
    QStringList names;
    for (; widget; widget = widget->parentWidget()) {
        names << QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName();
        if (widget->isHidden())
            names.last() += u" (hidden)"_qs;
        if (!widget->isEnabled())
            names.last() += u" (disabled)"_qs;
    }
    return names.join(u" < "_qs);
}

bool isUsers(Step::Kind kind) { return kind <= Step::Wheel || kind == Step::Wait; }
bool isTyping(Step::Kind kind) { return kind >= Step::TypeText && kind <= Step::Drop; }

QPoint pointIn(const QRect &rect, unsigned how)
{
    return rect.topLeft() + QPoint(static_cast<int>(how % static_cast<unsigned>(std::max(1, rect.width()))),
                                   static_cast<int>(how / 7 % static_cast<unsigned>(std::max(1, rect.height()))));
}

//! Where the user is in a control, or comes to when he enters it.
QWidget *boxIn(const Place &place)
{
    QWidget *focus = QApplication::focusWidget();
    return focus && place.control->isAncestorOf(focus) ? focus : place.control->focusProxy();
}

QLineEdit *boxOf(const Place &place)
{
    return place.control ? qobject_cast<QLineEdit *>(place.control->focusProxy()) : nullptr;
}

//! Whether a number field shows a number that stays when the field is left: by rule a bare "-" does not, nor what the
//! mask writes so that another number is read back, or none. A mask of signs for dates refuses what is too large for
//! one.
bool saysNumber(const Place &place)
{
    if (place.text.contains(u'#'))
        return true;
    const std::unique_ptr<UserControl> other(ControlRegistry::create(place.name));
    const QString mask = place.control->property("MaskPicture").value<QString>();
    other->resize(10000, 26); // no number is too long for it
    other->setProperty("MaskPicture", mask);
    try {
        other->setProperty("Text", place.text);
        const QString shown = other->property("Text").value<QString>();
        if (mask.isEmpty() && shown != place.text) // texts stay as they were typed then, "12,50" for the number 12,5
            return false;
        other->setProperty("Text", shown);
        return !shown.isEmpty() && other->property("Text").value<QString>() == shown &&
               Format(other->property("Value"), mask) == shown;
    } catch (const RunTimeError &) {
        return false;
    }
}

} // namespace

RandomUser::RandomUser(const QString &only)
{
    m_form.confineTo(only);
    QObject::connect(&m_dialogs, &QTimer::timeout, &m_form, [this] { answerDialogs(); });
    m_dialogs.start(3);
    m_form.mend();
    (void)QTest::qWaitForWindowActive(&m_form);
    remember();
}

RandomUser::~RandomUser() = default;

void RandomUser::answerDialogs()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (qobject_cast<QMessageBox *>(modal) && modal->windowHandle()) {
        ++m_messages;
        QTest::keyClick(modal->windowHandle(), Qt::Key_Return);
    } else if (auto *colors = qobject_cast<QColorDialog *>(modal)) {
        colors->reject();
    }
    // The toolkit's own menus, of a scroll bar say, wait for an answer where they stand.
    constexpr int patience = 10;
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    m_menuTicks = menu ? m_menuTicks + 1 : 0;
    if (m_menuTicks > patience)
        menu->close();
}

QString RandomUser::work(const Step &step)
{
    m_form.mend();
    m_found.clear();
    m_description.clear();
    m_messages = m_hasTypedAhead ? m_messages : 0;
    m_hadPopup = QApplication::activePopupWidget();
    const bool isOwnCall = step.kind == Step::Set || step.kind == Step::Call || step.kind == Step::Save;
    const QString escaped = u"something was thrown through the event loop"_qs;
    try {
        act(step);
    } catch (const RunTimeError &) {
        m_found = isOwnCall ? m_found : escaped;
    } catch (const std::exception &) {
        m_found = isOwnCall ? m_found : escaped;
    } catch (int) {
        m_found = isOwnCall ? m_found : escaped;
    }
    const bool typesAhead = step.kind <= Step::TypeText && step.how % 2;
    m_hasTypedAhead = m_hasTypedAhead || typesAhead;
    if (!m_found.isEmpty() || typesAhead)
        return m_found;
    settle();
    m_form.takeActivity();
    const QString found = lookAround(step);
    remember();
    m_hasTypedAhead = false;
    return found;
}

void RandomUser::act(const Step &step)
{
    Place &place = m_form.at(step.control);
    m_description = place.name + u' ' + written({step});
    switch (step.kind) {
    case Step::PressKey: pressKey(step); return;
    case Step::TypeText: typeText(textOf(step.what)); return;
    case Step::Compose: sendToInputMethod(textOf(step.what), QString()); return;
    case Step::Commit: sendToInputMethod(step.how % 4 ? QString() : textOf(step.how), textOf(step.what)); return;
    case Step::Paste: paste(step); return;
    case Step::Drop: drop(step); return;
    case Step::Click: click(step); return;
    case Step::ClickPopup: clickPopup(step); return;
    case Step::ClickOutside:
        QTest::mouseClick(m_form.windowHandle(), Qt::LeftButton, {}, pointIn(m_form.rect(), step.how));
        return;
    case Step::Drag: drag(step); return;
    case Step::Wheel: wheel(step); return;
    case Step::Focus: moveFocus(step); return;
    case Step::Enter:
        if (place.control->isVisible() && place.control->isEnabled()) // the toolkit lets programs err there
            place.control->setFocus(Qt::TabFocusReason);
        return;
    case Step::Show: show(step); return;
    case Step::Set: set(step); return;
    case Step::Call: call(step); return;
    case Step::Save: m_found = save(step); return;
    case Step::Handle:
        place.handlers->arm(step.what, static_cast<Handlers::Deed>(step.how % Handlers::deeds));
        m_description += u": "_qs + place.handlers->armed();
        return;
    case Step::Serve:
        m_form.database().setMood(static_cast<MoodyDatabase::Mood>(step.how % MoodyDatabase::moods));
        return;
    case Step::Wait: QTest::qWait(static_cast<int>(step.how % 15)); return;
    }
}

// --- keys

QWindow *RandomUser::target() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal && modal->windowHandle() ? modal->windowHandle() : m_form.windowHandle();
}

void RandomUser::pressKey(const Step &step)
{
    const Qt::Key key = keys[step.what % keys.size()];
    const Qt::KeyboardModifiers held = modifiers[step.how / 2 % modifiers.size()];
    m_description += u' ' + QKeySequence(key | held).toString();
    QTest::keyClick(target(), key, held);
}

void RandomUser::typeText(const QString &text)
{
    m_description += u' ' + text;
    for (const QChar character : text) {
        QWidget *box = QApplication::activePopupWidget() ? QApplication::activePopupWidget()->focusWidget()
                                                         : QApplication::focusWidget();
        if (box)
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
}

void RandomUser::sendToInputMethod(const QString &composed, const QString &finished)
{
    m_description += u' ' + composed + u'|' + finished;
    QInputMethodEvent event(composed, {});
    event.setCommitString(finished);
    if (QWidget *box = QApplication::focusWidget())
        QApplication::sendEvent(box, &event);
}

void RandomUser::paste(const Step &step)
{
    m_description += u' ' + textOf(step.what);
    QGuiApplication::clipboard()->setText(textOf(step.what));
    if (step.how % 2)
        QTest::keyClick(target(), Qt::Key_V, Qt::ControlModifier);
    else
        QTest::keyClick(target(), Qt::Key_Insert, Qt::ShiftModifier);
}

// --- mouse

void RandomUser::drop(const Step &step)
{
    QWidget *box = boxIn(m_form.at(step.control));
    if (!box || !box->isEnabled() || !box->isVisible())
        return;
    QMimeData mime;
    mime.setText(textOf(step.what));
    const QPoint at = pointIn(box->rect(), step.how);
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    const QPointer<QWidget> here = box;
    QApplication::sendEvent(box, &enter);
    QDropEvent drop(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    if (here)
        QApplication::sendEvent(here, &drop);
}

void RandomUser::click(const Step &step)
{
    const QWidget *control = m_form.at(step.control).control;
    const QPoint at = control->mapTo(&m_form, pointIn(control->rect(), step.how));
    constexpr std::array buttons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    const Qt::MouseButton button = buttons[step.what % buttons.size()];
    if (step.what % 7 == 0)
        QTest::mouseDClick(m_form.windowHandle(), button, {}, at);
    else
        QTest::mouseClick(m_form.windowHandle(), button, {}, at);
}

void RandomUser::clickPopup(const Step &step)
{
    QWidget *popup = QApplication::activePopupWidget();
    if (!popup || !popup->windowHandle())
        return;
    const QPoint at = pointIn(popup->rect(), step.how);
    if (step.what % 4 == 0)
        QTest::mouseDClick(popup->windowHandle(), Qt::LeftButton, {}, at);
    else
        QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, {}, at);
}

void RandomUser::drag(const Step &step)
{
    QTest::mousePress(m_form.windowHandle(), Qt::LeftButton, {}, pointIn(m_form.rect(), step.what));
    QTest::mouseMove(m_form.windowHandle(), pointIn(m_form.rect(), step.how));
    QTest::mouseRelease(m_form.windowHandle(), Qt::LeftButton, {}, pointIn(m_form.rect(), step.how));
}

void RandomUser::wheel(const Step &step)
{
    QWidget *box = boxIn(m_form.at(step.control));
    if (!box)
        return;
    const QPoint turned(0, step.what % 2 ? 120 : -120);
    QWheelEvent event(box->rect().center(), box->mapToGlobal(box->rect().center()), {}, turned, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &event);
}

// --- the program

void RandomUser::moveFocus(const Step &step)
{
    QWidget *control = m_form.at(step.control).control;
    if (step.what % 2 && control->isVisible() && control->isEnabled())
        control->setFocus();
    else
        QTest::keyClick(target(), step.how % 2 ? Qt::Key_Tab : Qt::Key_Backtab);
}

void RandomUser::show(const Step &step)
{
    QWidget *control = m_form.at(step.control).control;
    switch (step.what % 8) {
    case 0: control->hide(); return;
    case 1: control->setEnabled(false); return;
    case 2: m_form.panel()->setVisible(step.how % 2); return;
    case 3: m_form.panel()->setEnabled(step.how % 2); return;
    case 4: m_form.hide(); return;
    default:
        m_form.panel()->show();
        m_form.panel()->setEnabled(true);
        control->show();
        control->setEnabled(true);
    }
}

void RandomUser::set(const Step &step)
{
    Place &place = m_form.at(step.control);
    const QMetaObject *type = place.control->metaObject();
    const int first = UserControl::staticMetaObject.propertyOffset();
    const int index = first + static_cast<int>(step.what % static_cast<unsigned>(type->propertyCount() - first));
    const QString name = QString::fromLatin1(type->property(index).name());
    const QVariant value = valueOf(step.how);
    m_description += QStringLiteral(" %1 := %2").arg(name, QDebug::toString(value));
    place.isLoose = place.isLoose || name == u"BlockChange"_qs || name == u"Cols"_qs;
    place.control->setProperty(qPrintable(name), value);
}

void RandomUser::call(const Step &step)
{
    UserControl *control = m_form.at(step.control).control;
    const QMetaObject *type = control->metaObject();
    QList<QMetaMethod> methods;
    for (int index = UserControl::staticMetaObject.methodOffset(); index < type->methodCount(); ++index) {
        const QMetaMethod method = type->method(index);
        const QString name = QString::fromLatin1(method.name());
        const bool isCallable = method.methodType() != QMetaMethod::Signal && method.parameterCount() <= 3 &&
                                !name.endsWith(u"Properties"_qs) && name != u"setdatabase"_qs;
        if (isCallable)
            methods << method;
    }
    const QMetaMethod method = methods.at(static_cast<qsizetype>(step.what % static_cast<unsigned>(methods.size())));
    m_description += u' ' + QString::fromLatin1(method.methodSignature());
    std::array<QVariant, 3> values;
    std::array<QGenericArgument, 3> arguments;
    std::array<QByteArray, 3> types;
    for (int i = 0; i < method.parameterCount(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        const QMetaType wanted = method.parameterMetaType(i);
        types[at] = method.parameterTypes().at(i);
        values[at] = valueOf(step.how + static_cast<unsigned>(i) * 31);
        if (!wanted.isValid() || types[at].endsWith('&'))
            return;
        if (wanted.id() != QMetaType::QVariant && !values[at].convert(wanted))
            values[at] = QVariant(wanted);
        arguments[at] = wanted.id() == QMetaType::QVariant
                            ? QGenericArgument("QVariant", &values[at])
                            : QGenericArgument(types[at].constData(), values[at].constData());
    }
    method.invoke(control, Qt::DirectConnection, arguments[0], arguments[1], arguments[2]);
}

QString RandomUser::save(const Step &step)
{
    Place &place = m_form.at(step.control);
    PropertyBag saved;
    place.control->writeProperties(saved);
    const std::unique_ptr<UserControl> loaded(ControlRegistry::create(place.name, place.control->parentWidget()));
    loaded->readProperties(saved);
    PropertyBag again;
    loaded->writeProperties(again);
    const auto comparable = [&](const PropertyBag &bag) {
        PropertyBag kept;
        for (const auto &[key, value] : bag.entries()) {
            // What is saved and not read back: a colour; a day that becomes today's; a number whose range is not saved;
            // a text that is set apart from its value.
            const bool isLost =
                (place.name == u"KorColor"_qs && key == u"Value"_qs) ||
                (place.name == u"KorDate"_qs && saved.contains(u"CurrentDate"_qs) &&
                 (key == u"Value"_qs || key == u"Text"_qs)) ||
                ((place.name == u"KorUpDown"_qs || place.isLoose) && (key == u"Value"_qs || key == u"Text"_qs));
            // A number that was clamped is a Single, until its text is read, too.
            const bool isClamped =
                place.name == u"KorNumber"_qs && key == u"Value"_qs && variantType(value) == VariantType::Single;
            if (!isLost)
                kept.append(key, isClamped ? QVariant(CDbl(value)) : value);
        }
        return kept;
    };
    const auto shown = [](const PropertyBag &bag) { return QDebug::toString(bag.entries()); };
    if (!(comparable(saved) == comparable(again)))
        return place.name + u": settings come back as others: "_qs + shown(saved) + u" / "_qs + shown(again);
    Place &other = m_form.at(step.control + static_cast<int>(m_form.places().size() / 2));
    other.isLoose = true;
    other.control->readProperties(saved);
    return {};
}

// --- what holds after every step

void RandomUser::remember()
{
    (void)Handlers::takeDone();
    for (Place &place : m_form.places()) {
        if (place.control)
            place.remember();
    }
}

QString RandomUser::lookAround(const Step &step)
{
    // Where keys go. A form that is not active, or under what has popped up, may keep a hidden widget in mind: it
    // enters another one when the keyboard comes back. This platform leaves a form active that is hidden while its
    // activation waits to be told.
    const bool hasKeyboard = m_form.isActiveWindow() && m_form.isVisible() && !QApplication::activePopupWidget() &&
                             !QApplication::activeModalWidget();
    const QWidget *focus = m_form.focusWidget();
    if (hasKeyboard && focus && !(focus->isEnabled() && focus->isVisible()))
        return u"the focus is hidden or disabled: "_qs + pathOf(focus);
    const bool isUsersDoingAlone = isUsers(step.kind) && !Handlers::takeDone();
    for (Place &place : m_form.places()) {
        if (!place.control)
            continue;
        if (const QString found = lookAt(place, step, isUsersDoingAlone); !found.isEmpty())
            return place.name + u": "_qs + found;
    }
    return {};
}

//! Whether the user may himself have deleted a text that he left right afterwards: ahead of the look, or by the menu.
bool RandomUser::mayDelete(const Step &step) const
{
    return m_hasTypedAhead || isTyping(step.kind) || step.kind == Step::ClickPopup;
}

StepTaken RandomUser::taken(const Step &step, bool isUsersDoingAlone) const
{
    StepTaken taken;
    taken.isUsersAlone = isUsersDoingAlone;
    // Tab and a second click take an entry of what has popped up and go on: two steps.
    taken.isOne = !m_hasTypedAhead && !m_hadPopup;
    taken.mayLeave = step.kind == Step::PressKey || step.kind == Step::Click || step.kind == Step::ClickOutside ||
                     step.kind == Step::Focus || step.kind == Step::Enter || step.kind == Step::Wheel;
    taken.givesBack = step.kind == Step::PressKey && keys[step.what % keys.size()] == Qt::Key_Escape;
    taken.hasMessage = m_messages > 0;
    return taken;
}

QString RandomUser::lookAt(Place &place, const Step &step, bool isUsersDoingAlone)
{
    const QVariant value = place.control->property("Value");
    const QString text = place.control->property("Text").value<QString>();
    const int changes = place.handlers->take(u"Change"_qs);
    for (const QLineEdit *box : place.control->findChildren<QLineEdit *>()) {
        const auto length = static_cast<int>(box->text().size());
        if (!box->text().isValidUtf16())
            return u"half a character in "_qs + box->objectName();
        if (box->cursorPosition() > length || (box->hasSelectedText() && box->selectionEnd() > length))
            return u"the caret stands behind the end of the text"_qs;
    }
    const bool isFreeText =
        place.name == u"KorClick"_qs || place.name == u"KorMultiText"_qs || place.name == u"KorUpDown"_qs;
    if (isFreeText && changes == 0 && text != place.text)
        return u"a new text without Change: "_qs + place.text + u" -> "_qs + text;
    // A character may take the place of its like, and so may what is pasted, which is an edit all the same.
    const int key = step.kind == Step::PressKey ? keys[step.what % keys.size()] : 0;
    const bool isSimplePress = isUsersDoingAlone && !m_hasTypedAhead && key >= Qt::Key_Escape && key != Qt::Key_Insert;
    if (isFreeText && isSimplePress && changes == 1 && text == place.text)
        return u"Change without a new text"_qs;
    const int limit = place.control->property("MaxLength").value<int>();
    if (isFreeText && isUsersDoingAlone && isTyping(step.kind) && limit > 0 && boxOf(place)->hasFocus() &&
        text.size() > std::max<qsizetype>(limit, place.text.size()))
        return u"more than MaxLength was typed: "_qs + text;
    // What was typed into a date before it was locked is completed when it is left.
    const bool isLocked = place.name == u"KorDate"_qs ? place.isEnteredLocked : place.isLocked;
    if (isLocked && isUsersDoingAlone && place.name != u"KorNumber"_qs && text != place.text && !text.isEmpty())
        return u"a locked text was changed: "_qs + place.text + u" -> "_qs + text;
    if (place.isEnteredLocked && isUsersDoingAlone && !isSameSetting(value, place.value) &&
        place.name != u"KorClick"_qs)
        return u"a locked value was changed: "_qs + QDebug::toString(place.value) + u" -> "_qs +
               QDebug::toString(value);
    if (place.name == u"KorNumber"_qs && !place.isLoose && text.isEmpty() && !isNull(value))
        return u"shows nothing and holds "_qs + QDebug::toString(value);
    const bool isInside = boxOf(place) && boxOf(place)->hasFocus();
    if (place.name == u"KorNumber"_qs && isUsersDoingAlone && !place.isLoose && !isInside && text.isEmpty() &&
        !mayDelete(step) && !isNull(place.value) && !place.control->property("CheckRange").value<bool>() &&
        saysNumber(place))
        return u"a number without a range is gone on leaving: "_qs + place.text;
    return place.cells ? place.cells->lookAt(taken(step, isUsersDoingAlone), !place.isLoose) : QString();
}

} // namespace kor::test
