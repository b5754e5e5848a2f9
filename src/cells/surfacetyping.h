// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

class QAbstractScrollArea;
class QInputMethodEvent;
class QInputMethodQueryEvent;

namespace kor {

class CellSession;

//! What is typed on a composite's surface while no editor is open: it opens the editor of the current cell and goes
//! into it.
//!
//! Characters come by the composite's own KeyPress. What an input method composes, and a character of two units, which
//! is no KeyPress, are taken from the surface's events here.
class SurfaceTyping final : public QObject
{
public:
    //! Opens the editor of the current cell with the keyboard in it; false where it has none, or the host did
    //! otherwise.
    using Open = std::function<bool()>;

    SurfaceTyping(QAbstractScrollArea *surface, CellSession &session, Open open);

    //! Types a text into the editor of the current cell, in place of what the cell holds.
    bool type(const QString &text);
    //! Delete and Backspace empty the editor, F2 goes on at its end.
    bool begin(int keyCode);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QInputMethodQueryEvent &query) const;
    bool compose(QInputMethodEvent *event);
    bool openToType();

    QAbstractScrollArea *m_surface;
    CellSession &m_session;
    Open m_open;
};

//! Whether a key pressed on the surface itself stands for the beginning of typing without being a character.
[[nodiscard]] bool beginsTyping(int keyCode, int shift);

} // namespace kor
