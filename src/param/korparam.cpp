// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/errorguard.h"
#include "constituents/flexgrid/flexgrid.h"
#include "constituents/focustracker.h"
#include "constituents/keycodes.h"
#include "constituents/twips.h"
#include "frame/settings.h"
#include "param/paramediting.h"
#include "param/paramexample.h"
#include "param/paramrecord.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/korclick.h>
#include <KorDaoUC/korcombo.h>
#include <KorDaoUC/kordate.h>
#include <KorDaoUC/korparam.h>
#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <utility>

using namespace kor;

class Q_DECL_HIDDEN KorParam::Private final : public FocusClient, public ParamEditingHost
{
public:
    explicit Private(KorParam *control)
        : q(control), grid(new FlexGrid(control)), editing(grid, values, *this), example(new ParamExample(grid))
    {
    }

    // --- what the editors ask and tell
    [[nodiscard]] bool mayEdit() const override { return q->UserMode() && q->isEnabled(); }
    void chooserAsked() override;

    // --- what the focus does
    void controlEntered() override;
    void controlLeft() override { editing.session().finish(); }
    [[nodiscard]] QWidget *keeper() override { return editing.session().keeper(); }

    void prepareGrid();
    void connectGrid();
    void leaveCell();
    void enterCell();
    void keyDown(int &code, int &shift);
    void keyPress(int &ascii);
    void mouseDown(int &button, int &shift, float &x, float &y);
    [[nodiscard]] bool hasKeyboard() const;
    bool openEditor();
    [[nodiscard]] int rowOfChoice();
    template <class Body>
    bool updating(Body &&body);
    bool showValue(int row, const QString &clickText);
    void fit();
    void fitRows();

    [[nodiscard]] QString cell(ParamColumn::Code column) const { return grid->TextMatrix(grid->Row(), column); }

    KorParam *q;
    FlexGrid *grid;
    ParamValues values;
    ParamEditing editing;
    ParamExample *example;
    QString parTitle;
    QString valTitle;
    bool isUpdating = false; //!< the program moves the current row: no editor opens
    int chooserRow = 0;      //!< whose chooser the host is at just now, 0 for none

    static const SettingsTable<KorParam> settings;
};

const SettingsTable<KorParam> KorParam::Private::settings = {
    {"BackColor", &KorParam::BackColor, &KorParam::setBackColor, WindowBackground},
    {"BackColorBkg", &KorParam::BackColorBkg, &KorParam::setBackColorBkg, WindowBackground},
    {"ForeColor", &KorParam::ForeColor, &KorParam::setForeColor, WindowText},
    {"Enabled", &KorParam::Enabled, &KorParam::setEnabled, true},
    fontSetting<KorParam>(),
    {"BorderStyle", &KorParam::BorderStyle, &KorParam::setBorderStyle, integer(0)},
    {"ColNameWidth", asInteger(&KorParam::ColNameWidth), &KorParam::setColNameWidth, integer(ParamWidth::Name)},
    {"Rows", asInteger(&KorParam::Rows), &KorParam::setRows, integer(2)},
    {"ColParTitle", &KorParam::ColParTitle, &KorParam::setColParTitle, QStringLiteral("Nazwa parametru")},
    {"ColValTitle", &KorParam::ColValTitle, &KorParam::setColValTitle, QStringLiteral("Wartość")},
    {"EnabledClick", &KorParam::EnabledClick, &KorParam::setEnabledClick, true},
};

KorParam::KorParam(QWidget *parent) : UserControl(parent), d(std::make_unique<Private>(this))
{
    d->grid->setObjectName(QStringLiteral("grid"));
    setMainConstituent(d->grid, WindowBackground, WindowText);
    setFocusClient(d.get());
    d->prepareGrid();
    d->connectGrid();
    initProperties();
}

KorParam::~KorParam() = default;

void KorParam::Private::prepareGrid()
{
    grid->setBorderStyle(BorderStyleType::None);
    grid->setCols(ParamColumn::Count);
    grid->setNameColumn(ParamColumn::Name);
    grid->setColReadOnly(ParamColumn::Name, true);
    fitRows();
    grid->setColFillsNarrow(ParamColumn::Shown, true);
    grid->setColWidth(ParamColumn::Marker, ParamWidth::Marker);
    grid->setColWidth(ParamColumn::Shown, ParamWidth::Value);
    for (int column = ParamColumn::Symbol; column < ParamColumn::Count; ++column) {
        grid->setColWidth(column, 0);
        grid->setTextMatrix(0, column, hiddenTitle(column));
    }
}

