// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/focustracker.h"
#include "constituents/keycodes.h"
#include "constituents/textbox.h"
#include "constituents/textmeasure.h"
#include "frame/settings.h"
#include "number/numberrules.h"

#include <KorDaoUC/beep.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/kornumber.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>

#include <optional>
#include <utility>

using namespace kor;

class Q_DECL_HIDDEN KorNumber::Private final : public FocusClient
{
public:
    explicit Private(KorNumber *control) : q(control), box(new TextBox(control)) {}

    void keyDown(int &code, int &shift);
    void keyPress(int &ascii);
    void keyUp(int &code, int &shift);
    void textChanged();

    void boxEntered(QWidget *, FocusEntry) override;
    std::optional<Complaint> boxLeft(QWidget *) override;
    void controlLeft() override;

    [[nodiscard]] bool fits(const QString &text) const { return fitsWidth(*box, text, q->width()); }
    [[nodiscard]] NumberRange range() const { return {checkRange, minValue, maxValue}; }
    //! The number that a text stands for: the bound that it was clamped to, else what it reads as.
    [[nodiscard]] QVariant valueOf(const QString &shown, std::optional<float> bound) const;
    void showNumber(double number, const QString &text, std::optional<float> bound);
    void noteGiven();
    //! Whether a lock holds what the program has given. A lock that comes later takes over what was typed before.
    [[nodiscard]] bool isHeld() const { return box->Locked() && box->text() == given.text && value == given.value; }
    void giveBack();

    //! What the program had put there when the field was entered, or has put there since.
    struct Given {
        QString shown;
        QString text; //!< the same, for editing
        QVariant value;
    };

    KorNumber *q;
    TextBox *box;
    NumberSigns signs = NumberSigns::of(Locale::systemDefault());
    QString mask;
    float maxValue = 0;
    float minValue = 0;
    bool checkRange = false;
    bool blockChange = false;
    bool dirty = false;
    QVariant value;
    Given given;
    QVariant type;                //!< saved for older forms; nobody reads it
    std::optional<float> clamped; //!< the bound that the next change of the text shows in place of the number set

    static const SettingsTable<KorNumber> settings;
};

const SettingsTable<KorNumber> KorNumber::Private::settings = {
    {"BackColor", &KorNumber::BackColor, &KorNumber::setBackColor, WindowBackground},
    {"ForeColor", &KorNumber::ForeColor, &KorNumber::setForeColor, WindowText},
    {"Enabled", &KorNumber::Enabled, &KorNumber::setEnabled, true},
    fontSetting<KorNumber>(),
    {"Type", [](const KorNumber &c) { return c.d->type; }, [](KorNumber &c, const QVariant &v) { c.d->type = v; },
     integer(0)},
    {"Locked", &KorNumber::Locked, &KorNumber::setLocked, false},
    {"Value", &KorNumber::Value, [](KorNumber &c, const QVariant &v) { c.d->value = v; }, null()},
    {"Text", &KorNumber::Text,
     [](KorNumber &c, const QVariant &v) {
         const QPointer<KorNumber> self = &c;
         c.d->box->setProgramText(CStr(v));
         if (self)
             c.d->noteGiven();
     },
     QString()},
    {"MaxLength", &KorNumber::MaxLength, &KorNumber::setMaxLength, 0},
    // Kept: saved forms hold the key twice
    {"MaxLength", &KorNumber::MaxLength, &KorNumber::setMaxLength, 0, SettingUse::WriteOnly},
    {"WhatsThisHelpID", &KorNumber::WhatsThisHelpID, &KorNumber::setWhatsThisHelpID, 0},
    {"BorderStyle", &KorNumber::BorderStyle, &KorNumber::setBorderStyle, integer(1)},
    {"Alignment", &KorNumber::Alignment, &KorNumber::setAlignment, integer(1)},
    SettingsTable<KorNumber>::Row::whileReading([](KorNumber &c) { c.d->dirty = false; }),
    {"MaskPicture", &KorNumber::MaskPicture, &KorNumber::setMaskPicture, QStringLiteral("#,##0.00")},
    {"MaxValue", &KorNumber::MaxValue, &KorNumber::setMaxValue, 0.0F},
    {"MinValue", &KorNumber::MinValue, &KorNumber::setMinValue, 0.0F},
    {"CheckRange", &KorNumber::CheckRange, &KorNumber::setCheckRange, false},
    {"Appearance", &KorNumber::Appearance, &KorNumber::setAppearance, integer(1)},
    {"BlockChange", &KorNumber::BlockChange, &KorNumber::setBlockChange, false},
    {"ToolTipText", &KorNumber::ToolTipText, &KorNumber::setToolTipText, QString()},
};

