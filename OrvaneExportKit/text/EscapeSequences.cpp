#include <OrvaneExportKit/text/EscapeSequences.h>

#include <OrvaneExportKit/platform/LiteralSearch.h>
#include <OrvaneExportKit/platform/TextEdits.h>
#include <OrvaneExportKit/text/Occurrences.h>
#include <OrvaneExportKit/text/UnitSubstitution.h>

#include <algorithm>
#include <optional>

using platform::TextEdits;
using platform::units;

namespace {

constexpr std::u16string_view letters = u"fnt";
constexpr std::u16string_view controls = u"\f\n\t";

/// The unit, as a string, that stands in `to` where `unit` stands in `from`.
std::optional<std::u16string_view> counterpart(char16_t unit, std::u16string_view from, std::u16string_view to)
{
    const std::size_t index = from.find(unit);
    return index == from.npos ? std::nullopt : std::optional(to.substr(index, 1));
}

/// A sequence becomes its control character, but loses only its backslash behind another one; a control character
/// behind a backslash becomes its letter.
class EscapeFinder
{
public:
    std::size_t operator()(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits)
    {
        std::size_t next = until;
        platform::forEachUnit(text.substr(0, until), from, platform::OneOf<u'\\'>(), [&](std::size_t at) {
            const bool escaped = at == m_behindBackslash;
            m_behindBackslash = at + 1;
            if (at + 1 == text.size()) {
                return;
            }
            if (const auto control = counterpart(text[at + 1], letters, controls)) {
                if (escaped) {
                    edits.remove({at, 1});
                } else {
                    edits.replace({at, 2}, *control);
                }
            } else if (const auto letter = counterpart(text[at + 1], controls, letters)) {
                edits.replace({at + 1, 1}, *letter);
            } else {
                return;
            }
            next = std::max(next, edits.back().range.end());
        });
        return next;
    }

private:
    std::size_t m_behindBackslash = platform::notFound; // behind the last one
};

/// Applies pairs one after the other to a copy of a text. In a long text those of single units are gathered and made in
/// one pass.
class Substitution
{
public:
    explicit Substitution(QStringView text) : m_given(text) {}

    void apply(const QString &from, const QString &to)
    {
        constexpr qsizetype longText = 2000; // about where gathering begins to pay
        if (from.size() == 1 && m_given.size() >= longText && appendReplacement(m_gathered, units(from).front(), to)) {
            return;
        }
        makeGathered();
        if (platform::findLiteral(m_copy ? units(*m_copy) : units(m_given), units(from), 0) != platform::notFound) {
            carryOut(platform::Replacements{units(from), units(to)});
        }
    }

    QString result()
    {
        makeGathered();
        return m_copy ? std::move(*m_copy) : m_given.toString();
    }

private:
    void makeGathered()
    {
        if (!m_gathered.empty()) {
            carryOut(platform::UnitReplacementFinder(m_gathered));
            m_gathered.clear();
        }
    }

    void carryOut(const platform::EditFinder &find)
    {
        if (m_copy) {
            platform::edit(*m_copy, find);
        } else {
            m_copy = platform::edit(m_given, find);
        }
    }

    QStringView m_given;
    std::optional<QString> m_copy; // once something was applied
    platform::UnitReplacements m_gathered;
};

} // namespace

namespace KZStringExportAdditions {

QString stringWithConvertedEscSequences(QStringView text)
{
    return platform::edit(text, EscapeFinder());
}

QString stringWithConvertedStringsFromArray(QStringView text, const QStringList &from, const QStringList &to)
{
    Substitution substitution(text);
    for (qsizetype pair = std::min(from.size(), to.size()); pair-- > 0;) {
        substitution.apply(from[pair], to[pair]);
    }
    return substitution.result();
}

} // namespace KZStringExportAdditions
