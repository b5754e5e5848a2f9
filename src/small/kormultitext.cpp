// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/buttonfield.h"
#include "constituents/enumcheck.h"
#include "constituents/errorguard.h"
#include "constituents/fieldname.h"
#include "constituents/focustracker.h"
#include "constituents/multilinetextbox.h"
#include "constituents/popupplace.h"
#include "constituents/twips.h"
#include "frame/settings.h"
#include "small/frmtext.h"
#include "small/multitextrules.h"

#include <KorDaoUC/kormultitext.h>

#include <QtCore/QPointer>
#include <QtGui/QScreen>

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

using namespace kor;

namespace {

//! Tells when a window around a control is asked to close, before the window itself hears of it.
class CloseWatch final : public QObject
{
public:
    CloseWatch(const QWidget *control, std::function<void()> closing) : m_closing(std::move(closing))
    {
        for (QWidget *around = control->parentWidget(); around; around = around->parentWidget())
            around->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Close) {
            const auto closing = m_closing; // which may end the control, and this with it
            closing();
        }
        return false;
    }

private:
    std::function<void()> m_closing;
};

} // namespace

class Q_DECL_HIDDEN KorMultiText::Private final : public FocusClient
{
public:
    explicit Private(KorMultiText *control) : q(control), field(CommandButton::Sign::Arrow, control) {}

    void open();
    void createPopup();
    void fillPopup();
    void placeAndShowPopup();
    void popupClosed();
    void takeText();
    void takeBack();
    void showToEditor(const QString &text);
    void boxEntered(QWidget *entered, FocusEntry) override;
    std::optional<Complaint> boxLeft(QWidget *left) override;

    KorMultiText *q;
    const ButtonField field;
    TextBox *const box = field.box;
    CommandButton *const button = field.button;
    frmText *popup = nullptr;               //!< created at the first opening, then kept
    bool isTextAway = false;                //!< the editor has the text, and the field takes it back at its next focus
    std::optional<QString> handedOut;       //!< what a command has had of the open editor
    std::unique_ptr<CloseWatch> closeWatch; //!< since the last opening
    OpenDirectionType direction{};
    int openLines = 0;
    bool dirty = false;

    static const SettingsTable<KorMultiText> settings;
};

const SettingsTable<KorMultiText> KorMultiText::Private::settings = {
    {"BackColor", &KorMultiText::BackColor, &KorMultiText::setBackColor, WindowBackground},
    {"ForeColor", &KorMultiText::ForeColor, &KorMultiText::setForeColor, WindowText},
    {"Enabled", &KorMultiText::Enabled, &KorMultiText::setEnabled, true},
    fontSetting<KorMultiText>(),
    {"BorderStyle", &KorMultiText::BorderStyle, &KorMultiText::setBorderStyle, integer(1)},
    {"Alignment", &KorMultiText::Alignment, &KorMultiText::setAlignment, integer(0)},
    {"OpenDrection", &KorMultiText::OpenDrection, &KorMultiText::setOpenDrection, integer(1)},
    {"EnabledClick", &KorMultiText::EnabledClick, &KorMultiText::setEnabledClick, true},
    {"Text", &KorMultiText::Text, &KorMultiText::setText, QString()},
    {"MaxLength", &KorMultiText::MaxLength, &KorMultiText::setMaxLength, 0},
    {"OpenLines", asInteger(&KorMultiText::OpenLines), &KorMultiText::setOpenLines, integer(5)},
    // Last, so that the text that is loaded does not set it
    {"DataChanged", &KorMultiText::DataChanged, &KorMultiText::setDataChanged, false},
};

KorMultiText::KorMultiText(QWidget *parent) : UserControl(parent), d(std::make_unique<Private>(this))
{
    d->box->setObjectName(QStringLiteral("txtText"));
    d->button->setObjectName(QStringLiteral("cmdClick"));
    d->button->setAccessibleName(QStringLiteral("Edytor tekstu"));
    setMainConstituent(d->box);
    setFocusClient(d.get());

    connect(d->box, &TextBox::Change, this, [this] {
        d->dirty = true;
        Q_EMIT Change();
    });
    connect(d->button, &CommandButton::Click, this, [this] { d->open(); });
    connect(d->box, &TextBox::DblClick, this, &KorMultiText::DblClick);
    connect(d->box, &TextBox::KeyDown, this, &KorMultiText::KeyDown);
    connect(d->box, &TextBox::KeyPress, this, &KorMultiText::KeyPress);
    connect(d->box, &TextBox::KeyUp, this, &KorMultiText::KeyUp);
    connect(d->box, &TextBox::MouseDown, this, &KorMultiText::MouseDown);
    connect(d->box, &TextBox::MouseMove, this, &KorMultiText::MouseMove);
    connect(d->box, &TextBox::MouseUp, this, &KorMultiText::MouseUp);
    initProperties();
}

KorMultiText::~KorMultiText() = default;

void KorMultiText::initProperties()
{
    Private::settings.toDefault(*this, "OpenDrection", d->direction);
    Private::settings.toDefault(*this, "OpenLines", d->openLines);
    Private::settings.toDefault(*this, "DataChanged", d->dirty);
}

void KorMultiText::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorMultiText::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorMultiText::savedSettings() const { return Private::settings.listed(*this); }

// --- value and text

QString KorMultiText::Text() const { return d->box->text(); }

void KorMultiText::setText(const QString &text)
{
    const QPointer<KorMultiText> self = this;
    delegate("Text", d->box, &TextBox::setProgramText, text);
    if (self)
        d->showToEditor(text);
}

bool KorMultiText::DataChanged() const { return d->dirty; }

void KorMultiText::setDataChanged(bool changed)
{
    d->dirty = changed;
    propertyChanged("DataChanged");
}

