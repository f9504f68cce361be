#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QTextObjectInterface>

namespace windowing {

class TokenEditor;

/// Draws the tokens of an editor as rounded chips, and a pale sign for each character that a line cannot hold. A
/// document stands its objects on the baseline, so they take the room above it and are drawn down to where letters
/// reach; their text then has the baseline of the text beside it.
class TokenChip final : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit TokenChip(TokenEditor &editor);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;

    /// Draws what is selected, which a document would paint its highlight over. To be called when the document has been
    /// drawn.
    void drawSelection(QPainter &painter);

private:
    struct Object {
        QRectF line; ///< in the viewport
        QString text;
        bool isChip;
    };

    QString textOf(const QTextFormat &format) const;

    TokenEditor &m_editor;
    QList<Object> m_selection;
};

} // namespace windowing
