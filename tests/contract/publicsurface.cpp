// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "contract/publicsurface.h"

#include <array>

namespace kor::test {

namespace {

struct Row {
    const char *control;
    const char *members;
    const char *events;
    const char *userProperty;
};

constexpr std::array rows{
    Row{"KorNumber",
        "BackColor ForeColor Enabled Font Refresh Locked DataChanged Value hWnd Text MaxLength WhatsThisHelpID "
        "BorderStyle Alignment MaskPicture MaxValue MinValue CheckRange Appearance BlockChange ToolTipText",
        "Change MouseDown MouseMove MouseUp Click DblClick KeyDown KeyPress KeyUp", "Value"},
    Row{"KorDate",
        "BackColor ForeColor Enabled Font BorderStyle Refresh Text Value WhatsThisHelpID Locked DataChanged "
        "CurrentDate BlockUpDown Appearance EnabledClick FormatMask ToolTipText",
        "Change Click DblClick KeyDown KeyPress KeyUp MouseDown MouseMove MouseUp", "Value"},
    Row{"KorCombo",
        "ListIndex database HasValues SQL NullString Slownik DataChanged CanBeNull Value Text AddEntry Refresh "
        "BackColor ForeColor Font Clear Exists ToolTipText Enabled BlockUpDown ListCount BlockClick",
        "Click KeyDown Refreshed", "Value"},
    Row{"KorClick",
        "BackColor ForeColor Enabled Font BorderStyle Refresh Appearance Value BlockUpDown DataChanged Text Locked "
        "SelLength SelText SelStart hWnd MaxLength EnabledClick ToolButText",
        "Change CmdLostFocus Click DblClick KeyDown KeyPress KeyUp MouseDown MouseMove MouseUp", "Value"},
    Row{"KorList",
        "ListIndex database HasValues SQL NullString Slownik DataChanged CanBeNull Value Text AddEntry Refresh "
        "ForeColor Enabled Font Clear Exists BackColor Appearance BorderStyle hWnd ListCount BlockUpDown BlockClick "
        "ToolTipText",
        "Click DblClick KeyDown MouseDown MouseUp Refreshed", "Value"},
    Row{"KorListCheck",
        "database HasValues SQL NullString Slownik DataChanged CanBeNull Value Text AddEntry Refresh ForeColor "
        "Enabled Font Clear Exists BackColor Appearance BorderStyle hWnd ListCount BlockUpDown BlockClick ToolTipText "
        "ListIndex ValueChecked Separator TextChecked Selected SelCount",
        "Click DblClick KeyDown ItemCheck Refreshed MouseDown MouseMove MouseUp", "Value"},
    Row{"KorColor", "BackColor ForeColor Enabled Font Refresh Value ToolTipText",
        "Click KeyDown KeyPress KeyUp MouseDown MouseMove MouseUp", "Value"},
    Row{"KorUpDown",
        "BackColor ForeColor Enabled Font BackStyle BorderStyle Refresh Text Value Max MaxLength Min Increment",
        "Change Click KeyDown KeyPress KeyUp MouseDown MouseMove MouseUp", "Value"},
    Row{"KorParam",
        "BackColor BackColorBkg ForeColor Enabled Font BorderStyle Refresh database ColNameWidth AddParam Rows "
        "ParText ParName ParSymbol ParValue ParField ParType ClickText ClickValue Row ColParTitle ColValTitle Clear "
        "EnabledClick Slownik CmbRefresh",
        "MouseDown MouseUp Click DblClick KeyDown KeyPress KeyUp ClickClick", ""},
    Row{"KorMultiText",
        "BackColor ForeColor Enabled Font BorderStyle Refresh Alignment OpenDrection EnabledClick Text MaxLength "
        "OpenLines DataChanged",
        "DblClick KeyDown KeyPress KeyUp MouseDown MouseMove MouseUp Change", "Text"},
    Row{"KorGrid",
        "BackColor ForeColor Enabled Font BackStyle BorderStyle Refresh AddColumn AddRow DelRow Cols Rows TextMatrix "
        "TextControl Value SumColumn MaxColumn SetFocusCell database Row Col RowHeightMin RowSel Slownik CmbRefresh "
        "WordWrap",
        "ClickClick Change SelChange Click DblClick KeyDown KeyPress KeyUp MouseDown MouseMove MouseUp MouseDownRow",
        ""},
};

QStringList words(const char *text) { return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts); }

} // namespace

PublicSurface publicSurface(const QString &control)
{
    for (const Row &row : rows) {
        if (control == QLatin1String(row.control))
            return {control, words(row.members), words(row.events), QString::fromLatin1(row.userProperty)};
    }
    return {};
}

QString argumentsOf(const QString &event, const QString &control)
{
    if (event == u"KeyDown" || event == u"KeyUp")
        return QStringLiteral("int&,int&");
    if (event == u"KeyPress")
        return QStringLiteral("int&");
    if (event == u"MouseDown" || event == u"MouseMove" || event == u"MouseUp")
        return QStringLiteral("int&,int&,float&,float&");
    if (event == u"ItemCheck" || (event == u"ClickClick" && control == u"KorGrid"))
        return QStringLiteral("int&");
    if (event == u"ClickClick")
        return QStringLiteral("QString");
    if (event == u"MouseDownRow")
        return QStringLiteral("int&,int&,int&");
    if (event == u"Change" && control == u"KorGrid")
        return QStringLiteral("int&,int&");
    return {};
}

} // namespace kor::test
