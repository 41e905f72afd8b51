// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

namespace Hintreels {

class HRVideoSource;

// Decoding a large picture is one call of FFmpeg that takes up to a second and hears nothing before
// it returns, and freeing a clip of some GB takes as long. Whoever is done with a source therefore
// retires it instead of waiting.

/// Takes over a source that nobody uses any more, asks it to end, lets its thread free the clip,
/// and deletes it.
///
/// Nearly every source ends within a moment that is waited for here. Any other is owned by the
/// process from now on: it is deleted by the event loop once its thread has ended, and at the end
/// of the process it is waited for, as its destructor does. GUI thread only.
void retireSource(std::unique_ptr<HRVideoSource> source);

/// Whether as many retired sources are still at work as there is memory for: others open no clip
/// until one of those has ended. From any thread.
bool areRetiredSourcesMany();

} // namespace Hintreels
