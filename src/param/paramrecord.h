// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/locale.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <utility>
#include <vector>

namespace kor {

//! The columns of a sheet, of which the user sees the first three. Row 0 holds their titles, each other row a
//! parameter.
namespace ParamColumn {
enum Code : int {
    Marker = 0,
    Name,
    Shown, //!< the value as its editor writes it
    Symbol,
    ControlType,
    TextLength,
    ValueType,
    FieldName,
    ComboSource,
    ComboNullName,
    MinValue,
    MaxValue,
    Dictionary,
    NumFormat,
    Count
};
} // namespace ParamColumn

//! How a parameter is entered.
enum class ParamKind { None, Text, Number, Date, Combo, Click };

//! What a ControlType says; the codes are written exactly so, and any other word has no editor.
[[nodiscard]] ParamKind paramKind(const QString &controlType);

//! A parameter as the program describes it, without its value.
struct ParamRecord {
    QString name;
    QString symbol;
    QString controlType;
    QString valueType;
    short textLength = 0;
    QString fieldName;
    QString comboSource;
    QString comboNullName;
    float minValue = 0;
    float maxValue = 0;
    QString dictionary;
    QString numFormat;
};

//! The texts of a record by their columns; the shown value is not among them.
[[nodiscard]] std::vector<std::pair<ParamColumn::Code, QString>> cellsOf(const ParamRecord &record,
                                                                         const Locale &locale);
//! The title of a column that the user does not see; "" for the others.
[[nodiscard]] QString hiddenTitle(int column);

//! How a value is shown as a text; nothing at all is "".
[[nodiscard]] QString textShown(const QVariant &value, const Locale &locale);
//! The most characters that may be typed, from the text of its column; 0 for no limit.
[[nodiscard]] int lengthLimit(const QString &text);
//! The mask of numbers whose own one may be empty.
[[nodiscard]] QString numberMask(const QString &numFormat);

//! The widths of the columns in twips.
namespace ParamWidth {
enum Twips : int { Marker = 315, Name = 3000, Value = 2000, LeastValue = 300 };
}
//! How wide the values are in the room beside the markers: what the names leave of it, but never so narrow that nothing
//! can be typed; the sheet scrolls then. In a sheet that is itself narrower a value fills it.
[[nodiscard]] int valueWidth(int room, int nameWidth);

//! The values of the parameters by their rows, as typed values: a number, a date, a key, a text, Null.
class ParamValues
{
public:
    //! Empty where there never was one.
    [[nodiscard]] QVariant at(int row) const;
    void set(int row, const QVariant &value);

private:
    std::vector<QVariant> m_values;
};

} // namespace kor
