#include <OrvaneExportKit/platform/Base128.h>

namespace platform {

namespace {

constexpr quint64 largest = quint64{1} << 63;
constexpr int groupBits = 7;
constexpr quint64 groupMask = 0x7F;
constexpr quint64 moreFollow = 0x80;

} // namespace

std::optional<quint64> takeBase128(QByteArrayView &bytes)
{
    quint64 number = 0;
    for (int shift = 0; shift < 64 && !bytes.isEmpty(); shift += groupBits) {
        const auto byte = static_cast<quint8>(bytes.front());
        bytes = bytes.sliced(1);
        const quint64 group = byte & groupMask;
        if (group > largest >> shift || number + (group << shift) > largest) {
            return std::nullopt;
        }
        number += group << shift;
        if ((byte & moreFollow) == 0) {
            return number;
        }
    }
    return std::nullopt;
}

void appendBase128(QByteArray &bytes, quint64 number)
{
    for (; number > groupMask; number >>= groupBits) {
        bytes.append(static_cast<char>((number & groupMask) | moreFollow));
    }
    bytes.append(static_cast<char>(number));
}

} // namespace platform
