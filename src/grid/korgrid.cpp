// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/errorguard.h"
#include "constituents/flexgrid/flexgrid.h"
#include "constituents/focustracker.h"
#include "constituents/keycodes.h"
#include "frame/settings.h"
#include "grid/gridcells.h"
#include "grid/gridediting.h"
#include "grid/gridkeys.h"
#include "grid/gridlook.h"
#include "grid/gridmoves.h"
#include "grid/gridpaste.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/korcombo.h>
#include <KorDaoUC/korgrid.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <limits>

using namespace kor;

class Q_DECL_HIDDEN KorGrid::Private final : public FocusClient, public GridEditingHost
{
public:
    explicit Private(KorGrid *control)
        : q(control), grid(new FlexGrid(control)), cells(grid), editing(grid, cells, *this), paste(grid, cells)
    {
    }

    // --- what the editors ask and tell
    [[nodiscard]] bool mayEdit() const override { return q->UserMode() && q->isEnabled(); }
    void cellChanged(CellAddress cell) override { Q_EMIT q->Change(cell.row, cell.column); }
    void editorOpened() override;
    void chooserAsked() override;
    void listRead(const QString &source) override { cells.lists().forget(source); }

    // --- what the focus does
    void controlEntered() override;
    [[nodiscard]] bool raisesOnEntry() const override { return true; }
    void controlLeft() override { editing.session().finish(); }
    [[nodiscard]] QWidget *keeper() override { return editing.session().keeper(); }

    void connectGrid();
    void leaveCell();
    void enterCell();
    void keyDown(int &code, int &shift);
    void keyPress(int &ascii);
    void mouseDown(int &button, int &shift, float &x, float &y);
    [[nodiscard]] bool hasKeyboard() const;

    bool openEditor(CellSession::Keyboard keyboard);
    template <class Body>
    bool unseen(Body &&body);
    bool moveUnseen(CellAddress cell);
    void goTo(int row, int column);
    void addRows(int row);
    void showEditor(CellAddress before);
    void focusNewRow(int column, int numberColumn, float number);

    void write(CellAddress cell, const CellTexts &texts);

    KorGrid *q;
    FlexGrid *grid;
    GridCells cells;
    GridEditing editing;
    GridPaste paste;
    QVariant value = null(); //!< saved for older forms; nobody reads it
    bool isBusy = false;     //!< rows are being added: cells that become current open no editor
    bool isEntering = false; //!< the editor of a cell opens that the grid surface itself tells of
    bool isUnseen = false;   //!< the control itself moves the current cell, and tells the host when it is done

    static const SettingsTable<KorGrid> settings;
};

const SettingsTable<KorGrid> KorGrid::Private::settings = {
    {"BackColor", &KorGrid::BackColor, &KorGrid::setBackColor, ButtonFace},
    {"ForeColor", &KorGrid::ForeColor, &KorGrid::setForeColor, ButtonText},
    {"Enabled", &KorGrid::Enabled, &KorGrid::setEnabled, true},
    fontSetting<KorGrid>(),
    {"BackStyle", asInteger(&KorGrid::BackStyle), &KorGrid::setBackStyle, integer(1)},
    {"BorderStyle", &KorGrid::BorderStyle, &KorGrid::setBorderStyle, integer(0)},
    {"Cols", &KorGrid::Cols, &KorGrid::setCols, 2},
    {"Rows", &KorGrid::Rows, &KorGrid::setRows, 2},
    // Kept: the name and the single cell that saved forms have
    {"0TextMatrix", [](const KorGrid &c) { return c.d->grid->Text(); },
     [](KorGrid &c, const QVariant &v) {
         c.setTextControl(std::min(1, c.Rows() - 1), std::min(1, c.Cols() - 1), CStr(v));
     },
     QString()},
    {"Value", [](const KorGrid &c) { return c.d->value; }, [](KorGrid &c, const QVariant &v) { c.d->value = v; },
     QString()},
    {"RowHeightMin", &KorGrid::RowHeightMin, &KorGrid::setRowHeightMin, 285},
    {"WordWrap", &KorGrid::WordWrap, &KorGrid::setWordWrap, false},
};

KorGrid::KorGrid(QWidget *parent) : UserControl(parent), d(std::make_unique<Private>(this))
{
    d->grid->setObjectName(QStringLiteral("grid"));
    setMainConstituent(d->grid, ButtonFace, ButtonText);
    setFocusClient(d.get());
    d->grid->setBorderStyle(BorderStyleType::None);
    d->connectGrid();
    initProperties();
}

KorGrid::~KorGrid() = default;

