// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtWidgets/QWidget>

namespace kor {

//! A widget whose properties may be set by name, through the toolkit's meta-object system.
//!
//! A value that is refused raises RunTimeError, whoever sets it, but for the toolkit's loader of .ui files: it can't
//! bear an exception, and the program that calls it may not know ours. There the old value stays, and a warning
//! (category kordaouc.forms) names object, property and reason.
class KORDAOUC_EXPORT LateBoundWidget : public QWidget
{
public:
    //! The toolkit's way in for members called by name.
    int qt_metacall(QMetaObject::Call call, int member, void **arguments) override;

protected:
    explicit LateBoundWidget(QWidget *parent) : QWidget(parent) {}
};

} // namespace kor
