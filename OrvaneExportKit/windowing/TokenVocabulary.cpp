#include <OrvaneExportKit/windowing/TokenVocabulary.h>

#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

bool isOfWord(QChar character)
{
    return character.isLetterOrNumber();
}

/// Whether an object stands at a position of a text and is not a part of a longer word there.
bool standsAt(const QString &text, qsizetype position, const QString &object)
{
    if (!QStringView(text).sliced(position).startsWith(object)) {
        return false;
    }
    const qsizetype end = position + object.size();
    const bool continuesWord = position > 0 && isOfWord(text[position - 1]) && isOfWord(object.front());
    const bool isContinued = end < text.size() && isOfWord(text[end]) && isOfWord(object.back());
    return !continuesWord && !isContinued;
}

QList<TokenVocabulary::Occurrence> occurrencesOf(const QStringList &objects, const QString &text)
{
    QList<TokenVocabulary::Occurrence> found;
    qsizetype position = 0;
    while (position < text.size()) {
        const auto object = std::find_if(objects.begin(), objects.end(),
                                         [&](const QString &candidate) { return standsAt(text, position, candidate); });
        if (object != objects.end()) {
            found.append({position, *object});
            position += object->size();
        } else {
            ++position;
        }
    }
    return found;
}

} // namespace

void TokenVocabulary::forgetError()
{
    m_hasFailed = false;
    forgetToldErrors(m_field);
}

/// What the delegate answers to a question, or nothing when it throws.
template <typename Question>
auto TokenVocabulary::answer(const Question &question) const -> std::optional<decltype(question())>
{
    try {
        return question();
    } catch (...) {
        if (!m_hasFailed) {
            m_hasFailed = true;
            tellCurrentException(m_field, ErrorTelling::OnceUntilChange);
        }
    }
    return std::nullopt;
}

bool TokenVocabulary::hasDelegate() const
{
    return m_field.delegate() != nullptr;
}

QString TokenVocabulary::displayString(const QString &representedObject) const
{
    return knownDisplayString(representedObject).value_or(representedObject);
}

QString TokenVocabulary::displayText(const QList<TokenPiece> &pieces) const
{
    QString text;
    for (const TokenPiece &piece : pieces) {
        text += piece.isToken ? displayString(piece.text) : piece.text;
    }
    return text;
}

QStringList TokenVocabulary::completions(const QString &text, qsizetype tokensBefore, qint32 *highlighted) const
{
    const TokenFieldDelegate *delegate = m_field.delegate();
    if (delegate == nullptr) {
        return {};
    }
    return answer([&] {
               return delegate->completionsForSubstring(&m_field, text, static_cast<qint32>(tokensBefore), highlighted);
           })
        .value_or(QStringList());
}

QStringList TokenVocabulary::displayStrings() const
{
    qint32 highlighted = -1;
    return completions({}, 0, &highlighted);
}

TokenPiece TokenVocabulary::pieceForTyped(const QString &text) const
{
    const QString object = knownObject(text).value_or(text);
    return {object, isToken(object)};
}

bool TokenVocabulary::isDisplayString(const QString &text) const
{
    const std::optional<QString> object = knownObject(text);
    return object.has_value() && (*object != text || isToken(*object));
}

QList<TokenPiece> TokenVocabulary::piecesForValue(const QStringList &value) const
{
    const QStringList objects = objectsOfTokens();
    QList<TokenPiece> pieces;
    for (const QString &element : value) {
        if (isToken(element)) {
            pieces.append({element, true});
            continue;
        }
        qsizetype start = 0;
        for (const auto &[position, object] : occurrencesOf(objects, element)) {
            pieces.append({element.sliced(start, position - start), false});
            pieces.append({object, true});
            start = position + object.size();
        }
        pieces.append({element.sliced(start), false});
    }
    return pieces;
}

QList<TokenVocabulary::Occurrence> TokenVocabulary::occurrences(const QString &text) const
{
    return occurrencesOf(objectsOfTokens(), text);
}

std::optional<QString> TokenVocabulary::knownDisplayString(const QString &representedObject) const
{
    const TokenFieldDelegate *delegate = m_field.delegate();
    if (delegate == nullptr) {
        return std::nullopt;
    }
    return answer([&] { return delegate->displayStringForRepresentedObject(&m_field, representedObject); });
}

std::optional<QString> TokenVocabulary::knownObject(const QString &editingString) const
{
    const TokenFieldDelegate *delegate = m_field.delegate();
    if (delegate == nullptr) {
        return std::nullopt;
    }
    return answer([&] { return delegate->representedObjectForEditingString(&m_field, editingString); });
}

bool TokenVocabulary::offers(const QString &displayString) const
{
    qint32 highlighted = -1;
    return completions(displayString, 0, &highlighted).contains(displayString);
}

/// Whether the delegate shows the object as a text that stands for it. What it does not know stands for itself as well,
/// but is not offered.
bool TokenVocabulary::isToken(const QString &representedObject) const
{
    const std::optional<QString> shown = knownDisplayString(representedObject);
    return shown.has_value() && knownObject(*shown) == representedObject &&
           (*shown != representedObject || offers(*shown));
}

/// The longest first: of two that begin alike, the longer one is meant.
QStringList TokenVocabulary::objectsOfTokens() const
{
    QStringList objects;
    for (const QString &displayString : displayStrings()) {
        const std::optional<QString> object = knownObject(displayString);
        if (object.has_value() && !object->isEmpty() && isToken(*object)) {
            objects.append(*object);
        }
    }
    std::stable_sort(objects.begin(), objects.end(),
                     [](const QString &a, const QString &b) { return a.size() > b.size(); });
    return objects;
}

} // namespace windowing