KorNumber::KorNumber(QWidget *parent) : UserControl(parent), d(std::make_unique<Private>(this))
{
    d->box->setObjectName(QStringLiteral("txtNumber"));
    d->box->setClipboard(TextBox::Clipboard::WholeText);
    d->box->setAlignment(AlignmentType::Right_Justify);
    setMainConstituent(d->box);
    setFocusClient(d.get());

    connect(d->box, &TextBox::Change, this, [this] { d->textChanged(); });
    connect(d->box, &TextBox::KeyDown, this, [this](int &code, int &shift) { d->keyDown(code, shift); });
    connect(d->box, &TextBox::KeyPress, this, [this](int &ascii) { d->keyPress(ascii); });
    connect(d->box, &TextBox::KeyUp, this, [this](int &code, int &shift) { d->keyUp(code, shift); });
    connect(d->box, &TextBox::MouseDown, this, &KorNumber::MouseDown);
    connect(d->box, &TextBox::MouseMove, this, &KorNumber::MouseMove);
    connect(d->box, &TextBox::MouseUp, this, &KorNumber::MouseUp);
    connect(d->box, &TextBox::Click, this, &KorNumber::Click);
    connect(d->box, &TextBox::DblClick, this, &KorNumber::DblClick);
    initProperties();
}

KorNumber::~KorNumber() = default;

void KorNumber::initProperties()
{
    const auto &settings = Private::settings;
    settings.toDefault(*this, "Type", d->type);
    settings.toDefault(*this, "Value", d->value);
    settings.toDefault(*this, "MaskPicture", d->mask);
    settings.toDefault(*this, "MaxValue", d->maxValue);
    settings.toDefault(*this, "MinValue", d->minValue);
    settings.toDefault(*this, "CheckRange", d->checkRange);
    settings.toDefault(*this, "BlockChange", d->blockChange);
}

void KorNumber::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorNumber::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorNumber::savedSettings() const { return Private::settings.listed(*this); }

// --- value and text

QVariant KorNumber::Value() const { return d->value; }

void KorNumber::setValue(const QVariant &given)
{
    const QPointer<KorNumber> self = this;
    if (const auto number = numberGiven(given, d->signs)) {
        if (const auto bound = d->range().bound(*number))
            d->showNumber(static_cast<double>(*bound), CStr(*bound, d->signs.locale), bound);
        else
            d->showNumber(*number, CStr(normalized(given), d->signs.locale), std::nullopt);
    } else {
        d->box->setProgramText(QString());
        if (self && !isNoNumber(given))
            d->value = null();
    }
    if (self)
        d->noteGiven();
    if (self)
        propertyChanged("Value");
    if (self)
        d->dirty = true;
}

void KorNumber::Private::showNumber(double number, const QString &text, std::optional<float> bound)
{
    const QVariant exact = bound ? QVariant(*bound) : QVariant(number);
    QString shown = formatForDisplay(text, mask, signs);
    if (!fits(shown))
        shown = hashFill(shown, [this](const QString &candidate) { return fits(candidate); });
    if (isHashFill(shown)) {
        if (isNull(value) || value != exact) {
            value = exact;
            box->setProgramText(shown);
        }
        return;
    }
    value = exact;
    if (box->text() != shown) {
        clamped = bound;
        box->setProgramText(shown); // textChanged() takes the number over as it is shown
    } else if (!blockChange) {
        value = valueOf(shown, bound);
    }
}

