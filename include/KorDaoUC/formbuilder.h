// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/formfile.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace kor {

//! What is wrong in a form that can be read.
struct FormFault {
    int line = 0; //!< 0 for a form that comes from no text
    //! For people; a control is named by class, name and setting.
    QString reason;
    bool isWarning = false; //!< the form can be built all the same
};

//! How a kind of block is made, filled and saved that is no control of the library.
struct FormItemKind {
    //! Makes the widget on its parent.
    std::function<QWidget *(QWidget *parent)> create;
    //! Applies the saved settings. May raise RunTimeError for a value that it can't take.
    std::function<void(QWidget &widget, const PropertyBag &settings)> read;
    //! Writes the settings that differ from their defaults.
    std::function<void(const QWidget &widget, PropertyBag &settings)> write;
    //! The keys that `read` looks for, besides those of the builder. When none are told, none is warned of.
    QStringList keys{};
};

//! Fills a window with the controls of a form file, and reads the form back from the window.
//!
//! Blocks named `KorDaoUC.<Class>` become the controls of that class, with the block's name as objectName, so that the
//! host finds them by findChild(). `Label`, `CommandButton` and `Frame` are known besides; the host adds its own kinds.
//!
//! The builder itself understands `Left`, `Top`, `Width` and `Height` (twips, 1440 to the inch of the screen's logical
//! resolution, from the corner of the surrounding block) and `TabIndex`, which orders all controls of the form. The
//! letter behind "&" in a label's caption leads to the control that is next in this order.
class KORDAOUC_EXPORT FormBuilder
{
public:
    FormBuilder();
    ~FormBuilder();

    //! Adds a kind of block, or replaces the one of that type.
    void addKind(const QString &type, FormItemKind kind);

    //! Makes the controls of the form on the window, which takes the form's `Caption` as title, its `Font` and its
    //! size. Returns nothing, or the reason why the form can't be built: then the window is as it was before.
    //! Keys that nobody looks for, and two controls of one name, are warnings in the category kordaouc.forms.
    //! The widgets belong to the window; a builder that builds again forgets the window it built before.
    [[nodiscard]] std::optional<QString> build(const FormBlock &form, QWidget *window);

    //! Every reason for which build() would refuse the form, and all that it would warn of, in the order of the lines.
    [[nodiscard]] QList<FormFault> check(const FormBlock &form) const;

    //! The form as it is in the window now. Settings that nobody knows stand where they stood; the place of a control
    //! is written anew only if it was moved. Without those controls that the host has deleted.
    [[nodiscard]] FormBlock toBlock() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace kor