void KorGrid::initProperties() { d->value = null(); }
void KorGrid::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorGrid::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorGrid::savedSettings() const { return Private::settings.listed(*this); }

// --- columns

int KorGrid::AddColumn(const QString &col_type, const QString &col_title, int col_width, int col_align, bool col_lock,
                       const QString &col_format, int col_color, int col_mlen, const QString &col_sql,
                       const QString &col_slownik, int col_value, bool col_wrap)
{
    const short alignment = CInt(col_align);
    const int number = GridColumns::nextNumber(d->grid->TextMatrix(0, 1), d->grid->Cols());
    d->editing.columnsDescribed(number);
    if (!d->unseen([&] { d->grid->setCols(number + 1); }))
        return number;
    const ColumnType type = columnType(col_type);
    d->grid->setColData(number, static_cast<int>(type));
    GridColumn column;
    column.isLocked = col_lock || col_width < 1;
    column.alignment = alignment;
    column.format = col_format;
    column.color = col_color;
    column.maxLength = col_mlen;
    column.source = col_sql;
    column.dictionary = col_slownik;
    column.valueColumn = col_value;
    column.isWrapped = col_wrap;
    // The look is the column's, so that cells have it from the moment they are written.
    d->grid->setColAlignment(number, cellAlignmentOf(column.alignment));
    d->grid->setColForeColor(number, col_color);
    d->grid->setColWordWrap(number, col_wrap);
    d->grid->setColFillsNarrow(number, type == ColumnType::Number);
    d->cells.describe(number, std::move(column));
    d->grid->setColWidth(number, std::max(col_width, 0));
    d->grid->setTextMatrix(0, number, col_title);
    return number;
}

ColumnDescription KorGrid::columnDescription(int column) const
{
    ColumnDescription told;
    told.col_title = d->grid->TextMatrix(0, column);
    told.col_width = d->grid->ColWidth(column);
    const GridColumn *described = d->cells.columns().find(column);
    if (!described)
        return told;
    told.col_type = keywordOf(d->cells.typeOf(column));
    told.col_align = described->alignment;
    told.col_lock = described->isLocked;
    told.col_format = described->format;
    told.col_color = described->color;
    told.col_mlen = described->maxLength;
    told.col_sql = described->source;
    told.col_slownik = described->dictionary;
    told.col_value = described->valueColumn;
    told.col_wrap = described->isWrapped;
    return told;
}

// --- cells

QString KorGrid::TextMatrix(int Row, int Col) const { return d->grid->TextMatrix(Row, Col); }

void KorGrid::setTextMatrix(int Row, int Col, const QString &text)
{
    const CellAddress cell{Row, Col};
    if (!d->cells.extent().hasDataCell(cell))
        return;
    if (!d->cells.valueColumnOf(Col))
        return setTextControl(Row, Col, text);
    const QPointer<KorGrid> self = this;
    d->grid->setTextMatrix(Row, Col, text);
    if (CellAddress{d->grid->Row(), d->grid->Col()} != cell) {
        d->editing.session().finishUnasked();
        if (!self || !d->moveUnseen(cell))
            return;
        Q_EMIT SelChange();
    }
    if (!self || !d->cells.extent().hasDataCell(cell))
        return;
    const CellTexts texts = d->cells.textsTyped(Col, text); // reading a list lets anything happen
    if (self && d->cells.extent().hasDataCell(cell))
        d->write(cell, texts);
}

void KorGrid::setTextControl(int Row, int Col, const QString &text)
{
    if (Row < 0 || Row >= d->grid->Rows() || Col < 0 || Col >= d->grid->Cols())
        return;
    d->grid->setTextMatrix(Row, Col, text);
    d->editing.cellWritten({Row, Col});
}

void KorGrid::Private::write(CellAddress cell, const CellTexts &texts)
{
    cells.write(cell, texts);
    editing.cellWritten(cell);
}

// --- values

QVariant KorGrid::Value(int Row, int Col) const
{
    const CellAddress cell{Row, Col};
    return d->cells.extent().hasDataCell(cell) ? d->cells.valueAt(cell) : null();
}

void KorGrid::setValue(int Row, int Col, const QVariant &value)
{
    const CellAddress cell{Row, Col};
    const QPointer<KorGrid> self = this;
    const CellTexts texts = d->cells.extent().hasDataCell(cell) ? d->cells.textsOf(Col, value) : CellTexts();
    if (self && d->cells.extent().hasDataCell(cell))
        d->write(cell, texts);
}

// --- cells on the clipboard

QString KorGrid::copiedCells() const { return d->paste.textOf(d->grid->selectedRange()); }
QString KorGrid::allCells() const { return d->paste.textOf({1, 1, d->grid->Rows() - 1, d->grid->Cols() - 1}); }

