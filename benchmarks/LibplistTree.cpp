#include "LibplistTree.h"

#include <cstdlib>

namespace {

using platform::PropertyList;

plist_t newNode(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return plist_new_string(value.toString().toUtf8().constData());
    case QMetaType::LongLong:
        return plist_new_uint(value.toULongLong());
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::Bool:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case QMetaType::QVariantMap: {
        plist_t dictionary = plist_new_dict();
        const QVariantMap entries = value.toMap();
        for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
            plist_dict_set_item(dictionary, entry.key().toUtf8().constData(), newNode(*entry));
        }
        return dictionary;
    }
    default:
        return nullptr;
    }
}

QVariantMap valueOfDictionary(plist_t dictionary);

QVariant valueOf(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_STRING: {
        uint64_t size = 0;
        const char *const text = plist_get_string_ptr(node, &size);
        return QString::fromUtf8(text, static_cast<qsizetype>(size));
    }
    case PLIST_UINT: {
        uint64_t number = 0;
        plist_get_uint_val(node, &number);
        return static_cast<qint64>(number);
    }
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return number;
    }
    case PLIST_BOOLEAN: {
        uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return flag != 0;
    }
    case PLIST_DICT:
        return valueOfDictionary(node);
    default:
        return {};
    }
}

QVariantMap valueOfDictionary(plist_t dictionary)
{
    QVariantMap entries;
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(dictionary, &position);
    char *key = nullptr;
    plist_t value = nullptr;
    for (plist_dict_next_item(dictionary, position, &key, &value); key != nullptr;
         plist_dict_next_item(dictionary, position, &key, &value)) {
        entries.insert(QString::fromUtf8(key), valueOf(value));
        std::free(key);
        key = nullptr;
    }
    std::free(position);
    return entries;
}

} // namespace

LibplistTree::LibplistTree(const QVariantMap &settings) : m_root(newNode(settings))
{
}

LibplistTree::LibplistTree(const QByteArray &list, PropertyList::Format format)
{
    const auto read = format == PropertyList::Format::Xml ? plist_from_xml : plist_from_bin;
    read(list.constData(), static_cast<uint32_t>(list.size()), &m_root);
}

LibplistTree::~LibplistTree()
{
    plist_free(m_root);
}

QVariant LibplistTree::value() const
{
    return valueOf(m_root);
}

QByteArray LibplistTree::written(PropertyList::Format format) const
{
    const auto write = format == PropertyList::Format::Xml ? plist_to_xml : plist_to_bin;
    char *list = nullptr;
    uint32_t size = 0;
    write(m_root, &list, &size);
    const QByteArray copy(list, size);
    std::free(list);
    return copy;
}
