#pragma once

#include <QtCore/QObject>
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

private:
    TokenEditor &m_editor;
};

} // namespace windowing
