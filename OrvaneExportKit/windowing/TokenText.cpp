#include <OrvaneExportKit/windowing/TokenText.h>

#include <QtGui/QTextBlock>

#include <algorithm>

namespace windowing {

namespace {

constexpr int objectProperty = QTextFormat::UserProperty + 1;

/// The characters that end a line or a block, that mean something to a document, and those that nobody would see.
bool fitsIntoLine(QChar character)
{
    constexpr QChar beginningOfFrame(0xFDD0);
    constexpr QChar endOfFrame(0xFDD1);
    switch (character.category()) {
    case QChar::Other_Control:
        return character == u'\t';
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return character != QChar::ObjectReplacementCharacter && character != beginningOfFrame &&
               character != endOfFrame;
    }
}

void insertObject(QTextCursor &cursor, int type, const QString &object)
{
    QTextCharFormat format;
    format.setObjectType(type);
    format.setProperty(objectProperty, object);
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
}

void insertText(QTextCursor &cursor, const QString &text)
{
    const auto insertLine = [&cursor](const QString &line) {
        cursor.insertText(line, QTextCharFormat());
    };
    qsizetype start = 0;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (!fitsIntoLine(text[index])) {
            insertLine(text.sliced(start, index - start));
            insertObject(cursor, heldCharacterObjectType, text.sliced(index, 1));
            start = index + 1;
        }
    }
    insertLine(text.sliced(start));
}

void insertPiece(QTextCursor &cursor, const TokenPiece &piece)
{
    piece.isToken ? insertObject(cursor, tokenObjectType, piece.text) : insertText(cursor, piece.text);
}

void appendCharacter(QList<TokenPiece> &pieces, QChar character, const QTextCharFormat &format)
{
    const bool isObject = character == QChar::ObjectReplacementCharacter;
    if (isObject && format.objectType() == tokenObjectType) {
        pieces.append({representedObject(format), true});
        return;
    }
    if (pieces.isEmpty() || pieces.last().isToken) {
        pieces.append({QString(), false});
    }
    const bool isHeld = isObject && format.objectType() == heldCharacterObjectType;
    pieces.last().text += isHeld ? heldCharacter(format) : character;
}

} // namespace

QString representedObject(const QTextFormat &format)
{
    return format.stringProperty(objectProperty);
}

QChar heldCharacter(const QTextFormat &format)
{
    return format.stringProperty(objectProperty).at(0);
}

bool isToken(const QTextDocument &document, int position)
{
    const QList<TokenPiece> pieces = tokenPieces(document, position, position + 1);
    return !pieces.isEmpty() && pieces.first().isToken;
}

void insertPieces(QTextCursor &cursor, const QList<TokenPiece> &pieces)
{
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    for (const TokenPiece &piece : pieces) {
        insertPiece(cursor, piece);
    }
    cursor.endEditBlock();
}

void replaceWithPiece(QTextDocument &document, int start, int end, const TokenPiece &piece)
{
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    cursor.setPosition(end);
    insertPiece(cursor, piece);
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.endEditBlock();
}

QList<TokenPiece> tokenPieces(const QTextDocument &document, int start, int end)
{
    QList<TokenPiece> pieces;
    const QTextBlock block = document.firstBlock();
    for (auto iterator = block.begin(); !iterator.atEnd(); ++iterator) {
        const QTextFragment fragment = iterator.fragment();
        const int first = std::max(start, fragment.position());
        const int last = std::min(end, fragment.position() + fragment.length());
        const QString text = fragment.text();
        const QTextCharFormat format = fragment.charFormat();
        for (int position = first; position < last; ++position) {
            appendCharacter(pieces, text[position - fragment.position()], format);
        }
    }
    return pieces;
}

QList<TokenPiece> tokenPieces(const QTextDocument &document)
{
    return tokenPieces(document, 0, document.characterCount());
}

} // namespace windowing
