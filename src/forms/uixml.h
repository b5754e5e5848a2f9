// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/formfile.h>

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>
#include <utility>
#include <vector>

namespace kor {

//! An element of a .ui file: it holds either a text or other elements.
struct UiElement {
    QString name{};
    QList<std::pair<QString, QString>> attributes{};
    QString text{};
    std::vector<UiElement> children{};
    int line = 0; //!< counted from 1; equality does not ask for it

    [[nodiscard]] QString attribute(QLatin1String wanted) const;
    [[nodiscard]] bool hasAttribute(QLatin1String wanted) const;
    //! The first child of this name, or null. The case of names does not matter, as to the toolkit.
    [[nodiscard]] const UiElement *child(QLatin1String wanted) const;
    [[nodiscard]] bool is(QLatin1String wanted) const { return name.compare(wanted, Qt::CaseInsensitive) == 0; }
};

//! An element that holds a text.
[[nodiscard]] UiElement textElement(QLatin1String name, const QString &text);

//! The root of a .ui file, or why there is none.
struct UiXmlResult {
    std::optional<UiElement> root;
    FormError error;
    QList<int> comments; //!< the lines where comments begin, which are not kept
};

//! Elements may lie this deep within each other.
inline constexpr int maximumUiDepth = 512;
//! Bytes that a .ui file may have.
inline constexpr qint64 maximumUiSize = 64 * 1024 * 1024;

[[nodiscard]] UiXmlResult readUiXml(QByteArrayView text);
//! The text of a .ui file, laid out as the form designer does it.
[[nodiscard]] QByteArray writeUiXml(const UiElement &root);

//! Elements as a text on one line, and back; nothing when the text is none of elements alone.
[[nodiscard]] QString writeUiFragment(const std::vector<UiElement> &elements);
[[nodiscard]] std::optional<std::vector<UiElement>> readUiFragment(const QString &text);

//! Whether every character of the text may stand in XML.
[[nodiscard]] bool isXmlText(QStringView text);

} // namespace kor