QList<RefusedCell> KorGrid::refusedCells(int Row, int Col, const QString &text) const
{
    return d->paste.judged({Row, Col}, text).refused;
}

QList<RefusedCell> KorGrid::pasteCells(int Row, int Col, const QString &text)
{
    const QPointer<KorGrid> self = this;
    if (!d->cells.extent().hasDataCell({Row, Col}) || !d->editing.session().leave() || !self)
        return {};
    const GridPaste::Judged judged = d->paste.judged({Row, Col}, text);
    if (!self || (judged.rows > d->grid->Rows() && !d->unseen([&] { d->grid->setRows(judged.rows); })))
        return judged.refused;
    for (const GridPaste::Cell &cell : judged.accepted) {
        if (!d->cells.extent().hasDataCell(cell.place) || d->cells.holds(cell.place, cell.texts))
            continue; // handlers may have taken rows away
        d->write(cell.place, cell.texts);
        if (self)
            d->cellChanged(cell.place);
        if (!self)
            break;
    }
    return judged.refused;
}

float KorGrid::SumColumn(int Col) const { return d->cells.sum(Col); }
float KorGrid::MaxColumn(int Col) const { return d->cells.greatest(Col); }

// --- current cell

int KorGrid::Row() const { return d->grid->Row(); }
void KorGrid::setRow(int row) { d->goTo(row, d->grid->Col()); }
int KorGrid::Col() const { return d->grid->Col(); }
void KorGrid::setCol(int column) { d->goTo(d->grid->Row(), column); }

int KorGrid::RowSel() const { return d->grid->SelectionMode() == SelectionModeType::ByRow ? d->grid->RowSel() : 0; }

void KorGrid::Private::goTo(int row, int column)
{
    const QPointer<KorGrid> self = q;
    if (cells.extent().hasDataCell({row, column}) && !editing.session().leave())
        return;
    if (self)
        grid->setCurrentCell(row, column);
}

//! Moves the current cell without a word, and without an editor. False when that deleted the control.
template <class Body>
bool KorGrid::Private::unseen(Body &&body)
{
    const QPointer<KorGrid> self = q;
    isUnseen = true;
    const auto restore = qScopeGuard([&] {
        if (self)
            isUnseen = false;
    });
    body();
    return self;
}

bool KorGrid::Private::moveUnseen(CellAddress cell)
{
    return unseen([&] { grid->setCurrentCell(cell.row, cell.column); });
}

bool KorGrid::SetFocusCell(int Row, int Col)
{
    const QPointer<KorGrid> self = this;
    if (!d->editing.session().leave() || !self)
        return false;
    CellAddress cell{d->grid->Row(), d->grid->Col()};
    if (Row >= 1 && Row < d->grid->Rows()) {
        cell.row = Row;
        d->grid->setTopRow(Row);
    }
    cell.column = columnOfFocusRequest({Row, Col}, d->grid->Cols()).value_or(cell.column);
    if (!self || !d->moveUnseen(cell))
        return false;
    const bool isOpen = d->openEditor(CellSession::Keyboard::Take);
    if (self && !isOpen)
        Q_EMIT SelChange();
    return isOpen;
}

bool KorGrid::Private::openEditor(CellSession::Keyboard keyboard)
{
    return !isBusy && mayEdit() && editing.open(keyboard);
}

void KorGrid::Private::editorOpened()
{
    // A cell that has just been entered is told of by the grid's own notice, which follows.
    if (!isEntering)
        Q_EMIT q->SelChange();
}

// --- rows

void KorGrid::AddRow(int Row, int FocusCol, int LpCol)
{
    const QPointer<KorGrid> self = this;
    // Without a focus column, whoever types goes on typing.
    const bool isFree = FocusCol < 1 || d->editing.session().leave();
    if (!self)
        return;
    const CellAddress before{d->grid->Row(), d->grid->Col()};
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    float number = 0;
    {
        const QScopedValueRollback busy(d->isBusy, true);
        if (FocusCol > 0 && LpCol > 0)
            number = MaxColumn(LpCol) + 1;
        d->addRows(Row);
    }
    if (!isFree)
        return; // the user is kept where they are
    if (FocusCol > 0) {
        d->focusNewRow(FocusCol, LpCol, number);
    } else {
        d->showEditor(before);
        if (self)
            d->grid->viewport()->update();
    }
}

void KorGrid::Private::addRows(int row)
{
    const int rows = grid->Rows();
    if (row < 1)
        unseen([&] { grid->setRows(rows + 1); });
    else if (row >= rows)
        unseen([&] { grid->setRows(row == std::numeric_limits<int>::max() ? row : row + 1); });
}

