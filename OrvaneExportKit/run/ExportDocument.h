#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>

#include <cstddef>

/// One document of an export, as the host application hands it to a plug-in.
///
/// Hosts subclass it. The object belongs to the host and outlives the export.
///
/// For use on the application's main thread.
class ORVANE_CORE_EXPORT ExportDocument
{
public:
    ExportDocument() = default;
    ExportDocument(const ExportDocument &) = delete;
    ExportDocument &operator=(const ExportDocument &) = delete;
    virtual ~ExportDocument();

    virtual QString name() const = 0;   ///< the title; empty when the document has none
    virtual QString status() const = 0; ///< how far it has come ("Draft"); may be empty
    virtual QString label() const = 0;  ///< what it is ("Chapter"); may be empty

    /// Whether both stand for the same document: identity, unless a subclass overrides it. It has to be an equality, so
    /// that every document equals itself, and two that equal a third equal each other.
    virtual bool isEqual(const ExportDocument &other) const;

    /// A number that equal documents share; documents that differ should differ in it. It makes the comparing of many
    /// documents fast and decides nothing: a subclass that overrides `isEqual` alone gets the same file names, in a
    /// time that grows with the square of the number of documents.
    virtual std::size_t hash() const;
};
