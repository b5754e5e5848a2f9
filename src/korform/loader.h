// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtUiTools/QUiLoader>
#include <QtWidgets/QWidget>

#include <memory>
#include <optional>

namespace korform {

//! The toolkit's form loader with the controls of the library, which needs no plugin and loads none.
class Loader final : public QUiLoader
{
public:
    Loader();

    [[nodiscard]] QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override;

    //! The form of a .ui file, or null; then errorString() says why.
    [[nodiscard]] std::unique_ptr<QWidget> loadText(const QByteArray &text);
};

//! What the loader refuses about the first element of a .ui file, whatever stands in it: a version, a language.
struct Refusal {
    int line;
    QString reason;
};
[[nodiscard]] std::optional<Refusal> refusalOfHead(const QByteArray &text);

} // namespace korform
