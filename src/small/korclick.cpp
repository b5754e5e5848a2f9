// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/buttonfield.h"
#include "constituents/focustracker.h"
#include "constituents/keycodes.h"
#include "frame/settings.h"
#include "small/clickrules.h"

#include <KorDaoUC/korclick.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QPointer>

using namespace kor;

class Q_DECL_HIDDEN KorClick::Private final : public FocusClient
{
public:
    explicit Private(KorClick *control) : q(control), field(CommandButton::Sign::Dots, control) {}

    void keyDown(int &code, int &shift);
    void clear();
    void showOnButton(const QString &text);
    std::optional<Complaint> boxLeft(QWidget *left) override;

    KorClick *q;
    const ButtonField field;
    TextBox *const box = field.box;
    CommandButton *const button = field.button;
    QVariant value;
    bool blockUpDown = false;
    bool dirty = false;

    static const SettingsTable<KorClick> settings;
};

const SettingsTable<KorClick> KorClick::Private::settings = {
    {"BackColor", &KorClick::BackColor, &KorClick::setBackColor, WindowBackground},
    {"ForeColor", &KorClick::ForeColor, &KorClick::setForeColor, WindowText},
    {"Enabled", &KorClick::Enabled, &KorClick::setEnabled, true},
    // Kept: old forms are read so, key by key
    {"Enabled", &KorClick::Enabled, &KorClick::setEnabled, true, SettingUse::ReadOnly},
    fontSetting<KorClick>(),
    {"BorderStyle", &KorClick::BorderStyle, &KorClick::setBorderStyle, integer(1)},
    {"Appearance", &KorClick::Appearance, &KorClick::setAppearance, integer(1)},
    {"BlockUpDown", &KorClick::BlockUpDown, &KorClick::setBlockUpDown, false},
    {"Text", &KorClick::Text, &KorClick::setText, QString()},
    // A start collapses the selection, so the length comes after it; the text of the selection is in "Text" already.
    SettingsTable<KorClick>::Row("SelLength", asInteger(&KorClick::SelLength), &KorClick::setSelLength, integer(0))
        .readAt(1),
    {"SelText", &KorClick::SelText, [](KorClick &, const QVariant &) {}, QString()},
    {"SelStart", asInteger(&KorClick::SelStart), &KorClick::setSelStart, integer(0)},
    {"LockedText", &KorClick::Locked, &KorClick::setLocked, false}, // Kept: the name that saved forms have
    {"Value", &KorClick::Value, &KorClick::setValue, null()},
    {"MaxLength", asInteger(&KorClick::MaxLength), &KorClick::setMaxLength, integer(0)},
    {"EnabledClick", &KorClick::EnabledClick, &KorClick::setEnabledClick, true},
    {"ToolButText", &KorClick::ToolButText, &KorClick::setToolButText, QString()},
    SettingsTable<KorClick>::Row::whileReading([](KorClick &c) { c.d->dirty = false; }),
};

KorClick::KorClick(QWidget *parent) : UserControl(parent), d(std::make_unique<Private>(this))
{
    d->box->setObjectName(QStringLiteral("txtClick"));
    d->button->setObjectName(QStringLiteral("cmdClick"));
    setMainConstituent(d->box);
    setFocusClient(d.get());
    d->showOnButton(QString());

    connect(d->box, &TextBox::Change, this, [this] {
        d->dirty = true;
        Q_EMIT Change();
    });
    connect(d->button, &CommandButton::Click, this, &KorClick::Click);
    connect(d->box, &TextBox::DblClick, this, &KorClick::DblClick);
    connect(d->box, &TextBox::KeyDown, this, [this](int &code, int &shift) { d->keyDown(code, shift); });
    connect(d->box, &TextBox::KeyPress, this, &KorClick::KeyPress);
    connect(d->box, &TextBox::KeyUp, this, &KorClick::KeyUp);
    connect(d->box, &TextBox::MouseDown, this, &KorClick::MouseDown);
    connect(d->box, &TextBox::MouseMove, this, &KorClick::MouseMove);
    connect(d->box, &TextBox::MouseUp, this, &KorClick::MouseUp);
    initProperties();
}

KorClick::~KorClick() = default;

void KorClick::initProperties()
{
    Private::settings.toDefault(*this, "BlockUpDown", d->blockUpDown);
    Private::settings.toDefault(*this, "Value", d->value);
}

