#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QTextCharFormat>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

/// \file
/// How a document of one line holds tokens: each is one object character, whose format knows the represented object.
/// Line feeds and whatever else a line cannot hold are object characters as well, whose format knows the character.

namespace windowing {

/// The type of the object characters that are tokens.
inline constexpr int tokenObjectType = QTextFormat::UserObject + 1;

/// The type of the object characters that stand for a character which a line cannot hold.
inline constexpr int heldCharacterObjectType = QTextFormat::UserObject + 2;

/// A token, or a text between tokens.
struct TokenPiece {
    QString text; ///< the represented object of a token
    bool isToken;

    bool operator==(const TokenPiece &) const = default;
};

/// The represented object that the format of a token knows.
QString representedObject(const QTextFormat &format);

/// The character that the format of a held character knows.
QChar heldCharacter(const QTextFormat &format);

/// Whether the character at the position is a token.
bool isToken(const QTextDocument &document, int position);

/// Inserts pieces in the place of what the cursor has selected, as one step of undoing.
void insertPieces(QTextCursor &cursor, const QList<TokenPiece> &pieces);

/// Puts a piece in the place of what stands from one position up to another. Cursors beside it stay on their side.
void replaceWithPiece(QTextDocument &document, int start, int end, const TokenPiece &piece);

/// What stands from one position up to another. Texts beside each other are one piece.
QList<TokenPiece> tokenPieces(const QTextDocument &document, int start, int end);

/// All of a document.
QList<TokenPiece> tokenPieces(const QTextDocument &document);

} // namespace windowing
