// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

/// Ends the program with @p promise, which was broken, unless @p kept.
void require(bool kept, const char *promise);

/// Takes Qt's messages from now on and drops them: hostile bytes make many.
void dropMessages();
