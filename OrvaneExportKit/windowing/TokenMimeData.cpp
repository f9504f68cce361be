#include <OrvaneExportKit/windowing/TokenMimeData.h>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

QString piecesFormat()
{
    return u"application/x-orvane-token-pieces"_s;
}

} // namespace

QString oneLine(QString text)
{
    text.remove(QChar::ObjectReplacementCharacter);
    text.replace("\r\n"_L1, " "_L1);
    for (QChar &character : text) {
        if (character == u'\n' || character == u'\r' || character == QChar::ParagraphSeparator ||
            character == QChar::LineSeparator) {
            character = u' ';
        }
    }
    return text;
}

std::unique_ptr<QMimeData> mimeDataOfPieces(const QList<TokenPiece> &pieces, const QString &displayText)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    for (const TokenPiece &piece : pieces) {
        stream << piece.isToken << piece.text;
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(displayText);
    data->setData(piecesFormat(), bytes);
    return data;
}

std::optional<QList<TokenPiece>> piecesOfMimeData(const QMimeData &data)
{
    const QByteArray bytes = data.data(piecesFormat());
    QList<TokenPiece> pieces;
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_4);
    while (!stream.atEnd()) {
        TokenPiece piece{};
        stream >> piece.isToken >> piece.text;
        if (stream.status() != QDataStream::Ok) {
            return std::nullopt;
        }
        pieces.append(piece);
    }
    return pieces.isEmpty() ? std::nullopt : std::optional(pieces);
}

} // namespace windowing
