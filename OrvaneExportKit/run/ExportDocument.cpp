#include <OrvaneExportKit/run/ExportDocument.h>

#include <OrvaneExportKit/run/DocumentEquality.h>

#include <QtCore/QScopedValueRollback>

#include <functional>

namespace {

thread_local const ExportDocument *documentThatIsNotItself = nullptr;

} // namespace

ExportDocument::~ExportDocument() = default;

bool ExportDocument::isEqual(const ExportDocument &other) const
{
    return this == &other && this != documentThatIsNotItself;
}

std::size_t ExportDocument::hash() const
{
    return std::hash<const ExportDocument *>()(this);
}

namespace platform {

bool comparesByIdentity(const ExportDocument &document)
{
    const QScopedValueRollback<const ExportDocument *> rollback(documentThatIsNotItself, &document);
    return !document.isEqual(document);
}

bool hasOwnHash(const ExportDocument &document)
{
    return document.hash() != document.ExportDocument::hash();
}

} // namespace platform
