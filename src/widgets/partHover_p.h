// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "manager/HRPopupPresenter_p.h"
#include "widgets/parts/HRPart_p.h"

namespace Hintreels {

/// What the manager is to show for a part: content of the part, else content of a place around it
/// that asks for this by its attribute `covers="inside"`.
///
/// Content of the part that says no more than the reader sees already does not count. Content
/// without a title gets that of the part.
/// @param position of the pointer, in global coordinates
HRHover hoverOf(const HRPart &part, const QPoint &position);

/// Whether content tells its reader more than a part does by itself.
bool saysMore(const HRXmlElement &content, const HRPart &part);

} // namespace Hintreels
