#pragma once

#include <QtCore/QVariant>

#include <set>
#include <utility>

namespace platform {

/// Compares values, in a time that follows the lists, maps and sets that there are: a few small ones that share each
/// other can hold more than anybody can count to, so each pair of them is compared once.
class ValueComparison
{
public:
    /// Whether 1 and 1.0 are equal.
    enum class Numbers {
        OfOneType,
        OfAnyType,
    };

    explicit ValueComparison(Numbers numbers) : m_numbers(numbers) {}

    bool equal(const QVariant &a, const QVariant &b);
    bool equal(const QVariantList &a, const QVariantList &b);
    bool equal(const QVariantMap &a, const QVariantMap &b);

private:
    using Pair = std::pair<const void *, const void *>;

    template <typename Set>
    bool equalElements(const QVariant &a, const QVariant &b);
    void remember(const Pair &pair) noexcept;

    Numbers m_numbers;
    std::set<Pair> m_equal; ///< containers, by the addresses of their first elements or keys
};

} // namespace platform
