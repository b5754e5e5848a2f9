// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/combobox.h"
#include "constituents/commandbutton.h"
#include "constituents/errorguard.h"
#include "constituents/keycodes.h"
#include "constituents/mouse.h"
#include "frame/settings.h"
#include "small/colorlist.h"
#include "small/colorpatch.h"

#include <KorDaoUC/korcolor.h>

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QStyle>

#include <optional>

using namespace kor;

namespace {

constexpr int gap = 3;

} // namespace

class Q_DECL_HIDDEN KorColor::Private
{
public:
    explicit Private(KorColor *control)
        : q(control),
          back(new QWidget(control)),
          swatch(new ColorPatch(WindowBackground, back)),
          box(new ComboBox(back)),
          button(new CommandButton(CommandButton::Sign::Dots, back)),
          picture(new ColorPatch(ButtonFace, button))
    {
    }

    void makeRoomForPatches();
    void show(OLE_COLOR color);
    void selected();
    void select(int entry);
    void keyDown(int &code, int &shift);
    void chooseOther();
    [[nodiscard]] std::optional<OLE_COLOR> askDialog();

    KorColor *q;
    QWidget *back;
    ColorPatch *swatch; //!< the colour of the selected entry
    ComboBox *box;
    CommandButton *button;
    ColorPatch *picture; //!< the colour last set by the program or the dialog
    ColorList colors;

    static const SettingsTable<KorColor> settings;
};

const SettingsTable<KorColor> KorColor::Private::settings = {
    {"BackColor", &KorColor::BackColor, &KorColor::setBackColor, WindowBackground},
    {"ForeColor", &KorColor::ForeColor, &KorColor::setForeColor, WindowText},
    {"Enabled", &KorColor::Enabled, &KorColor::setEnabled, true},
    fontSetting<KorColor>(),
    // Kept: saved and never read back; a loaded control shows the entry of a new one
    {"Value", [](const KorColor &c) { return c.d->picture->BackColor(); }, &KorColor::setValue, ButtonFace,
     SettingUse::WriteOnly},
    {"ToolTipText", &KorColor::ToolTipText, &KorColor::setToolTipText, QString()},
    SettingsTable<KorColor>::Row::whileReading([](KorColor &c) { c.d->select(ColorList::initialEntry); }),
};

KorColor::KorColor(QWidget *parent) : UserControl(parent), d(std::make_unique<Private>(this))
{
    d->back->setObjectName(QStringLiteral("picBack"));
    d->back->setMouseTracking(true);
    d->swatch->setObjectName(QStringLiteral("picSwatch"));
    d->box->setObjectName(QStringLiteral("cmbColor"));
    d->button->setObjectName(QStringLiteral("cmdColor"));
    d->button->setAccessibleName(ColorList::names().at(ColorList::otherEntry));
    d->picture->setObjectName(QStringLiteral("picColor"));
    d->picture->setAttribute(Qt::WA_TransparentForMouseEvents); // it is part of the button's face
    d->box->AddItems(ColorList::names());
    setMainConstituent(d->box);
    setMouseTracking(true);

    connect(d->box, &ComboBox::listMade, this, [this](QAbstractItemView *list) {
        list->setItemDelegate(new ColorDelegate([this](int row) { return d->colors.color(row); }, list));
    });
    connect(d->box, &ComboBox::Click, this, [this] { d->selected(); });
    connect(d->box, &ComboBox::Chosen, this, [this] {
        // "Inny kolor..." can show its former colour; choosing it again is how the user gets the new one.
        if (d->swatch->BackColor() != d->colors.color(d->box->ListIndex()))
            d->selected();
    });
    connect(d->box, &ComboBox::KeyDown, this, [this](int &code, int &shift) { d->keyDown(code, shift); });
    connect(d->box, &ComboBox::KeyPress, this, &KorColor::KeyPress);
    connect(d->box, &ComboBox::KeyUp, this, &KorColor::KeyUp);
    connect(d->box, &ComboBox::heightChanged, this, [this] { d->makeRoomForPatches(); });
    connect(d->button, &CommandButton::Click, this, [this] { d->chooseOther(); });
    d->makeRoomForPatches();
    initProperties();
}

KorColor::~KorColor() = default;

void KorColor::initProperties() { d->select(ColorList::initialEntry); }
void KorColor::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorColor::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorColor::savedSettings() const { return Private::settings.listed(*this); }

// --- value and text

OLE_COLOR KorColor::Value() const { return d->swatch->BackColor(); }

void KorColor::setValue(OLE_COLOR color)
{
    const QPointer<KorColor> self = this;
    d->picture->setBackColor(color);
    if (const auto entry = d->colors.entryOf(color)) {
        d->select(*entry);
        if (self)
            propertyChanged("Color"); // Kept: the name that designers have listened for, and only for these colours
        return;
    }
    d->select(ColorList::otherEntry);
    if (self)
        d->selected(); // Kept: once more, though the list may have raised it
}