QVariant KorNumber::Private::valueOf(const QString &shown, std::optional<float> bound) const
{
    if (bound)
        return *bound;
    const auto number = numberShown(shown, signs);
    return number ? QVariant(*number) : null();
}

QString KorNumber::Text() const { return d->box->text(); }

void KorNumber::setText(const QString &text)
{
    const QPointer<KorNumber> self = this;
    if (const auto number = numberSet(text, d->signs)) {
        setValue(*number);
    } else {
        setValue(null());
        if (self)
            Q_EMIT Change(); // Kept: raised even when the text stays, and under BlockChange
    }
    if (self)
        propertyChanged("Text");
    if (self)
        d->dirty = true;
}

void KorNumber::Private::textChanged()
{
    const auto bound = std::exchange(clamped, std::nullopt);
    if (blockChange)
        return;
    const QString shown = box->text();
    if (shown.isEmpty())
        value = null();
    else if (!isHashFill(shown))
        value = valueOf(shown, bound);
    Q_EMIT q->Change();
}

// --- keyboard

void KorNumber::Private::keyDown(int &code, int &shift)
{
    const QPointer<KorNumber> self = q;
    if (isRowKey(code, shift)) {
        Q_EMIT q->KeyDown(code, shift);
        code = Key::None; // Kept: the host sees the arrow and then a second event with 0; the box sees neither
    } else if (code == Key::Tab && shift == ShiftState::Ctrl) {
        code = Key::None;
        shift = ShiftState::None;
        return;
    }
    if (self)
        Q_EMIT q->KeyDown(code, shift);
}

void KorNumber::Private::keyPress(int &ascii)
{
    const QPointer<KorNumber> self = q;
    const Entry before{box->text(), box->SelStart(), box->SelLength()};
    // A handler may delete the control, and the rules are asked on: they get what outlives it.
    const NumberSigns ownSigns = signs;
    const QString ownMask = mask;
    const TypingRules rules{ownSigns, ownMask, box->MaxLength(),
                            [this, &self](const QString &text) { return self && fits(text); }};
    const Keystroke key = judgeKey({ascii, before}, rules, [&self](int &code) {
        if (self)
            Q_EMIT self->KeyPress(code);
    });
    ascii = self ? key.keyAscii : 0;
    if (!self)
        return;
    if (key.beeps)
        beep();
    if (key.entry != before)
        box->setSelStart(key.entry.selStart);
}

void KorNumber::Private::keyUp(int &code, int &shift)
{
    if (isKeyUpForwarded(code))
        Q_EMIT q->KeyUp(code, shift);
}

// --- focus

void KorNumber::Private::boxEntered(QWidget *, FocusEntry)
{
    // Kept: one flag guards the rewriting and is the host's property, so every entry leaves it False
    const QPointer<KorNumber> self = q;
    blockChange = true;
    const auto unblock = qScopeGuard([&] {
        if (self)
            blockChange = false;
    });
    const QString shown = box->text();
    box->setProgramText(toEditText(shown, signs));
    if (!self)
        return;
    box->selectAll();
    given = {shown, box->text(), value};
}

void KorNumber::Private::noteGiven() { given = {box->text(), box->text(), value}; }

//! Shows what the program has given as it did before the field was entered. Reading that text could come to another
//! number, or to none.
void KorNumber::Private::giveBack()
{
    const QPointer<KorNumber> self = q;
    const QString edited = std::exchange(given.text, given.shown);
    const bool wasBlocked = std::exchange(blockChange, true);
    box->setProgramText(given.shown);
    if (!self)
        return;
    blockChange = wasBlocked;
    if (!blockChange && edited != given.shown)
        Q_EMIT q->Change();
}

