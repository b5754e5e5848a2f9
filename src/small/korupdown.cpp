// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/fieldlayout.h"
#include "constituents/focustracker.h"
#include "constituents/keycodes.h"
#include "constituents/mouse.h"
#include "constituents/spinbuttons.h"
#include "constituents/textbox.h"
#include "frame/settings.h"
#include "small/updownrules.h"

#include <KorDaoUC/korupdown.h>

#include <QtCore/QPointer>
#include <QtGui/QAccessible>
#include <QtGui/QWheelEvent>

#include <utility>

using namespace kor;

namespace {

constexpr int wheelNotch = 120;

void loadValue(KorUpDown &control, const QVariant &saved)
{
    try {
        control.setValue(CLng(saved));
    } catch (const RunTimeError &error) {
        if (error.number() == static_cast<int>(ErrorNumber::TypeMismatch))
            throw;
        // The range is not saved, so a value saved under another one may lie outside; the form must load all the same.
    }
}

} // namespace

class Q_DECL_HIDDEN KorUpDown::Private final : public FocusClient
{
public:
    explicit Private(KorUpDown *control) : q(control), box(new TextBox(control)), spin(new SpinButtons(control)) {}

    void keyDown(int &code, int &shift);
    void textChanged();
    std::optional<Complaint> boxLeft(QWidget *) override;

    KorUpDown *q;
    TextBox *box;
    SpinButtons *spin;
    int wheelTurned = 0;

    static const SettingsTable<KorUpDown> settings;
};

const SettingsTable<KorUpDown> KorUpDown::Private::settings = {
    {"BackColor", &KorUpDown::BackColor, &KorUpDown::setBackColor, WindowBackground},
    {"ForeColor", &KorUpDown::ForeColor, &KorUpDown::setForeColor, WindowText},
    {"Enabled", &KorUpDown::Enabled, &KorUpDown::setEnabled, true},
    // Kept: old forms are read so, key by key
    {"Enabled", &KorUpDown::Enabled, &KorUpDown::setEnabled, true, SettingUse::ReadOnly},
    fontSetting<KorUpDown>(),
    {"BackStyle", asInteger(&KorUpDown::BackStyle), &KorUpDown::setBackStyle, integer(1)},
    {"BorderStyle", &KorUpDown::BorderStyle, &KorUpDown::setBorderStyle, integer(1)},
    {"Text", &KorUpDown::Text, &KorUpDown::setText, QStringLiteral("Text1")},
    {"Value", &KorUpDown::Value, &loadValue, 0},
    // Kept: written before the step, and read after it
    SettingsTable<KorUpDown>::Row("MaxLength", &KorUpDown::MaxLength, &KorUpDown::setMaxLength, 0).readAt(1),
    {"Increment", &KorUpDown::Increment, &KorUpDown::setIncrement, 1},
};

KorUpDown::KorUpDown(QWidget *parent) : UserControl(parent), d(std::make_unique<Private>(this))
{
    d->box->setObjectName(QStringLiteral("txtUpDown"));
    d->spin->setObjectName(QStringLiteral("cmdUpDown"));
    setMainConstituent(d->box);
    setFocusClient(d.get());
    setFocusPolicy(Qt::TabFocus); // a click on an arrow leaves the focus where it is
    d->box->setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);

    connect(d->box, &TextBox::Change, this, [this] { d->textChanged(); });
    connect(d->box, &TextBox::Click, this, &KorUpDown::Click);
    connect(d->box, &TextBox::KeyDown, this, [this](int &code, int &shift) { d->keyDown(code, shift); });
    connect(d->box, &TextBox::KeyPress, this, &KorUpDown::KeyPress);
    connect(d->box, &TextBox::KeyUp, this, &KorUpDown::KeyUp);
    connect(d->spin, &SpinButtons::Change, this, [this] { d->box->setProgramText(CStr(d->spin->Value())); });
    initProperties();
}

KorUpDown::~KorUpDown() = default;

void KorUpDown::initProperties()
{
    QString text;
    Private::settings.toDefault(*this, "Text", text);
    d->box->setProgramText(text);
}

void KorUpDown::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorUpDown::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorUpDown::savedSettings() const { return Private::settings.listed(*this); }

