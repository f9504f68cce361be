#pragma once

#include <QtCore/QCoreApplication>

#include <array>

namespace support {

/// The application object for as long as this lives, for tests of what needs one.
class Application
{
private:
    std::array<char, 5> m_name{"test"};
    std::array<char *, 2> m_arguments{m_name.data(), nullptr};
    int m_count = 1;
    QCoreApplication m_application{m_count, m_arguments.data()};
};

} // namespace support
