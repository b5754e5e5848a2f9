// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/database.h>
#include <KorDaoUC/usercontrol.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QVariant>

#include <cstddef>
#include <memory>

//! Sheet of named parameters, for a report or a query: one row each, with its name on the left and its value on the
//! right, edited in place by the entry control of its kind.
//!
//! The program adds the parameters, lets the user fill them in by going down the values, and reads them back row by
//! row: set `Row`, then ask. Row 0 holds the titles. Every change in an editor is in `ParText` and `ParValue` at once.
//! Parameters are not saved with the form.
class KORDAOUC_EXPORT KorParam final : public kor::UserControl
{
    Q_OBJECT
    Q_PROPERTY(int BackColorBkg READ BackColorBkg WRITE setBackColorBkg)
    Q_PROPERTY(kor::BorderStyleType BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(int ColNameWidth READ ColNameWidth WRITE setColNameWidth)
    Q_PROPERTY(int Rows READ Rows WRITE setRows)
    Q_PROPERTY(QString ParText READ ParText DESIGNABLE false STORED false)
    Q_PROPERTY(QString ParName READ ParName DESIGNABLE false STORED false)
    Q_PROPERTY(QString ParSymbol READ ParSymbol DESIGNABLE false STORED false)
    Q_PROPERTY(QVariant ParValue READ ParValue WRITE setParValue DESIGNABLE false STORED false)
    Q_PROPERTY(QString ParField READ ParField DESIGNABLE false STORED false)
    Q_PROPERTY(QString ParType READ ParType DESIGNABLE false STORED false)
    Q_PROPERTY(QString ClickText READ ClickText WRITE setClickText DESIGNABLE false STORED false)
    Q_PROPERTY(QVariant ClickValue READ ClickValue WRITE setClickValue DESIGNABLE false STORED false)
    Q_PROPERTY(int Row READ Row WRITE setRow DESIGNABLE false STORED false)
    Q_PROPERTY(QString ColParTitle READ ColParTitle WRITE setColParTitle)
    Q_PROPERTY(QString ColValTitle READ ColValTitle WRITE setColValTitle)
    Q_PROPERTY(bool EnabledClick READ EnabledClick WRITE setEnabledClick)
    Q_PROPERTY(QString Slownik READ Slownik DESIGNABLE false STORED false)

public:
    explicit KorParam(QWidget *parent = nullptr);
    ~KorParam() override;

    //! Behind the rows.
    [[nodiscard]] kor::OLE_COLOR BackColorBkg() const;
    void setBackColorBkg(kor::OLE_COLOR color);
    [[nodiscard]] kor::BorderStyleType BorderStyle() const;
    void setBorderStyle(kor::BorderStyleType style);
    //! Twips: the width of the names; the values take the rest. The user may drag it. Error 380 below 0.
    [[nodiscard]] int ColNameWidth() const;
    void setColNameWidth(int twips);
    //! The title over the names.
    [[nodiscard]] QString ColParTitle() const;
    void setColParTitle(const QString &title);
    //! The title over the values.
    [[nodiscard]] QString ColValTitle() const;
    void setColValTitle(const QString &title);
    //! Whether the buttons of click fields and dates work.
    [[nodiscard]] bool EnabledClick() const;
    void setEnabledClick(bool enabled);

    //! Adds a parameter, in the last row if that has no name yet, otherwise below it. The current row is 0 afterwards.
    //! An editor that is open writes back and closes before.
    //!
    //! ControlType is "TEXT", "NUMBER", "DATE", "COMBO" or "CLICK", written exactly so; a row of any other word shows
    //! no value and has no editor. ComboSQL fills the list of a COMBO as its SQL does, ComboNullValue is the name of an
    //! entry for Null, "" for none, and Slownik the list's dictionary. ClickText is what a CLICK shows at first,
    //! NumFormat the mask of a NUMBER ("General Number"), TextLength the most characters typed into a TEXT or NUMBER, 0
    //! for any number. ValueType and FieldName are the program's own, and so are MinValue and MaxValue: no value is
    //! held against them. Error 6 for a TextLength that is no Integer, 13 for a Value that no text stands for. Always
    //! False.
    Q_INVOKABLE bool AddParam(const QString &nazwa, const QString &Symbol, const QString &ControlType,
                              const QVariant &Value = kor::missing(), const QString &ValueType = QString(),
                              int TextLength = 0, const QString &FieldName = QString(),
                              const QString &ComboSQL = QString(), const QString &ComboNullValue = QString(),
                              float MinValue = 0, float MaxValue = 0, const QString &ClickText = QString(),
                              const QString &Slownik = QString(), const QString &NumFormat = QString());
    //! Empties all cells, titles included. Rows and values stay, so the next parameter comes into the last row.
    Q_INVOKABLE void Clear();

    //! Rows, that of the titles included; two at first. Error 380 below 1 and above 16,777,216.
    [[nodiscard]] int Rows() const;
    void setRows(int rows);
    //! The current row, which the members below are about. Setting it closes an open editor; what was typed stands.
    //! Error 380 for a row that does not exist.
    [[nodiscard]] int Row() const;
    void setRow(int row);
    //! The name that is shown; of row 0, its title.
    [[nodiscard]] QString ParName() const;
    //! The value as it is shown.
    [[nodiscard]] QString ParText() const;
    //! The program's own name of the parameter.
    [[nodiscard]] QString ParSymbol() const;
    //! The value: a text, a number, a date, the key of an entry, what the program chose for a click field, or Null; the
    //! marker for a missing argument until it was edited.
    [[nodiscard]] QVariant ParValue() const;
    //! Replaces the value, and leaves the text that is shown. Error 387 at design time.
    void setParValue(const QVariant &value);
    //! The FieldName that the parameter was added with.
    [[nodiscard]] QString ParField() const;
    //! The ValueType, not the ControlType.
    [[nodiscard]] QString ParType() const;

    //! What the click field shows and stands for; to be set in ClickClick.
    [[nodiscard]] QString ClickText() const;
    void setClickText(const QString &text);
    //! What the choice stands for; Null when nothing was chosen.
    [[nodiscard]] QVariant ClickValue() const;
    void setClickValue(const QVariant &value);

    //! Where the lists of COMBO parameters come from. The host's; may end before the sheet does. Write-only. By its
    //! name, an open connection of the toolkit's Qt SQL will do.
    Q_INVOKABLE void setdatabase(kor::Database *database);
    //! The same for hosts that know it as an object only. Null takes it away; what is no kor::Database is left out.
    Q_INVOKABLE void setdatabase(QObject *database);
    //! The open connection of the toolkit that was added under this name.
    Q_INVOKABLE void setdatabase(const QString &connectionName);
    //! Takes the database away.
    void setdatabase(std::nullptr_t) { setdatabase(static_cast<kor::Database *>(nullptr)); }
    //! The dictionary of the drop-down list that is open over a value, "" otherwise.
    [[nodiscard]] QString Slownik() const;
    //! Reads the drop-down list anew.
    Q_INVOKABLE void CmbRefresh();

    void initProperties() override;
    void readProperties(const kor::PropertyBag &bag) override;
    void writeProperties(kor::PropertyBag &bag) const override;
    [[nodiscard]] QList<kor::SavedSetting> savedSettings() const override;

Q_SIGNALS:
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);
    //! A click on the sheet, after the editor of the clicked value was opened.
    void Click();
    void DblClick();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    //! The button of a click field asks for the host's chooser: of the parameter that has this symbol.
    void ClickClick(const QString &Symbol);

protected:
    bool focusNextPrevChild(bool next) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