//! Shows a colour, and says it to whom it cannot be shown: "Inny kolor..." is the name of any.
void KorColor::Private::show(OLE_COLOR color)
{
    swatch->setBackColor(color);
    const QColor shade = toQColor(color, q->palette());
    box->setAccessibleDescription(
        QStringLiteral("czerwony %1, zielony %2, niebieski %3").arg(shade.red()).arg(shade.green()).arg(shade.blue()));
}

//! An entry of the list was selected.
void KorColor::Private::selected()
{
    show(colors.color(box->ListIndex()));
    Q_EMIT q->Click();
}

void KorColor::Private::select(int entry)
{
    show(colors.color(entry));
    box->setListIndex(entry);
}

// --- keyboard

void KorColor::Private::keyDown(int &code, int &shift)
{
    const QPointer<KorColor> self = q;
    if (code == Key::F6)
        guarded(q, [this] { chooseOther(); }); // KeyDown comes in every case
    if (self)
        Q_EMIT q->KeyDown(code, shift);
}

// --- mouse

void KorColor::mousePressEvent(QMouseEvent *event) { raiseMouse(this, event, &KorColor::MouseDown); }
void KorColor::mouseMoveEvent(QMouseEvent *event) { raiseMouse(this, event, &KorColor::MouseMove); }
void KorColor::mouseReleaseEvent(QMouseEvent *event) { raiseMouse(this, event, &KorColor::MouseUp); }

// --- the colour dialog

void KorColor::Private::chooseOther()
{
    if (!q->UserMode())
        return;
    const QPointer<KorColor> self = q;
    box->hidePopup();
    const auto chosen = askDialog();
    if (!chosen)
        return;
    q->setValue(*chosen);
    if (!self)
        return;
    // Kept: after the selection, so that a colour outside the list is shown when its entry is selected the next time
    colors.setOther(picture->BackColor());
    box->setFocus();
}

std::optional<OLE_COLOR> KorColor::Private::askDialog()
{
    const QPointer<QColorDialog> dialog = new QColorDialog(toQColor(picture->BackColor(), q->palette()), q);
    const bool isChosen = dialog->exec() == QDialog::Accepted;
    if (!dialog) // the host has deleted the control meanwhile
        return std::nullopt;
    const QColor chosen = dialog->selectedColor();
    delete dialog;
    return isChosen && chosen.isValid() ? std::optional(fromQColor(chosen)) : std::nullopt;
}

// --- layout

void KorColor::Private::makeRoomForPatches()
{
    box->setPictureWidth(ColorDelegate::patchSize(box->fontMetrics()).width() + 4 * gap);
    box->setMaxVisibleItems(ColorList::count); // all colours at a glance
    q->updateGeometry();
    q->layoutConstituents();
}

void KorColor::layoutConstituents()
{
    d->back->setGeometry(rect());
    const QRect area = d->back->rect();
    const int line = d->box->fontMetrics().height();
    const int patchHeight = std::min(area.height() - 2 * gap, line + 2);
    const int patchWidth = std::min(patchHeight, area.width() / 4);
    const int buttonWidth = std::min(d->button->widthBeside(area.height()), area.width() / 4);
    const int boxLeft = patchWidth + 2 * gap;
    const auto place = [&](QWidget *widget, const QRect &where) {
        widget->setGeometry(QStyle::visualRect(layoutDirection(), area, where));
    };
    place(d->swatch, QRect(gap, (area.height() - patchHeight) / 2, patchWidth, patchHeight));
    place(d->box, QRect(boxLeft, 0, std::max(0, area.width() - boxLeft - buttonWidth), area.height()));
    place(d->button, QRect(area.width() - buttonWidth, 0, buttonWidth, area.height()));
    const int bar = std::max(3, line / 4);
    d->picture->setGeometry(gap + 1, d->button->height() - bar - gap - 1, buttonWidth - 2 * gap - 2, bar);
}

QSize KorColor::sizeHint() const
{
    const QSize box = d->box->sizeHint();
    return {2 * gap + box.height() + box.width() + d->button->widthBeside(box.height()), box.height()};
}

QSize KorColor::minimumSizeHint() const
{
    const QSize box = d->box->minimumSizeHint();
    return {2 * gap + box.height() + box.width() + d->button->widthBeside(box.height()), box.height()};
}

// --- properties

QString KorColor::ToolTipText() const { return d->box->toolTip(); }
void KorColor::setToolTipText(const QString &text) { delegate("ToolTipText", d->box, &QWidget::setToolTip, text); }
