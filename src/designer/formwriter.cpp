// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/formwriter.h"

#include "pages/applying.h"
#include "pages/latebound.h"

#include <KorDaoUC/controlregistry.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/usercontrol.h>

#include <QtCore/QMetaProperty>
#include <QtCore/QScopeGuard>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <exception>
#include <utility>
#include <vector>

namespace kor {

FormWriter::FormWriter(QDesignerFormEditorInterface *core) : m_core(core) {}

FormWriter::~FormWriter() = default;

void FormWriter::write(QObject &control, const QString &property, const QVariant &value)
{
    auto *field = qobject_cast<UserControl *>(&control);
    QDesignerFormWindowInterface *form = field ? QDesignerFormWindowInterface::findFormWindow(field) : nullptr;
    auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(m_core->extensionManager(), &control);
    const QByteArray name = property.toLatin1();
    const int index = form && sheet ? sheet->indexOf(property) : -1;
    if (index < 0) {
        writeMember(control, name, value);
        return;
    }

    // What the control makes of it. It has its old value again before the designer writes, which notes it for undoing.
    const QVariant before = readMember(control, name);
    const QVariant saved = sheet->property(index);
    const bool wasSaved = sheet->isChanged(index);
    QVariant after;
    {
        const auto putBack =
            qScopeGuard([&] { wasSaved ? sheet->setProperty(index, saved) : void(sheet->reset(index)); });
        writeMember(control, name, value);
        after = readMember(control, name);
    }
    if (after == before)
        return;
    beginStep(form);
    if (after == defaultOf(*field, name))
        form->cursor()->resetWidgetProperty(field, property);
    else if (saved.typeId() == QMetaType::Double) // as the sheet has the bounds of a range
        form->cursor()->setWidgetProperty(field, property, CDbl(after));
    else
        form->cursor()->setWidgetProperty(field, property, after);
}

void FormWriter::call(QObject &control, const std::function<void()> &deed)
{
    auto *field = qobject_cast<UserControl *>(&control);
    if (!field || !QDesignerFormWindowInterface::findFormWindow(field)) {
        deed();
        return;
    }
    std::vector<std::pair<QByteArray, QVariant>> before;
    for (int i = QWidget::staticMetaObject.propertyCount(); i < control.metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = control.metaObject()->property(i);
        if (property.isReadable() && property.isWritable() && property.isDesignable() && property.isStored())
            before.emplace_back(property.name(), readMember(control, property.name()));
    }
    const Applying applying(this);
    // Also when the deed ends half-way, for what it has done until then stays done.
    std::exception_ptr refusal;
    try {
        deed();
    } catch (...) {
        refusal = std::current_exception();
    }
    for (const auto &[name, value] : before) {
        const QVariant after = readMember(control, name);
        if (after == value)
            continue;
        writeMember(control, name, value); // which the designer notes for undoing
        write(control, QString::fromLatin1(name), after);
    }
    if (refusal)
        std::rethrow_exception(refusal);
}

QVariant FormWriter::defaultOf(const UserControl &control, const char *member)
{
    if (qstrcmp(member, "Font") == 0)
        return control.ambientFont();
    const QString kind = QString::fromLatin1(control.metaObject()->className());
    std::shared_ptr<UserControl> &fresh = m_fresh[kind];
    if (!fresh)
        fresh.reset(ControlRegistry::create(kind));
    return fresh ? readMember(*fresh, member) : QVariant();
}

void FormWriter::beginStep(QDesignerFormWindowInterface *form)
{
    if (m_depth == 0 || m_form == form)
        return;
    if (m_form)
        m_form->endCommand();
    form->beginCommand(QStringLiteral("Właściwości"));
    m_form = form;
}

void FormWriter::endApply() noexcept
{
    if (--m_depth > 0)
        return;
    if (m_form)
        m_form->endCommand();
    m_form = nullptr;
}

} // namespace kor
