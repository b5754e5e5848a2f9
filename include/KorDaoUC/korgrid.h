// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/database.h>
#include <KorDaoUC/usercontrol.h>

#include <QtCore/QVariant>

#include <cstddef>
#include <memory>

namespace kor {

//! A column as AddColumn() was told of it, under the names of its arguments.
struct ColumnDescription {
    QString col_type = QStringLiteral("TEXT"); //!< TEXT, NUMBER, CLICK, COMBO or DATE; any other word is a text
    QString col_title;                         //!< in row 0
    int col_width = 0;                         //!< twips, by now
    int col_align = 0;                         //!< 0 left, 1 right, 2 centred
    bool col_lock = false;                     //!< the user can't edit it
    QString col_format;                        //!< the mask of numbers
    int col_color = 0;                         //!< of the text, &HBBGGRR
    int col_mlen = 0;                          //!< the most characters typed, 0 for any number
    QString col_sql;                           //!< what fills its list
    QString col_slownik;                       //!< the dictionary of its list
    int col_value = 0;                         //!< the number of its value column, 0 for none
    bool col_wrap = false;                     //!< texts wrap, rows grow
};

//! A cell that cannot be pasted, and what keeps it.
struct RefusedCell {
    //! What keeps a text out of a cell.
    enum class Reason {
        Locked,    //!< the user cannot edit the column
        NoNumber,  //!< in a column of numbers; one that could be read in two ways is none
        NoDate,    //!< in a column of dates
        NotListed, //!< no name of the column's list
        TooLong,   //!< for the column's col_mlen
        LineBreak, //!< in a column that does not wrap
        Outside    //!< behind the last column
    };
    int row = 0;                    //!< of the grid
    int column = 0;                 //!< of the grid
    QString text;                   //!< that was to be pasted
    Reason reason = Reason::Locked; //!< the first that was found
};

} // namespace kor