void KorParam::initProperties()
{
    int nameWidth = 0;
    Private::settings.toDefault(*this, "ColNameWidth", nameWidth);
    Private::settings.toDefault(*this, "ColParTitle", d->parTitle);
    Private::settings.toDefault(*this, "ColValTitle", d->valTitle);
    d->grid->setColWidth(ParamColumn::Name, nameWidth);
    d->grid->setTextMatrix(0, ParamColumn::Name, d->parTitle);
    d->grid->setTextMatrix(0, ParamColumn::Shown, d->valTitle);
    d->editing.combo()->setBlockUpDown(true);
    d->editing.date()->setBlockUpDown(true);
    d->editing.click()->setBlockUpDown(true);
}

void KorParam::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorParam::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorParam::savedSettings() const { return Private::settings.listed(*this); }

// --- parameters

bool KorParam::AddParam(const QString &nazwa, const QString &Symbol, const QString &ControlType, const QVariant &Value,
                        const QString &ValueType, int TextLength, const QString &FieldName, const QString &ComboSQL,
                        const QString &ComboNullValue, float MinValue, float MaxValue, const QString &ClickText,
                        const QString &Slownik, const QString &NumFormat)
{
    const ParamRecord record{nazwa,    Symbol,         ControlType, ValueType, CInt(TextLength), FieldName,
                             ComboSQL, ComboNullValue, MinValue,    MaxValue,  Slownik,          NumFormat};
    const QPointer<KorParam> self = this;
    d->editing.finishUnasked();
    if (!self)
        return false;
    d->updating([&] {
        int row = d->grid->Rows() - 1;
        if (!d->grid->TextMatrix(row, ParamColumn::Name).isEmpty())
            d->grid->setRows(++row + 1);
        for (const auto &[column, text] : cellsOf(record, Locale::systemDefault()))
            d->grid->setTextMatrix(row, column, text);
        d->values.set(row, Value);
        if (d->grid->setCurrentCell(row, ParamColumn::Shown) && d->showValue(row, ClickText))
            d->grid->setRow(0);
    });
    return false; // Kept: the result was never given a meaning
}

//! Writes the value of a new row as its editor would show it. False when reading its list has ended the control.
bool KorParam::Private::showValue(int row, const QString &clickText)
{
    const QPointer<KorParam> self = q;
    const QString text = editing.written(row, clickText);
    if (!self || row >= grid->Rows())
        return self;
    grid->setTextMatrix(row, ParamColumn::Shown, text);
    if (editing.kindOf(row) != ParamKind::None)
        grid->setCellAlignment(row, ParamColumn::Shown, CellAlignmentType::LeftCenter);
    return true;
}

void KorParam::Clear()
{
    const QPointer<KorParam> self = this;
    d->editing.finishUnasked();
    if (!self)
        return;
    d->grid->Clear(); // Kept: rows and values stay, and the next parameter comes into the last row
}

//! Does something while cells that become current open no editor, and one that is open closes without a word. False
//! when that deleted the control.
template <class Body>
bool KorParam::Private::updating(Body &&body)
{
    const QPointer<KorParam> self = q;
    const bool before = std::exchange(isUpdating, true);
    const auto restore = qScopeGuard([&] {
        if (self)
            isUpdating = before;
    });
    body();
    return self;
}

int KorParam::Row() const { return d->grid->Row(); }

void KorParam::setRow(int row)
{
    if (row < 0 || row >= d->grid->Rows())
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    const QPointer<KorParam> self = this;
    d->editing.hide();
    if (self && row < d->grid->Rows())
        d->updating([&] { d->grid->setRow(row); });
}

int KorParam::Rows() const { return d->grid->Rows(); }
void KorParam::setRows(int rows) { delegate("Rows", d->grid, &FlexGrid::setRows, rows); }

QString KorParam::ParName() const { return d->cell(ParamColumn::Name); }
QString KorParam::ParText() const { return d->cell(ParamColumn::Shown); }
QString KorParam::ParSymbol() const { return d->cell(ParamColumn::Symbol); }
QString KorParam::ParField() const { return d->cell(ParamColumn::FieldName); }
QString KorParam::ParType() const { return d->cell(ParamColumn::ValueType); }

QVariant KorParam::ParValue() const { return d->values.at(d->grid->Row()); }

void KorParam::setParValue(const QVariant &value)
{
    if (!UserMode())
        throw RunTimeError(ErrorNumber::SetNotPermitted);
    const QPointer<KorParam> self = this;
    const int row = d->grid->Row();
    d->values.set(row, value);
    d->editing.valueReplaced(row);
    if (self)
        propertyChanged("ParValue");
}

// --- click fields

