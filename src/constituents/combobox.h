// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/entrybox.h"
#include "constituents/heldevents.h"
#include "constituents/typedname.h"

#include <QtCore/QPointer>
#include <QtWidgets/QComboBox>

#include <utility>

namespace kor {

class EntryModel;

//! The drop-down list of the controls: the toolkit's combo, not editable, with the classic order of events.
//!
//! No entry is selected until the user or the program selects one. Keys are offered as KeyDown before they act, also
//! while the list is open; the handlers may swallow them with 0 or, while it is closed, turn them into others. The
//! list opens at once however many entries it has; it is made when it is opened for the first time.
class ComboBox final : public QComboBox, public EntryBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent);

    [[nodiscard]] int ListIndex() const override { return currentIndex(); }
    void setListIndex(int index) override;
    [[nodiscard]] int ListCount() const override { return count(); }
    [[nodiscard]] QString List(int index) const override;
    [[nodiscard]] int indexOf(const QString &name) const override;
    void AddItem(const QString &name) override;
    void AddItems(QStringList names) override;
    void Clear() override;

    [[nodiscard]] bool isDropped() const;
    //! The room that the open list makes for a picture beside each name; the list's delegate paints them.
    void setPictureWidth(int width) { m_pictureWidth = width; }

    //! Chooses an entry as the user would, for a tool that acts in the user's place.
    void choose(int index);
    //! The open list, null before it is opened for the first time.
    [[nodiscard]] QAbstractItemView *list() const;

    void showPopup() override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    //! The selection has changed, by the user's or the program's doing.
    void Click();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    //! The user has chosen an entry, be it the one that was selected already. Comes after Click.
    void Chosen();
    //! The list is about to be opened for the first time; the moment to give it a delegate.
    void listMade(QAbstractItemView *list);
    //! The font or the style, and with it the height, may have changed.
    void heightChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    //! Lets the toolkit do something that may change the selection, and raises Click once it is done with it.
    template <class Action>
    void act(Action &&action)
    {
        m_events.during(std::forward<Action>(action));
    }
    void raiseEvents();
    void actAs(QKeyEvent *event);
    //! Raises KeyPress for a character, 0 for none, and gives what the handlers made of it.
    [[nodiscard]] int offerCharacter(int ascii);
    void select(QKeyEvent *event);
    //! Goes to the name that is being typed; false for a character that is no part of one.
    [[nodiscard]] bool typeName(const QKeyEvent &event);
    [[nodiscard]] bool filterList(QObject *watched, QEvent *event);
    [[nodiscard]] bool pressInList(QKeyEvent *event);
    bool offerToToolkit(QObject *watched, QEvent *event);
    void makeList();
    void followStyle();
    void fitListSoon();
    void fitList();
    [[nodiscard]] int listWidth() const;
    [[nodiscard]] QSize sizeForWidth(int textWidth) const;

    bool m_hasList = false; //!< the toolkit has made the list; asked already when the entries come to be
    EntryModel *m_entries;
    QPointer<QAbstractItemView> m_list; //!< once it has been opened
    TypedName m_typed;
    int m_selected = -1; //!< the entry that Click was raised for
    HeldEvents m_events{this, [this] { raiseEvents(); }};
    bool m_isChosen = false;
    int m_pictureWidth = 0;
    bool m_fitsSoon = false;
};

} // namespace kor
