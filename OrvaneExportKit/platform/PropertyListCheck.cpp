#include <OrvaneExportKit/platform/PropertyListCheck.h>

#include <OrvaneExportKit/platform/PropertyListError.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <QtCore/QDateTime>

#include <algorithm>
#include <vector>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

/// What the values may take together, in bytes.
constexpr qint64 maximumSize = 1'073'741'824;

/// Roughly what the tags of a value take in XML, without indentation.
constexpr qint64 tagSize = 32;

/// One step of the way from the list to a value: the key of a dictionary, or where there is none, an array's index.
struct Step {
    const QString *key = nullptr;
    qsizetype index = 0;
};

QString typeDescription(const QVariant &value)
{
    if (!value.isValid() || value.typeId() == QMetaType::Nullptr) {
        return u"a null value"_s;
    }
    return u"a value of type "_s + QString::fromUtf8(value.metaType().name());
}

class Check
{
public:
    explicit Check(PropertyList::Format format) : m_format(format) {}

    void requireWritable(const QVariant &value);

private:
    void requireElements(const QVariantList &elements);
    void requireEntries(const QVariantMap &entries);
    void requireText(const QString &text, const QString &name);
    void enterContainer();
    void spend(qint64 size);
    QString path() const;
    [[noreturn]] void fail(const QString &what) const;

    PropertyList::Format m_format;
    qint64 m_size = 0;
    std::vector<Step> m_path;
};

void Check::requireWritable(const QVariant &value)
{
    spend(tagSize + 2 * static_cast<qint64>(m_path.size()));
    switch (propertyListKind(value)) {
    case PropertyListKind::None:
        fail(typeDescription(value) + u" is not a property-list value"_s);
    case PropertyListKind::String:
        requireText(value.toString(), u"the string"_s);
        break;
    case PropertyListKind::Date:
        if (!value.toDateTime().isValid()) {
            fail(u"an invalid date is not a property-list value"_s);
        }
        break;
    case PropertyListKind::Data:
        spend(value.toByteArray().size());
        break;
    case PropertyListKind::Array:
        requireElements(value.toList());
        break;
    case PropertyListKind::Dictionary:
        requireEntries(value.toMap());
        break;
    case PropertyListKind::SignedInteger:
    case PropertyListKind::UnsignedInteger:
    case PropertyListKind::Real:
    case PropertyListKind::ShortReal:
    case PropertyListKind::Boolean:
    case PropertyListKind::Uid:
        break;
    }
}

void Check::requireElements(const QVariantList &elements)
{
    enterContainer();
    for (const QVariant &element : elements) {
        requireWritable(element);
        ++m_path.back().index;
    }
    m_path.pop_back();
}

void Check::requireEntries(const QVariantMap &entries)
{
    enterContainer();
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        m_path.back().key = &entry.key();
        requireText(entry.key(), u"the key"_s);
        requireWritable(entry.value());
    }
    m_path.pop_back();
}

void Check::requireText(const QString &text, const QString &name)
{
    spend(text.size());
    if (m_format != PropertyList::Format::Xml) {
        return;
    }
    if (text.contains(QChar::Null)) {
        fail(name + u" holds U+0000, which XML cannot hold"_s);
    }
    if (!text.isValidUtf16()) {
        fail(name + u" holds half a surrogate pair, which XML cannot hold"_s);
    }
}

void Check::enterContainer()
{
    if (m_path.size() == PropertyList::maximumNesting) {
        fail(nestingComplaint());
    }
    m_path.emplace_back();
}

void Check::spend(qint64 size)
{
    m_size += size;
    if (m_size > maximumSize) {
        fail(u"the values up to here would take more than %1 bytes"_s.arg(maximumSize));
    }
}

/// The way to the value, of a long one only both ends: `styles[2].font`.
QString Check::path() const
{
    constexpr std::size_t longestEnd = 8;
    constexpr qsizetype longestKey = 40;
    QString path;
    for (std::size_t i = 0; i < m_path.size(); ++i) {
        if (i == longestEnd && m_path.size() > 2 * longestEnd) {
            path += u"..."_s;
            i = m_path.size() - longestEnd;
        }
        if (m_path[i].key == nullptr) {
            path += u"[%1]"_s.arg(m_path[i].index);
        } else {
            path += (path.isEmpty() ? u""_s : u"."_s) + m_path[i].key->left(longestKey);
        }
    }
    return path.replace(QChar::Null, QChar::ReplacementCharacter);
}

void Check::fail(const QString &what) const
{
    throw PropertyListError{m_path.empty() ? what : path() + u": "_s + what};
}

} // namespace

void requireWritable(const QVariant &value, PropertyList::Format format)
{
    Check(format).requireWritable(value);
}

} // namespace platform
