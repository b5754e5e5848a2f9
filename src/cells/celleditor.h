// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/usercontrol.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

#include <functional>
#include <optional>

namespace kor {

//! Where the entries of a drop-down list come from.
struct CellList {
    QString source;                  //!< as the drop-down list's SQL
    QString dictionary;              //!< its Slownik
    std::optional<QString> nullName; //!< what its null entry is called, where it has one
};

//! How an editor is set up for a cell. What is not said stays as it was; an editor takes what it knows of.
struct CellSetup {
    std::optional<int> maxLength;
    std::optional<QString> mask;
    std::optional<CellList> list;
};

//! What an editor is filled from: the value where there is one, else the text that the cell shows.
struct CellContents {
    QString text;
    std::optional<QVariant> value;
};

//! An entry control that is laid over the cells of a composite, as the composite sees it; one kind of control, one
//! adapter. Setting up and filling raise nothing: what the composite hears of comes from the user, or from a program
//! that writes into the control.
class CellEditor : public QObject
{
    Q_OBJECT

public:
    //! The control: a hidden child of the composite's surface until a cell is edited.
    [[nodiscard]] QWidget *control() const { return m_control; }
    //! What takes the keys.
    [[nodiscard]] QWidget *box() const;

    //! What a screen reader says is edited, and where, if the name does not say it.
    void setName(const QString &name, const QString &place = {});
    //! A database that is asked for the list may wait, and let anything happen meanwhile. False when the editor has
    //! ended since, or was set up anew: what came later holds, and whoever asked first leaves the editor alone.
    [[nodiscard]] bool setUp(const CellSetup &setup);
    void fill(const CellContents &contents);
    //! Whether it is being set up, filled or read anew just now, so that what it shows is nothing to go by.
    [[nodiscard]] bool isBeingPrepared() const { return m_isSilent; }
    //! Takes what was typed over as leaving the control would, without a word; for an end that nobody is asked about.
    //! What stands for nothing becomes Null and stays as text.
    virtual void complete() {}
    //! Reads anew what the editor draws on, without a word. What it shows stays where that is still to be had; else it
    //! shows nothing, and nobody has changed anything.
    virtual void reread() {}

    [[nodiscard]] virtual QString text() const = 0;
    //! Null where there is none.
    [[nodiscard]] virtual QVariant value() const = 0;
    //! Whether the control is as high as its font makes it, in a cell of any height.
    [[nodiscard]] virtual bool hasOwnHeight() const { return false; }
    //! Whether the user moves inside the editor with this arrow key, pressed as things stand.
    [[nodiscard]] virtual bool hasUseFor(int arrowKey) const = 0;

Q_SIGNALS:
    //! Text or value may have changed.
    void Changed();
    //! A key was pressed; 0 for the code swallows it.
    void KeyDown(int &KeyCode, int &Shift);
    //! What it draws on was read anew, by the host or by the key for that.
    void Reread();
    //! The host is to offer its chooser.
    void ChooserAsked();

protected:
    explicit CellEditor(QWidget *control);

    virtual void applySetup(const CellSetup &setup) = 0;
    virtual void applyContents(const CellContents &contents) = 0;
    //! Does something to the control that its host is not to hear of. False when it was overtaken by something of the
    //! kind that was begun later and is done already.
    bool silently(const std::function<void()> &act);
    //! What an adapter connects to its control's own Change.
    void controlChanged();

private:
    QPointer<QWidget> m_control;
    bool m_isSilent = false;
    int m_silences = 0; //!< so far
};

} // namespace kor
