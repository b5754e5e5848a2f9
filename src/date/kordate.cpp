// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/buttonfield.h"
#include "constituents/focustracker.h"
#include "constituents/keycodes.h"
#include "constituents/monthview.h"
#include "date/accessibledate.h"
#include "date/daterules.h"
#include "date/frmmonth.h"
#include "frame/settings.h"

#include <KorDaoUC/beep.h>
#include <KorDaoUC/clock.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/format.h>
#include <KorDaoUC/kordate.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QFocusEvent>
#include <QtGui/QShowEvent>

#include <optional>
#include <utility>

using namespace kor;

class Q_DECL_HIDDEN KorDate::Private final : public FocusClient
{
public:
    explicit Private(KorDate *control) : q(control), field(CommandButton::Sign::Arrow, control) {}

    void keyDown(int &code, int &shift);
    void keyPress(int &ascii);
    void step(int days);
    void insertToday();
    void buttonClicked();
    void openCalendar();
    void calendarClosed();
    [[nodiscard]] static bool bringsUserBack(const QEvent &event);

    void changeHandling();
    [[nodiscard]] bool validate(const QString &text);
    void finishLeavingBox();

    void boxEntered(QWidget *, FocusEntry entry) override;
    std::optional<Complaint> boxLeft(QWidget *) override;
    void controlLeft() override;

    //! Whether a lock holds what the program has given. A lock that comes later takes over what was typed before.
    [[nodiscard]] bool isHeld() const { return box->Locked() && box->text() == givenText; }
    [[nodiscard]] DateRules rules() const { return {mask, locale, Clock::today()}; }
    [[nodiscard]] QString written(const QVariant &date) const { return Format(date, mask, locale); }

    KorDate *q;
    const ButtonField field;
    TextBox *const box = field.box;
    CommandButton *const button = field.button;
    QPointer<frmMonth> month; //!< made at the first opening, then reused
    const Locale &locale = Locale::systemDefault();
    QString mask;
    QVariant value = null();
    QString enteredText; //!< what the box held when the user came into it
    QString givenText;   //!< the same, or what the program has put there since: the text of the value as it stands
    bool currentDate = false;
    bool blockUpDown = false;
    bool dirty = false;
    bool isFirstShowing = true;

    static const SettingsTable<KorDate> settings;
};

const SettingsTable<KorDate> KorDate::Private::settings = {
    {"BackColor", &KorDate::BackColor, &KorDate::setBackColor, WindowBackground},
    {"ForeColor", &KorDate::ForeColor, &KorDate::setForeColor, WindowText},
    {"Enabled", &KorDate::Enabled, &KorDate::setEnabled, true},
    fontSetting<KorDate>(),
    {"BorderStyle", &KorDate::BorderStyle, &KorDate::setBorderStyle, integer(1)},
    {"Text", &KorDate::Text, [](KorDate &c, const QVariant &v) { c.d->box->setProgramText(CStr(v)); }, QString()},
    {"Value", &KorDate::Value, [](KorDate &c, const QVariant &v) { c.d->value = v; }, null()},
    {"WhatsThisHelpID", &KorDate::WhatsThisHelpID, &KorDate::setWhatsThisHelpID, 0},
    {"Locked", &KorDate::Locked, &KorDate::setLocked, false},
    {"CurrentDate", &KorDate::CurrentDate, &KorDate::setCurrentDate, false},
    SettingsTable<KorDate>::Row::whileReading([](KorDate &c) { c.d->dirty = false; }),
    {"BlockUpDown", &KorDate::BlockUpDown, &KorDate::setBlockUpDown, false},
    {"Appearance", &KorDate::Appearance, &KorDate::setAppearance, integer(1)},
    SettingsTable<KorDate>::Row::whileReading([](KorDate &c) {
        if (!c.d->currentDate)
            return;
        c.d->value = Clock::today();
        c.d->box->setProgramText(
            c.d->written(c.d->value)); // Kept: with the mask held so far, the saved one comes later
    }),
    {"EnabledClick", &KorDate::EnabledClick, &KorDate::setEnabledClick, true},
    {"FormatMask", &KorDate::FormatMask, &KorDate::setFormatMask, QStringLiteral("Short Date")},
    {"ToolTipText", &KorDate::ToolTipText, &KorDate::setToolTipText, QString()},
};

