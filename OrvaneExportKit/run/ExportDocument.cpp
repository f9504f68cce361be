#include <OrvaneExportKit/run/ExportDocument.h>

#include <functional>

ExportDocument::~ExportDocument() = default;

bool ExportDocument::isEqual(const ExportDocument &other) const
{
    return this == &other;
}

std::size_t ExportDocument::hash() const
{
    return std::hash<const ExportDocument *>()(this);
}
