#pragma once

#include <OrvaneExportKit/windowing/TokenText.h>

#include <QtWidgets/QTextEdit>

namespace windowing {

class CompletionList;
class TokenChip;
class TokenField;

/// The text inside a token field: one line, in which tokens are single characters drawn as chips. Undoing, selecting,
/// dragging, input methods and writing directions are those of every text edit.
class TokenEditor final : public QTextEdit
{
    Q_OBJECT

public:
    explicit TokenEditor(TokenField &field);

    QList<TokenPiece> pieces() const { return tokenPieces(*document()); }

    /// Replaces all; nothing can be undone after that.
    void setPieces(const QList<TokenPiece> &pieces);

    /// To be called for a new font.
    void adoptFont();

    /// The text that the user reads for a represented object.
    QString displayString(const QString &representedObject) const;

    /// The text that the user reads for pieces.
    QString displayText(const QList<TokenPiece> &pieces) const;

    /// Whether an element of a value is a token for the delegate.
    bool isKnownToken(const QString &representedObject) const;

    /// The height of one line with its margins.
    int lineHeight() const;

Q_SIGNALS:
    void editingFinished();
    void focusChanged();

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    /// What has been typed before the cursor, and what may become of it.
    struct Completion {
        int start; ///< where the typed text starts
        QStringList strings;
        qint32 highlighted;
    };

    QStringList completionsFor(const QString &substring, qint32 *highlighted = nullptr) const;
    QList<int> wordStarts() const;
    QString textBeforeCursor(int start) const;
    Completion completion() const;
    void showCompletions(const Completion &completion);
    void completeTyped();
    void hideCompletions();
    bool handleKeyOfList(const QKeyEvent &event);
    void takeCompletion(const QString &displayString);
    bool makeTokenOfTypedText();
    void replaceTyped(int start, const QString &displayString);
    int tokenAt(QPoint point) const;
    void selectToken(int position);

    TokenField &m_field;
    CompletionList *m_list;
    TokenChip *m_chip;
    int m_completionStart = 0;
    int m_pressedToken = -1;
};

} // namespace windowing