//! Shows the current cell's editor, where another one may have been before.
void KorGrid::Private::showEditor(CellAddress before)
{
    if (editing.session().isOpen()) {
        editorOpened();
        return;
    }
    const QPointer<KorGrid> self = q;
    const bool isOpen = openEditor(hasKeyboard() ? CellSession::Keyboard::Take : CellSession::Keyboard::Leave);
    if (self && !isOpen && before != CellAddress{grid->Row(), grid->Col()})
        Q_EMIT q->SelChange();
}

void KorGrid::Private::focusNewRow(int column, int numberColumn, float number)
{
    const int last = grid->Rows() - 1;
    if (!moveUnseen({last, column}))
        return;
    if (numberColumn > 0)
        grid->setTextMatrix(last, column, cells.numberText(number));
    q->SetFocusCell(last, column);
}

void KorGrid::DelRow(int StartRow, int EndRow)
{
    auto range = rowsToDelete(StartRow, EndRow, d->grid->Rows());
    if (!range)
        return;
    const QPointer<KorGrid> self = this;
    const CellAddress before{d->grid->Row(), d->grid->Col()};
    d->editing.rowsRemoved(range->first, range->last);
    if (!self)
        return;
    const bool isAll = range->first == 1 && range->last == d->grid->Rows() - 1;
    if (isAll) { // the last one stays, empty
        for (int column = 0; column < d->grid->Cols(); ++column)
            d->grid->setTextMatrix(1, column, QString());
        ++range->first;
    }
    if (range->first <= range->last &&
        !d->unseen([&] { d->grid->RemoveItem(range->first, range->last - range->first + 1); }))
        return;
    if (d->editing.session().isOpen() && !d->moveUnseen(d->editing.session().cell()))
        return; // an open editor stays with its row
    if (before != CellAddress{d->grid->Row(), d->grid->Col()})
        Q_EMIT SelChange();
}

// --- what the grid surface tells

void KorGrid::Private::connectGrid()
{
    connect(grid, &FlexGrid::askToLeave, q, [this](bool &stays) { stays = !editing.session().leaveToGoOn(); });
    connect(grid, &FlexGrid::LeaveCell, q, [this] { leaveCell(); });
    connect(grid, &FlexGrid::EnterCell, q, [this] { enterCell(); });
    connect(grid, &FlexGrid::SelChange, q, [this] {
        if (!isUnseen)
            Q_EMIT q->SelChange();
    });
    connect(grid, &FlexGrid::Click, q, &KorGrid::Click);
    connect(grid, &FlexGrid::DblClick, q, &KorGrid::DblClick);
    connect(grid, &FlexGrid::KeyDown, q, [this](int &code, int &shift) { keyDown(code, shift); });
    connect(grid, &FlexGrid::KeyPress, q, [this](int &ascii) { keyPress(ascii); });
    connect(grid, &FlexGrid::KeyUp, q, &KorGrid::KeyUp);
    connect(grid, &FlexGrid::MouseDown, q,
            [this](int &b, int &shift, float &x, float &y) { mouseDown(b, shift, x, y); });
    connect(grid, &FlexGrid::MouseMove, q, &KorGrid::MouseMove);
    connect(grid, &FlexGrid::MouseUp, q, &KorGrid::MouseUp);
}

void KorGrid::Private::mouseDown(int &button, int &shift, float &x, float &y)
{
    const QPointer<KorGrid> self = q;
    const CellAddress pressed{grid->MouseRow(), grid->MouseCol()};
    const bool isPlainLeft = button == Qt::LeftButton && shift == ShiftState::None;
    int row = pressed.row < 0 ? grid->Row() : pressed.row;
    Q_EMIT q->MouseDownRow(button, shift, row);
    if (self)
        Q_EMIT q->MouseDown(button, shift, x, y);
    // A press on the current cell moves nothing that would be told of.
    if (self && isPlainLeft && pressed == CellAddress{grid->Row(), grid->Col()} && !editing.session().isOpen())
        openEditor(CellSession::Keyboard::Take);
}

void KorGrid::Private::leaveCell()
{
    // Where nobody was asked: a program has moved the current cell, or removed it.
    if (isUnseen)
        return;
    // Under a message about its value, an editor cannot be finished; what was typed is in the cell as far as that
    // stays.
    if (editing.session().state() == CellSession::State::Leaving)
        editing.session().abandon();
    else
        editing.session().finishUnasked();
}

