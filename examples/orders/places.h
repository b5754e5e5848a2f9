// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "preferences.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QRect>
#include <QtCore/QSettings>

#include <memory>

class KorGrid;
class QWidget;

namespace orders {

//! Where a window goes that stood somewhere: the same place and size, as far as a screen has room for it. The screen is
//! the one that holds most of it, the first one where none does.
[[nodiscard]] QRect placeOnScreens(const QRect &wanted, const QList<QRect> &screens);

//! Where windows stood and how wide columns were, in a file of settings. What cannot be read or written is done
//! without.
class Places
{
public:
    //! A file that is no file of settings is put aside and begun anew.
    explicit Places(const QString &fileName);

    //! What the clerk should know of the file; "" for nothing.
    [[nodiscard]] const QString &complaint() const { return m_complaint; }

    //! Puts a window where it stood, as far as that is on a screen by now, and makes its columns as wide as they were.
    //! Columns go by their titles, so that new ones don't take the widths of others.
    void restore(QWidget &window, const QString &name);
    void keep(const QWidget &window, const QString &name);
    //! What else is to be there again the next time, by its names: the last filter of a list.
    [[nodiscard]] QMap<QString, QString> texts(const QString &name) const;
    void keepTexts(const QString &name, const QMap<QString, QString> &texts);

    //! What the clerk has set stands in the same file.
    [[nodiscard]] Preferences preferences() const;
    //! False when the file can't be written.
    [[nodiscard]] bool keep(const Preferences &preferences);

private:
    void restoreColumns(const KorGrid &grid, const QString &name);
    void keepColumns(const KorGrid &grid, const QString &name);

    std::unique_ptr<QSettings> m_settings;
    QString m_complaint;
};

//! A window that is put where it stood, and whose place is kept when this ends.
class Visit
{
public:
    //! Does nothing without places.
    Visit(Places *places, QWidget &window, QString name);
    ~Visit();
    Q_DISABLE_COPY_MOVE(Visit)

private:
    Places *m_places;
    QWidget &m_window;
    QString m_name;
};

} // namespace orders
