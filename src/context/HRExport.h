// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Marks the classes that the shared library exports; everything else stays hidden.
#ifdef HINTREELS_BUILDING_LIBRARY
#define HINTREELS_EXPORT Q_DECL_EXPORT
#else
#define HINTREELS_EXPORT Q_DECL_IMPORT
#endif
