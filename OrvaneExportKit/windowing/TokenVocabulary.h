#pragma once

#include <OrvaneExportKit/windowing/TokenText.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace windowing {

class TokenField;

/// What the delegate of a field knows of tokens; nothing where there is no delegate. When the delegate throws, it knows
/// nothing of what it was asked for, and its first error is shown to the user.
class TokenVocabulary
{
public:
    explicit TokenVocabulary(TokenField &field) : m_field(field) {}

    /// To be called for a new delegate, whose first error is another one.
    void forgetError();

    bool hasDelegate() const;

    /// The text that the user reads for a represented object.
    QString displayString(const QString &representedObject) const;

    /// The text that the user reads for pieces.
    QString displayText(const QList<TokenPiece> &pieces) const;

    /// What may complete a text, where `tokensBefore` tokens stand before it, and which of it the delegate highlights.
    QStringList completions(const QString &text, qsizetype tokensBefore, qint32 *highlighted) const;

    /// The display strings of all tokens.
    QStringList displayStrings() const;

    /// What a typed text stands for: a token, or a text.
    TokenPiece pieceForTyped(const QString &text) const;

    /// Whether a typed text stands for something else than itself.
    bool isDisplayString(const QString &text) const;

    /// The elements of a value: the objects that stand for tokens, also inside of text, and the texts between them.
    QList<TokenPiece> piecesForValue(const QStringList &value) const;

    /// A represented object that stands inside of a text.
    struct Occurrence {
        qsizetype position;
        QString object;
    };

    /// Where represented objects of tokens stand inside of a text, from left to right. One that begins or ends with a
    /// letter or a digit does not stand inside of a word.
    QList<Occurrence> occurrences(const QString &text) const;

private:
    template <typename Question>
    auto answer(const Question &question) const -> std::optional<decltype(question())>;

    std::optional<QString> knownDisplayString(const QString &representedObject) const;
    std::optional<QString> knownObject(const QString &editingString) const;
    bool offers(const QString &displayString) const;
    bool isToken(const QString &representedObject) const;
    QStringList objectsOfTokens() const;

    TokenField &m_field;
    mutable bool m_hasFailed = false;
};

} // namespace windowing
