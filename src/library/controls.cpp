// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/pages.h"

#include <KorDaoUC/controlregistry.h>
#include <KorDaoUC/korclick.h>
#include <KorDaoUC/korcolor.h>
#include <KorDaoUC/korcombo.h>
#include <KorDaoUC/kordate.h>
#include <KorDaoUC/korgrid.h>
#include <KorDaoUC/korlist.h>
#include <KorDaoUC/korlistcheck.h>
#include <KorDaoUC/kormultitext.h>
#include <KorDaoUC/kornumber.h>
#include <KorDaoUC/korparam.h>
#include <KorDaoUC/korupdown.h>
#include <KorDaoUC/propertypage.h>

namespace kor {

namespace {

template <class Control>
void add(const char *name)
{
    ControlRegistry::add(QString::fromLatin1(name), [](QWidget *parent) { return new Control(parent); });
}

//! The controls of the library, in its order.
const bool controlsAdded = [] {
    add<KorNumber>("KorNumber");
    add<KorDate>("KorDate");
    add<KorCombo>("KorCombo");
    add<KorClick>("KorClick");
    add<KorList>("KorList");
    add<KorListCheck>("KorListCheck");
    add<KorColor>("KorColor");
    add<KorUpDown>("KorUpDown");
    add<KorParam>("KorParam");
    add<KorMultiText>("KorMultiText");
    add<KorGrid>("KorGrid");
    return true;
}();

//! The pages, in the order in which a control shows them.
const bool pagesAdded = [] {
    ControlRegistry::addPage(QStringLiteral("pagKorNumber"), makeNumberPage, {QStringLiteral("KorNumber")});
    ControlRegistry::addPage(QStringLiteral("pagKorCombo"), makeComboPage, {QStringLiteral("KorCombo")});
    ControlRegistry::addPage(QStringLiteral("pagKorGrid1"), makeDatabasePage, {QStringLiteral("KorGrid")});
    ControlRegistry::addPage(QStringLiteral("pagKorGrid2"), makeColumnPage, {QStringLiteral("KorGrid")});
    ControlRegistry::addPage(QStringLiteral("pagAppearance"), makeAppearancePage); // of every control
    return true;
}();

} // namespace

} // namespace kor
