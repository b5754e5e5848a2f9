// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/applying.h"
#include "pages/latebound.h"

#include <KorDaoUC/propertypage.h>

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>

#include <vector>

namespace kor {

class Q_DECL_HIDDEN PropertyPage::Private
{
public:
    std::vector<QPointer<QObject>> controls; // a hole for each that was deleted: the second never becomes the first
    PropertyWriter *writer = nullptr;
    bool isChanged = false;
    int reading = 0;
};

PropertyWriter::~PropertyWriter() = default;

void PropertyWriter::call(QObject &, const std::function<void()> &deed) { deed(); }

PropertyPage::PropertyPage(QWidget *parent) : QWidget(parent), d(std::make_shared<Private>()) {}

PropertyPage::~PropertyPage() = default;

bool PropertyPage::Changed() const { return d->isChanged; }

void PropertyPage::setChanged(bool changed)
{
    if (d->isChanged == changed)
        return;
    d->isChanged = changed;
    Q_EMIT applyDue(changed);
}

QObjectList PropertyPage::SelectedControls() const
{
    QObjectList all;
    for (const QPointer<QObject> &control : d->controls) {
        if (control)
            all.append(control);
    }
    return all;
}

void PropertyPage::setSelectedControls(const QObjectList &controls)
{
    d->controls.clear();
    for (QObject *control : controls)
        d->controls.emplace_back(control);
    const QPointer<PropertyPage> self = this;
    setChanged(false); // edits were meant for others, and end even when these can't be read
    if (self)
        SelectionChanged();
}

void PropertyPage::SelectionChanged()
{
    const QPointer<PropertyPage> self = this;
    silently([this] { readControls(); });
    if (self)
        setChanged(false);
}

void PropertyPage::ApplyChanges()
{
    const QPointer<PropertyPage> self = this;
    {
        const Applying applying(d->writer);
        writeControls();
    }
    if (self)
        setChanged(false);
}

void PropertyPage::setWriter(PropertyWriter *writer) { d->writer = writer; }

QObject *PropertyPage::firstControl() const { return d->controls.empty() ? nullptr : d->controls.front().data(); }

void PropertyPage::markChanged()
{
    if (d->reading == 0)
        setChanged(true);
}

void PropertyPage::change(QObject &control, const std::function<void()> &deed)
{
    if (d->writer)
        d->writer->call(control, deed);
    else
        deed();
}

void PropertyPage::silently(const std::function<void()> &body)
{
    const std::shared_ptr<Private> kept = d;
    ++kept->reading;
    const auto leave = qScopeGuard([&] { --kept->reading; });
    body();
}

void PropertyPage::writeProperty(QObject &control, const char *property, const QVariant &value)
{
    if (d->writer)
        d->writer->write(control, QString::fromLatin1(property), value);
    else
        writeMember(control, property, value);
}

} // namespace kor