std::optional<Complaint> KorNumber::Private::boxLeft(QWidget *)
{
    const QPointer<KorNumber> self = q;
    if (isHeld()) {
        giveBack();
        return std::nullopt;
    }
    box->setProgramText(formatForDisplay(box->text(), mask, signs));
    if (!self || box->Locked()) // the program's number: not the user's to answer for, who could not mend it
        return std::nullopt;
    if (range().isOutside(value))
        return Complaint{range().message(signs.locale), QStringLiteral("Bład zakresu liczby")};
    if (!saysValue(box->text(), value, mask, signs))
        box->setProgramText(QString());
    return std::nullopt;
}

void KorNumber::Private::controlLeft()
{
    const QPointer<KorNumber> self = q;
    if (isHeld())
        return;
    box->setProgramText(formatForDisplay(box->text(), mask, signs));
    // Kept: Val reads the formatted text up to its first grouping or comma, so 1 234,00 is judged as 1
    if (self && !box->Locked() && range().refuses(box->text()))
        box->setProgramText(QString());
}

// --- properties

bool KorNumber::Locked() const { return d->box->Locked(); }
void KorNumber::setLocked(bool locked) { delegate("Locked", d->box, &TextBox::setLocked, locked); }

bool KorNumber::DataChanged() const { return d->dirty; }
void KorNumber::setDataChanged(bool changed) { d->dirty = changed; }
int KorNumber::hWnd() const { return mainWindowHandle(); }

int KorNumber::MaxLength() const { return d->box->MaxLength(); }
void KorNumber::setMaxLength(int length) { delegate("MaxLength", d->box, &TextBox::setMaxLength, length); }

int KorNumber::WhatsThisHelpID() const { return d->box->WhatsThisHelpID(); }
void KorNumber::setWhatsThisHelpID(int id) { delegate("WhatsThisHelpID", d->box, &TextBox::setWhatsThisHelpID, id); }

BorderStyleType KorNumber::BorderStyle() const { return d->box->BorderStyle(); }
void KorNumber::setBorderStyle(BorderStyleType style)
{
    delegate("BorderStyle", d->box, &TextBox::setBorderStyle, style);
}

AlignmentType KorNumber::Alignment() const { return d->box->Alignment(); }
void KorNumber::setAlignment(AlignmentType alignment)
{
    delegate("Alignment", d->box, &TextBox::setAlignment, alignment);
}

AppearanceType KorNumber::Appearance() const { return d->box->Appearance(); }
void KorNumber::setAppearance(AppearanceType appearance)
{
    delegate("Appearance", d->box, &TextBox::setAppearance, appearance);
}

QString KorNumber::ToolTipText() const { return d->box->toolTip(); }
void KorNumber::setToolTipText(const QString &text) { delegate("ToolTipText", d->box, &QWidget::setToolTip, text); }

QString KorNumber::MaskPicture() const { return d->mask; }

void KorNumber::setMaskPicture(const QString &mask)
{
    d->mask = mask;
    propertyChanged("MaskPicture");
}

QVariant KorNumber::MaxValue() const { return d->maxValue; }

void KorNumber::setMaxValue(const QVariant &bound)
{
    d->maxValue = boundGiven(bound, d->signs);
    propertyChanged("MaxValue");
}

QVariant KorNumber::MinValue() const { return d->minValue; }

void KorNumber::setMinValue(const QVariant &bound)
{
    d->minValue = boundGiven(bound, d->signs);
    propertyChanged("MinValue");
}

bool KorNumber::CheckRange() const { return d->checkRange; }

void KorNumber::setCheckRange(bool check)
{
    d->checkRange = check;
    propertyChanged("CheckRange");
}

bool KorNumber::BlockChange() const { return d->blockChange; }

void KorNumber::setBlockChange(bool block)
{
    d->blockChange = block;
    propertyChanged("BlockChange");
}
