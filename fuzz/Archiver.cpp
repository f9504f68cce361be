// Unarchives the input as a non-keyed archive, archives what was in it and requires that this archive is read and
// written again byte by byte. Types of windows are known, too, as they are to a host.

#include <fuzz/Require.h>

#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtGui/QGuiApplication>

#include <array>

namespace {

using platform::Archiver;
using platform::Unarchiver;

/// Reads fields of every kind up to the first one that is something else or broken.
void readFields(const QByteArray &data)
{
    try {
        Unarchiver unarchiver(data);
        while (true) {
            qint32 number = 0;
            bool isSet = false;
            double real = 0;
            unarchiver.decodeObject();
            unarchiver.decodeValueOfObjCType("i", &number);
            unarchiver.decodeValueOfObjCType("B", &isSet);
            unarchiver.decodeValueOfObjCType("d", &real);
        }
    } catch (const platform::ArchiveException &exception) {
        require(exception.what()[0] != '\0', "a refusal without a word");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static std::array<char *, 1> arguments{};
    static int argumentCount = 0;
    static const QGuiApplication application(argumentCount, arguments.data());
    static_cast<void>(application);

    const QByteArray data(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    readFields(data);
    const QVariant object = Unarchiver::unarchiveObjectWithData(data);
    if (!object.isValid()) {
        return 0;
    }
    const QByteArray archive = Archiver::archivedDataWithRootObject(object);
    const QVariant restored = Unarchiver::unarchiveObjectWithData(archive);
    require(restored.metaType() == object.metaType(), "the archive that was written is not read");
    require(Archiver::archivedDataWithRootObject(restored) == archive, "the archive that was written changes");
    return 0;
}