KorDate::KorDate(QWidget *parent) : UserControl(parent), d(std::make_unique<Private>(this))
{
    d->box->setObjectName(QStringLiteral("txtDate"));
    d->box->setClipboard(TextBox::Clipboard::WholeText);
    d->box->installEventFilter(this);
    d->button->setObjectName(QStringLiteral("cmdDate"));
    d->button->setFocusPolicy(Qt::NoFocus); // a click on it brings the focus to the box
    d->button->setAccessibleName(QStringLiteral("Kalendarz"));
    makeDatesAccessible();
    setMainConstituent(d->box);
    setFocusClient(d.get());

    connect(d->box, &TextBox::Change, this, [this] { d->changeHandling(); });
    connect(d->box, &TextBox::Pasted, this, [this] { d->dirty = true; });
    connect(d->box, &TextBox::KeyDown, this, [this](int &code, int &shift) { d->keyDown(code, shift); });
    connect(d->box, &TextBox::KeyPress, this, [this](int &ascii) { d->keyPress(ascii); });
    connect(d->box, &TextBox::KeyUp, this, &KorDate::KeyUp);
    connect(d->box, &TextBox::MouseDown, this, &KorDate::MouseDown);
    connect(d->box, &TextBox::MouseMove, this, &KorDate::MouseMove);
    connect(d->box, &TextBox::MouseUp, this, &KorDate::MouseUp);
    connect(d->box, &TextBox::Click, this, &KorDate::Click);
    connect(d->box, &TextBox::DblClick, this, &KorDate::DblClick);
    connect(d->button, &CommandButton::Click, this, [this] { d->buttonClicked(); });
    initProperties();
}

KorDate::~KorDate()
{
    // Forgotten first: its closing gives the focus back to the box, which would look at it.
    const std::unique_ptr<frmMonth> month(d->month);
    d->month = nullptr;
}

void KorDate::initProperties()
{
    const QPointer<KorDate> self = this;
    d->value = Clock::today();
    d->box->setProgramText(d->written(d->value)); // Kept: with the mask held before it is set
    if (!self)
        return;
    Private::settings.toDefault(*this, "CurrentDate", d->currentDate);
    Private::settings.toDefault(*this, "BlockUpDown", d->blockUpDown);
    Private::settings.toDefault(*this, "FormatMask", d->mask);
    d->dirty = false;
}

void KorDate::readProperties(const PropertyBag &bag)
{
    d->isFirstShowing = true;
    Private::settings.read(*this, bag);
}

void KorDate::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorDate::savedSettings() const { return Private::settings.listed(*this); }

// --- value and text

QVariant KorDate::Value() const { return isNoDate(d->value) ? null() : d->value; }

void KorDate::setValue(const QVariant &given)
{
    const QPointer<KorDate> self = this;
    d->value = isMissing(given) ? null() : given;
    d->box->setProgramText(d->written(d->value));
    if (!self)
        return;
    d->givenText = d->box->text();
    propertyChanged("Value");
    if (self)
        d->dirty = true;
}

QString KorDate::Text() const { return d->box->text(); }

void KorDate::setText(const QString &text)
{
    const QPointer<KorDate> self = this;
    if (text.isEmpty()) {
        d->value = null();
        d->box->setProgramText(text);
    } else {
        (void)d->validate(text);
    }
    if (!self)
        return;
    d->givenText = d->box->text();
    propertyChanged("Text");
    if (self)
        d->dirty = true;
}

void KorDate::Private::changeHandling()
{
    dirty = true;
    Q_EMIT q->Change();
}

//! Takes a text over as the date that it stands for. False for what is no date: the value is Null then, and the text in
//! the box is left alone. The control may be gone afterwards.
bool KorDate::Private::validate(const QString &text)
{
    const DateCheck check = checkDate(text, rules());
    value = check.date ? QVariant(*check.date) : null();
    if (check.date)
        box->setProgramText(check.text);
    return check.isValid;
}

