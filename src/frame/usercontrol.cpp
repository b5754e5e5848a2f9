// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/errorguard.h"
#include "constituents/fieldcolors.h"
#include "constituents/focustracker.h"
#include "frame/accessiblecontrol.h"

#include <KorDaoUC/usercontrol.h>

#include <QtCore/QEvent>
#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtWidgets/QApplication>

namespace kor {

namespace {
constexpr char userModeName[] = "UserMode";
}

class Q_DECL_HIDDEN UserControl::Private
{
public:
    QPointer<QWidget> main;
    FieldColors colors;
};

UserControl::UserControl(QWidget *parent) : LateBoundWidget(parent), d(std::make_unique<Private>())
{
    makeControlsAccessible();
}

UserControl::~UserControl()
{
    FocusTracker::instance().removeClient(this);
    // Its constituents outlive what it is made of: one that loses the focus by ending would still tell of that.
    for (const QObject *constituent : findChildren<QObject *>())
        constituent->disconnect(this);
}

void UserControl::setFocusClient(FocusClient *client) { FocusTracker::instance().addClient(this, client); }

void UserControl::setMainConstituent(QWidget *constituent)
{
    d->main = constituent;
    setFocusProxy(constituent);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(constituent->sizePolicy()); // a layout treats it as what it is: a line, a list
}

void UserControl::setMainConstituent(QWidget *constituent, OLE_COLOR back, OLE_COLOR fore)
{
    setMainConstituent(constituent);
    d->colors.back = back;
    d->colors.fore = fore;
    d->colors.applyTo(constituent, palette());
}

QWidget *UserControl::mainConstituent() const { return d->main; }

bool UserControl::isBackTransparent() const { return d->colors.isBackTransparent; }

void UserControl::setBackTransparent(bool transparent)
{
    d->colors.isBackTransparent = transparent;
    d->colors.applyTo(d->main, palette());
}

OLE_COLOR UserControl::BackColor() const { return d->colors.back; }

void UserControl::setBackColor(OLE_COLOR color)
{
    d->colors.back = color;
    d->colors.applyTo(d->main, palette());
    propertyChanged("BackColor");
}

OLE_COLOR UserControl::ForeColor() const { return d->colors.fore; }

void UserControl::setForeColor(OLE_COLOR color)
{
    d->colors.fore = color;
    d->colors.applyTo(d->main, palette());
    propertyChanged("ForeColor");
}

bool UserControl::Enabled() const { return isEnabledTo(parentWidget()); }

void UserControl::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled);
    propertyChanged("Enabled");
}

QFont UserControl::Font() const { return d->main->font(); }

void UserControl::setFont(const QFont &font)
{
    d->main->setFont(font);
    propertyChanged("Font");
}

bool UserControl::usesAmbientFont() const { return !d->main->testAttribute(Qt::WA_SetFont); }
void UserControl::useAmbientFont() { d->main->setFont(QFont()); }

// At once, since a program calls it to show something while it goes on working.
void UserControl::Refresh() { repaint(); }

int UserControl::mainWindowHandle() const
{
    const QWidget *place = d->main;
    while (!place->internalWinId() && !place->isWindow())
        place = place->parentWidget();
    return static_cast<int>(place->winId()); // which a form that was not shown yet gets by being asked
}

bool UserControl::UserMode() const
{
    for (const QWidget *place = parentWidget(); place; place = place->parentWidget()) {
        if (const QVariant mode = place->property(userModeName); mode.isValid())
            return mode.value<bool>();
    }
    return true;
}

void UserControl::setUserMode(QWidget *form, bool userMode) { form->setProperty(userModeName, userMode); }

QFont UserControl::ambientFont() const { return parentWidget() ? parentWidget()->font() : QApplication::font(this); }

QSize UserControl::givenSize() const { return size(); }

QList<SavedSetting> UserControl::savedSettings() const { return {}; }

QSize UserControl::sizeHint() const { return d->main ? d->main->sizeHint() : QWidget::sizeHint(); }

QSize UserControl::minimumSizeHint() const { return d->main ? d->main->minimumSizeHint() : QWidget::minimumSizeHint(); }

void UserControl::propertyChanged(const char *name)
{
    // Mostly nobody listens, and a form sets many properties while it is read.
    static const QMetaMethod signal = QMetaMethod::fromSignal(&UserControl::PropertyChanged);
    if (isSignalConnected(signal))
        Q_EMIT PropertyChanged(QString::fromLatin1(name));
}

void UserControl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange: // system colours are those of the theme
        if (d->main)
            d->colors.applyTo(d->main, palette());
        break;
    case QEvent::FontChange: // buttons are as wide as their texts, borders as the style's
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange: guarded(this, [this] { layoutConstituents(); }); break;
    default: break;
    }
}

void UserControl::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    guarded(this, [this] { layoutConstituents(); });
}

void UserControl::layoutConstituents()
{
    if (d->main)
        d->main->setGeometry(rect());
}

} // namespace kor
