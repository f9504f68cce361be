#include <OrvaneExportKit/platform/ValueExtent.h>

#include <QtCore/QStringList>

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace platform {

namespace {

constexpr quint64 sizeOfValue = 8;

template <typename Value>
const Value &content(const QVariant &value)
{
    return *static_cast<const Value *>(value.constData());
}

quint64 sizeOf(const QString &string)
{
    return static_cast<quint64>(string.size()) * sizeof(QChar);
}

quint64 sum(quint64 a, quint64 b)
{
    return a < std::numeric_limits<quint64>::max() - b ? a + b : std::numeric_limits<quint64>::max();
}

class Measurement
{
public:
    ValueExtent extent(const QVariant &value, int depth);

private:
    template <typename Container, typename AddElements>
    ValueExtent shared(const Container &container, const void *address, int depth, const AddElements &addElements);
    template <typename Map>
    ValueExtent ofMap(const Map &map, int depth);

    std::unordered_map<const void *, ValueExtent> m_known; ///< by the address of the first element or key
};

ValueExtent Measurement::extent(const QVariant &value, int depth)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return {sizeOfValue + sizeOf(content<QString>(value)), 0};
    case QMetaType::QByteArray:
        return {sizeOfValue + static_cast<quint64>(content<QByteArray>(value).size()), 0};
    case QMetaType::QStringList: {
        const auto &list = content<QStringList>(value);
        return shared(list, list.constData(), depth, [&list](ValueExtent &extent) {
            for (const QString &string : list) {
                extent.size = sum(extent.size, sizeOfValue + sizeOf(string));
            }
        });
    }
    case QMetaType::QVariantList: {
        const auto &list = content<QVariantList>(value);
        return shared(list, list.constData(), depth, [&](ValueExtent &extent) {
            for (const QVariant &element : list) {
                const ValueExtent inner = this->extent(element, depth + 1);
                extent = {sum(extent.size, inner.size), std::max(extent.nesting, inner.nesting + 1)};
            }
        });
    }
    case QMetaType::QVariantMap:
        return ofMap(content<QVariantMap>(value), depth);
    case QMetaType::QVariantHash:
        return ofMap(content<QVariantHash>(value), depth);
    default:
        return {sizeOfValue, 0};
    }
}

template <typename Map>
ValueExtent Measurement::ofMap(const Map &map, int depth)
{
    const void *address = map.isEmpty() ? nullptr : &map.constBegin().key();
    return shared(map, address, depth, [&](ValueExtent &extent) {
        for (auto entry = map.constBegin(); entry != map.constEnd(); ++entry) {
            const ValueExtent inner = this->extent(entry.value(), depth + 1);
            extent = {sum(extent.size, sum(inner.size, sizeOf(entry.key()))),
                      std::max(extent.nesting, inner.nesting + 1)};
        }
    });
}

/// The extent of a container, which is measured the first time that it is met.
template <typename Container, typename AddElements>
ValueExtent Measurement::shared(const Container &container, const void *address, int depth,
                                const AddElements &addElements)
{
    ValueExtent extent{sizeOfValue, 1};
    if (container.isEmpty() || depth >= ValueExtent::furthestNesting) {
        return extent;
    }
    const auto known = m_known.find(address);
    if (known != m_known.end()) {
        return known->second;
    }
    addElements(extent);
    m_known.emplace(address, extent);
    return extent;
}

} // namespace

ValueExtent extentOf(const QVariant &value)
{
    return Measurement().extent(value, 0);
}

} // namespace platform
