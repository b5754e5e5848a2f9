// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "loadedform.h"

#include "textboxkind.h"

#include <KorDaoUC/FormFile>

#include <stdexcept>
#include <utility>

namespace orders {

LoadedForm::LoadedForm(QString fileName, QWidget *widget) : m_fileName(std::move(fileName)), m_widget(widget)
{
    const kor::FormResult loaded = kor::FormFile::load(m_fileName);
    if (!loaded.form)
        refuse(QStringLiteral("%1: %2").arg(loaded.error.line).arg(loaded.error.reason));
    m_builder.addKind(QStringLiteral("TextBox"), textBoxKind());
    if (const std::optional<QString> reason = m_builder.build(*loaded.form, m_widget))
        refuse(*reason);
    m_widget->setMinimumSize(m_widget->size());
}

void LoadedForm::refuse(const QString &reason) const
{
    throw std::runtime_error((m_fileName + QStringLiteral(": ") + reason).toStdString());
}

} // namespace orders