//! Grid whose cells are edited in place, each column by the entry control of its type: text, number, click field,
//! drop-down list or date.
//!
//! Row 0 holds the titles and column 0 is fixed; data starts at 1. The current cell's editor is laid over it, and every
//! change goes into the cell at once. A column may name another one as its value column, which takes the raw value
//! while the cell shows the formatted text. Columns are described at run time, by AddColumn(), and are not saved.
class KORDAOUC_EXPORT KorGrid final : public kor::UserControl
{
    Q_OBJECT
    Q_PROPERTY(int BackStyle READ BackStyle WRITE setBackStyle)
    Q_PROPERTY(kor::BorderStyleType BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(int Cols READ Cols WRITE setCols)
    Q_PROPERTY(int Rows READ Rows WRITE setRows)
    Q_PROPERTY(int Row READ Row WRITE setRow DESIGNABLE false STORED false)
    Q_PROPERTY(int Col READ Col WRITE setCol DESIGNABLE false STORED false)
    Q_PROPERTY(int RowSel READ RowSel DESIGNABLE false STORED false)
    Q_PROPERTY(int RowHeightMin READ RowHeightMin WRITE setRowHeightMin)
    Q_PROPERTY(bool WordWrap READ WordWrap WRITE setWordWrap)
    Q_PROPERTY(QString Slownik READ Slownik DESIGNABLE false STORED false)

public:
    explicit KorGrid(QWidget *parent = nullptr);
    ~KorGrid() override;

    //! 1 paints the background, 0 lets the form show through. Error 380 for anything else.
    [[nodiscard]] int BackStyle() const;
    void setBackStyle(int style);
    [[nodiscard]] kor::BorderStyleType BorderStyle() const;
    void setBorderStyle(kor::BorderStyleType style);

    //! Columns and rows, the fixed ones included; two of each at first. Error 380 below 1, and above
    //! 131,072 columns or 16,777,216 rows.
    [[nodiscard]] int Cols() const;
    void setCols(int columns);
    //! Rows, that of the titles included.
    [[nodiscard]] int Rows() const;
    void setRows(int rows);
    //! The current cell. Setting it opens the cell's editor, which takes the keyboard only if the grid has it. Nothing
    //! happens when the open editor refuses to be left. Error 380 for a cell that does not exist.
    [[nodiscard]] int Row() const;
    void setRow(int row);
    //! The column of the current cell; as `Row`.
    [[nodiscard]] int Col() const;
    void setCol(int column);
    //! The other end of the selected rows, 0 unless whole rows are selected.
    [[nodiscard]] int RowSel() const;
    //! Twips: the height of rows whose texts don't wrap, and the least of those that do. 285 at first.
    [[nodiscard]] int RowHeightMin() const;
    void setRowHeightMin(int twips);
    //! Whether the texts of all columns wrap and rows grow, whatever AddColumn() said.
    [[nodiscard]] bool WordWrap() const;
    void setWordWrap(bool wraps);

    //! Describes a column and gives its number; the first description takes the column that a fresh grid has.
    //!
    //! col_type is "TEXT", "NUMBER", "CLICK", "COMBO" or "DATE", written exactly so; any other word is a text.
    //! col_width is in twips; a column without a width is locked. col_align is 0 left, 1 right, 2 centred; col_color
    //! colours the text. col_mlen limits what is typed, 0 does not. col_sql fills the drop-down list, whose dictionary
    //! is called col_slownik. col_value is the number of the value column, 0 for none. With col_wrap texts wrap and
    //! rows grow. Error 6 beyond 32,767 columns.
    Q_INVOKABLE int AddColumn(const QString &col_type, const QString &col_title, int col_width, int col_align,
                              bool col_lock = false, const QString &col_format = QStringLiteral("#,##0.00"),
                              int col_color = 0, int col_mlen = 0, const QString &col_sql = QString(),
                              const QString &col_slownik = QString(), int col_value = 0, bool col_wrap = false);

    //! What a column is, for programs that export or print any grid. One that was never described, the fixed one too,
    //! is a text without a format. Error 381 for a column that does not exist. An extension, for hosts that link the
    //! library.
    [[nodiscard]] kor::ColumnDescription columnDescription(int column) const;

    //! The text of a cell, titles included; error 381 for a cell that does not exist.
    [[nodiscard]] Q_INVOKABLE QString TextMatrix(int Row, int Col) const;
    //! Writes a data cell; titles, the fixed column and what lies outside are left alone. In a column with a value
    //! column the text is formatted, its raw value is written too, and the cell becomes the current one.
    Q_INVOKABLE void setTextMatrix(int Row, int Col, const QString &text);
    //! Writes any cell that exists, titles included, as an editor would: just the text.
    Q_INVOKABLE void setTextControl(int Row, int Col, const QString &text);
    //! The value of a data cell by its column's type: a Double, a date, the key of a list's entry, else the text; read
    //! from the value column where there is one. Null for an empty cell, for what is no number or no date in such a
    //! column, and outside the data.
    [[nodiscard]] Q_INVOKABLE QVariant Value(int Row, int Col) const;
    //! Writes a value as its column shows it, and its raw text into the value column. Null empties both. Error 13 for
    //! what is no number or no date in such a column; the cell stays as it was. Outside the data nothing happens.
    Q_INVOKABLE void setValue(int Row, int Col, const QVariant &value);

    // Cells on the clipboard of spreadsheets: a line for each row, tabs between the cells, hidden columns left out.
    // Extensions, for hosts that link the library.

    //! The selected cells, or the current one.
    [[nodiscard]] QString copiedCells() const;
    //! All rows as far as anything stands in them.
    [[nodiscard]] QString allCells() const;
    //! What pasteCells() would refuse. Every cell is judged as if it were typed: nothing is cut or completed to fit.
    [[nodiscard]] QList<kor::RefusedCell> refusedCells(int Row, int Col, const QString &text) const;
    //! Pastes from a cell on to the right and down, with rows added as they are needed. Cells that are refused stay as
    //! they are; each other one raises Change when it becomes another. Nothing happens when the open editor refuses to
    //! be left, or from a cell that is none.
    QList<kor::RefusedCell> pasteCells(int Row, int Col, const QString &text);

    //! The sum of a column's values, in single precision after every step. Null and texts add nothing. Error 6 for more
    //! than 32,767 rows.
    [[nodiscard]] Q_INVOKABLE float SumColumn(int Col) const;
    //! The greatest of a column's values, and never less than 0.
    [[nodiscard]] Q_INVOKABLE float MaxColumn(int Col) const;

    //! Makes a cell the current one, scrolls its row to the top and opens its editor; whether one is open. Kept: the
    //! column stays as it was for a row at or beyond `Cols` - 1.
    Q_INVOKABLE bool SetFocusCell(int Row, int Col);
    //! Adds a row at the end, or as many as it takes until row Row exists. With FocusCol the focus goes to that column
    //! of the last row, which gets the next running number of LpCol, unless that is 0.
    Q_INVOKABLE void AddRow(int Row = 0, int FocusCol = 0, int LpCol = 0);
    //! Removes the rows from StartRow to EndRow, which may be left out for one. The last data row is emptied instead.
    Q_INVOKABLE void DelRow(int StartRow, int EndRow = 0);

    //! Where the lists of COMBO columns come from. The host's; may end before the grid does. Write-only. By its name,
    //! an open connection of the toolkit's Qt SQL will do.
    Q_INVOKABLE void setdatabase(kor::Database *database);
    //! The same for hosts that know it as an object only. Null takes it away; what is no kor::Database is left out.
    Q_INVOKABLE void setdatabase(QObject *database);
    //! The open connection of the toolkit that was added under this name.
    Q_INVOKABLE void setdatabase(const QString &connectionName);
    //! Takes the database away.
    void setdatabase(std::nullptr_t) { setdatabase(static_cast<kor::Database *>(nullptr)); }
    //! The dictionary of the drop-down list that is open over a cell, "" otherwise.
    [[nodiscard]] QString Slownik() const;
    //! Reads the drop-down list anew.
    Q_INVOKABLE void CmbRefresh();

    void initProperties() override;
    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;

Q_SIGNALS:
    //! The button of a CLICK cell asks for the host's chooser.
    void ClickClick(int &Row);
    //! A cell's text was changed through its editor, or the editor writes it otherwise.
    void Change(int &Row, int &Col);
    //! An editor was opened, or the current cell or the selection has changed.
    void SelChange();
    //! A click on the grid, after the cell was gone to.
    void Click();
    void DblClick();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);
    //! A mouse press, with the row that it is on, 0 for the titles.
    void MouseDownRow(int &Button, int &Shift, int &Row);

protected:
    bool focusNextPrevChild(bool next) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