void KorGrid::Private::enterCell()
{
    const bool isOneCell = grid->RowSel() == grid->Row() && grid->ColSel() == grid->Col();
    if (isBusy || isUnseen || !isOneCell)
        return;
    const QPointer<KorGrid> self = q;
    isEntering = true;
    const auto entered = qScopeGuard([&] {
        if (self)
            isEntering = false;
    });
    openEditor(hasKeyboard() ? CellSession::Keyboard::Take : CellSession::Keyboard::Leave);
}

void KorGrid::Private::chooserAsked()
{
    int row = grid->Row();
    Q_EMIT q->ClickClick(row);
}

bool KorGrid::Private::hasKeyboard() const
{
    const QWidget *focused = q->window()->focusWidget();
    return focused && q->isAncestorOf(focused);
}

// --- keyboard and focus

void KorGrid::Private::keyDown(int &code, int &shift)
{
    const QPointer<KorGrid> self = q;
    Q_EMIT q->KeyDown(code, shift);
    if (!self || !q->UserMode())
        return;
    const bool isStep = code == Key::Enter && (shift == ShiftState::None || shift == ShiftState::Shift);
    // In the last cell Enter goes nowhere, and least of all to the form's default button.
    const bool isUsed =
        isStep ? editing.step(shift == ShiftState::None) || (self && !cells.columns().isLocked(grid->Col()))
               : beginsTyping(code, shift) && editing.typing().begin(code);
    if (isUsed)
        code = Key::None;
}

void KorGrid::Private::keyPress(int &ascii)
{
    const QPointer<KorGrid> self = q;
    Q_EMIT q->KeyPress(ascii);
    if (!self || !q->UserMode() || !isTyped(QChar(static_cast<char16_t>(ascii))))
        return;
    if (editing.typing().type(QString(QChar(static_cast<char16_t>(ascii)))))
        ascii = 0;
}

void KorGrid::Private::controlEntered()
{
    // A click chooses its cell itself.
    if (QGuiApplication::mouseButtons() == Qt::NoButton && !editing.session().isOpen())
        openEditor(CellSession::Keyboard::Take);
}

//! Tab goes from cell to cell, and leaves the grid behind the last one.
bool KorGrid::focusNextPrevChild(bool next)
{
    bool isDone = false;
    const QPointer<KorGrid> self = this;
    // The toolkit asks the same of a grid that was hidden with the keyboard in it.
    const bool isInUse = isVisible() && UserMode() && d->hasKeyboard();
    guarded(this, [&] { isDone = isInUse && d->editing.step(next); });
    return isDone || !self || UserControl::focusNextPrevChild(next);
}

// --- the list of COMBO columns

void KorGrid::setdatabase(Database *database)
{
    d->editing.combo()->setdatabase(database);
    d->cells.lists().database().set(database);
    d->cells.lists().forget();
}

void KorGrid::setdatabase(QObject *database)
{
    d->editing.combo()->setdatabase(database);
    d->cells.lists().database().setObject(database);
    d->cells.lists().forget();
}

void KorGrid::setdatabase(const QString &connectionName)
{
    d->editing.combo()->setdatabase(connectionName);
    d->cells.lists().database().setConnection(connectionName);
    d->cells.lists().forget();
}

QString KorGrid::Slownik() const { return d->editing.dictionary(); }

void KorGrid::CmbRefresh()
{
    d->cells.lists().forget();
    d->editing.rereadList();
}

// --- properties

int KorGrid::BackStyle() const { return isBackTransparent() ? 0 : 1; }

void KorGrid::setBackStyle(int style)
{
    if (style != 0 && style != 1)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    setBackTransparent(style == 0);
    propertyChanged("BackStyle");
}

BorderStyleType KorGrid::BorderStyle() const { return d->grid->BorderStyle(); }
void KorGrid::setBorderStyle(BorderStyleType style)
{
    delegate("BorderStyle", d->grid, &FlexGrid::setBorderStyle, style);
}

int KorGrid::Cols() const { return d->grid->Cols(); }
void KorGrid::setCols(int columns) { delegate("Cols", d->grid, &FlexGrid::setCols, columns); }

int KorGrid::Rows() const { return d->grid->Rows(); }
void KorGrid::setRows(int rows) { delegate("Rows", d->grid, &FlexGrid::setRows, rows); }

int KorGrid::RowHeightMin() const { return d->grid->RowHeightMin(); }
void KorGrid::setRowHeightMin(int twips) { delegate("RowHeightMin", d->grid, &FlexGrid::setRowHeightMin, twips); }

bool KorGrid::WordWrap() const { return d->grid->WordWrap(); }
void KorGrid::setWordWrap(bool wraps) { delegate("WordWrap", d->grid, &FlexGrid::setWordWrap, wraps); }