void KorParam::Private::chooserAsked()
{
    const QPointer<KorParam> self = q;
    const int row = editing.session().cell().row;
    const bool hadKeyboard = hasKeyboard();
    const int before = std::exchange(chooserRow, row);
    const auto restore = qScopeGuard([&] {
        if (self)
            chooserRow = before;
    });
    Q_EMIT q->ClickClick(q->ParSymbol());
    // A host that looked at other parameters and came back closed the field by that; the user goes on in it.
    const bool isBack = self && hadKeyboard && hasKeyboard() && grid->Row() == row;
    if (isBack && editing.session().state() == CellSession::State::Closed)
        openEditor();
}

QString KorParam::ClickText() const { return d->editing.click()->Text(); }

void KorParam::setClickText(const QString &text)
{
    const QPointer<KorParam> self = this;
    delegate("ClickText", d->editing.click(), &KorClick::setText, text);
    if (!self)
        return;
    if (const int row = d->rowOfChoice())
        d->grid->setTextMatrix(row, ParamColumn::Shown, text);
}

QVariant KorParam::ClickValue() const { return d->editing.click()->Value(); }

void KorParam::setClickValue(const QVariant &value)
{
    const QPointer<KorParam> self = this;
    delegate("ClickValue", d->editing.click(), &KorClick::setValue, value);
    if (!self)
        return;
    if (const int row = d->rowOfChoice())
        d->values.set(row, value);
}

// --- what the grid surface tells

void KorParam::Private::connectGrid()
{
    connect(grid, &FlexGrid::askToLeave, q, [this](bool &stays) { stays = !editing.session().leaveToGoOn(); });
    connect(grid, &FlexGrid::LeaveCell, q, [this] { leaveCell(); });
    connect(grid, &FlexGrid::EnterCell, q, [this] { enterCell(); });
    connect(grid, &FlexGrid::Click, q, &KorParam::Click);
    connect(grid, &FlexGrid::DblClick, q, &KorParam::DblClick);
    connect(grid, &FlexGrid::KeyDown, q, [this](int &code, int &shift) { keyDown(code, shift); });
    connect(grid, &FlexGrid::KeyPress, q, [this](int &ascii) { keyPress(ascii); });
    connect(grid, &FlexGrid::KeyUp, q, &KorParam::KeyUp);
    connect(grid, &FlexGrid::MouseDown, q,
            [this](int &b, int &shift, float &x, float &y) { mouseDown(b, shift, x, y); });
    connect(grid, &FlexGrid::MouseUp, q, &KorParam::MouseUp);
    connect(grid, &CellView::cellsMoved, q, [this] { fit(); });
}

void KorParam::Private::mouseDown(int &button, int &shift, float &x, float &y)
{
    const QPointer<KorParam> self = q;
    const bool isOnCurrent = grid->MouseRow() == grid->Row() && grid->MouseCol() == grid->Col();
    const bool isLeft = button == Qt::LeftButton && !(shift & ShiftState::Shift);
    Q_EMIT q->MouseDown(button, shift, x, y);
    // A press on the current cell moves nothing that would be told of.
    if (self && isLeft && isOnCurrent && !editing.session().isOpen())
        openEditor();
}

void KorParam::Private::leaveCell()
{
    // Where nobody was asked: a program has moved the current row, or removed it.
    if (isUpdating)
        editing.session().abandon();
    else
        editing.finishUnasked();
}

void KorParam::Private::enterCell()
{
    const bool isOneCell = grid->RowSel() == grid->Row() && grid->ColSel() == grid->Col();
    if (!isUpdating && isOneCell)
        openEditor();
}

bool KorParam::Private::openEditor()
{
    return mayEdit() && editing.open(hasKeyboard() ? CellSession::Keyboard::Take : CellSession::Keyboard::Leave);
}

bool KorParam::Private::hasKeyboard() const
{
    const QWidget *focused = q->window()->focusWidget();
    return focused && q->isAncestorOf(focused);
}

//! The parameter that a choice of the host's belongs to: the open click field's, or the one that it was asked to
//! choose for, even if it has looked at others meanwhile; 0 for none.
int KorParam::Private::rowOfChoice()
{
    CellSession &session = editing.session();
    const int row =
        session.editor() && session.editor()->control() == editing.click() ? session.cell().row : chooserRow;
    return row < grid->Rows() && editing.kindOf(row) == ParamKind::Click ? row : 0;
}

// --- keyboard and focus