// --- keyboard

void KorDate::Private::keyDown(int &code, int &shift)
{
    using Answer = DateKey::Answer;
    const QPointer<KorDate> self = q;
    const DateKey key = judgeDateKey(code, shift, {blockUpDown, button->isEnabled()});
    switch (key.answer) {
    case Answer::Step:
        code = Key::None;
        step(key.days);
        return;
    case Answer::InsertToday:
        code = Key::None;
        insertToday();
        return;
    case Answer::OpenCalendar: openCalendar(); break;
    case Answer::ReportAndSwallow:
    case Answer::PassOn: break;
    }
    if (self)
        Q_EMIT q->KeyDown(code, shift);
    if (key.answer != Answer::PassOn)
        code = Key::None;
}

void KorDate::Private::step(int days)
{
    if (box->Locked())
        return;
    const QPointer<KorDate> self = q;
    if (box->text().isEmpty() || isNoDate(value))
        value = Clock::today();
    value = stepped(value, days, locale);
    dirty = true;
    // Kept: forward the caret goes behind the first character, back it stays where it is
    if (days < 0) {
        box->setTextKeepingCaret(written(value));
        return;
    }
    box->setProgramText(written(value));
    if (self)
        box->setSelStart(1);
}

void KorDate::Private::insertToday()
{
    if (box->Locked())
        return;
    value = Clock::today();
    dirty = true;
    box->setProgramText(written(value));
}

void KorDate::Private::keyPress(int &ascii)
{
    if (isDateCharacter(ascii, locale))
        dirty = true;
    else if (ascii != Key::Backspace) {
        ascii = 0;
        return;
    }
    Q_EMIT q->KeyPress(ascii);
}

// --- focus

void KorDate::Private::boxEntered(QWidget *, FocusEntry entry)
{
    if (entry == FocusEntry::Moved)
        enteredText = givenText = box->text();
    box->selectAll();
}

std::optional<Complaint> KorDate::Private::boxLeft(QWidget *)
{
    const QPointer<KorDate> self = q;
    const QString text = box->text();
    if (isHeld()) {
        // The program's text: not the user's to answer for, who could not mend it, and not to be rewritten.
    } else if (text.isEmpty()) {
        value = null();
    } else if (!validate(text) && !box->Locked()) {
        return Complaint{QStringLiteral("Błędna data. Wprowadź datę w formacie: ") + patternForMessage(mask, locale),
                         QStringLiteral("Błąd formatu daty"), [self, this] {
                             if (self)
                                 finishLeavingBox();
                         }};
    }
    if (self)
        finishLeavingBox();
    return std::nullopt;
}

void KorDate::Private::finishLeavingBox()
{
    const QPointer<KorDate> self = q;
    changeHandling(); // Kept: the host hears of every leaving, also when nothing was typed
    if (!self)
        return;
    if (!frmMonth::takeHandedBack() && box->text() == enteredText)
        dirty = false;
}

void KorDate::Private::controlLeft()
{
    const QPointer<KorDate> self = q;
    const QString text = box->text();
    if (text.isEmpty()) {
        const bool wasDirty = dirty;
        if (!isHeld())
            value = null();
        changeHandling();
        if (self && text == enteredText)
            dirty = wasDirty; // an empty field that was left as it was entered is still unchanged
    } else if (!box->Locked() && !validate(text)) {
        beep();
        box->setProgramText(QString());
    }
}

// --- calendar

void KorDate::Private::buttonClicked()
{
    const QPointer<KorDate> self = q;
    if (!month || !month->isVisible()) {
        q->setFocus(Qt::MouseFocusReason);
        // A field that was left for this one may have taken the focus back with a message.
        if (!FocusTracker::instance().settle() || !self || q->window()->focusWidget() != box)
            return;
    }
    openCalendar();
}