// --- value and text

QString KorUpDown::Text() const { return d->box->text(); }
void KorUpDown::setText(const QString &text) { delegate("Text", d->box, &TextBox::setProgramText, text); }

int KorUpDown::Value() const { return d->spin->Value(); }
void KorUpDown::setValue(int value) { delegate("Value", d->spin, &SpinButtons::setValue, flooredValue(value)); }

void KorUpDown::Private::textChanged()
{
    if (const auto whole = wholeNumberIn(box->text()))
        spin->follow(*whole);
    QAccessibleValueChangeEvent event(box, spin->Value());
    QAccessible::updateAccessibility(&event);
    Q_EMIT q->Change();
}

// --- keyboard

void KorUpDown::Private::keyDown(int &code, int &shift)
{
    const QPointer<KorUpDown> self = q;
    Q_EMIT q->KeyDown(code, shift);
    if (!self || shift != ShiftState::None || !isUpOrDown(code))
        return;
    // The arrows take no focus, so the keyboard needs another way to them.
    const int steps = std::exchange(code, Key::None) == Key::Up ? 1 : -1;
    spin->step(steps);
}

// --- mouse

void KorUpDown::mousePressEvent(QMouseEvent *event) { raiseMouse(this, event, &KorUpDown::MouseDown); }
void KorUpDown::mouseMoveEvent(QMouseEvent *event) { raiseMouse(this, event, &KorUpDown::MouseMove); }
void KorUpDown::mouseReleaseEvent(QMouseEvent *event) { raiseMouse(this, event, &KorUpDown::MouseUp); }

void KorUpDown::wheelEvent(QWheelEvent *event)
{
    if (!d->box->hasFocus()) {
        event->ignore(); // the form scrolls
        return;
    }
    guarded(this, [&] {
        d->wheelTurned += event->angleDelta().y();
        const int steps = d->wheelTurned / wheelNotch;
        d->wheelTurned -= steps * wheelNotch;
        d->spin->step(steps);
    });
    event->accept();
}

// --- focus

std::optional<Complaint> KorUpDown::Private::boxLeft(QWidget *)
{
    const QString text = textOnLeaving(box->text(), spin->range());
    if (text != box->text())
        box->setProgramText(text);
    return std::nullopt;
}

// --- layout

void KorUpDown::layoutConstituents()
{
    const auto place = layoutField(rect(), d->spin->sizeHint().width(), layoutDirection());
    d->box->setGeometry(place.field);
    d->spin->setGeometry(place.end);
}

QSize KorUpDown::sizeHint() const
{
    const QSize box = d->box->sizeHint();
    return {box.width() / 2 + d->spin->sizeHint().width(), box.height()};
}

QSize KorUpDown::minimumSizeHint() const
{
    const QSize box = d->box->minimumSizeHint();
    return {box.width() + d->spin->sizeHint().width(), box.height()};
}

// --- properties

int KorUpDown::BackStyle() const { return isBackTransparent() ? 0 : 1; }

void KorUpDown::setBackStyle(int style)
{
    if (style != 0 && style != 1)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    setBackTransparent(style == 0);
    propertyChanged("BackStyle");
}

BorderStyleType KorUpDown::BorderStyle() const { return d->box->BorderStyle(); }
void KorUpDown::setBorderStyle(BorderStyleType style)
{
    delegate("BorderStyle", d->box, &TextBox::setBorderStyle, style);
}

int KorUpDown::Max() const { return d->spin->Max(); }
void KorUpDown::setMax(int max) { delegate("Max", d->spin, &SpinButtons::setMax, max); }

int KorUpDown::MaxLength() const { return d->box->MaxLength(); }
void KorUpDown::setMaxLength(int length) { delegate("MaxLength", d->box, &TextBox::setMaxLength, length); }

int KorUpDown::Min() const { return d->spin->Min(); }
void KorUpDown::setMin(int min) { delegate("Min", d->spin, &SpinButtons::setMin, min); }

int KorUpDown::Increment() const { return d->spin->Increment(); }
void KorUpDown::setIncrement(int step) { delegate("Increment", d->spin, &SpinButtons::setIncrement, step); }
