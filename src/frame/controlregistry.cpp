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

struct Page {
    QString name;
    ControlRegistry::PageFactory factory;
    QStringList controls; //!< none for all
};

std::vector<Kind> &kinds()
{
    static std::vector<Kind> all;
    return all;
}

std::vector<Page> &pages()
{
    static std::vector<Page> all;
    return all;
}

template <class Entry>
auto find(std::vector<Entry> &all, QStringView name)
{
    return std::find_if(all.begin(), all.end(), [name](const Entry &entry) { return entry.name == name; });
}

QStringView plain(const QString &name)
{
    const QString library = QStringLiteral("KorDaoUC.");
    return name.startsWith(library) ? QStringView(name).sliced(library.size()) : QStringView(name);
}

template <class Entry>
QStringList namesOf(const std::vector<Entry> &all)
{
    QStringList names;
    for (const Entry &entry : all)
        names.append(entry.name);
    return names;
}

template <class Entry>
void addTo(std::vector<Entry> &all, Entry entry)
{
    if (const auto old = find(all, entry.name); old != all.end())
        *old = std::move(entry);
    else
        all.push_back(std::move(entry));
}

} // namespace

UserControl *ControlRegistry::create(const QString &name, QWidget *parent)
{
    const auto kind = find(kinds(), plain(name));
    return kind != kinds().end() ? kind->factory(parent) : nullptr;
}

QStringList ControlRegistry::names() { return namesOf(kinds()); }

void ControlRegistry::add(const QString &name, Factory factory) { addTo(kinds(), {name, std::move(factory)}); }

PropertyPage *ControlRegistry::createPage(const QString &name, QWidget *parent)
{
    const auto page = find(pages(), plain(name));
    return page != pages().end() ? page->factory(parent) : nullptr;
}

QStringList ControlRegistry::pageNames() { return namesOf(pages()); }

QStringList ControlRegistry::pagesOf(const QString &control)
{
    const auto kind = find(kinds(), plain(control));
    QStringList names;
    for (const Page &page : pages()) {
        if (kind != kinds().end() && (page.controls.isEmpty() || page.controls.contains(kind->name)))
            names.append(page.name);
    }
    return names;
}

QStringList ControlRegistry::pagesOf(const QObject *control)
{
    for (const QMetaObject *type = control ? control->metaObject() : nullptr; type; type = type->superClass()) {
        const QString name = QString::fromLatin1(type->className());
        if (find(kinds(), name) != kinds().end())
            return pagesOf(name);
    }
    return {};
}

void ControlRegistry::addPage(const QString &name, PageFactory factory, const QStringList &controls)
{
    addTo(pages(), {name, std::move(factory), controls});
}

} // namespace kor
