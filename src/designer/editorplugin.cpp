// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/editorplugin.h"

#include "designer/propertysheet.h"

namespace kor {

void EditorPlugin::initialize(QDesignerFormEditorInterface *core)
{
    m_core = core;
    PropertySheetFactory::install(core);
}

} // namespace kor
