#pragma once

namespace windowing {

/// Lets screen readers read the display strings of tokens. Once is enough for all fields.
void installTokenFieldAccessibility();

} // namespace windowing
