#include "PlainTextPlugin.h"

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/text/EscapeSequences.h>
#include <OrvaneExportKit/text/LineLayout.h>
#include <OrvaneExportKit/text/QuotationMarks.h>
#include <OrvaneExportKit/text/QuotationTable.h>
#include <OrvaneExportKit/text/RangeLists.h>
#include <OrvaneExportKit/text/TaggedSpans.h>
#include <OrvaneExportKit/text/Typography.h>

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace KZMutableStringExportAdditions;

namespace {

using Options = PlainTextPlugin::Options;
using TagPair = PlainTextPlugin::TagPair;

const platform::BundleRegistration bundleRegistration(u"org.orvane.plain-text"_s, u":/org.orvane.plain-text"_s);

constexpr quint32 widestTab = 64;

std::optional<quint32> numberUpTo(quint32 maximum, const QString &value)
{
    bool isNumber = false;
    const quint32 number = value.toUInt(&isNumber);
    return isNumber && number <= maximum ? std::optional(number) : std::nullopt;
}

/// The items of a list with their escape sequences converted; nothing when an item is empty.
std::optional<QStringList> items(const QString &value, QChar separator)
{
    QStringList converted;
    if (value.isEmpty()) {
        return converted;
    }
    for (const QString &item : value.split(separator)) {
        if (item.isEmpty()) {
            return std::nullopt;
        }
        converted.append(KZStringExportAdditions::stringWithConvertedEscSequences(item));
    }
    return converted;
}

// Each of these sets one choice and answers whether the choice takes the value.

bool setLineLength(Options &options, const QString &value)
{
    const auto length = numberUpTo(std::numeric_limits<quint32>::max(), value);
    options.lineLength = length.value_or(options.lineLength);
    return length.has_value();
}

bool setQuotationLanguage(Options &options, const QString &value)
{
    const bool keepsStraightMarks = value == u"none";
    if (!keepsStraightMarks && !platform::quotationMarks(platform::Bundle::kitBundle(), value).begin) {
        return false;
    }
    options.quotationLanguage = keepsStraightMarks ? QString() : value;
    return true;
}

bool setInlineTags(Options &options, const QString &value)
{
    const auto pairs = items(value, u';');
    if (!pairs) {
        return false;
    }
    QList<TagPair> tags;
    for (const QString &pair : *pairs) {
        const QStringList startAndStop = pair.split(u',');
        if (startAndStop.size() != 2 || startAndStop.contains(QString())) {
            return false;
        }
        tags.append({startAndStop.first(), startAndStop.last()});
    }
    options.inlineTags = std::move(tags);
    return true;
}

bool setLevelStrings(Options &options, const QString &value)
{
    auto strings = items(value, u',');
    if (!strings) {
        return false;
    }
    // "#" would take the first unit of "##" away, so the longer one must have its turn before.
    std::stable_sort(strings->begin(), strings->end(),
                     [](const QString &a, const QString &b) { return a.size() > b.size(); });
    options.levelStrings = *std::move(strings);
    return true;
}

bool setParagraphMarks(Options &options, const QString &value)
{
    auto marks = items(value, u',');
    if (!marks) {
        return false;
    }
    options.paragraphMarks = *std::move(marks);
    return true;
}

bool setTabWidth(Options &options, const QString &value)
{
    const auto width = numberUpTo(widestTab, value);
    if (!width && value != u"keep") {
        return false;
    }
    options.tabWidth = width;
    return true;
}

/// Sets a flag to whether the value is one of the words for true; it takes no other words than the given ones.
bool setFlag(bool &flag, const QString &value, const QStringList &wordsForTrue, const QStringList &wordsForFalse)
{
    flag = wordsForTrue.contains(value);
    return flag || wordsForFalse.contains(value);
}

bool setEmptyLines(Options &options, const QString &value)
{
    return setFlag(options.keepsEmptyLines, value, {u"keep"_s}, {u"drop"_s});
}

/// Stored booleans read "true" and "false".
bool setTypography(Options &options, const QString &value)
{
    return setFlag(options.correctsTypography, value, {u"yes"_s, u"true"_s}, {u"no"_s, u"false"_s});
}

struct ChoiceRule {
    QString key;
    QString defaultValue;
    QString purpose;
    QString allowedValues;
    bool (*set)(Options &options, const QString &value);
};

const QList<ChoiceRule> &choiceRules()
{
    static const QList<ChoiceRule> rules = {
        {u"line-length"_s, u"72"_s, u"breaks lines that are longer"_s, u"a number; 0 keeps long lines"_s,
         setLineLength},
        {u"quotation-language"_s, u"en_US"_s, u"makes straight quotation marks typographic"_s,
         u"a language such as en_US, de or fr_FR, or none"_s, setQuotationLanguage},
        {u"inline-tags"_s, u"**,**;//,//"_s, u"deletes the tags around inline spans"_s,
         u"pairs start,stop separated by semicolons"_s, setInlineTags},
        {u"level-strings"_s, u"###,##,#"_s, u"deletes the marks of headings at the start of lines"_s,
         u"strings separated by commas"_s, setLevelStrings},
        {u"paragraph-marks"_s, u">"_s, u"deletes the marks of paragraphs at the start of lines"_s,
         u"strings separated by commas"_s, setParagraphMarks},
        {u"tab-width"_s, u"4"_s, u"makes blanks of the tabs at the start of lines"_s,
         u"a number from 0 to %1, or keep"_s.arg(widestTab), setTabWidth},
        {u"empty-lines"_s, u"keep"_s, u"what becomes of empty lines"_s, u"keep or drop"_s, setEmptyLines},
        {u"typography"_s, u"yes"_s, u"corrects ellipses, apostrophes and dashes"_s, u"yes or no"_s, setTypography},
    };
    return rules;
}

/// Sets what the rule is for; throws, saying what is allowed, when the rule does not take the value.
void apply(const ChoiceRule &rule, const QString &value, Options &options)
{
    if (!rule.set(options, value)) {
        throw platform::InvalidArgumentException(
            u"%1 takes %2; '%3' is nothing of that"_s.arg(rule.key, rule.allowedValues, value).toStdString());
    }
}

Options optionsIn(const KZExportSettings &settings)
{
    Options options;
    for (const ChoiceRule &rule : choiceRules()) {
        const QVariant stored = settings.objectForKey(rule.key);
        apply(rule, stored.isValid() ? stored.toString() : rule.defaultValue, options);
    }
    return options;
}

void endLinesWithLineFeeds(QString &text)
{
    text.replace("\r\n"_L1, "\n"_L1);
    text.replace(u'\r', u'\n');
}

void deleteTags(QString &text, const TagPair &tags)
{
    deleteCharactersInRanges(text, KZStringExportAdditions::rangesForStartTag(text, tags.start, tags.stop));
}

void deleteParagraphMarks(QString &text, const QStringList &marks)
{
    platform::AttributedString marked(std::move(text));
    for (const QString &mark : marks) {
        KZMutableAttributedStringExportAdditions::deleteParagraphMark(
            marked, mark, KZAttributedStringExportAdditions::lineRangesForLevelString(marked, mark));
    }
    text = marked.string();
}

void correctTypography(QString &text)
{
    convertEllipses(text);
    correctApostrophes(text);
    correctDashes(text);
}

/// Takes out the line feeds that wrapping has put between the two units of a character.
void rejoinSurrogates(QString &text)
{
    platform::RangeList breaks;
    for (qsizetype at = text.indexOf(u'\n', 1); at >= 0 && at + 1 < text.size(); at = text.indexOf(u'\n', at + 1)) {
        if (text[at - 1].isHighSurrogate() && text[at + 1].isLowSurrogate()) {
            breaks.push_back({static_cast<std::size_t>(at), 1});
        }
    }
    deleteCharactersInRanges(text, breaks);
}

QString withoutLeadingSpaces(const QString &text)
{
    const auto start =
        std::find_if(text.begin(), text.end(), [](QChar character) { return character != u' '; }) - text.begin();
    return text.sliced(start);
}

/// Breaks lines that are longer than the limit. A text that begins with an indented word longer than the limit loses
/// that indent: there is no place for a break before the word.
void wrapLines(QString &text, quint32 limit)
{
    const QString unwrapped = text;
    try {
        setMaxLineLength(text, limit);
    } catch (const platform::RangeException &) {
        text = withoutLeadingSpaces(unwrapped);
        setMaxLineLength(text, limit);
    }
    rejoinSurrogates(text);
}

} // namespace

