// Reads the input as an XML property list, writes what it holds in both formats and requires that reading gives it
// back.

#include <fuzz/PropertyListRoundTrip.h>

using platform::PropertyList;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const auto read =
        PropertyList::read(QByteArrayView(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)));
    require(read.value.has_value() == read.error.isEmpty(), "neither a value nor an error, or both");
    if (read.format != PropertyList::Format::Xml) {
        return 0;
    }
    if (!read.value) {
        require(read.error.startsWith(QLatin1StringView("line ")), "no place in: " + read.error.toStdString());
        return 0;
    }
    require(checkRoundTrip(*read.value, PropertyList::Format::Xml), "what was read as XML cannot be written so");
    if (isExact(*read.value)) {
        require(checkRoundTrip(*read.value, PropertyList::Format::Binary), "what was read as XML cannot be written");
    }
    return 0;
}
