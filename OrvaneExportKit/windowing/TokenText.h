#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QTextCharFormat>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

/// \file
/// How a document holds tokens: each is one object character, whose format knows the represented object.

namespace windowing {

/// The type of the object characters that are tokens.
inline constexpr int tokenObjectType = QTextFormat::UserObject + 1;

/// A token, or a text between tokens.
struct TokenPiece {
    QString text; ///< the represented object of a token
    bool isToken;
};

/// The represented object that a format of a token knows.
QString representedObject(const QTextFormat &format);

/// Whether the character at the position is a token.
bool isToken(const QTextDocument &document, int position);

/// Inserts a token in the place of what the cursor has selected.
void insertToken(QTextCursor &cursor, const QString &representedObject);

/// Inserts pieces in the place of what the cursor has selected, as one step of undoing.
void insertPieces(QTextCursor &cursor, const QList<TokenPiece> &pieces);

/// What stands from one position up to another.
QList<TokenPiece> tokenPieces(const QTextDocument &document, int start, int end);

/// All of a document.
QList<TokenPiece> tokenPieces(const QTextDocument &document);

} // namespace windowing
