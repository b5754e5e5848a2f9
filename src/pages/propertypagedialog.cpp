// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/errorguard.h"
#include "pages/applying.h"

#include <KorDaoUC/controlregistry.h>
#include <KorDaoUC/propertypage.h>
#include <KorDaoUC/propertypagedialog.h>
#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QPointer>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <exception>
#include <optional>

namespace kor {

namespace {

constexpr int roomForStatement = 70; // characters

QStringList pagesInCommon(const QObjectList &controls)
{
    QStringList names = controls.isEmpty() ? QStringList() : ControlRegistry::pagesOf(controls.first());
    for (const QObject *control : controls) {
        const QStringList own = ControlRegistry::pagesOf(control);
        names.removeIf([&](const QString &name) { return !own.contains(name); });
    }
    return names;
}

//! Where the keyboard begins on a page.
QWidget *firstField(QWidget *page)
{
    QWidget *next = page ? page->nextInFocusChain() : nullptr;
    for (; next && next != page; next = next->nextInFocusChain()) {
        if (page->isAncestorOf(next) && next->isVisibleTo(page) && (next->focusPolicy() & Qt::TabFocus))
            return next;
    }
    return nullptr;
}

QString titleOf(const QObjectList &controls)
{
    const QString title = QStringLiteral("Właściwości");
    if (controls.size() == 1)
        return QStringLiteral("%1: %2").arg(title, controls.first()->objectName());
    return QStringLiteral("%1: zaznaczone kontrolki (%2)").arg(title).arg(controls.size());
}

} // namespace

class Q_DECL_HIDDEN PropertyPageDialog::Private
{
public:
    QTabWidget *tabs = nullptr;
    QPushButton *applyButton = nullptr;
    PropertyWriter *writer = nullptr;
};

PropertyPageDialog::PropertyPageDialog(const QObjectList &controls, QWidget *parent)
    : QDialog(parent), d(std::make_unique<Private>())
{
    setWindowTitle(titleOf(controls));
    d->tabs = new QTabWidget(this);
    d->tabs->setObjectName(QStringLiteral("tabPages"));
    d->tabs->setAccessibleName(QStringLiteral("Strony"));
    for (const QString &name : pagesInCommon(controls)) {
        PropertyPage *page = ControlRegistry::createPage(name);
        const int tab = d->tabs->addTab(page, page->windowTitle());
        try {
            page->setSelectedControls(controls);
        } catch (const RunTimeError &error) {
            d->tabs->setTabEnabled(tab, false);
            d->tabs->setTabToolTip(tab, QStringLiteral("Kontrolka nie ma tego, co ta strona ustawia.\nBłąd %1: %2")
                                            .arg(error.number())
                                            .arg(error.description()));
        }
        connect(page, &PropertyPage::applyDue, this, [this] {
            const QList<PropertyPage *> all = pages();
            d->applyButton->setEnabled(
                std::any_of(all.cbegin(), all.cend(), [](const PropertyPage *one) { return one->Changed(); }));
        });
    }
    auto *buttons = new QDialogButtonBox(this);
    const auto addButton = [&](const char *name, const QString &text, QDialogButtonBox::ButtonRole role) {
        QPushButton *button = buttons->addButton(text, role);
        button->setObjectName(QString::fromLatin1(name));
        return button;
    };
    addButton("cmdOK", QStringLiteral("OK"), QDialogButtonBox::AcceptRole)->setDefault(true);
    addButton("cmdCancel", QStringLiteral("Anuluj"), QDialogButtonBox::RejectRole);
    d->applyButton = addButton("cmdApply", QStringLiteral("Zastosuj"), QDialogButtonBox::ApplyRole);
    d->applyButton->setEnabled(false);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(d->tabs);
    layout->addWidget(buttons);
    for (int tab = d->tabs->count() - 1; tab >= 0; --tab) {
        if (d->tabs->isTabEnabled(tab))
            d->tabs->setCurrentIndex(tab); // the first one that is open
    }
    if (QWidget *field = firstField(d->tabs->currentWidget()))
        field->setFocus(Qt::TabFocusReason);
    resize(sizeHint().expandedTo(QSize(fontMetrics().averageCharWidth() * roomForStatement, 0)));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        const QPointer<PropertyPageDialog> self = this;
        if (apply() && self)
            accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(d->applyButton, &QPushButton::clicked, this, &PropertyPageDialog::apply);
}

PropertyPageDialog::~PropertyPageDialog() = default;

QList<PropertyPage *> PropertyPageDialog::pages() const
{
    QList<PropertyPage *> all;
    for (int tab = 0; tab < d->tabs->count(); ++tab)
        all << static_cast<PropertyPage *>(d->tabs->widget(tab));
    return all;
}

void PropertyPageDialog::setWriter(PropertyWriter *writer)
{
    d->writer = writer;
    for (PropertyPage *page : pages())
        page->setWriter(writer);
}

bool PropertyPageDialog::apply()
{
    const QPointer<PropertyPageDialog> self = this;
    std::exception_ptr refusal;
    std::optional<ErrorPath> path;
    {
        const Applying applying(d->writer);
        QList<QPointer<PropertyPage>> due; // a handler may end the dialog
        for (PropertyPage *page : pages())
            due << page;
        for (const QPointer<PropertyPage> &page : due) {
            if (!page || !page->Changed())
                continue;
            path.emplace(page);
            try {
                page->ApplyChanges();
            } catch (...) {
                refusal = std::current_exception();
                if (self && page)
                    d->tabs->setCurrentWidget(page);
                break;
            }
        }
    }
    if (refusal) { // a handler may show a message, so it is told when all is closed
        path->report(refusal);
        return false;
    }
    if (self)
        Q_EMIT applied();
    return true;
}

} // namespace kor
