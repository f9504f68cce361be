#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Range.h>
#include <OrvaneExportKit/platform/TextEdits.h>
#include <OrvaneExportKit/platform/TextUnits.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>

namespace platform {

struct Deletions;

/// A text whose units carry attributes: names with values, such as a style name or a colour.
///
/// A value type: copies are cheap and share their storage until one of them changes. The attributes are kept as runs
/// sorted by location, so a look-up costs the logarithm of the number of runs. A change costs at most the length of
/// the text plus the number of runs; for changes at many places use the operations that take all of them in one call
/// (`changeAttributes`, `edit` and the operations of the kit's categories).
///
/// Indices and ranges count UTF-16 code units.
///
///     AttributedString text(u"bold and plain"_s);
///     text.addAttributes({{u"weight"_s, u"bold"_s}}, {0, 4});
///
/// For use on any thread, with objects of its own. Copies share their memory until one of them changes, also
/// those of other threads.
struct ORVANE_CORE_EXPORT AttributedString {
    /// A text whose units all carry `attributes`.
    explicit AttributedString(QString text = {}, const QVariantMap &attributes = {});

    /// Some units and the attributes that they all carry.
    struct Stretch {
        std::size_t length;     ///< in UTF-16 code units
        QVariantMap attributes; ///< of each of them
    };

    /// A text made of stretches, from its start to its end. Throws `InvalidArgumentException` when their lengths do not
    /// add up to that of the text.
    ///
    ///     AttributedString::fromStretches(u"bold and plain"_s, {{4, {{u"weight"_s, u"bold"_s}}}, {10, {}}});
    static AttributedString fromStretches(const QString &text, const QList<Stretch> &stretches);

    /// The plain text, the same units.
    const QString &string() const noexcept { return m_string; }

    /// The number of units.
    std::size_t length() const noexcept { return static_cast<std::size_t>(m_string.size()); }

    /// All attributes of the unit at `index`. `effectiveRange`, where given, receives the run around it whose units
    /// have exactly these attributes; for one attribute alone, `attribute` finds the longest such range.
    /// Throws `RangeException` when `index` is not below the length.
    QVariantMap attributesAtIndex(std::size_t index, Range *effectiveRange = nullptr) const;

    /// The value of one attribute of the unit at `index`, or an invalid `QVariant` where the unit lacks it.
    ///
    /// `longestEffectiveRange`, where given, receives the largest range around `index`, limited to `within`, over
    /// which the value stays equal (or stays absent); neighbouring runs with equal values count as one, also when they
    /// are numbers of different types, which the text otherwise keeps apart.
    /// Throws `RangeException` when `within` reaches past the end or `index` does not lie inside it.
    QVariant attribute(const QString &name, std::size_t index, Range *longestEffectiveRange, Range within) const;

    /// Adds the attributes over the range, replacing the values of those that are there already.
    /// Throws `RangeException` when the range reaches past the end; so do the other changing operations.
    void addAttributes(const QVariantMap &attributes, Range range);

    /// Gives the units of the range exactly these attributes.
    void setAttributes(const QVariantMap &attributes, Range range);

    /// Removes one attribute from the units of the range; units that lack it stay as they are.
    void removeAttribute(const QString &name, Range range);

    /// Puts `string` in the place of the range, with the attributes that `edit` gives to new units.
    void replaceCharacters(Range range, QStringView string);

    /// Changes the attributes of all units in `ranges` in one pass over the runs: `change` is called with the
    /// attributes of a stretch and alters them; it must depend on them alone.
    ///
    /// The ranges are ascending and do not overlap. Throws `InvalidArgumentException` when they do, `RangeException`
    /// when one reaches past the end, both before anything is changed.
    void changeAttributes(const RangeList &ranges, const std::function<void(QVariantMap &)> &change);

    /// Texts are equal when their units are and every unit has equal attributes.
    ORVANE_CORE_EXPORT friend bool operator==(const AttributedString &a, const AttributedString &b);
    ORVANE_CORE_EXPORT friend void edit(AttributedString &text, const TextEdits &edits);
    friend void edit(AttributedString &text, Deletions deletions);

private:
    /// The units from `start` to the start of the next run have these attributes. No run is empty, and neighbours
    /// differ.
    struct Run {
        std::size_t start;
        QVariantMap attributes;
    };

    qsizetype runHolding(std::size_t index) const;
    std::size_t runEnd(qsizetype run) const;
    template <typename Edits>
    void editTextAndRuns(const Edits &edits);
    template <typename Edits>
    void moveRuns(const Edits &edits, std::size_t length);
    static void appendRun(QList<Run> &runs, std::size_t start, const QVariantMap &attributes);
    void replaceRuns(qsizetype first, qsizetype count, const QList<Run> &replacements);

    QString m_string;
    QList<Run> m_runs;
};

/// The units of the plain text, as the finding functions read them.
inline std::u16string_view units(const AttributedString &text) noexcept
{
    return units(text.string());
}

} // namespace platform
