#pragma once

#include "ManuscriptDocument.h"

#include <QtCore/QString>

#include <deque>

namespace host {

/// A manuscript: its title and all of its documents, in their order.
struct Manuscript {
    QString title;
    std::deque<ManuscriptDocument> documents;
};

/// Reads manuscript.json of a manuscript folder, which names the documents. Their texts stay in their files.
///
///     {"title": "A Book", "documents": [{"file": "one.txt", "name": "One", "status": "Draft", "label": "Chapter"}]}
///
/// Throws `HostError` when it is missing or not as it should be.
Manuscript openManuscript(const QString &folder);

/// The same with the text of every document, so that a missing chapter is known before the first file is written.
/// Throws `HostError` when anything is missing or not as it should be.
Manuscript readManuscript(const QString &folder);

} // namespace host