QString PlainTextPlugin::name() const
{
    return u"plain-text"_s;
}

QString PlainTextPlugin::displayName() const
{
    return bundle().localizedStringForKey(u"Plain Text"_s);
}

QString PlainTextPlugin::pathExtension() const
{
    return u"txt"_s;
}

QList<ExportPlugin::Choice> PlainTextPlugin::choices() const
{
    QList<Choice> choices;
    for (const ChoiceRule &rule : choiceRules()) {
        choices.append({rule.key, rule.defaultValue, rule.purpose + u" ("_s + rule.allowedValues + u')'});
    }
    return choices;
}

KZExportSettings &PlainTextPlugin::settings()
{
    return m_settings;
}

void PlainTextPlugin::setChoice(const QString &key, const QString &value)
{
    const QList<ChoiceRule> &rules = choiceRules();
    const auto rule = std::find_if(rules.begin(), rules.end(), [&key](const auto &other) { return other.key == key; });
    if (rule == rules.end()) {
        throw platform::InvalidArgumentException("there is no choice '" + key.toStdString() + "'");
    }
    Options checked;
    apply(*rule, value, checked);
    m_settings.setValue(value, key);
}

QByteArray PlainTextPlugin::exportedData(const ExportDocument & /*document*/,
                                         const platform::AttributedString &text) const
{
    const Options options = optionsIn(m_settings);
    QString plain = text.string();
    endLinesWithLineFeeds(plain);
    for (const TagPair &tags : options.inlineTags) {
        deleteTags(plain, tags);
    }
    for (const QString &levelString : options.levelStrings) {
        deleteLevelMark(plain, levelString);
    }
    deleteParagraphMarks(plain, options.paragraphMarks);
    if (!options.quotationLanguage.isEmpty()) {
        convertQuotationsToLanguage(plain, options.quotationLanguage);
    }
    if (options.correctsTypography) {
        correctTypography(plain);
    }
    if (options.tabWidth) {
        convertStartTabsToSpace(plain, *options.tabWidth);
    }
    if (!options.keepsEmptyLines) {
        deleteEmptyLines(plain);
    }
    if (options.lineLength > 0) {
        wrapLines(plain, options.lineLength);
    }
    return plain.toUtf8();
}

platform::Bundle PlainTextPlugin::bundle() const
{
    return platform::Bundle::bundleWithIdentifier(u"org.orvane.plain-text"_s);
}
