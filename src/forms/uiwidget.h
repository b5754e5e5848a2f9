// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/uikind.h"
#include "forms/uixml.h"

#include <KorDaoUC/uifile.h>

#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtCore/QStringList>

#include <optional>

namespace kor {

//! The name of the property in which a widget of a .ui file keeps what it has no property for.
inline constexpr QLatin1String keptLinesProperty("korSettings");
//! What the keys of a form file begin with that are kept for a .ui file: ui.property.styleSheet.
inline constexpr QLatin1String keptPrefix("ui.");

//! One widget of a .ui file, in the terms of the block of a form file that it is.
struct UiWidget {
    //! A setting for which the widget has a property.
    struct Value {
        QString key;
        UiElement element;
    };
    //! What only .ui files know, under the key that holds it in a form file.
    struct Kept {
        QString key;
        QString text;
        int line = 0;
    };

    QString className{};
    QString name{};
    std::optional<QRect> place{};
    std::vector<Value> values{};
    QList<Kept> kept{};
    QStringList lines{}; //!< in the notation of form files
    //! Whether the place in the order of Tab is told by the form's tab stops, and which it is; else a line tells it.
    bool isInTabOrder = false;
    std::optional<int> tabIndex{};
    int line = 0;
    int keptLine = 0; //!< where the lines are
};

//! What both ways need to know.
struct UiTerms {
    const UiKinds &kinds;
    double dotsPerInch = 96;

    //! The kind of a block, made up where nobody knows it: a widget of the class behind "ui.", or a plain one.
    [[nodiscard]] UiKind kindOf(const QString &type, bool isForm = false) const;
    //! The type of block that a class is, and its kind.
    [[nodiscard]] QString typeOf(const QString &className) const;
};

//! What the form around a widget tells of it.
struct UiSurroundings {
    bool isInLayout = false;   //!< which places it
    bool hasLayout = true;     //!< a layout that the block keeps holds its controls, in their order
    bool isInTabOrder = false; //!< which numbers it
    std::optional<int> tabIndex{};
};

//! The widget of a block, without those inside it.
[[nodiscard]] UiWidget toUiWidget(const FormBlock &block, const UiKind &kind, const UiTerms &terms,
                                  const UiSurroundings &around);
//! What a .ui file keeps of the block, but makes nothing of.
[[nodiscard]] QList<UiFile::Remark> uiRemarks(const FormBlock &block, const UiKind &kind);

//! The block of a widget, without those inside it.
[[nodiscard]] FormBlock toBlock(const UiWidget &widget, const UiTerms &terms, QList<UiFile::Remark> &remarks,
                                bool isForm = false);

//! The TabIndex that one of the widget's own lines tells.
[[nodiscard]] std::optional<int> tabIndexInLines(const UiWidget &widget);
[[nodiscard]] std::optional<int> tabIndexOf(const PropertyBag &settings);

} // namespace kor
