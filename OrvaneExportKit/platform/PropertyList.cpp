#include <OrvaneExportKit/platform/PropertyList.h>

#include <OrvaneExportKit/platform/BinaryPropertyListReader.h>
#include <OrvaneExportKit/platform/BinaryPropertyListWriter.h>
#include <OrvaneExportKit/platform/PropertyListCheck.h>
#include <OrvaneExportKit/platform/PropertyListError.h>
#include <OrvaneExportKit/platform/XmlPropertyListReader.h>
#include <OrvaneExportKit/platform/XmlPropertyListWriter.h>

namespace platform {

PropertyList::ReadResult PropertyList::read(QByteArrayView data, XmlUids xmlUids)
{
    const Format format = data.startsWith("bplist") ? Format::Binary : Format::Xml;
    try {
        return {
            format == Format::Binary ? readBinaryPropertyList(data) : readXmlPropertyList(data, xmlUids), format, {}};
    } catch (const PropertyListError &error) {
        return {std::nullopt, format, error.description};
    }
}

PropertyList::WriteResult PropertyList::write(const QVariant &value, Format format)
{
    try {
        requireWritable(value, format);
        return {format == Format::Binary ? writeBinaryPropertyList(value) : writeXmlPropertyList(value), {}};
    } catch (const PropertyListError &error) {
        return {std::nullopt, error.description};
    }
}

} // namespace platform
