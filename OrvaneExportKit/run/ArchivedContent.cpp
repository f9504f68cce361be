#include <OrvaneExportKit/run/ArchivedContent.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>

#include <string>

namespace {

QVariant unarchivedElement(const QList<QByteArray> &archives, qsizetype index)
{
    const std::string place = "arrayWithUnarchivedKeyedContent: archive " + std::to_string(index + 1) + " of " +
                              std::to_string(archives.size()) + ": ";
    try {
        QVariant object = platform::KeyedUnarchiver::unarchiveObjectWithData(archives[index]);
        if (!object.isValid()) {
            throw platform::InvalidArgumentException(place + "it holds no object");
        }
        return object;
    } catch (const platform::ArchiveException &exception) {
        throw platform::ArchiveException(place + exception.what());
    }
}

} // namespace

QVariantList KZArrayExportAdditions::arrayWithUnarchivedKeyedContent(const QList<QByteArray> &archives)
{
    QVariantList objects;
    objects.resize(archives.size()); // which looks whether there is memory; the constructor does not
    for (qsizetype index = archives.size() - 1; index >= 0; --index) {
        objects[index] = unarchivedElement(archives, index);
    }
    return objects;
}
