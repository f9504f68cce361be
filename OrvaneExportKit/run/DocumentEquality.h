#pragma once

#include <cstddef>

class ExportDocument;

namespace platform {

/// Whether a document equals itself alone, because its class overrides `isEqual` in no way that matters.
///
/// There is no asking C++ for that. But a document of which `ExportDocument::isEqual` says, for once, that it is not
/// itself, is then not equal to itself either; one that compares anything else still is.
bool comparesByIdentity(const ExportDocument &document);

/// Whether the class overrides `hash`. It may answer no for one that does by chance what `ExportDocument` does.
bool hasOwnHash(const ExportDocument &document);

} // namespace platform
