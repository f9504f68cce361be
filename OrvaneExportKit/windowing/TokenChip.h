#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QTextObjectInterface>

namespace windowing {

class TokenEditor;

/// Draws the tokens of an editor as rounded chips. A document stands its objects on the baseline, so a chip takes the
/// room above it and is drawn down to where letters reach; its text then has the baseline of the text beside it.
class TokenChip final : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit TokenChip(TokenEditor &editor);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;

    /// Draws the chips of the selection, which a document would paint its highlight over. To be called when the
    /// document has been drawn.
    void drawSelectedChips(QPainter &painter);

private:
    struct SelectedChip {
        QRectF line; ///< in the viewport
        QString text;
    };

    TokenEditor &m_editor;
    QList<SelectedChip> m_selectedChips;
};

} // namespace windowing