void KorDate::Private::openCalendar()
{
    if (!q->UserMode() || !button->isEnabled())
        return;
    if (month && month->isVisible()) {
        month->dismiss();
        return;
    }
    if (!month) {
        month = new frmMonth(locale, q);
        month->setParentControl(box);
        month->setOpener(button);
        connect(month, &frmMonth::Closed, q, [this] { calendarClosed(); });
    }
    month->setDateMask(mask);
    month->viewMonth()->setValue(calendarStart(box->text(), rules()));
    month->showBesideControl();
    Q_EMIT q->Click();
}

void KorDate::Private::calendarClosed()
{
    // The toolkit gives the focus back where it was; elsewhere it was sent by the program, or the user has left.
    if (!box->hasFocus())
        return;
    q->activateWindow(); // some window systems leave no window active when a pop-up is gone
    FocusTracker::instance().putBack(box);
}

bool KorDate::eventFilter(QObject *watched, QEvent *event)
{
    if (d->month && d->month->isVisible() && d->bringsUserBack(*event))
        d->month->dismiss();
    return UserControl::eventFilter(watched, event);
}

//! Whether an event of the box closes the calendar. A press on the button brings the focus to the box too, but the
//! click that follows has to find the calendar open; and the calendar's own closing brings the focus back last.
bool KorDate::Private::bringsUserBack(const QEvent &event)
{
    if (event.type() == QEvent::FocusIn) {
        const auto reason = static_cast<const QFocusEvent &>(event).reason();
        return reason != Qt::MouseFocusReason && reason != Qt::PopupFocusReason;
    }
    return event.type() == QEvent::MouseButtonPress;
}

void KorDate::showEvent(QShowEvent *event)
{
    UserControl::showEvent(event);
    if (std::exchange(d->isFirstShowing, false) && d->currentDate) {
        d->value = Clock::today(); // Kept: the text is not written anew here
        d->dirty = true;
    }
}

// --- layout

void KorDate::layoutConstituents() { d->field.layout(*this); }
QSize KorDate::sizeHint() const { return d->field.sizeHint(); }
QSize KorDate::minimumSizeHint() const { return d->field.minimumSizeHint(); }

// --- properties

BorderStyleType KorDate::BorderStyle() const { return d->field.frame->BorderStyle(); }

void KorDate::setBorderStyle(BorderStyleType style)
{
    d->field.frame->setBorderStyle(style);
    layoutConstituents();
    propertyChanged("BorderStyle");
}

int KorDate::WhatsThisHelpID() const { return d->box->WhatsThisHelpID(); }
void KorDate::setWhatsThisHelpID(int id) { delegate("WhatsThisHelpID", d->box, &TextBox::setWhatsThisHelpID, id); }

bool KorDate::Locked() const { return d->box->Locked(); }
void KorDate::setLocked(bool locked) { delegate("Locked", d->box, &TextBox::setLocked, locked); }

bool KorDate::DataChanged() const { return d->dirty; }
void KorDate::setDataChanged(bool changed) { d->dirty = changed; }

bool KorDate::CurrentDate() const { return d->currentDate; }

void KorDate::setCurrentDate(bool current)
{
    d->currentDate = current;
    propertyChanged("CurrentDate");
}

bool KorDate::BlockUpDown() const { return d->blockUpDown; }

void KorDate::setBlockUpDown(bool block)
{
    d->blockUpDown = block;
    propertyChanged("BlockUpDown");
}

AppearanceType KorDate::Appearance() const { return d->box->Appearance(); }

void KorDate::setAppearance(AppearanceType appearance)
{
    d->box->setAppearance(appearance);
    d->field.frame->setAppearance(appearance);
    layoutConstituents();
    propertyChanged("Appearance");
}

bool KorDate::EnabledClick() const { return d->button->isEnabledTo(this); }
void KorDate::setEnabledClick(bool enabled) { delegate("EnabledClick", d->button, &QWidget::setEnabled, enabled); }

QString KorDate::FormatMask() const { return d->mask; }

void KorDate::setFormatMask(const QString &mask)
{
    d->mask = mask;
    propertyChanged("FormatMask");
}

QString KorDate::ToolTipText() const { return d->box->toolTip(); }
void KorDate::setToolTipText(const QString &text) { delegate("ToolTipText", d->box, &QWidget::setToolTip, text); }
