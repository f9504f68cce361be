#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <bit>
#include <limits>
#include <random>

namespace support {

/// Makes random values of all kinds that every reader of property lists takes unchanged: dates of whole seconds in the
/// years 1 to 9999, and strings without control characters, noncharacters and half surrogate pairs.
class RandomPropertyLists
{
public:
    explicit RandomPropertyLists(unsigned seed) : m_generator(seed) {}

    QVariant value(int containers = 4)
    {
        switch (below(containers > 0 ? 10 : 7)) {
        case 0:
            return string();
        case 1:
            return QVariant::fromValue<qint64>(static_cast<qint64>(bits()));
        case 2:
            return QVariant::fromValue<quint64>(bits() | quint64(1) << 63);
        case 3:
            return real();
        case 4:
            return below(2) == 1;
        case 5:
            return date();
        case 6:
            return data();
        case 7:
            return array(containers - 1);
        default:
            return dictionary(containers - 1);
        }
    }

    QString string()
    {
        QString text;
        for (quint64 length = below(below(10) == 0 ? 300 : 20); length > 0; --length) {
            text += character();
        }
        return text;
    }

    quint64 below(quint64 limit) { return std::uniform_int_distribution<quint64>(0, limit - 1)(m_generator); }

private:
    /// Numbers of all magnitudes are equally frequent.
    quint64 bits() { return m_generator() >> below(64); }

    QVariant real()
    {
        switch (below(4)) {
        case 0:
            return static_cast<double>(static_cast<qint64>(bits())) / 8;
        case 1:
            return std::bit_cast<double>(m_generator() & 0xFFEF'FFFF'FFFF'FFFF);
        case 2:
            return below(2) == 1 ? std::numeric_limits<double>::infinity() : std::numeric_limits<double>::quiet_NaN();
        default:
            return static_cast<double>(below(2'000'000)) / 1000 - 1000;
        }
    }

    QVariant date()
    {
        constexpr qint64 first = -62'135'596'800; // the year 1
        constexpr qint64 count = 315'537'897'600; // to the end of the year 9999
        return QDateTime::fromSecsSinceEpoch(first + static_cast<qint64>(below(count)), Qt::UTC);
    }

    QVariant data()
    {
        QByteArray bytes(static_cast<qsizetype>(below(below(10) == 0 ? 500 : 30)), '\0');
        for (char &byte : bytes) {
            byte = static_cast<char>(below(256));
        }
        return bytes;
    }

    QVariant array(int containers)
    {
        QVariantList elements;
        for (quint64 count = below(below(10) == 0 ? 40 : 6); count > 0; --count) {
            elements.append(value(containers));
        }
        return elements;
    }

    QVariant dictionary(int containers)
    {
        QVariantMap entries;
        for (quint64 count = below(below(10) == 0 ? 40 : 6); count > 0; --count) {
            entries.insert(string(), value(containers));
        }
        return entries;
    }

    QString character()
    {
        static const QString special = QStringLiteral("<>&\"'\t\n /=;!?-[]");
        switch (below(6)) {
        case 0:
            return QString(special[static_cast<qsizetype>(below(static_cast<quint64>(special.size())))]);
        case 1:
            return QString(QChar(static_cast<char16_t>(0xA0 + below(0xD800 - 0xA0))));
        case 2:
            return QString(QChar(static_cast<char16_t>(0xE000 + below(0x1D00))));
        case 3: {
            const auto astral = static_cast<char32_t>(0x10000 + below(0xFFFF));
            return QString::fromUcs4(&astral, 1);
        }
        default:
            return QString(QChar(static_cast<char16_t>(0x20 + below(0x5F))));
        }
    }

    std::mt19937_64 m_generator;
};

} // namespace support
