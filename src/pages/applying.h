// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/propertypage.h>

namespace kor {

//! Keeps together what is written while it lives, for whoever writes in place of a page; null for nobody.
class Applying
{
public:
    explicit Applying(PropertyWriter *writer) : m_writer(writer)
    {
        if (m_writer)
            m_writer->beginApply();
    }
    ~Applying()
    {
        if (m_writer)
            m_writer->endApply();
    }
    Q_DISABLE_COPY_MOVE(Applying)

private:
    PropertyWriter *m_writer;
};

} // namespace kor
