// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/controlregistry.h>
#include <KorDaoUC/usercontrol.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace kor {

namespace {

struct Kind {
    QString name;
    ControlRegistry::Factory factory;
};

std::vector<Kind> &kinds()
{
    static std::vector<Kind> all;
    return all;
}

auto find(QStringView name)
{
    return std::find_if(kinds().begin(), kinds().end(), [name](const Kind &kind) { return kind.name == name; });
}

} // namespace

UserControl *ControlRegistry::create(const QString &name, QWidget *parent)
{
    const QString library = QStringLiteral("KorDaoUC.");
    const auto kind = find(name.startsWith(library) ? QStringView(name).sliced(library.size()) : QStringView(name));
    return kind != kinds().end() ? kind->factory(parent) : nullptr;
}

QStringList ControlRegistry::names()
{
    QStringList all;
    for (const Kind &kind : kinds())
        all.append(kind.name);
    return all;
}

void ControlRegistry::add(const QString &name, Factory factory)
{
    if (const auto kind = find(name); kind != kinds().end())
        kind->factory = std::move(factory);
    else
        kinds().push_back({name, std::move(factory)});
}

} // namespace kor
