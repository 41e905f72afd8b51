// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// Makes Qt Quick render in software where OpenGL is not to be had.
///
/// Without OpenGL Qt Quick ends the whole application at the first frame, unless it was told
/// before the first of its windows. A backend that the host or its user has chosen stays. To be
/// called before each view is constructed; looks only once, since a look costs an OpenGL context.
void chooseQuickRenderer();

} // namespace Hintreels
