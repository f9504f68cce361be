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

/// Reads a manuscript folder: manuscript.json, which names the documents, and the text of each of them.
///
///     {"title": "A Book", "documents": [{"file": "one.txt", "name": "One", "status": "Draft", "label": "Chapter"}]}
///
/// Everything is read before the call returns, so that a missing chapter is known before the first file is written.
/// Throws `HostError` when anything is missing or not as it should be.
Manuscript readManuscript(const QString &folder);

} // namespace host