void KorParam::Private::keyDown(int &code, int &shift)
{
    const QPointer<KorParam> self = q;
    Q_EMIT q->KeyDown(code, shift);
    if (!self)
        return;
    if (code == Key::Home && shift == ShiftState::Ctrl && grid->Col() == ParamColumn::Shown) {
        code = Key::None; // the first value, as from an editor, and not its name
        editing.goTo(std::min(1, grid->Rows() - 1));
    } else if (beginsTyping(code, shift) && editing.typing().begin(code)) {
        code = Key::None;
    }
}

void KorParam::Private::keyPress(int &ascii)
{
    const QPointer<KorParam> self = q;
    Q_EMIT q->KeyPress(ascii);
    if (!self || !isTyped(QChar(static_cast<char16_t>(ascii))))
        return;
    if (editing.typing().type(QString(QChar(static_cast<char16_t>(ascii)))))
        ascii = 0;
}

//! The sheet is one field: whoever comes into it by keyboard is at the value of the current row.
void KorParam::Private::controlEntered()
{
    // A click chooses its cell itself.
    if (!mayEdit() || QGuiApplication::mouseButtons() != Qt::NoButton || editing.session().isOpen())
        return;
    const QPointer<KorParam> self = q;
    const int first = std::min(1, grid->Rows() - 1);
    editing.goTo(std::max(first, grid->Row()));
    if (self && editing.session().state() == CellSession::State::Closed)
        openEditor();
}

bool KorParam::focusNextPrevChild(bool next)
{
    bool stays = false;
    const QPointer<KorParam> self = this;
    guarded(this, [&] { stays = !d->editing.session().leave(); });
    return stays || !self || UserControl::focusNextPrevChild(next);
}

// --- the list of COMBO parameters

void KorParam::setdatabase(Database *database)
{
    d->editing.combo()->setdatabase(database);
    d->editing.database().set(database);
}

void KorParam::setdatabase(QObject *database)
{
    d->editing.combo()->setdatabase(database);
    d->editing.database().setObject(database);
}

void KorParam::setdatabase(const QString &connectionName)
{
    d->editing.combo()->setdatabase(connectionName);
    d->editing.database().setConnection(connectionName);
}

QString KorParam::Slownik() const { return d->editing.dictionary(); }
void KorParam::CmbRefresh() { d->editing.combo()->Refresh(); }

// --- layout

//! Rows are as high as the highest editor, which would lie over the next parameter otherwise.
void KorParam::Private::fitRows()
{
    if (const int height = toTwipsY(grid, editing.editorHeight()).rounded(); height != grid->RowHeightMin())
        grid->setRowHeightMin(height);
}

void KorParam::Private::fit()
{
    fitRows();
    const int room = toTwipsX(grid, grid->viewport()->width()).rounded();
    const int names = toTwipsX(grid, toPixelsX(grid, Twips(grid->ColWidth(ParamColumn::Name)))).rounded();
    if (const int width = valueWidth(room, names); width != grid->ColWidth(ParamColumn::Shown))
        grid->setColWidth(ParamColumn::Shown, width);
    example->place(!q->UserMode());
}

// --- properties

OLE_COLOR KorParam::BackColorBkg() const { return d->grid->BackColorBkg(); }
void KorParam::setBackColorBkg(OLE_COLOR color)
{
    delegate("BackColorBkg", d->grid, &FlexGrid::setBackColorBkg, color);
}

BorderStyleType KorParam::BorderStyle() const { return d->grid->BorderStyle(); }
void KorParam::setBorderStyle(BorderStyleType style)
{
    delegate("BorderStyle", d->grid, &FlexGrid::setBorderStyle, style);
}

int KorParam::ColNameWidth() const { return d->grid->ColWidth(ParamColumn::Name); }

void KorParam::setColNameWidth(int twips)
{
    if (twips < 0)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    d->grid->setColWidth(ParamColumn::Name, twips);
    d->fit();
    propertyChanged("ColNameWidth");
}

QString KorParam::ColParTitle() const { return d->parTitle; }

void KorParam::setColParTitle(const QString &title)
{
    d->parTitle = title;
    d->grid->setTextMatrix(0, ParamColumn::Name, title);
    propertyChanged("ColParTitle");
}

QString KorParam::ColValTitle() const { return d->valTitle; }

void KorParam::setColValTitle(const QString &title)
{
    d->valTitle = title;
    d->grid->setTextMatrix(0, ParamColumn::Shown, title);
    propertyChanged("ColValTitle");
}

bool KorParam::EnabledClick() const { return d->editing.click()->EnabledClick(); }

void KorParam::setEnabledClick(bool enabled)
{
    d->editing.click()->setEnabledClick(enabled);
    d->editing.date()->setEnabledClick(enabled);
    propertyChanged("EnabledClick");
}
