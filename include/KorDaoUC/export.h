// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/qcompilerdetection.h>

// What the shared libraries offer: the controls (KORDAOUC_EXPORT) and, usable without widgets, the classic run-time
// functions (KORDAOUC_RUNTIME_EXPORT), the reading of .mdb files (KORDAOUC_MDB_EXPORT) and the writing of grids into
// files of spreadsheets (KORDAOUC_SHEET_EXPORT).
#ifdef KORDAOUC_BUILDING
#  define KORDAOUC_EXPORT Q_DECL_EXPORT
#else
#  define KORDAOUC_EXPORT Q_DECL_IMPORT
#endif

#ifdef KORDAOUC_RUNTIME_BUILDING
#  define KORDAOUC_RUNTIME_EXPORT Q_DECL_EXPORT
#else
#  define KORDAOUC_RUNTIME_EXPORT Q_DECL_IMPORT
#endif

#ifdef KORDAOUC_MDB_BUILDING
#  define KORDAOUC_MDB_EXPORT Q_DECL_EXPORT
#else
#  define KORDAOUC_MDB_EXPORT Q_DECL_IMPORT
#endif

#ifdef KORDAOUC_SHEET_BUILDING
#  define KORDAOUC_SHEET_EXPORT Q_DECL_EXPORT
#else
#  define KORDAOUC_SHEET_EXPORT Q_DECL_IMPORT
#endif
