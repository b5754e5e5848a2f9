// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArrayList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

namespace kor {

//! What a field is, how it shows a member's value and what it writes.
enum class FieldKind {
    Text,        //!< a text box: the text of the value
    CheckBit,    //!< a check box: the lowest bit of a Boolean or a number; writes a Boolean
    CheckTruth,  //!< the value as a Boolean; writes a Boolean
    CheckState,  //!< the value as a Boolean; writes an Integer, 1 or 0
    CheckNumber, //!< the number that the value, or its text, begins with; writes an Integer, 1 or 0
    List,        //!< a drop-down list: the index of an entry
    Color,       //!< a button: a colour, of the system or another
    Font,        //!< a button: a font
    Button,      //!< no value; a button on a line of its own
    SideButton,  //!< a small button behind the field before it
};

//! A line of a page's table.
struct FieldRow {
    enum class Marks { Yes, No };

    FieldKind kind;
    const char *name;
    const char *member = nullptr;
    QString caption = {};        //!< of the label before the field, or on the field itself
    const char *label = nullptr; //!< the label's name
    QStringList entries = {};
    Marks marks = Marks::Yes; //!< whether an edit marks the page changed
    const char *frame = nullptr;
};

//! Where fields lie together under a title.
struct FrameRow {
    const char *name;
    QString title;
};

//! A page: its fields in the order in which they stand and are walked through by Tab, and the orders in which their
//! members are read and written. A field may be written more than once.
struct PageTable {
    const char *name;
    QString caption;
    std::vector<FieldRow> fields;
    QByteArrayList reads;
    QByteArrayList writes;           //!< to the first selected control
    QByteArrayList writesToAll = {}; //!< then to every one, the first included
    std::vector<FrameRow> frames = {};
};

} // namespace kor