// --- focus

void KorMultiText::Private::boxEntered(QWidget *entered, FocusEntry)
{
    // A command that is done leaves the user in the open editor.
    const bool isInEditor = popup && popup->isVisible() && !box->hasFocus();
    if (entered == box && !isInEditor)
        takeBack();
}

//! A command reads the field while its editor is open: it meets what was typed there, and the user types on.
std::optional<Complaint> KorMultiText::Private::boxLeft(QWidget *)
{
    if (!isTextAway)
        return std::nullopt;
    const QPointer<KorMultiText> self = q;
    takeText();
    if (self && isTextAway)
        handedOut = popup->txtMulti()->Text();
    return std::nullopt;
}

// --- the editor

void KorMultiText::Private::open()
{
    if (!q->UserMode())
        return;
    if (popup && popup->isVisible()) { // pressed by other means than the mouse, which only gets to the editor
        popup->dismiss();
        return;
    }
    if (!popup)
        createPopup();
    // Whether there is something to be saved is asked while the window closes, and the text must be in its field by
    // then.
    closeWatch = std::make_unique<CloseWatch>(q, [this] { guarded(q, [this] { takeBack(); }); });
    fillPopup();
    placeAndShowPopup();
}

void KorMultiText::Private::createPopup()
{
    popup = new frmText(q, box);
    const auto width = static_cast<float>(toTwipsX(q, q->width()).count());
    const auto lineHeight = static_cast<float>(toTwipsY(box, box->height()).count());
    popup->setProperty("ParentWidth", width);
    popup->setProperty("WindowHeight", static_cast<float>(openLines) * lineHeight);
    // Kept: size and limit are those of the first opening; hosts that set them later have always met the old ones
    popup->txtMulti()->setMaxLength(box->MaxLength());
    popup->load();
    popup->setParentControl(q);
    connect(popup, &frmText::Closed, q, [this] { popupClosed(); });
}

void KorMultiText::Private::fillPopup()
{
    MultiLineTextBox *text = popup->txtMulti();
    text->setFont(box->font());
    text->setPalette(box->palette());
    text->setAccessibleName(fieldName(box));
    text->setProgramText(box->text());
    text->setSelStart(box->SelStart());
    text->setSelLength(box->SelLength());
    isTextAway = true;
    handedOut.reset();
}

//! What a command writes after it has read all that the user typed is shown in the editor too, or the field would get
//! the former record's text when the editor closes.
void KorMultiText::Private::showToEditor(const QString &text)
{
    if (isTextAway && handedOut == popup->txtMulti()->Text() && handedOut != text)
        fillPopup();
}

void KorMultiText::Private::placeAndShowPopup()
{
    const QRect screen = popup->controlScreen().geometry();
    const QRect wanted(placeTextPopup(popup->controlPlace(), popup->size(), screen), popup->size());
    popup->setGeometry(ontoScreen(wanted, screen));
    popup->show();
    popup->txtMulti()->setFocus(Qt::PopupFocusReason);
}

void KorMultiText::Private::popupClosed()
{
    if (isTextAway && box->isVisible() && box->isEnabled() && q->isActiveWindow())
        FocusTracker::instance().putBack(box);
    else
        takeBack(); // the user is in another window by now, and the text must not be lost
}

void KorMultiText::Private::takeText()
{
    const QPointer<KorMultiText> self = q;
    const QString text = popup->txtMulti()->Text();
    const int start = popup->txtMulti()->SelStart();
    const int length = popup->txtMulti()->SelLength();
    const auto show = [&](const QString &shown) {
        box->setProgramText(shown);
        if (!self)
            return;
        box->setSelStart(start);
        box->setSelLength(length);
    };
    show(text);
    if (self && box->text().endsWith(u'\t'))
        show(box->text().chopped(1));
}

void KorMultiText::Private::takeBack()
{
    if (!std::exchange(isTextAway, false))
        return;
    const QPointer<KorMultiText> self = q;
    takeText();
    if (self)
        popup->hide();
}

// --- layout

void KorMultiText::layoutConstituents() { d->field.layout(*this); }
QSize KorMultiText::sizeHint() const { return d->field.sizeHint(); }
QSize KorMultiText::minimumSizeHint() const { return d->field.minimumSizeHint(); }

// --- properties

BorderStyleType KorMultiText::BorderStyle() const { return d->field.frame->BorderStyle(); }

void KorMultiText::setBorderStyle(BorderStyleType style)
{
    d->field.frame->setBorderStyle(style);
    layoutConstituents();
    propertyChanged("BorderStyle");
}

AlignmentType KorMultiText::Alignment() const { return d->box->Alignment(); }
void KorMultiText::setAlignment(AlignmentType side) { delegate("Alignment", d->box, &TextBox::setAlignment, side); }

OpenDirectionType KorMultiText::OpenDrection() const { return d->direction; }

void KorMultiText::setOpenDrection(OpenDirectionType direction)
{
    requireMember(direction);
    d->direction = direction;
    propertyChanged("OpenDrection");
}

bool KorMultiText::EnabledClick() const { return d->button->isEnabledTo(d->field.frame); }
void KorMultiText::setEnabledClick(bool enabled) { delegate("EnabledClick", d->button, &QWidget::setEnabled, enabled); }

int KorMultiText::MaxLength() const { return d->box->MaxLength(); }
void KorMultiText::setMaxLength(int length) { delegate("MaxLength", d->box, &TextBox::setMaxLength, length); }

int KorMultiText::OpenLines() const { return d->openLines; }

void KorMultiText::setOpenLines(int lines)
{
    if (lines < 0)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    if (lines > std::numeric_limits<short>::max())
        throw RunTimeError(ErrorNumber::Overflow);
    d->openLines = lines;
    propertyChanged("OpenLines");
}
