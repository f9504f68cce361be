#pragma once

#include <OrvaneExportKit/windowing/TokenText.h>
#include <OrvaneExportKit/windowing/TokenVocabulary.h>

#include <QtGui/QPalette>
#include <QtGui/QTextCursor>
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

    TokenVocabulary &vocabulary() { return m_vocabulary; }
    const TokenVocabulary &vocabulary() const { return m_vocabulary; }

    /// What the line holds.
    const QList<TokenPiece> &pieces() const { return m_pieces; }

    /// What the user reads.
    QString displayText() const { return m_vocabulary.displayText(m_pieces); }

    /// Replaces all, which is no edit; nothing can be undone after that.
    void setPieces(const QList<TokenPiece> &pieces);

    /// Puts what a display string stands for in the place of the selection, as a step of the edit.
    void insertTyped(const QString &displayString);

    /// Takes back the last step of the edit, or makes it again.
    void undoStep();
    void redoStep();

    /// To be called for a new font.
    void adoptFont();

    /// The height of one line with its margins.
    int lineHeight() const;

    /// Those of the palette that a selection is drawn in.
    QPalette::ColorGroup selectionColors() const;

Q_SIGNALS:
    void edited(); ///< the pieces are other ones, by the user
    void editingFinished();
    void focusChanged();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;
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

    QString textBetween(int start, int end) const;
    QList<int> wordStarts(int end) const;
    QStringList completionsFor(const QString &substring, qint32 *highlighted) const;
    Completion completion() const;
    Completion allTokens() const;
    void showCompletions(const Completion &completion);
    void completeTyped();
    void hideCompletions();
    bool handleKeyOfList(const QKeyEvent &event);
    void takeCompletion(const QString &displayString);
    void takeChange();
    void rememberTyped();
    bool finishEdit();
    bool makeTokens();
    void makeTokenOfTypedText();
    void makeTokensOfObjects();
    int tokenAt(QPoint point) const;
    void selectToken(int position);
    void clearSelection();

    TokenVocabulary m_vocabulary;
    QList<TokenPiece> m_pieces;
    CompletionList *m_list;
    TokenChip *m_chip;
    QTextCursor m_typedEnd; ///< behind what was typed last in this edit; null when nothing was
    int m_completionStart = 0;
    int m_pressedToken = -1;
    bool m_hasKeyboard = false; ///< the focus, and no menu has the keyboard meanwhile
};

} // namespace windowing
