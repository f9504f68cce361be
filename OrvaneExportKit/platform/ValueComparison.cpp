#include <OrvaneExportKit/platform/ValueComparison.h>

#include <OrvaneExportKit/platform/ArchivedTypes.h>

#include <algorithm>
#include <new>

namespace platform {

namespace {

template <typename Value>
const Value &content(const QVariant &value)
{
    return *static_cast<const Value *>(value.constData());
}

template <typename Value>
bool holds(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<Value>();
}

} // namespace

bool ValueComparison::equal(const QVariant &a, const QVariant &b)
{
    if (a.metaType() != b.metaType()) {
        return m_numbers == Numbers::OfAnyType && a == b;
    }
    if (holds<QVariantMap>(a)) {
        return equal(content<QVariantMap>(a), content<QVariantMap>(b));
    }
    if (holds<QVariantList>(a)) {
        return equal(content<QVariantList>(a), content<QVariantList>(b));
    }
    if (a.typeId() < QMetaType::User) {
        return a == b;
    }
    if (holds<ObjectSet>(a)) {
        return equalElements<ObjectSet>(a, b);
    }
    if (holds<OrderedObjectSet>(a)) {
        return equalElements<OrderedObjectSet>(a, b);
    }
    if (holds<CountedObjectSet>(a)) {
        return content<CountedObjectSet>(a).counts == content<CountedObjectSet>(b).counts &&
               equalElements<CountedObjectSet>(a, b);
    }
    if (holds<ObjectDictionary>(a)) {
        const auto &left = content<ObjectDictionary>(a);
        const auto &right = content<ObjectDictionary>(b);
        return equal(left.keys, right.keys) && equal(left.objects, right.objects);
    }
    return a == b;
}

bool ValueComparison::equal(const QVariantList &a, const QVariantList &b)
{
    if (a.size() != b.size()) {
        return false;
    }
    const Pair pair(a.constData(), b.constData());
    if (pair.first == pair.second || m_equal.contains(pair)) {
        return true;
    }
    if (!std::equal(a.begin(), a.end(), b.begin(),
                    [this](const QVariant &x, const QVariant &y) { return equal(x, y); })) {
        return false;
    }
    remember(pair);
    return true;
}

bool ValueComparison::equal(const QVariantMap &a, const QVariantMap &b)
{
    if (a.isSharedWith(b)) {
        return true;
    }
    if (a.size() != b.size()) {
        return false;
    }
    if (a.isEmpty()) {
        return true;
    }
    const Pair pair(&a.firstKey(), &b.firstKey());
    if (m_equal.contains(pair)) {
        return true;
    }
    const auto sameEntry = [this](const auto &x, const auto &y) {
        return x.first == y.first && equal(x.second, y.second);
    };
    if (!std::equal(a.keyValueBegin(), a.keyValueEnd(), b.keyValueBegin(), sameEntry)) {
        return false;
    }
    remember(pair);
    return true;
}

template <typename Set>
bool ValueComparison::equalElements(const QVariant &a, const QVariant &b)
{
    return equal(content<Set>(a).elements, content<Set>(b).elements);
}

/// What there is no memory to remember is compared again.
void ValueComparison::remember(const Pair &pair) noexcept
{
    try {
        m_equal.insert(pair);
    } catch (const std::bad_alloc &) {
        return;
    }
}

} // namespace platform
