// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

class QObject;
class QWidget;

namespace kor {

class PropertyPage;
class UserControl;

//! The controls of the library by their names, and the pages on which they are set, for form files, designers and
//! tests.
class KORDAOUC_EXPORT ControlRegistry
{
public:
    //! Makes one control on a parent.
    using Factory = std::function<UserControl *(QWidget *parent)>;
    //! Makes one page on a parent.
    using PageFactory = std::function<PropertyPage *(QWidget *parent)>;

    //! A new control with its initial settings, or null when there is none of that name. Takes the plain class name
    //! ("KorNumber") and the qualified one ("KorDaoUC.KorNumber").
    [[nodiscard]] static UserControl *create(const QString &name, QWidget *parent = nullptr);
    //! The plain names of all controls, in the order of the library.
    [[nodiscard]] static QStringList names();

    //! Adds a kind of control, or replaces the one of the same name.
    static void add(const QString &name, Factory factory);

    //! A new property page without a selection, or null when there is none of that name. Takes the plain name
    //! ("pagKorNumber"), which is the page's object name, and the qualified one.
    [[nodiscard]] static PropertyPage *createPage(const QString &name, QWidget *parent = nullptr);
    //! The plain names of all pages, in the order in which they are shown.
    [[nodiscard]] static QStringList pageNames();
    //! The pages on which a control is set, by its name or as it is; none for what is no control of the library.
    [[nodiscard]] static QStringList pagesOf(const QString &control);
    //! The same for a control as it is.
    [[nodiscard]] static QStringList pagesOf(const QObject *control);

    //! Adds a page for the named controls, or for all of them when none is named; or replaces the one of the same name.
    static void addPage(const QString &name, PageFactory factory, const QStringList &controls = {});
};

} // namespace kor
