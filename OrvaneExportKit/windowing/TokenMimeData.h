#pragma once

#include <OrvaneExportKit/windowing/TokenText.h>

#include <QtCore/QMimeData>

#include <memory>
#include <optional>

/// \file
/// How tokens travel from one field to another, by the clipboard and by a drag. Other programs get plain text.

namespace windowing {

/// The text in one line, without the characters that stand for tokens.
QString oneLine(QString text);

/// Pieces, and the text that they are for others.
std::unique_ptr<QMimeData> mimeDataOfPieces(const QList<TokenPiece> &pieces, const QString &displayText);

/// The pieces that came from another field, or nothing where there are none or they cannot be read.
std::optional<QList<TokenPiece>> piecesOfMimeData(const QMimeData &data);

} // namespace windowing
