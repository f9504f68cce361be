#include <OrvaneExportKit/windowing/TokenText.h>

#include <QtGui/QTextBlock>

#include <algorithm>

namespace windowing {

namespace {

constexpr int representedObjectProperty = QTextFormat::UserProperty + 1;

void appendText(QList<TokenPiece> &pieces, QStringView text)
{
    if (!pieces.isEmpty() && !pieces.last().isToken) {
        pieces.last().text += text;
    } else {
        pieces.append({text.toString(), false});
    }
}

} // namespace

QString representedObject(const QTextFormat &format)
{
    return format.stringProperty(representedObjectProperty);
}

bool isToken(const QTextDocument &document, int position)
{
    return document.characterAt(position) == QChar::ObjectReplacementCharacter;
}

void insertToken(QTextCursor &cursor, const QString &representedObject)
{
    QTextCharFormat format;
    format.setObjectType(tokenObjectType);
    format.setProperty(representedObjectProperty, representedObject);
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
}

void insertPieces(QTextCursor &cursor, const QList<TokenPiece> &pieces)
{
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    for (const TokenPiece &piece : pieces) {
        if (piece.isToken) {
            insertToken(cursor, piece.text);
        } else {
            cursor.insertText(piece.text, QTextCharFormat());
        }
    }
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
        for (int position = first; position < last; ++position) {
            const QChar character = text[position - fragment.position()];
            if (character == QChar::ObjectReplacementCharacter) {
                pieces.append({representedObject(fragment.charFormat()), true});
            } else {
                appendText(pieces, QStringView(&character, 1));
            }
        }
    }
    return pieces;
}

QList<TokenPiece> tokenPieces(const QTextDocument &document)
{
    return tokenPieces(document, 0, document.characterCount());
}

} // namespace windowing
