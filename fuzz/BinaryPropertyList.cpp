// Reads the input as a binary property list, writes what it holds in the same format and requires that reading gives it
// back. XML refuses some of it and shortens dates, so there it only has to be readable.

#include <fuzz/PropertyListRoundTrip.h>

using platform::PropertyList;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const auto read =
        PropertyList::read(QByteArrayView(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)));
    require(read.value.has_value() == read.error.isEmpty(), "neither a value nor an error, or both");
    if (read.format != PropertyList::Format::Binary || !read.value || !isExact(*read.value)) {
        return 0;
    }
    checkRoundTrip(*read.value, PropertyList::Format::Binary);
    const auto xml = PropertyList::write(*read.value, PropertyList::Format::Xml);
    require(!xml.data || PropertyList::read(*xml.data).value.has_value(), "the XML that was written cannot be read");
    return 0;
}
