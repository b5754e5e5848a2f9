// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace kor {

//! Whether a saved setting is written, read, or both.
enum class SettingUse { ReadAndWrite, ReadOnly, WriteOnly };

//! What there is to know of a setting that a control is saved with.
struct SavedSetting {
    //! By which it stands in a form file.
    QString key;
    //! Whether loading or saving passes it over.
    SettingUse use = SettingUse::ReadAndWrite;
    QVariant defaultValue; //!< not stored; its type is that of the setting
};

} // namespace kor