void KorClick::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorClick::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorClick::savedSettings() const { return Private::settings.listed(*this); }

// --- value and text

QVariant KorClick::Value() const { return d->value; }

void KorClick::setValue(const QVariant &value)
{
    d->value = value;
    propertyChanged("Value");
}

QString KorClick::Text() const { return d->box->text(); }
void KorClick::setText(const QString &text) { delegate("Text", d->box, &TextBox::setProgramText, text); }

bool KorClick::DataChanged() const { return d->dirty; }
void KorClick::setDataChanged(bool changed) { d->dirty = changed; }

int KorClick::SelLength() const { return d->box->SelLength(); }
void KorClick::setSelLength(int length) { delegate("SelLength", d->box, &TextBox::setSelLength, length); }

QString KorClick::SelText() const { return d->box->SelText(); }
void KorClick::setSelText(const QString &text) { delegate("SelText", d->box, &TextBox::setSelText, text); }

int KorClick::SelStart() const { return d->box->SelStart(); }
void KorClick::setSelStart(int start) { delegate("SelStart", d->box, &TextBox::setSelStart, start); }

void KorClick::Private::clear()
{
    value = null(); // before the text, so that a handler of Change finds both
    const QPointer<KorClick> self = q;
    box->setProgramText(QString());
    if (self)
        q->propertyChanged("Value");
}

// --- keyboard

void KorClick::Private::keyDown(int &code, int &shift)
{
    const QPointer<KorClick> self = q;
    switch (judgeClickKey(code, shift, {blockUpDown, box->Locked()})) {
    case ClickKeyAnswer::ReportAndSwallow:
        Q_EMIT q->KeyDown(code, shift);
        code = Key::None;
        return;
    case ClickKeyAnswer::AskHost:
        code = Key::None;
        if (button->isEnabled())
            Q_EMIT q->Click();
        return;
    case ClickKeyAnswer::ClearAndPassOn: clear(); [[fallthrough]];
    case ClickKeyAnswer::PassOn: break;
    }
    if (self)
        Q_EMIT q->KeyDown(code, shift);
}

// --- focus

std::optional<Complaint> KorClick::Private::boxLeft(QWidget *left)
{
    if (left == button)
        Q_EMIT q->CmdLostFocus();
    return std::nullopt;
}

// --- layout

void KorClick::Private::showOnButton(const QString &text)
{
    button->setText(text);
    // Three dots say nothing to a screen reader.
    button->setAccessibleName(text.isEmpty() ? QStringLiteral("Wybierz") : QString());
    q->layoutConstituents();
}

void KorClick::layoutConstituents() { d->field.layout(*this); }
QSize KorClick::sizeHint() const { return d->field.sizeHint(); }
QSize KorClick::minimumSizeHint() const { return d->field.minimumSizeHint(); }

// --- properties

BorderStyleType KorClick::BorderStyle() const { return d->field.frame->BorderStyle(); }

void KorClick::setBorderStyle(BorderStyleType style)
{
    d->field.frame->setBorderStyle(style);
    layoutConstituents();
    propertyChanged("BorderStyle");
}

AppearanceType KorClick::Appearance() const { return d->field.frame->Appearance(); }

void KorClick::setAppearance(AppearanceType appearance)
{
    d->field.frame->setAppearance(appearance);
    layoutConstituents();
    propertyChanged("Appearance");
}

bool KorClick::BlockUpDown() const { return d->blockUpDown; }

void KorClick::setBlockUpDown(bool block)
{
    d->blockUpDown = block;
    propertyChanged("BlockUpDown");
}

bool KorClick::Locked() const { return d->box->Locked(); }
void KorClick::setLocked(bool locked) { delegate("Locked", d->box, &TextBox::setLocked, locked); }

int KorClick::hWnd() const { return mainWindowHandle(); }

int KorClick::MaxLength() const { return d->box->MaxLength(); }
void KorClick::setMaxLength(int length) { delegate("MaxLength", d->box, &TextBox::setMaxLength, length); }

bool KorClick::EnabledClick() const { return d->button->isEnabledTo(d->field.frame); }
void KorClick::setEnabledClick(bool enabled) { delegate("EnabledClick", d->button, &QWidget::setEnabled, enabled); }

QString KorClick::ToolButText() const { return d->button->text(); }

void KorClick::setToolButText(const QString &text)
{
    d->showOnButton(text);
    propertyChanged("ToolButText");
}
