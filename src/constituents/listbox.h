// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/entrybox.h"
#include "constituents/heldevents.h"
#include "constituents/typedname.h"

#include <KorDaoUC/enumerations.h>

#include <QtCore/QBasicTimer>
#include <QtWidgets/QListView>

namespace kor {

class EntryModel;

//! The list of the controls, with one entry selected or none, and the classic order of events.
//!
//! No entry is selected until the user or the program selects one; the focus selects none, and the wheel only scrolls.
//! Keys are offered as KeyDown before they act; the handlers may swallow them with 0 or turn them into others. A mouse
//! selects as soon as it is pressed and follows while it is held down, and Click comes after MouseUp. All entries are
//! equally high and never wider than the list, so that their number does not matter.
class ListBox : public QListView, public EntryBox
{
    Q_OBJECT

public:
    explicit ListBox(QWidget *parent);

    [[nodiscard]] int ListIndex() const override { return currentIndex().row(); }
    void setListIndex(int index) override;
    [[nodiscard]] int ListCount() const override;
    [[nodiscard]] QString List(int index) const override;
    [[nodiscard]] int indexOf(const QString &name) const override;
    void AddItem(const QString &name) override;
    void AddItems(QStringList names) override;
    void Clear() override;

    [[nodiscard]] AppearanceType Appearance() const;
    void setAppearance(AppearanceType appearance);

    [[nodiscard]] int rowHeight() const;
    //! The height that shows whole entries only, as many as fit, but at least one.
    [[nodiscard]] int heightOfWholeRows(int height) const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QAbstractItemDelegate *itemDelegateForIndex(const QModelIndex &index) const override;

Q_SIGNALS:
    //! Another entry is selected, or none any more, by the user's or the program's doing.
    void Click();
    //! Of the left button, on an entry.
    void DblClick();
    void KeyDown(int &KeyCode, int &Shift);
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);
    //! The font or the style, and with it the height of an entry, may have changed.
    void heightChanged();

protected:
    //! The model becomes the list's own.
    ListBox(EntryModel *entries, QWidget *parent);

    //! What an entry is laid out by: one line of text, and whatever stands before it.
    [[nodiscard]] virtual QStyleOptionViewItem entryOption() const;
    //! The left button went down or up at a place of the surface; up is before Click.
    virtual void pressedAt(const QPoint &) {}
    virtual void releasedAt(const QPoint &) {}
    //! The space bar. False where it is a character like any other.
    virtual bool pressSpace() { return false; }

    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void rowsInserted(const QModelIndex &parent, int first, int last) override;
    void doItemsLayout() override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                                       const QEvent *event) const override;

private:
    //! Selects without a word; m_click.raise() says it.
    void select(int index);
    void raiseClick();
    //! The mouse has finished selecting.
    void endPress();
    void followSelection(const QItemSelection &selected);
    void actAs(QKeyEvent *event);
    bool move(int key);
    void type(const QKeyEvent &event);
    void press(const QMouseEvent &event);
    void followMouse();
    //! The entry at a height of the surface; beyond its edges the one that would come next, -1 for none.
    [[nodiscard]] int entryAt(int y) const;
    [[nodiscard]] int visibleRows() const;

    EntryModel *m_entries;
    const QAbstractItemDelegate *m_toolkitsDelegate; //!< which a list has from its beginning
    QAbstractItemDelegate *m_delegate;
    TypedName m_typed;
    Qt::MouseButtons m_pressed; //!< on this list, and not yet released
    QPoint m_mouse;             //!< where the held left button is
    QBasicTimer m_following;    //!< scrolls on while it is held beyond an edge
    int m_selected = -1;        //!< the entry that Click was raised for
    bool m_isClickDue = false;  //!< the entries were removed between a selection by the mouse and its Click
    HeldEvents m_click{this, [this] { raiseClick(); }};
    bool m_awaitsLayout = false; //!< entries were added since the last one
};

} // namespace kor
