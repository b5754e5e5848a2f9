// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPoint>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <utility>

namespace kor {

//! How the property of a widget holds a setting of a form file.
enum class UiValueType {
    None, //!< there is no such property
    Boolean,
    Whole,
    Enumeration,
    Text,
    Number, //!< a Single
    Any,    //!< whatever the property takes
    Font,
    Alignment, //!< that of a label
};

//! A row of what a kind of block is saved with, and the property that is the same thing in a .ui file. A key that is
//! written twice is two rows.
struct UiSetting {
    QString key{};
    QString property{};
    UiValueType type = UiValueType::None;
    QVariant defaultValue{};
    QList<std::pair<QString, int>> members{}; //!< of an enumeration, as a .ui file names them
    //! Told in a .ui file although it is the default: a new widget begins with something else.
    bool isToldAlways = false;
    bool isTranslated = false; //!< what users read; other texts are nobody's to translate
};

//! What conversions know of a kind of block: its class in .ui files, and its settings.
struct UiKind {
    QString type{};      //!< in form files: KorDaoUC.KorNumber
    QString className{}; //!< in .ui files: KorNumber
    QString header{};    //!< of a class that is not the toolkit's
    QStringList keysBeforePlace{};
    QList<UiSetting> settings{}; //!< in the order in which they are written, without those that are only read
    QSize defaultSize{};
    bool isForm = false;
    bool takesFocus = false;
    bool leadsToNext = false; //!< a label, whose letter behind "&" leads to the next control
};

//! All kinds, by their types and by their classes.
class UiKinds
{
public:
    void add(const UiKind &kind)
    {
        m_types.insert(kind.type, m_kinds.size());
        if (!kind.isForm)
            m_classes.insert(kind.className, m_kinds.size());
        m_kinds.append(kind);
    }
    [[nodiscard]] const QList<UiKind> &all() const { return m_kinds; }
    [[nodiscard]] const UiKind *ofType(const QString &type) const { return at(m_types.value(type, -1)); }
    [[nodiscard]] const UiKind *ofClass(const QString &name) const { return at(m_classes.value(name, -1)); }

private:
    [[nodiscard]] const UiKind *at(qsizetype place) const { return place >= 0 ? &m_kinds.at(place) : nullptr; }

    QList<UiKind> m_kinds;
    QHash<QString, qsizetype> m_types;
    QHash<QString, qsizetype> m_classes;
};

} // namespace kor
