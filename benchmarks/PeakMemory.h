#pragma once

#include <cstddef>

/// The most memory that is held while the object lives, beyond what was held when it was made. The program counts what
/// malloc gives out, for all threads together.
class PeakMemory
{
public:
    PeakMemory();

    /// The peak in bytes.
    std::size_t withResult() const;

    /// The same less what is held now.
    std::size_t beyondResult() const;

private:
    std::size_t m_start;
};
