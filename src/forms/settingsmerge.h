// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/propertybag.h>

namespace kor {

//! The settings of a block to be saved again: the present ones in place of those it was loaded with.
//!
//! `loaded` is what the file held, `taken` what the control wrote right after loading, `present` what it writes now.
//! What the control did not take stays as it was, at its place: keys that nobody knows, and lines that only repeat a
//! default. What it took and no longer writes has become a default and goes. New settings stand behind those that the
//! control writes before them. So only the lines differ whose settings changed.
[[nodiscard]] PropertyBag mergeSettings(const PropertyBag &loaded, const PropertyBag &taken,
                                        const PropertyBag &present);

} // namespace kor
